#include "map/draw_map.h"

#include <algorithm>

std::vector<MapLayer> InDrawingOrder(std::vector<MapLayer> layers) {
  std::stable_sort(layers.begin(), layers.end(),
                   [](const MapLayer& a, const MapLayer& b) { return a.place < b.place; });
  return layers;
}

void DrawMap(MapView& view, const NavDatabase& database, const ColorSettings& colors,
             const MapSwitches& switches, const std::vector<MapLayer>& layers, DrawSurface& surface) {
  LabelPlacer labels(surface);
  view.UpdateVisibilityBox();
  surface.ResetStyle();
  surface.Clear(colors.MAP);
  const MapPaint paint{surface, view, view.CurrentProjection(), database, colors, switches, labels};
  for (const MapLayer& layer : layers) {
    if (!layer.shown(paint)) continue;
    surface.ResetStyle();
    layer.draw(paint);
  }
  surface.ResetStyle();
}
