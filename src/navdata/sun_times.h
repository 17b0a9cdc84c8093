// When the sun rises and sets at a place. The sun's position follows the
// low-accuracy series of J. Meeus, Astronomical Algorithms (2nd ed., chapters
// 25 and 28); rise and set are when the centre stands 50 minutes of arc below
// the horizon (refraction and half the sun's width). Good to about a minute
// where the sun crosses the horizon steeply, between 1900 and 2100.
#pragma once

#include <chrono>
#include <optional>

struct SunTimes {
  // Minutes after 0 h UTC, 0 to below 1440; both missing where the sun stays
  // above or below the horizon all day.
  std::optional<double> sunrise;
  std::optional<double> sunset;
  bool sunUpAllDay = false;  // without times: up all day, else down
};

// For the solar day whose noon falls on a date at the place's own meridian.
// lat and lon in degrees, north and east positive. No number: no times, down.
SunTimes SunTimesAt(float lat, float lon, std::chrono::sys_days date);
