// One repaint of a database that a test has filled by hand.
#pragma once

#include "tests/map/painted.h"

inline MapView ViewAtRow(Position centre, int row, float magVar = 0) {
  MapView view = MapView::At(centre.lat, centre.lon, row);
  view.MapMagVar = magVar;
  return view;
}

// Builds the indexes of database and draws all its layers.
inline RecordingSurface PaintedMap(NavDatabase& database, const MapView& view, const MapSwitches& switches,
                                   const MapSelection& selection = {}) {
  BuildIndexes(database);
  return Painted(database, view, switches, selection).surface;
}
