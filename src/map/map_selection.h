// What the pilot has picked out on the map: it is drawn in colour HILITE. The
// rows of ILS without an airport count on behind those of the airports.
#pragma once

#include <cstdint>
#include <string>
#include <vector>

enum class SelectedObject : std::int16_t {
  airport = 0,
  vor = 1,
  ndb = 2,
  ils = 3,
  intersection = 4,
  fix = 5,
  victorAirway = 6,
  jetAirway = 7
};

struct MapSelection {
  std::int32_t SelectedObjectIndex = -1;  // row of its table; -1: nothing
  SelectedObject SelectedObjectType = SelectedObject::airport;
  std::string SelectedAirway;                 // name, in the database's code page; empty: none
  std::int32_t SelectedOutline = -1;          // shape of the world polygons; -1: none
  std::vector<std::int32_t> activeAirspaces;  // rows, drawn once more above all airspaces

  bool Holds(SelectedObject type, std::int32_t row) const {
    return SelectedObjectIndex >= 0 && SelectedObjectIndex == row && SelectedObjectType == type;
  }
};
