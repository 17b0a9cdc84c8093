// The general flight information of the printed plan: aircraft, airports and
// route, fuel, climb and descent, frequencies, alternate, runways.
#pragma once

#include "flightplan/printed_plan.h"

// The blocks in the order in which they are printed.
std::vector<PrintedBlock> GeneralFlightInformation(const PrintSources& sources);
