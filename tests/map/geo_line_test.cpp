#include "map/geo_line.h"

#include <gtest/gtest.h>

#include <cmath>

namespace {

TEST(MapLine, IsOneLineWithinTheWorld) {
  const Projection projection(0, 10, 1050);
  std::vector<SurfaceLine> lines;
  AppendMapLine(projection, {1, 10}, {0, 12}, lines);
  ASSERT_EQ(lines.size(), 1u);
  EXPECT_EQ(lines[0].from.y, 2450);
  EXPECT_EQ(lines[0].to.x, 7762);
}

TEST(MapLine, StaysShortAcrossTheDateLineNearTheCentre) {
  const Projection projection(0, 179, 1050);
  std::vector<SurfaceLine> lines;
  AppendMapLine(projection, {0, 178}, {0, -179}, lines);
  ASSERT_EQ(lines.size(), 1u);
  EXPECT_NEAR(std::abs(lines[0].to.x - lines[0].from.x), 3 * 1050, 2);
}

TEST(MapLine, LeavesAtOneSideAndComesBackAtTheOther) {
  const Projection projection(0, 0, 20);
  std::vector<SurfaceLine> lines;
  AppendMapLine(projection, {0, 170}, {0, -170}, lines);
  ASSERT_EQ(lines.size(), 2u);
  for (const SurfaceLine& line : lines)
    EXPECT_NEAR(line.to.x - line.from.x, 20 * 20, 2);
  EXPECT_GT(lines[0].from.x, mapScaleWidth / 2);
  EXPECT_LT(lines[1].to.x, mapScaleWidth / 2);
}

TEST(GreatCirclePlaces, FollowTheGreatCircle) {
  const Position frankfurt{50.03F, 8.57F};
  const Position newYork{40.64F, -73.78F};
  const auto places = GreatCirclePlaces(frankfurt, newYork, 60);
  ASSERT_GT(places.size(), 50u);
  EXPECT_EQ(places.front(), frankfurt);
  EXPECT_EQ(places.back(), newYork);
  const double whole = GreatCircleDistance(frankfurt.lat, frankfurt.lon, newYork.lat, newYork.lon);
  const double each = whole / static_cast<double>(places.size() - 1);
  for (std::size_t i = 1; i < places.size(); ++i) {
    const double step =
        GreatCircleDistance(places[i - 1].lat, places[i - 1].lon, places[i].lat, places[i].lon);
    EXPECT_NEAR(step, each, 0.5) << i;
    const double here = GreatCircleDistance(frankfurt.lat, frankfurt.lon, places[i].lat, places[i].lon);
    EXPECT_NEAR(here, each * static_cast<double>(i), 0.5) << i;
  }
}

TEST(GreatCirclePlaces, EqualAndOppositePlacesAreTwoPoints) {
  EXPECT_EQ(GreatCirclePlaces({10, 20}, {10, 20}, 60).size(), 2u);
  for (const Position place : GreatCirclePlaces({0, 0}, {0, 180}, 60))
    EXPECT_TRUE(std::isfinite(place.lat));
}

}  // namespace
