// The plan as one line of text, as air traffic control writes it: codes, and
// for airways their names between the fixes where they begin and end.
#pragma once

#include <string>
#include <string_view>

#include "flightplan/flight_plan.h"

// The route text's alphabet: small letters become capitals, everything but
// "0" to "9" and "A" to "Z" a blank; trimmed.
std::string PlainRouteText(std::string_view text);

// Departure code to destination code; a procedure's rows are replaced by its
// name. Empty for a plan without airports.
std::string RouteStringFromPlan(const FlightPlan& plan);
