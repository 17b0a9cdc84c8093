// The layers of the map. A layer is one small value: its place in the drawing
// order, when it is shown, and how it draws itself from what a repaint hands
// it. Upper floors bring layers of their own; DrawMap() sorts them all into
// the one order below. A later layer overprints an earlier one and takes what
// label cells are left.
#pragma once

#include <functional>
#include <string_view>
#include <vector>

#include "map/clsNavaid.h"
#include "map/map_selection.h"
#include "map/map_switches.h"
#include "map/map_view.h"
#include "map/modDeclutter.h"
#include "navdata/nav_database.h"
#include "platform/draw_surface.h"
#include "settings/settings.h"

// The one drawing order, complete: also the places of layers that the upper
// floors bring.
enum class LayerPlace {
  worldShapes = 1,
  outlineSelection = 2,
  grid = 3,
  airspaces = 4,
  activeAirspaces = 5,
  compass = 7,
  msa = 8,
  groundPolygons = 9,
  taxiways = 10,
  airports = 11,
  taxiwayDesignators = 12,
  planLine = 13,
  natTracks = 14,
  pacotTracks = 15,
  weather = 16,
  procedures = 17,
  activeLeg = 18,
  jetAirways = 19,
  victorAirways = 20,
  vors = 21,
  pendingIls = 22,
  ndbs = 23,
  intersections = 24,
  fixes = 25,
  userWaypoints = 26,
  planWaypoints = 27,
  onlineTraffic = 28,
  directTo = 29,
  aiTraffic = 30,
  trackTrace = 31,
  violationCheck = 32,
};

// What a layer sees of one repaint.
struct MapPaint {
  DrawSurface& surface;
  const MapView& view;
  const Projection projection;
  const NavDatabase& database;
  const Settings& settings;
  const ColorSettings& colors;  // of settings
  const MapSwitches& switches;
  const MapSelection& selection;
  modDeclutter& labels;
  clsNavaid& navaid;  // draws on surface

  std::int16_t RangeNM() const { return view.RangeNM(); }
};

struct MapLayer {
  LayerPlace place;
  std::string_view name;  // as "draw --layers" takes it
  std::function<bool(const MapPaint&)> shown;
  std::function<void(const MapPaint&)> draw;
  // The switches that a request for this layer by name turns on.
  std::vector<bool MapSwitches::*> switches = {};
};

// The layers that draw the navigation database.
std::vector<MapLayer> DatabaseLayers();
