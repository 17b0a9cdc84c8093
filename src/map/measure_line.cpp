#include "map/measure_line.h"

#include "base/numbers.h"
#include "map/pointer_panel.h"

void MeasureLine::Begin(const MapView& view, float x, float y) {
  MeasureActive = true;
  visible = true;
  start = {x, y};
  MoveTo(view, x, y);
}

void MeasureLine::MoveTo(const MapView& view, float x, float y) {
  if (!MeasureActive) return;
  const Projection projection = view.CurrentProjection();
  end = {x, y};
  label = end;
  MeasureStartLat = projection.YToLat(start.y);
  MeasureStartLon = projection.XToLon(start.x);
  MeasureEndLat = projection.YToLat(end.y);
  MeasureEndLon = projection.XToLon(end.x);
}

void MeasureLine::Reposition(const MapView& view) {
  if (!visible) return;
  const Projection projection = view.CurrentProjection();
  const auto place = [&](float lat, float lon) {
    return SurfacePoint{static_cast<float>(projection.LonToX(lon)),
                        static_cast<float>(projection.LatToY(lat))};
  };
  start = place(MeasureStartLat, MeasureStartLon);
  end = place(MeasureEndLat, MeasureEndLon);
  label = start;
}

std::string MeasureLine::Caption(float magVar) const {
  const float distance = GreatCircleDistance(MeasureStartLat, MeasureStartLon, MeasureEndLat, MeasureEndLon);
  const float bearing = GreatCircleCourse(MeasureStartLat, MeasureStartLon, MeasureEndLat, MeasureEndLon);
  const double magnetic = NormalizeDeg(bearing - magVar);
  const double reciprocal = NormalizeDeg(magnetic - 180);
  return FormatPicture(distance, "###0.0") + "NM/" + std::to_string(CutToInt(magnetic)) + "°/" +
         std::to_string(CutToInt(reciprocal)) + "°";
}
