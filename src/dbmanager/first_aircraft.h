// The aircraft that a pilot without a file of his own starts with.
#pragma once

#include <vector>

#include "flightplan/aircraft.h"

// A dozen types with rounded figures of their class, from a Cessna 182 to a
// 747, which is number 12: the one that fresh settings choose.
std::vector<AircraftRec> FirstAircraft();
