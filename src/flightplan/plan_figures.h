// The plan's figures as its labels show them.
#pragma once

#include <string>

#include "flightplan/aircraft.h"
#include "flightplan/flight_plan.h"

// A plan that has no figures, because there is none or because its waypoints
// were all deleted, shows "00000", "00:00" and "000".
struct PlanFigures {
  std::string FlightDistance;  // whole NM
  std::string ETE;             // hh:mm
  std::string FL;              // hundreds of feet
  std::string CruiseSpeed;     // kts; "000" without a plan
};

PlanFigures FiguresOf(const FlightPlan& plan, const AircraftRec& aircraft);
