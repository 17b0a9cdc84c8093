// The navaid route builder: fills the leg behind a row of the plan with a chain
// of VORs, NDBs and intersections that lies roughly on the direct line. A
// greedy search: each step chooses in a sector that opens from the last chosen
// waypoint toward the target. No airway is needed.
#pragma once

#include "flightplan/flight_plan.h"
#include "flightplan/plan_context.h"

// What the chain may be made of.
struct NavaidKinds {
  bool vor = true;
  bool ndb = true;
  bool intersection = true;
};

// How wide the search looks (settings SECLEN, SECWIDTH, GC).
struct NavaidSector {
  int SectorLength = 50;    // NM
  int SectorWidth = 30;     // degrees to either side
  bool GreatCircle = true;  // the radius grows by 50 NM where nothing is found, else by 15
};

// Fills the leg behind insertionRow, which comes back on the last row of the
// chain. RouteMethod becomes navaid, RouteType too. With no kind at all the
// pilot is told and nothing happens: false. False also when a crossing of more
// than 2000 NM runs out of navaids: the pilot is told, the rows found so far
// stay. Throws std::length_error at more than 100 candidates in one step or a
// full plan; the rows found so far stay then as well.
bool CreateNavaidRoute(FlightPlan& plan, const PlanContext& context, const NavaidKinds& kinds,
                       const NavaidSector& sector, int& insertionRow);
