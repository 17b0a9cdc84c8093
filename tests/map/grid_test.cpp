#include <gtest/gtest.h>

#include <algorithm>
#include <set>

#include "map/grid_layer.h"
#include "tests/map/painted.h"

namespace {

MapSwitches GridOnly() {
  MapSwitches on = NothingOn();
  on.mnuLatLong = true;
  return on;
}

TEST(GridTexts, NameTheLines) {
  constexpr std::int32_t degree = 240;
  struct Case {
    std::int32_t at;
    const char *lat, *lon;
  };
  const Case cases[] = {{0, "0°", "0°"},
                        {50 * degree, "N50°", "E050°"},
                        {-7 * degree, "S07°", "W007°"},
                        {8 * degree + 120, "N08°30'", "E008°30'"},
                        {-(8 * degree + 4 * 5), "S08°05'", "W008°05'"},
                        {12 * degree + 4 * 7 + 1, "N12°07.25'", "E012°07.25'"}};
  for (const Case& c : cases) {
    EXPECT_EQ(GridLatText(c.at), c.lat);
    EXPECT_EQ(GridLonText(c.at), c.lon);
  }
  const std::pair<std::int32_t, const char*> wrapped[] = {{180 * degree, "180°"},
                                                          {-180 * degree, "180°"},
                                                          {181 * degree, "W179°"},
                                                          {-190 * degree, "E170°"},
                                                          {360 * degree, "0°"}};
  for (const auto& [at, text] : wrapped)
    EXPECT_EQ(GridLonText(at), text) << at;
}

TEST(GridLayer, IsAFewLinesAtAnyRangeAndPlace) {
  NavDatabase database;
  const ColorSettings colors;
  for (const Position centre : {Position{50, 8.5F}, {-17, 179.5F}, {0, -180}, {90, 0}, {-90, 100}}) {
    for (int row = 0; row < static_cast<int>(ZoomTable.size()); ++row) {
      const RecordingSurface surface = PaintedMap(database, ViewAtRow(centre, row), GridOnly());
      int parallels = 0;
      int meridians = 0;
      std::set<float> places;
      for (const auto& one : surface.drawn) {
        if (one.what != "line" || one.color != colors.LATLONG) continue;
        const bool parallel = one.points[0].y == one.points[1].y;
        parallel ? ++parallels : ++meridians;
        EXPECT_TRUE(places.insert(parallel ? -1 - one.y : one.x).second) << "a line twice";
        for (const SurfacePoint end : one.points) {
          EXPECT_GE(end.x, 0);
          EXPECT_LE(end.x, mapScaleWidth);
        }
      }
      EXPECT_TRUE(parallels >= 2 && parallels <= 8) << centre.lat << " row " << row << ": " << parallels;
      EXPECT_TRUE(meridians >= 3 && meridians <= 12) << centre.lat << " row " << row << ": " << meridians;
      const auto texts = surface.Texts();
      EXPECT_GE(texts.size(), 4u) << centre.lat << " row " << row;
      EXPECT_EQ(std::set<std::string>(texts.begin(), texts.end()).size(), texts.size()) << "a degree twice";
    }
  }
}

TEST(GridLayer, LinesLieWhereTheirTextsSay) {
  NavDatabase database;
  const MapView view = ViewAtRow({-17, 179.5F}, 12);
  const RecordingSurface surface = PaintedMap(database, view, GridOnly());
  const auto has = [&](bool parallel, double at) {
    return std::any_of(surface.drawn.begin(), surface.drawn.end(), [&](const auto& one) {
      return one.what == "line" && std::abs((parallel ? one.y : one.x) - at) < 1.5;
    });
  };
  // 300 NM are 5 degrees: a line each degree, across the date line, too.
  const auto texts = surface.Texts();
  for (const char* text : {"S16°", "S17°", "E178°", "180°", "W179°"})
    EXPECT_NE(std::find(texts.begin(), texts.end(), text), texts.end()) << text;
  EXPECT_TRUE(has(true, view.LatToY(-16)));
  EXPECT_TRUE(has(false, view.LonToX(178)));
  EXPECT_TRUE(has(false, view.LonToX(180)));
  EXPECT_TRUE(has(false, view.LonToX(-179)));
}

TEST(GridLayer, StopsAtThePolesAndAfterOneTurn) {
  NavDatabase database;
  MapView view = ViewAtRow({0, 30}, 21);
  view.MapScale = 20;  // a page of 566 by 350 degrees
  const RecordingSurface surface = PaintedMap(database, view, GridOnly());
  for (const auto& one : surface.drawn) {
    for (const SurfacePoint end : one.points) {
      EXPECT_LE(std::abs(end.y - 3500), 90 * 20 + 1);
      EXPECT_LE(std::abs(end.x - 5662.5F), 180 * 20 + 1);
    }
  }
}

}  // namespace
