// The airway route builder: fills the leg behind a row of the plan with the
// shortest connection over the low ('V') or high ('J') airway network. The
// network is entered at a fix near that row and left at the first fix within
// a circle around the row behind it.
#pragma once

#include "flightplan/airway_search.h"
#include "flightplan/flight_plan.h"
#include "flightplan/plan_context.h"

// The fix at which the network is entered, -1 (and a message to the pilot) if
// there is none. A VOR row enters at the intersection of its name within 1 NM,
// an "Int" row of the network at itself. Any other row takes the fix closer
// than SearchRadius that has a link within 60 degrees of the leg's course, and
// of those the one least off that course. SearchRadius grows by 20 NM while
// there is none and comes back as it was last used.
int FindEntryFix(const FlightPlan& plan, const PlanContext& context, int insertionRow, char level,
                 float& SearchRadius);

// The radius in NM (35, 60, ... 485) of the smallest circle around the row
// behind insertionRow with a fix of the network in it, fixes closer than 5 NM
// aside; -1 (and a message) if there is none.
float FindExitRadius(const FlightPlan& plan, const PlanContext& context, int insertionRow, char level);

// Fills the leg behind insertionRow; true if the plan has its route. The
// pilot is told why there is none, and also when the aircraft's cruise level
// lies below an airway of the route. Without a route only RouteMethod has
// changed. insertionRow comes back on the last row of the route.
// Throws std::length_error when the plan or the search's heap is full, with
// the plan's rows as they were.
bool CreateAirwayRoute(FlightPlan& plan, const PlanContext& context, AirwaySearch& search, char level,
                       int& insertionRow);
