#include "map/waypoint_layer.h"

#include <gtest/gtest.h>

#include "tests/map/painted.h"

namespace {

constexpr Position middle{50.0F, 8.5F};

// One intersection on a victor airway, one on a jet airway, one on both, one on none.
NavDatabase FourIntersections() {
  NavDatabase database;
  database.intersections.resize(NavDatabase::intersectionRows);
  database.lngIntersections = 4;
  const std::pair<const char*, const char*> rows[] = {
      {"VIC", "L"}, {"JET", "H"}, {"BOTH", "B"}, {"NONE", " "}};
  for (std::size_t i = 0; i < 4; ++i) {
    auto& row = database.intersections[i + 1];
    row = RowAt<IntersectionRec>(rows[i].first, {middle.lat, middle.lon + 0.2F * static_cast<float>(i)});
    row.strAirwayType = std::string_view(rows[i].second);
  }
  BuildIndexes(database);
  return database;
}

MapView ViewAt(int row) {
  return MapView::At(middle.lat, middle.lon, row);
}

TEST(Intersections, AreShownByTheirKindOfAirway) {
  const NavDatabase database = FourIntersections();
  struct Case {
    bool all, victor, jet;
    std::vector<std::string> shown;
  };
  const Case cases[] = {{true, false, false, {"VIC", "JET", "BOTH", "NONE"}},
                        {false, true, false, {"VIC", "BOTH"}},
                        {false, false, true, {"JET", "BOTH"}},
                        {false, true, true, {"VIC", "JET", "BOTH"}},
                        {false, false, false, {}}};
  for (const Case& c : cases) {
    MapSwitches switches = NothingOn();
    switches.mnuIntersection = c.all;
    switches.mnuVictor = c.victor;
    switches.mnuJet = c.jet;
    const Painted map(database, ViewAt(9), switches);
    EXPECT_EQ(map.surface.Texts(), c.shown);
    EXPECT_EQ(map.surface.Count("polyline", map.colors.INT), static_cast<int>(c.shown.size()));
  }
}

TEST(Intersections, ByRange) {
  const NavDatabase database = FourIntersections();
  MapSwitches switches = NothingOn();
  switches.mnuIntersection = true;
  struct Case {
    int row;
    int triangles, points, labels;
  };
  // 150, 200, 900 and 2000 NM.
  const Case cases[] = {{10, 4, 0, 4}, {11, 4, 0, 0}, {18, 4, 0, 0}, {19, 0, 4, 0}};
  for (const Case& c : cases) {
    const Painted map(database, ViewAt(c.row), switches);
    EXPECT_EQ(map.surface.Count("polyline", map.colors.INT), c.triangles) << "row " << c.row;
    EXPECT_EQ(map.surface.Count("point", map.colors.INT), c.points) << "row " << c.row;
    EXPECT_EQ(map.surface.Count("print"), c.labels) << "row " << c.row;
  }
}

// The symbol's own centre has moved up by 15; the label hangs 75 below that.
TEST(Intersections, CodeWhateverTheSwitchAndNameBelowIt) {
  const NavDatabase database = FourIntersections();
  MapSwitches switches = NothingOn();
  switches.mnuVictor = switches.btnName = true;
  const std::string text = DrawnText(Painted(database, ViewAt(9), switches).surface);
  EXPECT_NE(text.find("polyline 5662,3455 5632,3515 5692,3515 5662,3455\n"
                      "print 5572,3560 [VIC]\n"
                      "print 5542,3660 [NAME]\n"),
            std::string::npos)
      << text;
}

TEST(Intersections, WithoutANameOfTheirOwnShowTheCodeOnce) {
  NavDatabase database = FourIntersections();
  database.intersections[1].strName = std::string_view("VIC");
  MapSwitches switches = NothingOn();
  switches.mnuVictor = switches.btnName = true;
  const auto texts = Painted(database, ViewAt(9), switches).surface.Texts();
  EXPECT_EQ(texts, (std::vector<std::string>{"VIC", "BOTH", "NAME"}));
}

TEST(Intersections, HighlightTheSelectedRow) {
  MapSwitches switches = NothingOn();
  switches.mnuVictor = true;
  const Painted map(FourIntersections(), ViewAt(9), switches, {3, SelectedObject::intersection, {}, -1, {}});
  EXPECT_EQ(map.surface.Count("polyline", map.colors.HILITE), 1);
  EXPECT_EQ(map.surface.Count("print", map.colors.HILITE), 1);
}

TEST(Fixes, ByRangeAndSwitches) {
  NavDatabase database;
  database.fixes = {RowAt<FixRec>("DF047", middle)};
  BuildIndexes(database);
  struct Case {
    bool fixes, icao;
    int row;
    int triangles, labels;
  };
  // Labels to 50 NM, symbols to 150.
  const Case cases[] = {{true, true, 7, 1, 1},  {true, true, 8, 1, 0},  {true, true, 10, 1, 0},
                        {true, true, 11, 0, 0}, {true, false, 7, 1, 0}, {false, true, 7, 0, 0}};
  for (const Case& c : cases) {
    MapSwitches switches = NothingOn();
    switches.mnuGPSFix = c.fixes;
    switches.btnIcao = c.icao;
    switches.btnName = true;
    const Painted map(database, ViewAt(c.row), switches);
    EXPECT_EQ(map.surface.Count("polyline", map.colors.FIX), c.triangles) << "row " << c.row;
    EXPECT_EQ(map.surface.Count("print"), c.labels) << "row " << c.row;
  }
  MapSwitches switches = NothingOn();
  switches.mnuGPSFix = true;
  const Painted map(database, ViewAt(9), switches, {0, SelectedObject::fix, {}, -1, {}});
  EXPECT_EQ(map.surface.Count("polyline", map.colors.HILITE), 1);
}

TEST(UserWaypoints, ArePrintedWhereTheyAreWhateverLiesThere) {
  NavDatabase database;
  database.userWaypoints = {RowAt<UserWaypointRec>("A", middle, "Home"),
                            RowAt<UserWaypointRec>("B", middle, "Home")};
  BuildIndexes(database);
  MapSwitches switches = NothingOn();
  switches.mnuUserWP = true;
  const Painted map(database, ViewAt(9), switches);
  const std::string one =
      "polyline 5662,3460 5622,3540 5702,3540 5662,3460\n"
      "circle 5662,3500 r20\n"
      "print 5542,3650 [Home]\n";
  EXPECT_TRUE(DrawnText(map.surface).ends_with(one + one)) << DrawnText(map.surface);
  EXPECT_EQ(map.surface.Count("print", map.colors.USER), 2);
}

}  // namespace
