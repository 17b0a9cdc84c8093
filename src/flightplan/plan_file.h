// The plan file (.pln): the flight simulator's own plan format, and behind it
// this program's section with everything that rebuilds the plan. Text in the
// 8-bit code page, lines ended by CR LF, numbers with a decimal point.
//
//   [Flightplan]
//   AppVersion=9.1.40901
//   title=EDDF to EDDM
//   ...                              the simulator's keys
//   waypoint.1=KK, TABUM, , TABUM,  I, N50* 15.1234', E008* 38.4321', +000000.00,
//
//   [VLM]
//   DepartAPCode=EDDF                ten characters
//   ...                              the plan's header
//   WP=1,Int,TABUM,TABUM,50.2521,8.6405,0.00,17.1234,2.310,1,4711,UL607,18000,46000
//
// A WP= line holds the number of the row and its fields (waypoint_line.h).
#pragma once

#include <string>

#include "flightplan/flight_plan.h"
#include "navdata/nav_database.h"

enum class PlanFormat {
  FS,  // both parts
  RC,  // the simulator's part only
  PM,  // likewise
};

// The file's text. Throws std::logic_error for a plan without its airports.
std::string WritePlan(const FlightPlan& plan, const NavDatabase& database, PlanFormat format);
