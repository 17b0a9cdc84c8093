// Which control zones a plan flies over: each leg, along its great circle, is
// held against the outlines of the database's control zones. Altitude is not
// looked at; the zone's limits are told with it.
#pragma once

#include <cstdint>
#include <string>
#include <vector>

#include "flightplan/flight_plan.h"
#include "navdata/nav_database.h"

// How a zone of no class, or of none of "A" to "G", is marked.
constexpr std::string_view unknownAirspaceClass = "XXX";

struct ZoneCrossing {
  std::int32_t row = -1;  // of the airspace table
  double afterNM = 0;     // from the start of the leg to where it meets the zone
};

// The control zones that the great circle from one place to another touches, in
// the order in which they are met, by row where two are met together. A place
// that is no place gives none.
std::vector<ZoneCrossing> ZonesCrossed(const NavDatabase& database, Position from, Position to);

struct LegZones {
  int row = 0;  // of the plan: the one the leg leads to
  std::vector<ZoneCrossing> zones;
};

// One entry for each leg of the plan.
std::vector<LegZones> ZonesOnRoute(const FlightPlan& plan, const NavDatabase& database);

// "Class: D   EDDF Frankfurt am Main   GND - 2900 ft   119.90", UTF-8.
std::string ZoneText(const AirspaceRec& zone);
