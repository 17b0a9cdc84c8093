#include "navdata/sun_times.h"

#include <gtest/gtest.h>

#include <limits>

namespace {

using namespace std::chrono;

sys_days Day(int year, unsigned month, unsigned day) {
  return sys_days{std::chrono::year{year} / std::chrono::month{month} / std::chrono::day{day}};
}

constexpr double Clock(int hours, int minutes) {
  return hours * 60 + minutes;
}

// Published almanac times, which are given to the minute.
TEST(SunTimes, AgreeWithAlmanacs) {
  struct Case {
    const char* place;
    float lat, lon;
    sys_days date;
    double sunrise, sunset;
  };
  const Case cases[] = {
      {"London, midsummer", 51.507F, -0.128F, Day(2024, 6, 20), Clock(3, 43), Clock(20, 21)},
      {"London, midwinter", 51.507F, -0.128F, Day(2024, 12, 21), Clock(8, 4), Clock(15, 53)},
      {"New York: the evening is past midnight UTC in summer", 40.713F, -74.006F, Day(2024, 6, 20),
       Clock(9, 25), Clock(0, 31)},
      {"Sydney: the morning is the day before in UTC", -33.868F, 151.209F, Day(2024, 12, 21), Clock(18, 41),
       Clock(9, 5)},
  };
  for (const Case& c : cases) {
    const SunTimes times = SunTimesAt(c.lat, c.lon, c.date);
    ASSERT_TRUE(times.sunrise && times.sunset) << c.place;
    EXPECT_NEAR(*times.sunrise, c.sunrise, 1.5) << c.place;
    EXPECT_NEAR(*times.sunset, c.sunset, 1.5) << c.place;
  }
}

// The equation of time of 13 October 1992 is 13 min 42.6 s (a worked example of
// the source): noon at Greenwich comes so much earlier.
TEST(SunTimes, NoonIsMovedByTheEquationOfTime) {
  const SunTimes times = SunTimesAt(0, 0, Day(1992, 10, 13));
  EXPECT_NEAR((*times.sunrise + *times.sunset) / 2, 720 - 13.71, 0.2);
  // 12 hours, longer by the 50' at both ends.
  EXPECT_NEAR(*times.sunset - *times.sunrise, 720 + 2 * 4 * 50.0 / 60 / 0.9908, 0.3);
}

TEST(SunTimes, PolarDayAndNight) {
  const SunTimes day = SunTimesAt(78.2F, 15.6F, Day(2024, 6, 20));
  EXPECT_FALSE(day.sunrise || day.sunset);
  EXPECT_TRUE(day.sunUpAllDay);
  const SunTimes night = SunTimesAt(78.2F, 15.6F, Day(2024, 12, 21));
  EXPECT_FALSE(night.sunrise || night.sunset || night.sunUpAllDay);
  EXPECT_TRUE(SunTimesAt(90, 0, Day(2024, 6, 20)).sunUpAllDay);
  EXPECT_TRUE(SunTimesAt(-90, 0, Day(2024, 12, 21)).sunUpAllDay);
  EXPECT_FALSE(SunTimesAt(-90, 0, Day(2024, 6, 20)).sunUpAllDay);
}

TEST(SunTimes, TimesLieWithinTheDayAnywhere) {
  for (int lat = -90; lat <= 90; lat += 5) {
    for (int lon = -180; lon <= 180; lon += 30) {
      for (unsigned month = 1; month <= 12; ++month) {
        const SunTimes times =
            SunTimesAt(static_cast<float>(lat), static_cast<float>(lon), Day(2025, month, 21));
        ASSERT_EQ(times.sunrise.has_value(), times.sunset.has_value());
        if (!times.sunrise) continue;
        EXPECT_TRUE(*times.sunrise >= 0 && *times.sunrise < 1440) << lat << " " << lon;
        EXPECT_TRUE(*times.sunset >= 0 && *times.sunset < 1440) << lat << " " << lon;
      }
    }
  }
}

TEST(SunTimes, NoNumberHasNoTimes) {
  const float nan = std::numeric_limits<float>::quiet_NaN();
  EXPECT_FALSE(SunTimesAt(nan, 0, Day(2024, 6, 20)).sunrise);
  EXPECT_FALSE(SunTimesAt(0, nan, Day(2024, 6, 20)).sunrise);
}

}  // namespace
