// One repaint of a small world onto a recording surface.
#pragma once

#include <cmath>

#include "map/draw_map.h"
#include "tests/map/recording_surface.h"

// All switches off, so that a test turns on what it is about.
inline MapSwitches NothingShown() {
  MapSwitches none;
  none.mnuCoastlines = none.mnuAirport = none.mnuILS = none.mnuVOR = none.mnuNDB = false;
  none.mnuVictor = none.mnuJet = none.mnuUserWP = none.btnIcao = false;
  return none;
}

inline MapView ViewAtRow(Position centre, int row, float magVar = 0) {
  MapView view = MapView::At(centre.lat, centre.lon, row);
  view.MapMagVar = magVar;
  return view;
}

// Builds the indexes of database and draws all its layers.
inline RecordingSurface PaintedMap(NavDatabase& database, MapView view, const MapSwitches& switches,
                                   const MapSelection& selection = {}) {
  BuildIndexes(database);
  RecordingSurface surface;
  modDeclutter labels;
  DrawMap({view, labels, database, Settings(), switches, selection}, InDrawingOrder(DatabaseLayers()),
          surface);
  return surface;
}
