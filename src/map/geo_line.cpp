#include "map/geo_line.h"

#include <algorithm>
#include <cmath>

void AppendMapLine(const Projection& projection, Position from, Position to,
                   std::vector<SurfaceLine>& lines) {
  const auto point = [&](Position place) {
    return SurfacePoint{static_cast<float>(projection.LonToX(place.lon)),
                        static_cast<float>(projection.LatToY(place.lat))};
  };
  const SurfacePoint a = point(from);
  const SurfacePoint b = point(to);
  const auto world = static_cast<float>(projection.UnwrappedX(360) - projection.UnwrappedX(0));
  if (std::abs(a.x - b.x) <= world / 2) {
    lines.push_back({a, b});
    return;
  }
  const float turn = a.x < b.x ? world : -world;
  lines.push_back({a, {b.x - turn, b.y}});
  lines.push_back({{a.x + turn, a.y}, b});
}

double DistanceToLine(const SurfaceLine& line, double x, double y) {
  const double alongX = static_cast<double>(line.to.x) - line.from.x;
  const double alongY = static_cast<double>(line.to.y) - line.from.y;
  const double square = alongX * alongX + alongY * alongY;
  const double part = square > 0 ? ((x - line.from.x) * alongX + (y - line.from.y) * alongY) / square : 0;
  const double nearest = std::clamp(part, 0.0, 1.0);
  return std::hypot(line.from.x + nearest * alongX - x, line.from.y + nearest * alongY - y);
}

ClipRect OneWorldPage(const Projection& projection, float margin) {
  const auto half = static_cast<float>((projection.UnwrappedX(180) - projection.UnwrappedX(-180)) / 2);
  const float middle = mapScaleWidth / 2.0F;
  return {std::max(-margin, middle - half), -margin, std::min(mapScaleWidth + margin, middle + half),
          mapScaleHeight + margin};
}

std::vector<std::vector<SurfacePoint>> ShapeOnPage(const Projection& projection,
                                                   std::span<const Position> shape, const ClipRect& page) {
  struct Point {
    double lat, lon;
  };
  std::vector<Point> whole;
  whole.reserve(shape.size());
  double turn = 0;
  double west = 1e9, east = -1e9, south = 1e9, north = -1e9;
  double before = 0;
  for (const Position place : shape) {
    if (!IsOnMap(place)) continue;
    const double step = place.lon - before;
    if (!whole.empty() && std::abs(step) > 180) turn += step > 0 ? -360 : 360;
    before = place.lon;
    whole.push_back({place.lat, place.lon + turn});
    west = std::min(west, whole.back().lon);
    east = std::max(east, whole.back().lon);
    south = std::min(south, whole.back().lat);
    north = std::max(north, whole.back().lat);
  }
  std::vector<std::vector<SurfacePoint>> appearances;
  if (whole.empty() || projection.UnroundedY(south) < page.top || projection.UnroundedY(north) > page.bottom)
    return appearances;
  for (const double shift : {-360.0, 0.0, 360.0}) {
    if (projection.UnwrappedX(east + shift) < page.left || projection.UnwrappedX(west + shift) > page.right)
      continue;
    std::vector<SurfacePoint>& points = appearances.emplace_back();
    points.reserve(whole.size());
    for (const Point point : whole)
      points.push_back({static_cast<float>(projection.UnwrappedX(point.lon + shift)),
                        static_cast<float>(projection.UnroundedY(point.lat))});
  }
  return appearances;
}

GreatCircleArc::GreatCircleArc(Position from, Position to)
    : from(from),
      to(to),
      distance(GreatCircleDistance(from.lat, from.lon, to.lat, to.lon)),
      angle(DegToRad(distance / 60)),
      sine(std::sin(angle)),
      a(VectorOf(from)),
      b(VectorOf(to)) {}

GreatCircleArc::Vector GreatCircleArc::VectorOf(Position place) {
  const double lat = DegToRad(place.lat);
  const double lon = DegToRad(place.lon);
  return {std::cos(lat) * std::cos(lon), std::cos(lat) * std::sin(lon), std::sin(lat)};
}

Position GreatCircleArc::At(double part) const {
  if (!HasDirection()) return part < 0.5 ? from : to;
  const double wa = std::sin((1 - part) * angle) / sine;
  const double wb = std::sin(part * angle) / sine;
  const Vector v{wa * a.x + wb * b.x, wa * a.y + wb * b.y, wa * a.z + wb * b.z};
  return {static_cast<float>(RadToDeg(std::atan2(v.z, std::hypot(v.x, v.y)))),
          static_cast<float>(RadToDeg(std::atan2(v.y, v.x)))};
}

std::vector<Position> GreatCirclePlaces(Position from, Position to, double stepNM) {
  const GreatCircleArc arc(from, to);
  const int steps = std::clamp(static_cast<int>(std::ceil(arc.DistanceNM() / stepNM)), 1, 1000);
  if (steps == 1 || !arc.HasDirection()) return {from, to};
  std::vector<Position> places{from};
  for (int step = 1; step < steps; ++step)
    places.push_back(arc.At(static_cast<double>(step) / steps));
  places.push_back(to);
  return places;
}
