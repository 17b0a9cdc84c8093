#include "dbmanager/earth.h"

#include <algorithm>
#include <cmath>
#include <numbers>

namespace {

constexpr double degree = std::numbers::pi / 180;

}  // namespace

double WrapLon(double lon) {
  lon = std::fmod(lon, 360.0);
  if (lon > 180) return lon - 360;
  return lon < -180 ? lon + 360 : lon;
}

double DistanceNM(SourcePosition a, SourcePosition b) {
  const double halfLat = std::sin((b.lat - a.lat) * degree / 2);
  const double halfLon = std::sin((b.lon - a.lon) * degree / 2);
  const double h =
      halfLat * halfLat + std::cos(a.lat * degree) * std::cos(b.lat * degree) * halfLon * halfLon;
  return 2 * std::asin(std::sqrt(std::clamp(h, 0.0, 1.0))) / degree * 60;
}

double TrueCourse(SourcePosition a, SourcePosition b) {
  const double lonStep = (b.lon - a.lon) * degree;
  const double east = std::sin(lonStep) * std::cos(b.lat * degree);
  const double north = std::cos(a.lat * degree) * std::sin(b.lat * degree) -
                       std::sin(a.lat * degree) * std::cos(b.lat * degree) * std::cos(lonStep);
  const double course = std::atan2(east, north) / degree;
  return course < 0 ? course + 360 : course;
}

SourcePosition Midpoint(SourcePosition a, SourcePosition b) {
  return Offset(a, TrueCourse(a, b), DistanceNM(a, b) / 2);
}

SourcePosition Offset(SourcePosition from, double course, double distanceNM) {
  const double arc = distanceNM / 60 * degree;
  const double lat = from.lat * degree;
  const double sinLat =
      std::sin(lat) * std::cos(arc) + std::cos(lat) * std::sin(arc) * std::cos(course * degree);
  const double lonStep = std::atan2(std::sin(course * degree) * std::sin(arc) * std::cos(lat),
                                    std::cos(arc) - std::sin(lat) * sinLat);
  return {std::asin(std::clamp(sinLat, -1.0, 1.0)) / degree, WrapLon(from.lon + lonStep / degree)};
}
