#include <gtest/gtest.h>

#include <cmath>

#include "tests/map/painted.h"

namespace {

// The direction, in degrees from the top, at which a text of the rose is printed.
double DirectionOf(const RecordingSurface& surface, const std::string& text) {
  for (const auto& one : surface.drawn) {
    if (one.what != "print" || one.text != text) continue;
    const double x = one.x + 30.0 * static_cast<double>(text.size()) - mapScaleWidth / 2.0;
    const double y = mapScaleHeight / 2.0 - (one.y + 50.0);
    return std::fmod(std::atan2(x, y) * 180 / geodesyPi + 360, 360);
  }
  return -1;
}

TEST(CompassLayer, IsTurnedToMagneticNorth) {
  NavDatabase database;
  MapSwitches on = NothingOn();
  on.mnuCompass = true;
  struct Case {
    float magVar;
    const char* text;
    double direction;
  };
  const Case cases[] = {{0, "N", 0},   {0, "E", 90},   {0, "S", 180},   {0, "03", 30},
                        {10, "N", 10}, {10, "W", 280}, {-15, "N", 345}, {-15, "33", 315}};
  for (const Case& c : cases) {
    const RecordingSurface surface = PaintedMap(database, ViewAtRow({50, 8}, 9, c.magVar), on);
    const double off = DirectionOf(surface, c.text) - c.direction;
    EXPECT_NEAR(std::remainder(off, 360), 0, 0.1) << c.text << " with " << c.magVar;
  }
}

TEST(CompassLayer, LiesAroundTheMiddleAndOnThePage) {
  NavDatabase database;
  MapSwitches on = NothingOn();
  on.mnuCompass = true;
  const ColorSettings colors;
  const RecordingSurface surface = PaintedMap(database, ViewAtRow({-60, 179}, 20, 5), on);
  EXPECT_EQ(surface.Count("circle", colors.COMP), 1);
  EXPECT_EQ(surface.Count("line", colors.COMP), 72);
  EXPECT_EQ(surface.Texts().size(), 12u);
  for (const auto& one : surface.drawn) {
    if (one.what == "clear") continue;
    EXPECT_TRUE(one.x >= 0 && one.x <= mapScaleWidth && one.y >= 0 && one.y <= mapScaleHeight);
  }
  on.mnuCompass = false;
  EXPECT_EQ(PaintedMap(database, ViewAtRow({-60, 179}, 20), on).drawn.size(), 1u);
}

}  // namespace
