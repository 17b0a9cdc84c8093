#include "map/hover.h"

#include <algorithm>
#include <cmath>

#include "map/hover_sources.h"

namespace {

constexpr double searchSlack = 1e-4;  // degrees, for positions kept in 32 bits

double WrappedLon(double lon) {
  return lon - 360 * std::floor((lon + 180) / 360);
}

}  // namespace

bool HoverQuestion::Near(float lat, float lon, std::int32_t dx, std::int32_t dy) const {
  return std::abs(static_cast<float>(projection.LatToY(lat)) - y) < static_cast<float>(dy) &&
         std::abs(static_cast<float>(projection.LonToX(lon)) - x) < static_cast<float>(dx);
}

GeoBox HoverQuestion::SearchBox(std::int32_t dx, std::int32_t dy) const {
  if (!std::isfinite(x) || !std::isfinite(y)) return {1, 0, -1, 0};
  // A whole unit more, since places are floored to units.
  GeoBox box;
  box.north = static_cast<float>(projection.YToLat(static_cast<double>(y) - dy - 1) + searchSlack);
  box.south = static_cast<float>(projection.YToLat(static_cast<double>(y) + dy + 1) - searchSlack);
  const double unitsPerDegree = projection.UnwrappedX(1) - projection.UnwrappedX(0);
  const double halfWidth = (dx + 1) / unitsPerDegree + searchSlack;
  const double lon = projection.XToLon(x);
  if (!(halfWidth < 179) || !std::isfinite(lon)) return box;
  box.west = static_cast<float>(WrappedLon(lon - halfWidth));
  box.east = static_cast<float>(WrappedLon(lon + halfWidth));
  return box;
}

std::string HoverQuestion::PositionLine(float lat, float lon) const {
  return PositionText({lat, lon}, format, settings.DECSEC);
}

std::vector<HoverSource> InSearchOrder(std::vector<HoverSource> sources) {
  std::stable_sort(sources.begin(), sources.end(),
                   [](const HoverSource& a, const HoverSource& b) { return a.place < b.place; });
  return sources;
}

std::vector<HoverLine> FindUnderPointer(const HoverQuestion& question,
                                        const std::vector<HoverSource>& sources) {
  std::vector<HoverLine> lines;
  for (const HoverSource& source : sources) {
    if (lines.size() >= maxHoverLines) break;
    if (source.shown(question)) source.find(question, lines);
  }
  if (lines.size() > maxHoverLines) lines.resize(maxHoverLines);
  return lines;
}

HoverTick HoverRest::Tick(float x, float y) {
  const bool rests = known && x == lastX && y == lastY;
  known = true;
  lastX = x;
  lastY = y;
  return rests ? HoverTick::search : HoverTick::close;
}
