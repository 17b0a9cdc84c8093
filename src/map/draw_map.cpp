#include "map/draw_map.h"

#include <algorithm>

std::vector<MapLayer> InDrawingOrder(std::vector<MapLayer> layers) {
  std::stable_sort(layers.begin(), layers.end(),
                   [](const MapLayer& a, const MapLayer& b) { return a.place < b.place; });
  return layers;
}

void DrawMap(const MapScene& scene, const std::vector<MapLayer>& layers, DrawSurface& surface) {
  scene.labels.InitDeclutterGrid(surface);
  scene.view.UpdateVisibilityBox();
  surface.ResetStyle();
  surface.Clear(scene.settings.colors.MAP);
  clsNavaid navaid;
  navaid.objTarget = &surface;
  navaid.objLabels = &scene.labels;
  navaid.rangeNM = scene.view.RangeNM();
  const MapPaint paint{surface,        scene.view,      scene.view.CurrentProjection(),
                       scene.database, scene.settings,  scene.settings.colors,
                       scene.switches, scene.selection, scene.labels,
                       navaid};
  for (const MapLayer& layer : layers) {
    if (!layer.shown(paint)) continue;
    surface.ResetStyle();
    layer.draw(paint);
  }
  surface.ResetStyle();
}
