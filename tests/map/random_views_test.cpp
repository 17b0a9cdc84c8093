// Views of a random world, all switches on: that the indexes change nothing,
// and that no line runs across the map that does not belong there.
#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <random>

#include "map/draw_map.h"
#include "tests/map/random_world.h"
#include "tests/map/recording_surface.h"

namespace {

constexpr int viewCount = 300;

struct RandomView {
  float lat, lon;
  int row;
  float sizeFactor;
};

std::vector<RandomView> RandomViews() {
  std::mt19937 random(3);
  const auto part = [&] { return static_cast<float>(random() % 10001) / 10000; };
  const auto thick = ThickPlaces();
  constexpr float factors[] = {0.5F, 1, 1.18F, 2.3F};
  std::vector<RandomView> views;
  for (int i = 0; i < viewCount; ++i) {
    const Position place = thick[random() % thick.size()];
    const bool anywhere = i % 4 == 0;
    views.push_back({anywhere ? -90 + 180 * part() : place.lat, anywhere ? -180 + 360 * part() : place.lon,
                     i % static_cast<int>(ZoomTable.size()), factors[random() % std::size(factors)]});
  }
  return views;
}

MapSwitches AllOn() {
  MapSwitches on;
  on.mnuLatLong = on.mnuCtrz = on.mnuAir1 = on.mnuAir2 = on.mnuCompass = on.mnuMSA = true;
  on.mnuIntersection = on.mnuGPSFix = on.mnuSunrise = true;
  on.btnName = on.btnFreq = true;
  return on;
}

struct Painted {
  RecordingSurface surface;
  std::int32_t scale;

  Painted(const NavDatabase& database, const RandomView& at) {
    MapView view = MapView::At(at.lat, at.lon, at.row);
    view.MapSizeFactor = at.sizeFactor;
    view.MapScale = static_cast<std::int32_t>(std::lround(at.sizeFactor * static_cast<float>(view.MapScale)));
    view.MapMagVar = 3;
    scale = view.MapScale;
    MapSelection selection;
    selection.SelectedObjectType = SelectedObject::jetAirway;
    selection.SelectedObjectIndex = 5;
    selection.SelectedAirway = "PICKED";
    selection.SelectedOutline = 7;
    selection.activeAirspaces = {3, 70, 9999, -1};
    modDeclutter labels;
    DrawMap({view, labels, database, Settings(), AllOn(), selection}, InDrawingOrder(DatabaseLayers()),
            surface);
  }
};

std::string TextOf(const RandomView& view) {
  return std::to_string(view.lat) + ", " + std::to_string(view.lon) + " row " + std::to_string(view.row) +
         " factor " + std::to_string(view.sizeFactor);
}

std::string TextOf(const RecordingSurface::Drawn& one) {
  std::string text = one.what + " " + std::to_string(one.color) + " " + one.text;
  for (const SurfacePoint point : one.points)
    text += " (" + std::to_string(point.x) + ", " + std::to_string(point.y) + ")";
  return text + " at " + std::to_string(one.x) + ", " + std::to_string(one.y);
}

bool Same(const RecordingSurface::Drawn& a, const RecordingSurface::Drawn& b) {
  const auto same = [](SurfacePoint p, SurfacePoint q) { return p.x == q.x && p.y == q.y; };
  return a.what == b.what && a.color == b.color && a.text == b.text && a.x == b.x && a.y == b.y &&
         std::equal(a.points.begin(), a.points.end(), b.points.begin(), b.points.end(), same);
}

TEST(RandomViews, LookTheSameWithAndWithoutIndexes) {
  const NavDatabase indexed = RandomWorld(1);
  NavDatabase walked = RandomWorld(1);
  WalkWholeTables(walked);
  std::size_t operations = 0;
  for (const RandomView& view : RandomViews()) {
    const auto with = Painted(indexed, view).surface.drawn;
    const auto without = Painted(walked, view).surface.drawn;
    operations += with.size();
    ASSERT_EQ(with.size(), without.size()) << TextOf(view);
    for (std::size_t i = 0; i < with.size(); ++i)
      ASSERT_TRUE(Same(with[i], without[i]))
          << TextOf(view) << ": " << TextOf(with[i]) << " and " << TextOf(without[i]);
  }
  EXPECT_GT(operations, 100000u) << "views of nothing prove nothing";
}

// An edge along one side of what is drawn comes from cutting a shape there.
bool OnOneSide(SurfacePoint a, SurfacePoint b) {
  const auto beyond = [](float p, float q, float size) {
    return (p <= 0 && q <= 0) || (p >= size && q >= size);
  };
  return a.x == b.x || a.y == b.y || beyond(a.x, b.x, mapScaleWidth) || beyond(a.y, b.y, mapScaleHeight);
}

// The longest edge that does not lie along a side, and that all numbers are such.
double LongestEdge(const RecordingSurface::Drawn& one, bool& finite) {
  finite = finite && std::isfinite(one.x) && std::isfinite(one.y);
  double longest = 0;
  if (one.what == "circle") return longest;
  for (std::size_t i = 0; i < one.points.size(); ++i) {
    finite = finite && std::isfinite(one.points[i].x) && std::isfinite(one.points[i].y);
    if (i == 0 && one.what != "polygon") continue;
    const SurfacePoint a = one.points[i == 0 ? one.points.size() - 1 : i - 1];
    const SurfacePoint b = one.points[i];
    if (one.what != "polygon" || !OnOneSide(a, b))
      longest = std::max<double>(longest, std::hypot(a.x - b.x, a.y - b.y));
  }
  return longest;
}

TEST(RandomViews, JoinNoPlacesAcrossTheMap) {
  const NavDatabase database = RandomWorld(2);
  const ColorSettings colors;
  for (const RandomView& view : RandomViews()) {
    const Painted map(database, view);
    // Room for symbols, whose size does not follow the scale.
    const double most = 1.5 * longestLink * map.scale + 1500;
    bool finite = true;
    for (const auto& one : map.surface.drawn) {
      const double longest = LongestEdge(one, finite);
      if (one.color == colors.LATLONG) {
        ASSERT_LE(longest, mapScaleWidth) << TextOf(view);
      } else {
        ASSERT_LE(longest, most) << TextOf(view) << ": " << TextOf(one);
      }
      ASSERT_TRUE(finite) << TextOf(view) << ": " << TextOf(one);
    }
  }
}

}  // namespace
