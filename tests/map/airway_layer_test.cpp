#include "map/airway_layer.h"

#include <gtest/gtest.h>

#include <cmath>

#include "tests/map/painted.h"

namespace {

AirwaySegmentRec Segment(std::int32_t from, std::int32_t to, std::string_view name) {
  AirwaySegmentRec row;
  row.strName = name;
  row.lngFrom = from;
  row.lngTo = to;
  row.strLower = std::string_view("FL100");
  row.strUpper = std::string_view("FL245");
  return row;
}

// Intersections 1 to 4: two near 50 N 8.5 E, two far to the east.
NavDatabase Net() {
  NavDatabase database;
  database.intersections.resize(NavDatabase::intersectionRows);
  database.lngIntersections = 4;
  const Position places[] = {{50, 8}, {50, 9}, {52, 60}, {50, 100}};
  for (std::size_t i = 0; i < 4; ++i)
    database.intersections[i + 1] = RowAt<IntersectionRec>("FIX", places[i]);
  database.victorAirways = {Segment(1, 2, "L1"), Segment(2, 3, "L2"), Segment(3, 4, "L3"),
                            Segment(1, 999999, "BAD")};
  database.jetAirways = {Segment(1, 2, "UL1"), Segment(2, 3, "L2")};
  BuildIndexes(database);
  return database;
}

MapSwitches OnlyAirways() {
  MapSwitches switches = NothingOn();
  switches.mnuVictor = switches.mnuJet = switches.btnIcao = true;
  return switches;
}

TEST(Airways, AreDrawnWithOneEndInView) {
  const NavDatabase database = Net();
  MapView view = MapView::At(50, 8.5F, 9);
  view.UpdateVisibilityBox();
  std::vector<std::string> names;
  for (const AirwaySegmentRec* segment :
       SegmentsInView(view, database, database.victorAirways, database.victorAirwaysByEnds))
    names.push_back(segment->strName.Text());
  // L3 has both ends far away, BAD names no row of the table.
  EXPECT_EQ(names, (std::vector<std::string>{"L1", "L2"}));
}

// The box is 1.5 degrees wider for them, its south edge in, its north edge out.
TEST(Airways, EndAtTheEdgesOfTheGrownBox) {
  MapView view = MapView::At(50, 8.5F, 9);
  view.UpdateVisibilityBox();
  const auto shownWithEndAt = [&](float lat) {
    NavDatabase database = Net();
    database.intersections[1].sngLat = lat;
    database.intersections[2].sngLat = 80;
    database.victorAirways = {Segment(1, 2, "L1")};
    BuildIndexes(database);
    return SegmentsInView(view, database, database.victorAirways, database.victorAirwaysByEnds).size() == 1;
  };
  const float north = view.MapNorthLat + 1.5F;
  const float south = view.MapSouthLat - 1.5F;
  EXPECT_FALSE(shownWithEndAt(north));
  EXPECT_TRUE(shownWithEndAt(std::nextafter(north, 0.0F)));
  EXPECT_TRUE(shownWithEndAt(south));
  EXPECT_FALSE(shownWithEndAt(std::nextafter(south, 0.0F)));
}

TEST(Airways, JetLiesBelowVictor) {
  const Painted map(Net(), MapView::At(50, 8.5F, 13), OnlyAirways());
  int jet = -1;
  int victor = -1;
  for (std::size_t i = 0; i < map.surface.drawn.size(); ++i) {
    if (map.surface.drawn[i].what != "line") continue;
    if (map.surface.drawn[i].color == map.colors.JET) jet = static_cast<int>(i);
    if (map.surface.drawn[i].color == map.colors.VICTOR && victor < 0) victor = static_cast<int>(i);
  }
  ASSERT_GE(jet, 0);
  EXPECT_LT(jet, victor);
}

TEST(Airways, AreLabelledTo100AndWithAltitudesTo75NM) {
  MapSwitches switches = OnlyAirways();
  switches.btnFreq = true;
  switches.mnuJet = false;
  const NavDatabase database = Net();
  const auto map = [&](int row) { return Painted(database, MapView::At(50, 8.5F, row), switches); };
  EXPECT_TRUE(map(8).Has("(FL100-FL245)"));
  EXPECT_FALSE(map(9).Has("(FL100-FL245)"));
  EXPECT_TRUE(map(9).Has("L1"));
  EXPECT_FALSE(map(10).Has("L1"));
  switches.btnIcao = false;
  EXPECT_FALSE(map(8).Has("L1"));
  EXPECT_TRUE(map(8).Has("(FL100-FL245)"));
}

// The name centred on the middle of the segment, the altitudes one line lower, centred on it.
TEST(Airways, LabelStandsAtTheMiddle) {
  MapSwitches switches = OnlyAirways();
  switches.btnFreq = true;
  switches.mnuJet = false;
  NavDatabase database = Net();
  database.intersections[1].strCode = database.intersections[2].strCode = std::string_view("");
  database.victorAirways = {Segment(1, 2, "L1")};
  BuildIndexes(database);
  const Painted map(database, MapView::At(50, 8.5F, 8), switches);
  EXPECT_NE(DrawnText(map.surface).find("print 5602,3450 [L1]\nprint 5272,3550 [(FL100-FL245)]\n"),
            std::string::npos)
      << DrawnText(map.surface);
}

TEST(Airways, TheSelectedOneIsDrawnLastAndHighlighted) {
  const NavDatabase database = Net();
  MapSelection selection;
  selection.SelectedAirway = "L2";
  struct Case {
    SelectedObject type;
    int plainVictor, highlighted;
  };
  // A name that is not the selection's own kind of object hides its airway all the same.
  const Case cases[] = {{SelectedObject::victorAirway, 1, 2},
                        {SelectedObject::jetAirway, 1, 2},
                        {SelectedObject::airport, 1, 0}};
  for (const Case& c : cases) {
    selection.SelectedObjectType = c.type;
    const Painted map(database, MapView::At(50, 8.5F, 9), OnlyAirways(), selection);
    EXPECT_EQ(map.surface.Count("line", map.colors.VICTOR), c.plainVictor);
    EXPECT_EQ(map.surface.Count("line", map.colors.JET), 1);
    EXPECT_EQ(map.surface.Count("line", map.colors.HILITE), c.highlighted) << "in each of the two nets";
  }
}

// From 102 E the short way to 175 W leads off the map's right edge, not back over all of it.
TEST(Airways, DoNotCrossTheWholeMapAtTheDateLine) {
  NavDatabase database = Net();
  database.intersections[1].sngLon = 102;
  database.intersections[2].sngLon = -175;
  database.victorAirways = {Segment(1, 2, "A1")};
  database.jetAirways.clear();
  BuildIndexes(database);
  const Painted map(database, MapView::At(50, 0, 21), OnlyAirways());
  for (const auto& one : map.surface.drawn) {
    if (one.what != "line") continue;
    EXPECT_LT(std::abs(one.points[0].x - one.points[1].x), 5000);
  }
  EXPECT_EQ(map.surface.Count("line", map.colors.VICTOR), 2) << "one piece at each edge of the world";
}

}  // namespace
