// The plan document: a flight plan as JSON, as every command prints it that
// makes or opens one. Keys whose subject the program does not compute (fuel)
// are left out.
#pragma once

#include "cli/cli_output.h"
#include "flightplan/flight_plan.h"
#include "flightplan/plan_context.h"

// messages is the list of texts that the plan's making showed to the pilot.
// "toc" and "tod" are not rounded; null where the aircraft cannot climb.
Json PlanDocument(const FlightPlan& plan, const PlanContext& context, const Json& messages);
