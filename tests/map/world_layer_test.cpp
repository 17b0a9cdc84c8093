#include "map/world_layer.h"

#include <gtest/gtest.h>

#include <cmath>

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
  const ColorSettings colors;
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

}  // namespace
