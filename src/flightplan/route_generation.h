// The commands that generate a route over airways: for the whole plan, or for
// the leg behind the row that the pilot has selected.
#pragma once

#include "flightplan/airway_search.h"
#include "flightplan/flight_plan.h"
#include "flightplan/navaid_route.h"
#include "flightplan/plan_context.h"

enum class AirwayNetwork { lowAltitude, highAltitude };

// With no row selected every enroute row between SID and STAR goes and the
// whole route is generated: RouteType becomes lowAltitude or highAltitude.
// With a row selected only the leg behind it is filled (RouteType navaid).
// True if there is a route; if not, the pilot has been told why. Nothing
// happens while the plan has no airports.
bool GenerateAirwayRoute(FlightPlan& plan, const PlanContext& context, AirwaySearch& search,
                         AirwayNetwork network);

// Likewise over navaids. RouteType becomes navaid in both cases. The rows found
// so far stay when the pilot is told that there are too few navaids.
bool GenerateNavaidRoute(FlightPlan& plan, const PlanContext& context, const NavaidKinds& kinds,
                         const NavaidSector& sector);
