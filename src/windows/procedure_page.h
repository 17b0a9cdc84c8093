// The printed page of a departure or arrival: heading, chart and reading text.
#pragma once

#include <QPagedPaintDevice>

#include "flightplan/procedure_chart.h"

// Prints onto the device's first page. False if the device takes nothing.
bool PrintProcedure(const ProcedureChart& chart, QPagedPaintDevice& device);
