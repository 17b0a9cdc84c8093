// The one full repaint of the map: limits the centre, works out the visibility
// box, clears the surface and draws every layer that is shown, in order.
// Nothing is kept from one repaint to the next.
#pragma once

#include <vector>

#include "map/map_layer.h"

// Layers in the order of their places; equal places stay as they come.
std::vector<MapLayer> InDrawingOrder(std::vector<MapLayer> layers);

// layers must be in drawing order. An exception of a layer passes through: the
// surface then shows what was drawn so far.
void DrawMap(MapView& view, const NavDatabase& database, const ColorSettings& colors,
             const MapSwitches& switches, const std::vector<MapLayer>& layers, DrawSurface& surface);
