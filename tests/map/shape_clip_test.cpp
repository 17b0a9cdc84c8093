#include "map/shape_clip.h"

#include <gtest/gtest.h>

#include <algorithm>
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

TEST(ThinOut, KeepsBothEndsAndTheShape) {
  std::vector<SurfacePoint> line;
  for (int i = 0; i <= 100; ++i)
    line.push_back({static_cast<float>(i) * 0.3F, i == 50 ? 40.0F : 0.0F});
  ThinOut(line, 1);
  EXPECT_LT(line.size(), 30u);
  EXPECT_EQ(line.front().x, 0);
  EXPECT_FLOAT_EQ(line.back().x, 30);
  EXPECT_TRUE(std::any_of(line.begin(), line.end(), [](SurfacePoint p) { return p.y == 40; }));
  std::vector<SurfacePoint> dot{{5, 5}, {5, 5}, {5, 5}};
  ThinOut(dot, 1);
  EXPECT_EQ(dot.size(), 2u);
}

TEST(ClipLine, KeepsThePartOnThePage) {
  struct Case {
    const char* why;
    SurfacePoint a, b;
    bool touches;
    SurfacePoint from, to;
  };
  const Case cases[] = {
      {"inside", {10, 10}, {20, 40}, true, {10, 10}, {20, 40}},
      {"through both sides", {-10, 25}, {110, 25}, true, {0, 25}, {100, 25}},
      {"in over a corner", {-10, -10}, {10, 10}, true, {0, 0}, {10, 10}},
      {"past the corner", {-20, 10}, {10, -20}, false, {-20, 10}, {10, -20}},
      {"beyond one edge", {-10, 10}, {-5, 40}, false, {-10, 10}, {-5, 40}},
      {"along an edge", {-50, 50}, {150, 50}, true, {0, 50}, {100, 50}},
      {"from very far", {-1e7F, 20}, {1e7F, 30}, true, {0, 25}, {100, 25}},
      {"no length, inside", {5, 5}, {5, 5}, true, {5, 5}, {5, 5}},
      {"no length, outside", {-5, 5}, {-5, 5}, false, {-5, 5}, {-5, 5}},
  };
  for (const Case& c : cases) {
    SurfacePoint a = c.a;
    SurfacePoint b = c.b;
    EXPECT_EQ(ClipLine(a, b, page), c.touches) << c.why;
    EXPECT_NEAR(a.x, c.from.x, 1e-3) << c.why;
    EXPECT_NEAR(a.y, c.from.y, 1e-3) << c.why;
    EXPECT_NEAR(b.x, c.to.x, 1e-3) << c.why;
    EXPECT_NEAR(b.y, c.to.y, 1e-3) << c.why;
  }
}

TEST(LineClipper, GivesOneRunForEachVisit) {
  LineClipper clipper(page);
  for (const SurfacePoint point : {SurfacePoint{10, 10}, {50, -50}, {90, 10}, {90, 20}, {300, 20}, {300, 90}})
    clipper.Add(point);
  clipper.Break();
  clipper.Add({20, 20});
  clipper.Add({30, 20});
  clipper.Break();
  ASSERT_EQ(clipper.Runs().size(), 3u);
  EXPECT_EQ(clipper.Runs()[0].size(), 2u);
  EXPECT_EQ(clipper.Runs()[1].size(), 4u) << "in over the top, two corners, out at the right";
  EXPECT_NEAR(clipper.Runs()[1].front().y, 0, 1e-3);
  EXPECT_NEAR(clipper.Runs()[1].back().x, 100, 1e-3);
  EXPECT_EQ(clipper.Runs()[2].front().x, 20) << "nothing joins across a break";
}

}  // namespace
