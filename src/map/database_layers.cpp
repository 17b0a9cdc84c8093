// The table of the database's layers: place, name, condition, drawing, and the
// switches that a request by name turns on.
#include "map/airport_layer.h"
#include "map/airspace_layer.h"
#include "map/airway_layer.h"
#include "map/compass_layer.h"
#include "map/grid_layer.h"
#include "map/ground_layer.h"
#include "map/ils_layer.h"
#include "map/map_layer.h"
#include "map/msa_layer.h"
#include "map/radio_layer.h"
#include "map/waypoint_layer.h"
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
      {LayerPlace::outlineSelection,
       "outline",
       [](On p) { return p.switches.mnuCoastlines && p.selection.SelectedOutline >= 0; },
       DrawSelectedOutline,
       {&Flags::mnuCoastlines}},
      {LayerPlace::grid, "grid", [](On p) { return p.switches.mnuLatLong; }, DrawGrid, {&Flags::mnuLatLong}},
      {LayerPlace::airspaces,
       "airspaces",
       [](On) { return true; },
       DrawAirspaces,
       {&Flags::mnuCtrz, &Flags::mnuAir1, &Flags::mnuAir2}},
      {LayerPlace::activeAirspaces, "activeairspaces",
       [](On p) { return !p.selection.activeAirspaces.empty(); }, DrawActiveAirspaces},
      {LayerPlace::compass,
       "compass",
       [](On p) { return p.switches.mnuCompass; },
       DrawCompass,
       {&Flags::mnuCompass}},
      {LayerPlace::msa,
       "msa",
       [](On p) { return p.RangeNM() <= 300 && p.switches.mnuMSA; },
       DrawMsa,
       {&Flags::mnuMSA}},
      {LayerPlace::groundPolygons,
       "polygons",
       [](On p) { return p.RangeNM() <= 10 && p.switches.mnuAirport && !p.database.polygons.empty(); },
       DrawGroundPolygons,
       {&Flags::mnuAirport}},
      {LayerPlace::taxiways,
       "taxiways",
       [](On p) { return p.RangeNM() <= 10 && p.switches.mnuAirport && !p.database.taxiways.empty(); },
       DrawTaxiways,
       {&Flags::mnuAirport}},
      {LayerPlace::airports,
       "airports",
       [](On p) { return p.switches.mnuAirport; },
       DrawAirports,
       {&Flags::mnuAirport}},
      {LayerPlace::taxiwayDesignators,
       "taxinames",
       [](On p) { return p.RangeNM() <= 3 && p.switches.mnuAirport; },
       DrawTaxiwayDesignators,
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
      {LayerPlace::vors, "vor", [](On p) { return p.switches.mnuVOR; }, DrawVors, {&Flags::mnuVOR}},
      {LayerPlace::pendingIls,
       "ils",
       [](On p) { return p.switches.mnuAirport && p.switches.mnuILS && p.RangeNM() <= 200; },
       DrawPendingIls,
       {&Flags::mnuAirport, &Flags::mnuILS}},
      {LayerPlace::ndbs, "ndb", [](On p) { return p.switches.mnuNDB; }, DrawNdbs, {&Flags::mnuNDB}},
      {LayerPlace::intersections,
       "intersections",
       [](On p) { return p.switches.mnuIntersection || p.switches.mnuVictor || p.switches.mnuJet; },
       DrawIntersections,
       {&Flags::mnuIntersection}},
      {LayerPlace::fixes,
       "fixes",
       [](On p) { return p.switches.mnuGPSFix && p.RangeNM() <= 150; },
       DrawFixes,
       {&Flags::mnuGPSFix}},
      {LayerPlace::userWaypoints,
       "userwaypoints",
       [](On p) { return p.switches.mnuUserWP; },
       DrawUserWaypoints,
       {&Flags::mnuUserWP}},
  };
}
