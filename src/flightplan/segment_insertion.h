// A segment's rows put into the plan.
#pragma once

#include <string_view>
#include <vector>

#include "flightplan/flight_plan.h"
#include "flightplan/plan_context.h"

// Why so many waypoints cannot be inserted behind a row of the plan; empty: they
// can. A row below 0 means that none is chosen.
std::string_view InsertionFault(const FlightPlan& plan, int afterRow, std::size_t waypoints);

// Puts the rows behind afterRow as they stand, then recomputes the plan and
// selects the last of them. They need not be in the database; those that are
// get the number of their object. Where the segment begins or ends with the
// plan's own waypoint the two become one. A SID row stays one only where a SID
// can stand, likewise a STAR row; within the plan's SID or STAR all rows belong
// to it. Throws std::length_error if the plan cannot take all of them and
// std::out_of_range if afterRow is the destination or beyond; the plan is then
// as it was.
void InsertSegment(FlightPlan& plan, const PlanContext& context, int afterRow,
                   const std::vector<PlanWaypoint>& rows);
