#include "map/map_view.h"

#include <algorithm>
#include <cmath>
#include <cstdlib>

#include "base/numbers.h"

namespace {

constexpr std::int16_t farthestPolarRow = 19;
constexpr int refusedRow = 21;
constexpr float boxMargin = 0.5F;
constexpr float followHeight = 200;  // units; a lower box only recentres
constexpr std::string_view minimumZoom = "Minimum zoom!";
constexpr std::string_view maximumZoom = "Maximum zoom!";

}  // namespace

Projection::Projection(float centerLat, float centerLon, std::int32_t scale)
    : centerLat(centerLat),
      centerLon(centerLon),
      scale(scale),
      cosine(static_cast<float>(std::cos(static_cast<double>(centerLat) * geodesyPi / 180))),
      eastScale(this->scale * cosine) {}

std::int32_t Projection::LonToX(float lon) const {
  float d = centerLon - lon;
  if (d <= -180) d += 360;
  if (d >= 180) d -= 360;
  return FloorToInt(mapScaleWidth / 2.0 - d * scale * cosine);
}

std::int32_t Projection::LatToY(float lat) const {
  return FloorToInt(mapScaleHeight / 2.0 + (static_cast<double>(centerLat) - lat) * scale);
}

float Projection::XToLon(double x) const {
  double lon = centerLon - (mapScaleWidth / 2.0 - x) / eastScale;
  if (lon > 180) lon -= 360;
  if (lon < -180) lon += 360;
  return static_cast<float>(lon);
}

float Projection::YToLat(double y) const {
  return static_cast<float>(centerLat - (y - mapScaleHeight / 2.0) / scale);
}

MapView MapView::At(float lat, float lon, int zoomIndex) {
  MapView view;
  view.MapCenterLat = lat;
  view.MapCenterLon = lon;
  view.AircraftLat = lat;
  view.AircraftLon = lon;
  const bool known = zoomIndex >= 0 && zoomIndex < static_cast<int>(ZoomTable.size());
  view.ZoomIndex = known ? static_cast<std::int16_t>(zoomIndex) : defaultZoomIndex;
  view.MapScale = ZoomTable[static_cast<std::size_t>(view.ZoomIndex)].scale;
  return view;
}

std::string MapView::RangeText() const {
  return FormatPicture(RangeNM(), "####") + "NM";
}

float MapView::LimitCenterLat(float lat) const {
  const Projection projection = CurrentProjection();
  const double halfHeight = static_cast<double>(mapScaleHeight) / MapScale / 2;
  if (halfHeight > 90) return 0;
  if (projection.YToLat(0) > 90) return static_cast<float>(90 - halfHeight);
  if (projection.YToLat(mapScaleHeight) < -90) return static_cast<float>(halfHeight - 90);
  return lat;
}

void MapView::TakeRow(int level) {
  ZoomIndex = static_cast<std::int16_t>(level);
  const auto scale = ZoomTable[static_cast<std::size_t>(level)].scale;
  MapScale = std::max(1, RoundToEven(static_cast<double>(MapSizeFactor) * scale));
}

ZoomAnswer MapView::SetZoom(int level, bool clearAutozoom) {
  const bool northEdgeInside = MapNorthLat >= 0 && MapNorthLat <= 80;
  if (!northEdgeInside && level > farthestPolarRow) {
    TakeRow(farthestPolarRow);
    return {minimumZoom, MapReady};
  }
  if (level < 0) return {maximumZoom, false};
  if (level >= refusedRow) return {minimumZoom, false};
  TakeRow(level);
  if (clearAutozoom) mnuAutozoom = false;
  return {{}, MapReady};
}

std::int16_t NearestZoomRow(std::int32_t heightNM, std::int16_t otherwise) {
  std::int16_t best = otherwise;
  std::int32_t bestDifference = 20000;
  for (std::int16_t row = 0; row < refusedRow; ++row) {
    const std::int32_t difference = std::abs(ZoomTable[static_cast<std::size_t>(row)].rangeNM - heightNM);
    if (difference >= bestDifference) continue;
    best = row;
    bestDifference = difference;
  }
  return best;
}

void MapView::RecentreOnBox(float x1, float y1, float x2, float y2) {
  const Projection projection = CurrentProjection();
  MapCenterLat = projection.YToLat((static_cast<double>(y1) + y2) / 2);
  MapCenterLon = projection.XToLon((static_cast<double>(x1) + x2) / 2);
  AircraftLat = MapCenterLat;
  AircraftLon = MapCenterLon;
  if (std::abs(y2 - y1) <= followHeight) return;
  const double degrees = std::abs(static_cast<double>(projection.YToLat(y1)) - projection.YToLat(y2));
  TakeRow(NearestZoomRow(RoundToEven(60 * degrees), ZoomIndex));
}

void MapView::CentreOnAircraft() {
  MapCenterLat = AircraftLat;
  MapCenterLon = AircraftLon;
}

bool MapView::RefreshMagVar(const MagneticVariationGrid& variation) {
  const bool far = std::abs(AircraftLat - LastMagVarLat) > 1 || std::abs(AircraftLon - LastMagVarLon) > 1;
  if (!far) return false;
  MapMagVar = variation.MagVarLookup(AircraftLat, AircraftLon);
  LastMagVarLat = AircraftLat;
  LastMagVarLon = AircraftLon;
  return true;
}

void MapView::UpdateVisibilityBox() {
  MapCenterLat = LimitCenterLat(MapCenterLat);
  const Projection projection = CurrentProjection();
  MapNorthLat = std::min(projection.YToLat(0) + boxMargin, 90.0F);
  MapSouthLat = std::max(projection.YToLat(mapScaleHeight) - boxMargin, -90.0F);
  const double pageDegrees = mapScaleWidth / (projection.UnwrappedX(1) - projection.UnwrappedX(0));
  if (!(pageDegrees + 2 * boxMargin < 360)) {
    MapWestLon = -180;
    MapEastLon = 180;
    MapCrossesDateLine = false;
    return;
  }
  MapWestLon = projection.XToLon(0) - boxMargin;
  MapEastLon = projection.XToLon(mapScaleWidth) + boxMargin;
  // A map more than half the world wide can hold the date line with both its
  // edges on one side of the prime meridian; west then lies above east.
  MapCrossesDateLine = (MapWestLon >= 0 && MapEastLon < 0) || MapWestLon > MapEastLon;
}

bool MapView::InView(float lat, float lon, float margin) const {
  if (!(lat < MapNorthLat + margin && lat >= MapSouthLat - margin)) return false;
  const float west = MapWestLon - margin;
  const float east = MapEastLon + margin;
  if (MapCrossesDateLine) return lon >= west || lon <= east;
  // A margin that reaches over the date line goes on behind it.
  return (lon >= west && lon <= east) || lon - 360 >= west || lon + 360 <= east;
}

GeoBox MapView::SearchBox(float margin) const {
  GeoBox box{MapSouthLat - margin, MapWestLon - margin, MapNorthLat + margin, MapEastLon + margin};
  bool crosses = MapCrossesDateLine;
  if (!crosses && (box.west < -180) != (box.east > 180)) {
    if (box.west < -180) box.west += 360;
    if (box.east > 180) box.east -= 360;
    crosses = true;
  }
  // Grown over each other: all longitudes.
  if (crosses && box.east >= box.west) box.west = -180, box.east = 180;
  box.west = std::max(box.west, -180.0F);
  box.east = std::min(box.east, 180.0F);
  return box;
}
