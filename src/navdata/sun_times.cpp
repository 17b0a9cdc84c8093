#include "navdata/sun_times.h"

#include <algorithm>
#include <cmath>
#include <numbers>

namespace {

constexpr double degree = std::numbers::pi / 180;
constexpr double minutesPerDay = 1440;
constexpr double riseAltitude = -50.0 / 60 * degree;
constexpr double julianDayOf1970 = 2440587.5;
constexpr double julianDayOf2000 = 2451545.0;

struct Sun {
  double declination;     // radians
  double equationOfTime;  // minutes, apparent less mean solar time
};

// Meeus: the sun's longitude and the obliquity (ch. 25), the equation of time
// in Smart's form (ch. 28).
Sun SunAt(std::chrono::sys_days date, double minutes) {
  const double day = static_cast<double>(date.time_since_epoch().count()) + minutes / minutesPerDay;
  const double t = (day + julianDayOf1970 - julianDayOf2000) / 36525;
  const double meanLongitude = (280.46646 + t * (36000.76983 + t * 0.0003032)) * degree;
  const double anomaly = (357.52911 + t * (35999.05029 - t * 0.0001537)) * degree;
  const double eccentricity = 0.016708634 - t * (0.000042037 + t * 0.0000001267);
  const double centre =
      ((1.914602 - t * (0.004817 + t * 0.000014)) * std::sin(anomaly) +
       (0.019993 - t * 0.000101) * std::sin(2 * anomaly) + 0.000289 * std::sin(3 * anomaly)) *
      degree;
  const double node = (125.04 - 1934.136 * t) * degree;
  const double longitude = meanLongitude + centre - (0.00569 + 0.00478 * std::sin(node)) * degree;
  const double obliquity = (23.439291 - 0.0130042 * t + 0.00256 * std::cos(node)) * degree;
  const double y = std::pow(std::tan(obliquity / 2), 2);
  const double equation = y * std::sin(2 * meanLongitude) - 2 * eccentricity * std::sin(anomaly) +
                          4 * eccentricity * y * std::sin(anomaly) * std::cos(2 * meanLongitude) -
                          y * y / 2 * std::sin(4 * meanLongitude) -
                          1.25 * eccentricity * eccentricity * std::sin(2 * anomaly);
  return {std::asin(std::sin(obliquity) * std::sin(longitude)), equation / degree * 4};
}

// Cosine of the hour angle at which the sun stands on the horizon: beyond 1 it
// never comes up to it, below -1 it never goes down to it.
double CosineOfHourAngle(double lat, const Sun& sun) {
  return (std::sin(riseAltitude) - std::sin(lat) * std::sin(sun.declination)) /
         (std::cos(lat) * std::cos(sun.declination));
}

// Minutes after 0 h of the date, unwrapped; side is -1 for the rise, 1 for the set.
double EventMinutes(std::chrono::sys_days date, double lat, double lon, double side) {
  double minutes = 720 - 4 * lon;
  for (int round = 0; round < 4; ++round) {
    const Sun sun = SunAt(date, minutes);
    const double hourAngle = std::acos(std::clamp(CosineOfHourAngle(lat, sun), -1.0, 1.0)) / degree;
    minutes = 720 - 4 * lon - sun.equationOfTime + side * 4 * hourAngle;
  }
  return minutes;
}

double WithinDay(double minutes) {
  const double wrapped = minutes - minutesPerDay * std::floor(minutes / minutesPerDay);
  return wrapped < minutesPerDay ? wrapped : 0;
}

}  // namespace

SunTimes SunTimesAt(float lat, float lon, std::chrono::sys_days date) {
  if (!std::isfinite(lat) || !std::isfinite(lon)) return {};
  const double latitude = std::clamp(static_cast<double>(lat), -90.0, 90.0) * degree;
  const double cosine = CosineOfHourAngle(latitude, SunAt(date, 720 - 4.0 * lon));
  if (cosine > 1) return {};
  if (cosine < -1) return {std::nullopt, std::nullopt, true};
  return {WithinDay(EventMinutes(date, latitude, lon, -1)), WithinDay(EventMinutes(date, latitude, lon, 1)),
          false};
}
