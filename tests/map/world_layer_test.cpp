#include "map/world_layer.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <random>

#include "map/draw_map.h"
#include "tests/map/recording_surface.h"

namespace {

WorldShapeRec AddShape(WorldShapes& world, std::uint8_t kind, const std::vector<Position>& points) {
  WorldShapeRec shape;
  shape.bytType = kind;
  shape.firstPoint = static_cast<std::uint32_t>(world.points.size());
  shape.pointCount = static_cast<std::uint32_t>(points.size());
  shape.sngBox1 = 180, shape.sngBox3 = -180, shape.sngBox2 = 90, shape.sngBox4 = -90;
  for (const Position point : points) {
    shape.sngBox1 = std::min(shape.sngBox1, point.lon);
    shape.sngBox3 = std::max(shape.sngBox3, point.lon);
    shape.sngBox2 = std::min(shape.sngBox2, point.lat);
    shape.sngBox4 = std::max(shape.sngBox4, point.lat);
  }
  world.points.insert(world.points.end(), points.begin(), points.end());
  world.shapes.push_back(shape);
  return shape;
}

RecordingSurface PaintWorld(NavDatabase& database, Position centre, int row) {
  BuildIndexes(database);
  RecordingSurface surface;
  MapView view = MapView::At(centre.lat, centre.lon, row);
  modDeclutter labels;
  DrawMap({view, labels, database, Settings(), MapSwitches(), {}}, InDrawingOrder(DatabaseLayers()), surface);
  return surface;
}

TEST(WorldLayer, FillsLandAndLakesAndDrawsCoasts) {
  NavDatabase database;
  AddShape(database.worldPolygons, 1, {{40, 0}, {60, 0}, {60, 20}, {40, 20}, {40, 0}});
  AddShape(database.worldPolygons, 3, {{49, 9}, {51, 9}, {51, 11}, {49, 11}, {49, 9}});
  AddShape(database.worldLines, 2, {{48, 5}, {52, 15}});
  const ColorSettings colors;
  const RecordingSurface near = PaintWorld(database, {50, 10}, 12);
  EXPECT_EQ(near.Count("polygon", colors.LAND), 1);
  EXPECT_EQ(near.Count("polygon", colors.MAP), 1);
  EXPECT_EQ(near.Count("polyline", colors.COAST), 2)
      << "the lake's shore and the border; the coast is out of sight";
  EXPECT_EQ(PaintWorld(database, {-30, 10}, 12).Count("polygon"), 0);
}

TEST(WorldLayer, ShowsLandOnBothSidesOfTheDateLine) {
  NavDatabase database;
  AddShape(database.worldPolygons, 1, {{50, 170}, {55, 170}, {55, 180}, {50, 180}, {50, 170}});
  AddShape(database.worldPolygons, 1, {{50, -180}, {55, -180}, {55, -170}, {50, -170}, {50, -180}});
  for (const float lon : {179.5F, -179.5F}) {
    const RecordingSurface surface = PaintWorld(database, {52, lon}, 13);
    const ColorSettings colors;
    EXPECT_EQ(surface.Count("polygon", colors.LAND), 2) << lon;
    // The cut at 180 degrees is no coast: no outline runs north to south in mid page.
    for (const auto& one : surface.drawn) {
      if (one.what != "polyline") continue;
      for (std::size_t i = 1; i < one.points.size(); ++i)
        EXPECT_GT(std::abs(one.points[i].x - one.points[i - 1].x), 1) << lon;
    }
  }
}

TEST(WorldLayer, HalvesCutAtTheDateLineMeetWithoutASeam) {
  NavDatabase database;
  AddShape(database.worldPolygons, worldLand, {{50, 170}, {55, 170}, {55, 180}, {50, 180}, {50, 170}});
  AddShape(database.worldPolygons, worldLand, {{50, -180}, {55, -180}, {55, -170}, {50, -170}, {50, -180}});
  const RecordingSurface surface = PaintWorld(database, {52, 179.5F}, 13);
  float westEnd = 0;
  float eastBegin = mapScaleWidth;
  for (const auto& one : surface.drawn) {
    if (one.what != "polygon") continue;
    const auto [left, right] = std::minmax_element(one.points.begin(), one.points.end(),
                                                   [](SurfacePoint a, SurfacePoint b) { return a.x < b.x; });
    if (left->x < 0) westEnd = right->x;
    if (right->x > mapScaleWidth) eastBegin = left->x;
  }
  EXPECT_GE(westEnd - eastBegin, surface.UnitsPerPixel());
}

TEST(WorldLayer, KeepsAShapeWholeThatCrossesTheDateLineInShortSteps) {
  NavDatabase database;
  AddShape(database.worldPolygons, worldLand,
           {{50, 179}, {51, 179.8F}, {51, -179.8F}, {50, -179}, {49, -179.8F}, {49, 179.8F}, {50, 179}});
  const ColorSettings colors;
  for (const float lon : {179.0F, -179.0F, 170.0F, -170.0F}) {
    const RecordingSurface surface = PaintWorld(database, {50, lon}, 16);
    ASSERT_EQ(surface.Count("polygon", colors.LAND), 1) << lon;
    for (const auto& one : surface.drawn)
      for (std::size_t i = 1; i < one.points.size(); ++i)
        EXPECT_LT(std::abs(one.points[i].x - one.points[i - 1].x), 600) << lon;
  }
}

TEST(WorldLayer, ClosesTheSouthernContinentAlongThePole) {
  NavDatabase database;
  std::vector<Position> coast{{-90, -180}};
  for (float lon = -180; lon <= 180; lon += 10)
    coast.push_back({-70, lon});
  coast.push_back({-90, 180});
  coast.push_back({-90, -180});
  AddShape(database.worldPolygons, worldLand, coast);
  const ColorSettings colors;
  for (const float lon : {-180.0F, 0.0F, 175.0F}) {
    const RecordingSurface surface = PaintWorld(database, {-80, lon}, 19);
    double area = 0;
    for (const auto& one : surface.drawn) {
      if (one.what != "polygon") continue;
      for (std::size_t i = 0; i < one.points.size(); ++i) {
        const SurfacePoint a = one.points[i];
        const SurfacePoint b = one.points[(i + 1) % one.points.size()];
        area += (static_cast<double>(a.x) * b.y - static_cast<double>(b.x) * a.y) / 2;
      }
    }
    // 20 degrees of latitude by the page with its margins; the page ends at the pole. Turns of the
    // world overlap by two pixels.
    EXPECT_NEAR(std::abs(area), 20.0 * 210 * (mapScaleWidth + 120), 6e4) << lon;
    EXPECT_GT(surface.Count("polyline", colors.COAST), 0);
  }
}

TEST(WorldLayer, DrawsTheSelectedOutlineAgain) {
  NavDatabase database;
  AddShape(database.worldPolygons, worldLand, {{49, 9}, {51, 9}, {51, 11}, {49, 9}});
  BuildIndexes(database);
  const ColorSettings colors;
  struct Case {
    std::int32_t row;
    bool coastlines;
    int highlighted;
  };
  for (const Case& c : {Case{0, true, 1}, {-1, true, 0}, {1, true, 0}, {0, false, 0}}) {
    RecordingSurface surface;
    MapView view = MapView::At(50, 10, 12);
    modDeclutter labels;
    MapSwitches switches;
    switches.mnuCoastlines = c.coastlines;
    MapSelection selection;
    selection.SelectedOutline = c.row;
    DrawMap({view, labels, database, Settings(), switches, selection}, InDrawingOrder(DatabaseLayers()),
            surface);
    EXPECT_EQ(surface.Count("polyline", colors.HILITE), c.highlighted) << c.row;
  }
}

// The distance of p from the line between a and b, in degrees.
double Off(Position p, Position a, Position b) {
  const double x = b.lon - a.lon;
  const double y = b.lat - a.lat;
  const double length = std::hypot(x, y);
  return length > 0 ? std::abs(x * (p.lat - a.lat) - y * (p.lon - a.lon)) / length
                    : std::hypot(p.lat - a.lat, p.lon - a.lon);
}

TEST(OutlineLevels, LieOffByNoMoreThanTheirTolerance) {
  std::mt19937 random(5);
  WorldShapes world;
  std::vector<Position> coast;
  for (int i = 0; i < 3000; ++i)
    coast.push_back({static_cast<float>(i) * 0.01F, static_cast<float>(random() % 1000) * 0.00005F});
  AddShape(world, worldBorder, coast);
  const OutlineLevels levels = OutlineLevels::Build(world);
  std::size_t before = coast.size() + 1;
  for (const float tolerance : OutlineLevels::tolerances) {
    const OutlineLevel& level = levels.For(tolerance);
    const auto kept = level.Points(level.shapes[0]);
    EXPECT_LT(kept.size(), before);
    before = kept.size();
    EXPECT_EQ(kept.front(), coast.front());
    EXPECT_EQ(kept.back(), coast.back());
    std::size_t next = 0;
    for (const Position point : coast) {
      while (next + 1 < kept.size() && kept[next].lat < point.lat)
        ++next;
      const Position a = kept[next > 0 ? next - 1 : 0];
      const Position b = kept[next];
      EXPECT_LE(Off(point, a, b), tolerance * 1.01 + 1e-5);
    }
  }
}

TEST(OutlineLevels, KeepATriangleOfTheSmallestIslandAndTheDateLine) {
  const std::vector<Position> island = {{0, 0}, {0, 0.001F}, {0.001F, 0.001F}, {0.001F, 0}, {0, 0}};
  EXPECT_EQ(SimplifiedOutline(island, 1).size(), 4u);
  const std::vector<Position> cut = {{60, 170}, {60, 180}, {61, 180}, {61.001F, 180}, {62, 180}, {62, 170}};
  EXPECT_EQ(SimplifiedOutline(cut, 5).size(), 6u);
  const float nan = std::nanf("");
  EXPECT_TRUE(UnwrappedOutline(std::vector<Position>{{nan, 0}, {0, nan}, {91, 0}}).empty());
}

}  // namespace
