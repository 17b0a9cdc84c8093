#include "navdata/geodesy.h"

#include <algorithm>
#include <cmath>

#include "base/numbers.h"

namespace {

constexpr double distanceEpsilon = 1e-05;
constexpr double coarseDistanceEpsilon = 0.001;
constexpr double rhumbEpsilon = 1e-09;

struct PointPair {
  double lat1, lon1, lat2, lon2;
};

// Keeps equal latitudes and longitudes apart and turns all four into radians.
PointPair SeparatedRadians(float lat1, float lon1, float lat2, float lon2, double epsilon) {
  PointPair pair{lat1, lon1, lat2, lon2};
  if (lon1 == lon2) pair.lon2 += epsilon;
  if (lat1 == lat2) pair.lat2 += epsilon;
  return {DegToRad(pair.lat1), DegToRad(pair.lon1), DegToRad(pair.lat2), DegToRad(pair.lon2)};
}

// Arc cosine of a value that rounding may have carried just past 1.
double ArcCos(double x) {
  return std::acos(std::clamp(x, -1.0, 1.0));
}

double CosineOfArc(const PointPair& p) {
  return std::sin(p.lat1) * std::sin(p.lat2) +
         std::cos(p.lat1) * std::cos(p.lat2) * std::cos(p.lon1 - p.lon2);
}

float Distance(float lat1, float lon1, float lat2, float lon2, double epsilon) {
  const PointPair p = SeparatedRadians(lat1, lon1, lat2, lon2, epsilon);
  const double distance = ArcCos(CosineOfArc(p)) / geodesyPi * 180.0 * 60.0;
  return static_cast<float>(distance < 0.0 ? 0.51 : distance);
}

double MercatorLatitude(double lat) {
  return std::log((1.0 + std::sin(lat)) / std::cos(lat));
}

double ModTwoPi(double value) {
  return value - geodesyTwoPi * std::floor(value / geodesyTwoPi);
}

// Degrees, minutes and (scaled) rest of an angle, rounded once so that no
// part ever reads 60.
struct AngleParts {
  int degrees;
  double minutes;
};

AngleParts RoundedParts(double angle, double stepsPerMinute) {
  const double steps = std::floor(std::fabs(angle) * 60.0 * stepsPerMinute + 0.5);
  const double stepsPerDegree = 60.0 * stepsPerMinute;
  const double degrees = std::floor(steps / stepsPerDegree);
  return {CutToInt(degrees), (steps - degrees * stepsPerDegree) / stepsPerMinute};
}

std::string FormatAngle(float angle, char positive, char negative, std::string_view degreePicture,
                        int style) {
  std::string text(1, angle < 0 ? negative : positive);
  if (style == 0) {
    const AngleParts parts = RoundedParts(angle, 60.0);
    const double minutes = std::floor(parts.minutes + 1e-6);
    text += FormatPicture(parts.degrees, degreePicture) + "°" + FormatPicture(minutes, "00") + "'" +
            FormatPicture((parts.minutes - minutes) * 60.0, "00") + "\"";
  } else {
    const AngleParts parts = RoundedParts(angle, 10000.0);
    text += FormatPicture(parts.degrees, degreePicture) + "°" + FormatPicture(parts.minutes, "00.0000") + "'";
  }
  return text;
}

std::string FormatPlanAngle(double angle, char positive, char negative, std::string_view degreePicture) {
  const AngleParts parts = RoundedParts(angle, 10000.0);
  return std::string(1, angle < 0 ? negative : positive) + FormatPicture(parts.degrees, degreePicture) +
         "* " + FormatPicture(parts.minutes, "00.0000") + "', ";
}

Position FlatStep(float lat, float lon, double bearing, float distance, double degreeFactor) {
  const double newLat = lat + distance * std::cos(bearing * degreeFactor) / 60.0;
  const double meanLat = (lat + newLat) / 2.0;
  const double newLon =
      lon + distance * std::sin(bearing * degreeFactor) / 60.0 / std::cos(meanLat * degreeFactor);
  return {static_cast<float>(newLat), static_cast<float>(newLon)};
}

}  // namespace

double DegToRad(double deg) {
  return deg * (geodesyPi / 180.0);
}

double RadToDeg(double rad) {
  return rad / (geodesyPi / 180.0);
}

double NormalizeDeg(double value) {
  if (value > 360.0) return value - 360.0;
  if (value < 0.0) return value + 360.0;
  return value;
}

float CourseDifference(float a, float b) {
  const float difference = std::fabs(a - b);
  return difference > 180.0F ? 360.0F - difference : difference;
}

double FeetToNM(double feet) {
  return feet / feetPerNM;
}

float GreatCircleDistance(float lat1, float lon1, float lat2, float lon2) {
  return Distance(lat1, lon1, lat2, lon2, distanceEpsilon);
}

float GreatCircleDistanceCoarse(float lat1, float lon1, float lat2, float lon2) {
  return Distance(lat1, lon1, lat2, lon2, coarseDistanceEpsilon);
}

float GreatCircleCourse(float lat1, float lon1, float lat2, float lon2) {
  const PointPair p = SeparatedRadians(lat1, lon1, lat2, lon2, distanceEpsilon);
  double d = ArcCos(CosineOfArc(p));
  if (d == 0.0) d = 1e-06;
  const double c =
      ArcCos((std::sin(p.lat2) - std::cos(d) * std::sin(p.lat1)) / (std::cos(p.lat1) * std::sin(d)));
  const double course = std::sin(p.lon2 - p.lon1) <= 0.0 ? geodesyTwoPi - c : c;
  return static_cast<float>(NormalizeDeg(course * 180.0 / geodesyPi));
}

float RhumbCourse(float lat1, float lon1, float lat2, float lon2) {
  const PointPair p = SeparatedRadians(lat1, lon1, lat2, lon2, rhumbEpsilon);
  const double eastward = ModTwoPi(p.lon2 - p.lon1);
  const double westward = ModTwoPi(p.lon1 - p.lon2);
  const double from = MercatorLatitude(p.lat1);
  const double to = MercatorLatitude(p.lat2);
  const double northward = from == to ? 0.0 : to - from;  // both may be one pole, infinitely far
  const double course =
      eastward < westward ? std::atan2(eastward, northward) : std::atan2(-westward, northward);
  return static_cast<float>(NormalizeDeg(RadToDeg(course)));
}

Position FlatOffset(float lat, float lon, float bearing, float distance) {
  return FlatStep(lat, lon, NormalizeDeg(bearing - 180.0), distance, std::atan(1.0) / 45.0);
}

Position FlatOffsetForward(float lat, float lon, float bearing, float distance) {
  return FlatStep(lat, lon, bearing, distance, 0.017453);
}

Position GreatCircleOffset(float lat, float lon, float course, float distance) {
  const double lat1 = DegToRad(lat);
  const double arc = DegToRad(distance / 60.0);
  const double direction = DegToRad(course);
  const double sinLat = std::sin(lat1) * std::cos(arc) + std::cos(lat1) * std::sin(arc) * std::cos(direction);
  const double lat2 = std::asin(std::clamp(sinLat, -1.0, 1.0));
  const double turn = std::atan2(std::sin(direction) * std::sin(arc) * std::cos(lat1),
                                 std::cos(arc) - std::sin(lat1) * sinLat);
  double lon2 = lon + RadToDeg(turn);
  if (lon2 > 180.0) lon2 -= 360.0;
  if (lon2 < -180.0) lon2 += 360.0;
  return {static_cast<float>(RadToDeg(lat2)), static_cast<float>(lon2)};
}

std::string FormatLat(float lat, int style) {
  return FormatAngle(lat, 'N', 'S', "00", style);
}

std::string FormatLon(float lon, int style) {
  return FormatAngle(lon, 'E', 'W', "000", style);
}

std::string FormatPlanLat(float lat) {
  return FormatPlanAngle(lat, 'N', 'S', "00");
}

std::string FormatPlanLon(float lon) {
  return FormatPlanAngle(std::fabs(lon) == 180.0F ? -179.9988 : lon, 'E', 'W', "000");
}

std::string FormatMagVar(float variation) {
  return (variation < 0 ? "W " : "E ") + FormatPicture(std::fabs(variation), "00") + "°";
}

std::string FormatMinutes(double minutes) {
  const int whole = std::max(0, CutToInt(minutes));
  return FormatPicture(whole / 60 % 24, "00") + ":" + FormatPicture(whole % 60, "00");
}
