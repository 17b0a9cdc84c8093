#include "map/shape_clip.h"

#include <gtest/gtest.h>

#include <cmath>

namespace {

constexpr ClipRect page{0, 0, 100, 50};

double Area(const std::vector<SurfacePoint>& shape) {
  double twice = 0;
  for (std::size_t i = 0; i < shape.size(); ++i) {
    const SurfacePoint a = shape[i];
    const SurfacePoint b = shape[(i + 1) % shape.size()];
    twice += static_cast<double>(a.x) * b.y - static_cast<double>(b.x) * a.y;
  }
  return std::abs(twice) / 2;
}

TEST(ClipPolygon, KeepsWhatLiesOnThePage) {
  struct Case {
    const char* why;
    std::vector<SurfacePoint> shape;
    double area;
  };
  const Case cases[] = {
      {"inside", {{10, 10}, {20, 10}, {20, 20}, {10, 20}}, 100},
      {"outside", {{110, 10}, {120, 10}, {120, 20}}, 0},
      {"around the page", {{-1e6F, -1e6F}, {1e6F, -1e6F}, {1e6F, 1e6F}, {-1e6F, 1e6F}}, 5000},
      {"over one edge", {{-10, 10}, {10, 10}, {10, 20}, {-10, 20}}, 100},
      {"over a corner", {{90, 40}, {110, 40}, {110, 60}, {90, 60}}, 100},
      {"nothing", {}, 0},
  };
  for (const Case& c : cases) {
    const auto clipped = ClipPolygon(c.shape, page);
    EXPECT_NEAR(Area(clipped), c.area, 0.5) << c.why;
    for (const SurfacePoint p : clipped)
      EXPECT_TRUE(page.Contains(p)) << c.why;
  }
}

TEST(MayTouch, RefusesOnlyLinesBeyondOneEdge) {
  EXPECT_TRUE(MayTouch({-10, 25}, {110, 25}, page));
  EXPECT_TRUE(MayTouch({-10, -10}, {10, 10}, page));
  EXPECT_FALSE(MayTouch({-10, 10}, {-5, 40}, page));
  EXPECT_FALSE(MayTouch({10, 60}, {90, 51}, page));
}

}  // namespace
