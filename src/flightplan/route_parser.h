// The route string read back: one line of codes and airways becomes the whole
// plan. Words that name nothing in the database ("DCT", a procedure) are passed
// over in silence.
#pragma once

#include <string_view>

#include "flightplan/flight_plan.h"
#include "flightplan/plan_context.h"

// Clears the plan and fills it from text: the first word is the departure, the
// last the destination (the last row of the airport table with that code), each
// word between them the nearest to the point before it of the intersections,
// VORs, NDBs and fixes of that ident. A word behind an intersection that names
// an airway leaving it joins it with the next fix. False, with a message to the
// pilot, when an airport is missing (the plan stays empty) or a fix is not on
// its airway (the plan keeps what it has).
bool ParseRoute(FlightPlan& plan, const PlanContext& context, std::string_view text);

// The row of the intersection table that a row of the plan stands for on an
// airway: its own, or that of its code within a mile; -1 if none.
std::int32_t AirwayNodeOf(const PlanWaypoint& row, const NavDatabase& database);

// Fills the way along an airway between row and the row behind it with the
// airway's fixes and marks the legs with its name and limits. network: 1 victor,
// 2 jet. fromNode, toNode: rows of the intersection table. False, with the plan
// as it was, if the airway does not lead from one to the other.
bool ExpandAirway(FlightPlan& plan, const PlanContext& context, std::int32_t fromNode, std::int32_t toNode,
                  std::string_view airway, int network, int row);
