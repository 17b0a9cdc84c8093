// The table of the database's layers: place, name, condition, drawing, and the
// switches that a request by name turns on.
#include "map/airport_layer.h"
#include "map/airway_layer.h"
#include "map/map_layer.h"
#include "map/world_layer.h"

std::vector<MapLayer> DatabaseLayers() {
  using On = const MapPaint&;
  using Flags = MapSwitches;
  return {
      {LayerPlace::worldShapes,
       "coastlines",
       [](On p) { return p.switches.mnuCoastlines; },
       DrawWorld,
       {&Flags::mnuCoastlines}},
      {LayerPlace::airports,
       "airports",
       [](On p) { return p.switches.mnuAirport; },
       DrawAirports,
       {&Flags::mnuAirport}},
      {LayerPlace::jetAirways,
       "jet",
       [](On p) { return p.switches.mnuJet; },
       DrawJetAirways,
       {&Flags::mnuJet}},
      {LayerPlace::victorAirways,
       "victor",
       [](On p) { return p.switches.mnuVictor; },
       DrawVictorAirways,
       {&Flags::mnuVictor}},
  };
}
