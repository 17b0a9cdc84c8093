// What lies under the pointer and can be picked out: the context menu's list.
// Only what is on the map at present is offered.
#pragma once

#include <span>
#include <string>
#include <vector>

#include "map/hover.h"
#include "map/map_selection.h"

struct MapObject {
  std::string text;        // UTF-8, such as "VOR FFM FRANKFURT"
  MapSelection selection;  // the present one with this object picked out
};

// Within 100 units of the pointer: airports, VOR, NDB, ILS, intersections, GPS
// fixes. Then airways that pass within 60 units (each name once), airspaces
// around the pointer, and the land outline around it. present is what is
// picked out now: an airspace that is picked out already is offered as the
// selection without it. At most maxMapObjects.
std::vector<MapObject> MapObjectsNear(const HoverQuestion& question, const MapSelection& present);
constexpr std::size_t maxMapObjects = 40;

// The selection with nothing picked out.
MapSelection ClearedSelection();

// True if a place lies inside a closed shape of positions, the shorter way
// round the world between neighbours (even-odd rule).
bool ShapeHolds(std::span<const Position> points, Position place);
