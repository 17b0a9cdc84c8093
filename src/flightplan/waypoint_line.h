// A waypoint as a line of a text file: what stands behind "WP=" in plan files
// and in segment files, told apart by commas. Code page text, numbers with a
// decimal point.
//
//   Int,TABUM,TABUM,50.2521,8.6405,0.00,17.1234,2.310,1,4711,UL607,18000,46000
//
// Sym, Code, Name, Lat, Lon, Freq, Course, MagVar, Kind, DbIndex, and only on
// an airway its name and, when they are known, its lowest and highest altitude.
#pragma once

#include <optional>
#include <string>
#include <string_view>

#include "flightplan/flight_plan.h"

// Commas within a text become blanks.
std::string WaypointFields(const PlanWaypoint& row);

// The waypoint of such fields; what is behind them is passed over. A kind that
// is neither SID nor STAR counts as enroute. Nothing if fields are missing or
// the place is none on earth.
std::optional<PlanWaypoint> WaypointOfFields(std::string_view fields);
