// Finds in the database what another program's plan names, and says where that
// is not what its file means.
#pragma once

#include <optional>
#include <string>

#include "flightplan/formats/foreign_plan.h"
#include "navdata/nav_database.h"

// Objects of one code this close together (NM) are one object, moved.
constexpr float sameObjectDistance = 10;
constexpr float sameAirportDistance = 30;
// An airport without a known code is the one this close to its place.
constexpr float nearbyAirportDistance = 5;
// A point without a position may make the way this much longer than direct.
constexpr float longestDetour = 500;

struct AirportMatch {
  std::int32_t row = -1;  // of the airport table; -1: not found
  std::string problem;    // found, but not quite what the file says; empty: as it says
};

// The airport of this code (of several the nearest), else the one at this
// place. trustCode: a code counts even when its airport is far from the place.
AirportMatch MatchAirport(const NavDatabase& database, const ForeignAirport& wanted, bool trustCode);

struct PointMatch {
  std::optional<PlanWaypoint> row;  // none: it has no place and is left out
  std::string problem;              // why it is not the object that the file names; empty: it is
};

// The object of the point's code and kind next to its place, of another kind if
// none is; a position of the pilot's own where the database has none there.
// A point without a place is the object that makes the shortest way between.
PointMatch MatchPoint(const NavDatabase& database, const ForeignPoint& point, Position before,
                      Position destination);
