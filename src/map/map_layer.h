// The layers of the map. A layer is one small value: its place in the drawing
// order, when it is shown, and how it draws itself from what a repaint hands
// it. Upper floors bring layers of their own; DrawMap() sorts them all into
// the one order below. A later layer overprints an earlier one.
#pragma once

#include <functional>
#include <string_view>
#include <vector>

#include "map/label_placer.h"
#include "map/map_view.h"
#include "navdata/nav_database.h"
#include "platform/draw_surface.h"
#include "settings/settings.h"

// The one drawing order. Gaps are kept for layers that are still to come.
enum class LayerPlace {
  worldShapes = 10,
  airports = 110,
  planLine = 130,
  jetAirways = 190,
  victorAirways = 200,
  planWaypoints = 270,
};

// Menus and ribbons that decide what the map shows, named after their controls.
struct MapSwitches {
  bool mnuCoastlines = true;
  bool mnuAirport = true;
  bool mnuJet = true;
  bool mnuVictor = true;
  bool btnIcao = true;   // codes
  bool btnName = false;  // names
  bool btnFreq = false;  // frequencies and altitudes
};

// What a layer sees of one repaint.
struct MapPaint {
  DrawSurface& surface;
  const MapView& view;
  const Projection projection;
  const NavDatabase& database;
  const ColorSettings& colors;
  const MapSwitches& switches;
  LabelPlacer& labels;
};

struct MapLayer {
  LayerPlace place;
  std::string_view name;  // as "draw --layers" takes it
  std::function<bool(const MapPaint&)> shown;
  std::function<void(const MapPaint&)> draw;
};

// The layers that draw the navigation database.
std::vector<MapLayer> DatabaseLayers();
