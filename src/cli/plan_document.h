// The plan document: a flight plan as JSON, as every command prints it that
// makes or opens one. The fuel stands in the
// unit of the settings (0 gallons, 1 pounds, 2 kilograms, 3 litres).
#pragma once

#include "cli/cli_output.h"
#include "flightplan/flight_plan.h"
#include "flightplan/plan_context.h"

// messages is the list of texts that the plan's making showed to the pilot.
// "toc" and "tod" are not rounded; null where the aircraft cannot climb;
// "fuel" is null where there is no figure.
Json PlanDocument(const FlightPlan& plan, const PlanContext& context, int fuelUnit, const Json& messages);
