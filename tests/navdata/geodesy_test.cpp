#include "navdata/geodesy.h"

#include <gtest/gtest.h>

#include <cmath>

#include "navdata/magnetic_variation.h"

namespace {

// Distance by the angle between two unit vectors, course by the atan2 form,
// rhumb line by the inverse Gudermannian: other formulas than the program's,
// worked in double precision outside it.
struct Leg {
  float lat1, lon1, lat2, lon2;
  double distance, course, rhumb;
};

const Leg legs[] = {{50.0333F, 8.5706F, 40.6398F, -73.7789F, 3339.77943, 294.38623, 260.75164},
                    {0, 0, 0, 90, 5400.0, 90.0, 90.0},
                    {0, 179.5F, 0, -179.5F, 60.0, 90.0, 90.0},
                    {-33.9461F, 151.1772F, -33.393F, -70.7858F, 6119.16410, 145.20032, 89.72415},
                    {-89.5F, 30, -88, -150, 150.0, 180.0, 293.81194},
                    {10, 20, 70, 20, 3600.0, 0.0, 0.0},
                    {60, -179, 61, 179, 84.20533, 316.30454, 315.44004},
                    {-45, 10, -50, 10, 300.0, 180.0, 180.0},
                    {35, -120, 35, -60, 2901.38448, 71.67748, 90.0}};

double AngleBetween(double a, double b) {
  return std::fabs(std::remainder(a - b, 360.0));
}

}  // namespace

TEST(Geodesy, DistanceAndCoursesAgreeWithIndependentValues) {
  for (const Leg& leg : legs) {
    SCOPED_TRACE(testing::Message() << leg.lat1 << ' ' << leg.lon1 << ' ' << leg.lat2 << ' ' << leg.lon2);
    EXPECT_NEAR(GreatCircleDistance(leg.lat1, leg.lon1, leg.lat2, leg.lon2), leg.distance, 0.002);
    EXPECT_LT(AngleBetween(GreatCircleCourse(leg.lat1, leg.lon1, leg.lat2, leg.lon2), leg.course), 0.01);
    EXPECT_LT(AngleBetween(RhumbCourse(leg.lat1, leg.lon1, leg.lat2, leg.lon2), leg.rhumb), 0.002);
  }
}

TEST(Geodesy, TheWayBackIsAsLong) {
  for (const Leg& leg : legs) {
    EXPECT_NEAR(GreatCircleDistance(leg.lat2, leg.lon2, leg.lat1, leg.lon1), leg.distance, 0.002);
  }
}

TEST(Geodesy, EqualPointsAndPolesStayDefined) {
  const Position points[] = {{0, 0}, {50, 8}, {90, 0}, {-90, 0}, {89.99F, 179.99F}, {-45.5F, -180}, {0, 180}};
  for (const Position p : points) {
    SCOPED_TRACE(testing::Message() << p.lat << ' ' << p.lon);
    const float same = GreatCircleDistance(p.lat, p.lon, p.lat, p.lon);
    EXPECT_GE(same, 0);
    EXPECT_LT(same, 0.002);
    EXPECT_LT(GreatCircleDistanceCoarse(p.lat, p.lon, p.lat, p.lon), 0.1);
    for (const Position q : points) {
      EXPECT_TRUE(std::isfinite(GreatCircleDistance(p.lat, p.lon, q.lat, q.lon)));
      for (const float course :
           {GreatCircleCourse(p.lat, p.lon, q.lat, q.lon), RhumbCourse(p.lat, p.lon, q.lat, q.lon)}) {
        EXPECT_GE(course, 0);
        EXPECT_LE(course, 360);
      }
    }
  }
  EXPECT_GT(GreatCircleDistance(50, 8, 50, 8), 0);
}

TEST(Geodesy, NormalizeTakesOneStepOnly) {
  const double cases[][2] = {{800, 440}, {360, 360}, {360.5, 0.5}, {-0.5, 359.5}, {0, 0}, {-400, -40}};
  for (const auto& c : cases)
    EXPECT_DOUBLE_EQ(NormalizeDeg(c[0]), c[1]);
}

TEST(Geodesy, FlatOffsetGoesAgainstTheBearing) {
  // 60 NM against a bearing of 090 from 60N: 1 degree at the equator, 2 at 60N, to the west.
  const Position west = FlatOffset(60, 10, 90, 60);
  EXPECT_NEAR(west.lat, 60, 1e-4);
  EXPECT_NEAR(west.lon, 8, 1e-4);
  const Position south = FlatOffset(0, 0, 0, 30);
  EXPECT_NEAR(south.lat, -0.5, 1e-6);
  const Position north = FlatOffsetForward(0, 0, 0, 30);
  EXPECT_NEAR(north.lat, 0.5, 1e-6);
}

TEST(Geodesy, GreatCircleOffsetLeadsToTheOtherEnd) {
  for (const Leg& leg : legs) {
    const Position end = GreatCircleOffset(leg.lat1, leg.lon1, static_cast<float>(leg.course),
                                           static_cast<float>(leg.distance));
    EXPECT_NEAR(end.lat, leg.lat2, 0.002);
    EXPECT_LT(AngleBetween(end.lon, leg.lon2), 0.05);
  }
}

TEST(Geodesy, PositionTexts) {
  const struct {
    float lat, lon;
    int style;
    const char *latText, *lonText;
  } cases[] = {{50.5F, 8.25F, 0, "N50°30'00\"", "E008°15'00\""},
               {-33.75F, -151.125F, 0, "S33°45'00\"", "W151°07'30\""},
               {50.5F, 8.25F, 1, "N50°30.0000'", "E008°15.0000'"},
               {49.99999F, 9.999999F, 0, "N50°00'00\"", "E010°00'00\""},
               {0, 0, 1, "N00°00.0000'", "E000°00.0000'"}};
  for (const auto& c : cases) {
    EXPECT_EQ(FormatLat(c.lat, c.style), c.latText);
    EXPECT_EQ(FormatLon(c.lon, c.style), c.lonText);
  }
  EXPECT_EQ(FormatPlanLat(-33.75F), "S33* 45.0000', ");
  EXPECT_EQ(FormatPlanLon(8.25F), "E008* 15.0000', ");
  EXPECT_EQ(FormatPlanLon(-180.0F), "W179* 59.9280', ");
}

TEST(Geodesy, VariationAndTimeTexts) {
  EXPECT_EQ(FormatMagVar(3.4F), "E 03°");
  EXPECT_EQ(FormatMagVar(-12.6F), "W 13°");
  const struct {
    double minutes;
    const char* text;
  } cases[] = {{0, "00:00"}, {59.9, "00:59"}, {412, "06:52"}, {1440 + 61, "01:01"}, {-5, "00:00"}};
  for (const auto& c : cases)
    EXPECT_EQ(FormatMinutes(c.minutes), c.text);
}

TEST(MagneticVariation, TheCellToTheSouthWestIsTaken) {
  std::vector<std::int16_t> cells(360 * 181);
  const auto set = [&](int lat, int lon, double degrees) {
    cells[static_cast<std::size_t>(181 * lon + lat + 90)] = static_cast<std::int16_t>(degrees * 182.04);
  };
  set(50, 8, 3);
  set(-34, 359, -7);
  set(0, 180, 11);
  set(90, 0, 90);
  const auto grid = MagneticVariationGrid::FromBytes(std::as_bytes(std::span(cells)));
  EXPECT_NEAR(grid.MagVarLookup(50.99F, 8.01F), 3, 0.01);
  EXPECT_NEAR(grid.MagVarLookup(-33.2F, -0.5F), -7, 0.01);
  EXPECT_NEAR(grid.MagVarLookup(0, 180), 11, 0.01);
  EXPECT_NEAR(grid.MagVarLookup(0, -180), 11, 0.01);
  EXPECT_NEAR(grid.MagVarLookup(90, 0.5F), 90, 0.01);
  EXPECT_EQ(grid.MagVarLookup(10, 10), 0);
  EXPECT_EQ(grid.MagVarLookup(std::nanf(""), 10), 0);
  EXPECT_EQ(grid.MagVarLookup(91, 10), 0);
  // A cut-off grid reads 0 where it ends.
  const auto cut = MagneticVariationGrid::FromBytes(std::as_bytes(std::span(cells)).first(3000));
  EXPECT_EQ(cut.MagVarLookup(50.99F, 8.01F), 0);
}
