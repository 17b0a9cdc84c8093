#include "navdata/position_text.h"

#include <gtest/gtest.h>

namespace {

TEST(PositionFromText, ReadsWhatPilotsType) {
  const struct {
    const char* text;
    double lat;
    double lon;
  } cases[] = {
      {"50.5,8.5", 50.5, 8.5},
      {" -33.95  151.18 ", -33.95, 151.18},
      {"+50 -8", 50, -8},
      {"5030N00830E", 50.5, 8.5},
      {"n5030e00830", 50.5, 8.5},
      {"503015N0083045W", 50.504167, -8.5125},
      {"5030.5N00830.25E", 50.508333, 8.504167},
      {"50N020W", 50, -20},
      {"50.5S 8.25W", -50.5, -8.25},
      {"N50 30 E008 30", 50.5, 8.5},
      {"N50 30.5 E8 15", 50.508333, 8.25},
      {"N50°30'15\" W008°30'00\"", 50.504167, -8.5},
      {"50°30′15″N, 8°30′E", 50.504167, 8.5},
      {"N50* 01.9833', E008* 34.2345',", 50.033055, 8.570575},
      {"E008 30 N50 30", 50.5, 8.5},
      {"00830E/5030N", 50.5, 8.5},
      {"90S180W", -90, -180},
      {"0 0", 0, 0},
  };
  for (const auto& c : cases) {
    const auto place = PositionFromText(c.text);
    ASSERT_TRUE(place) << c.text;
    EXPECT_NEAR(place->lat, c.lat, 1e-5) << c.text;
    EXPECT_NEAR(place->lon, c.lon, 1e-5) << c.text;
  }
}

TEST(PositionFromText, RefusesWhatIsNone) {
  for (const char* text : {"",
                           " ",
                           "50",
                           "50N",
                           "N50",
                           "NE",
                           "E008 30 E50 30",
                           "50N10",
                           "N50 30",
                           "91N000E",
                           "50N181E",
                           "90.1, 8",
                           "50, 180.5",
                           "5060N00830E",
                           "N50 60 E8 0",
                           "N50.5 30 E8",
                           "N50 30 15 7 E8",
                           "1 2 3",
                           "-50N8E",
                           "50N-8E",
                           "FFM",
                           "SOBRA",
                           "N",
                           "5020N",
                           "50.5.5,8",
                           ".5,.5",
                           "1e5,2",
                           "50,,",
                           "N50N8",
                           "50 N 8 E 9"})
    EXPECT_FALSE(PositionFromText(text)) << text;
  EXPECT_FALSE(PositionFromText(std::string(100, '5')));
  EXPECT_FALSE(PositionFromText("50N8E" + std::string(100, ' ')));
}

}  // namespace
