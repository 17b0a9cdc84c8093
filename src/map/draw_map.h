// The one full repaint of the map: limits the centre, works out the visibility
// box, clears the surface and draws every layer that is shown, in order.
// Nothing is kept from one repaint to the next but the label search's last
// direction.
#pragma once

#include <vector>

#include "map/map_layer.h"

// Everything that a repaint reads, and the two things that it changes.
struct MapScene {
  MapView& view;         // centre and visibility box
  modDeclutter& labels;  // last direction
  const NavDatabase& database;
  const Settings& settings;
  const MapSwitches& switches;
  const MapSelection& selection;
};

// Layers in the order of their places; equal places stay as they come.
std::vector<MapLayer> InDrawingOrder(std::vector<MapLayer> layers);

// layers must be in drawing order. An exception of a layer passes through: the
// surface then shows what was drawn so far.
void DrawMap(const MapScene& scene, const std::vector<MapLayer>& layers, DrawSurface& surface);
