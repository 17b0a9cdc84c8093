#include <gtest/gtest.h>

#include "map/clsNavaid.h"
#include "map/modDeclutter.h"
#include "tests/map/recording_surface.h"

namespace {

TEST(ReciprocalDesignator, NamesTheOtherEnd) {
  const std::pair<const char*, const char*> cases[] = {
      {"36", "18"}, {"18", "36"}, {"09L", "27R"}, {"27R", "9L"}, {"25C", "7C"}, {"01", "19"},
      {"19", "1"},  {"NE", "SW"}, {"N", "S"},     {"NW", "SE"},  {"00H", ""},   {"", ""}};
  for (const auto& [designator, reciprocal] : cases)
    EXPECT_EQ(ReciprocalDesignator(designator), reciprocal) << designator;
}

TEST(Symbols, IntersectionMovesItsCentreForGood) {
  RecordingSurface surface;
  clsNavaid symbol;
  symbol.objTarget = &surface;
  symbol.rangeNM = 400;
  symbol.sngCenterX = 1000;
  symbol.sngCenterY = 2000;
  symbol.sngLength = 30;
  symbol.DrawAsIntersection();
  EXPECT_EQ(symbol.sngCenterY, 1985);
  ASSERT_EQ(surface.drawn.size(), 1u);
  const auto& corners = surface.drawn[0].points;
  ASSERT_EQ(corners.size(), 4u);
  EXPECT_EQ(corners[0].y, 1955);
  EXPECT_EQ(corners[1].x, 970);
  EXPECT_EQ(corners[2].x, 1030);
  EXPECT_EQ(corners[2].y, 2015);
}

TEST(Symbols, BecomeAPointBeyond900NM) {
  const auto shapeAt = [](std::int16_t range) {
    RecordingSurface surface;
    clsNavaid symbol;
    symbol.objTarget = &surface;
    symbol.rangeNM = range;
    symbol.DrawAsAirportCircle();
    return surface.drawn.at(0).what;
  };
  EXPECT_EQ(shapeAt(900), "circle");
  EXPECT_EQ(shapeAt(2000), "point");
}

TEST(Symbols, RunwayIsTheSameFromBothEnds) {
  const auto cornersAt = [](float course) {
    RecordingSurface surface;
    clsNavaid symbol;
    symbol.objTarget = &surface;
    symbol.sngCenterX = 5000;
    symbol.sngCenterY = 3000;
    symbol.sngLength = 1000;
    symbol.intWidth = 100;
    symbol.sngCourse = course;
    symbol.DrawAsRwy();
    return surface.drawn.at(0).points;
  };
  const auto east = cornersAt(90);
  const auto west = cornersAt(270);
  ASSERT_EQ(east.size(), west.size());
  for (std::size_t i = 0; i < east.size(); ++i) {
    EXPECT_EQ(east[i].x, west[i].x);
    EXPECT_EQ(east[i].y, west[i].y);
  }
  EXPECT_NEAR(east[0].x, 5500, 1);
  EXPECT_NEAR(std::abs(east[0].y - 3000), 50, 1);
}

}  // namespace
