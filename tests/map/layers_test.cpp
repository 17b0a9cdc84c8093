#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>

#include "map/airport_layer.h"
#include "map/airway_layer.h"
#include "map/draw_map.h"
#include "tests/map/recording_surface.h"

namespace {

AirportRec Airport(const char* code, float lat, float lon) {
  AirportRec airport;
  airport.strCode = std::string_view(code);
  airport.strName = std::string_view("Field");
  airport.sngLat = lat;
  airport.sngLon = lon;
  return airport;
}

// Two airports with a runway each, four airway fixes, one coast.
NavDatabase SmallWorld() {
  NavDatabase database;
  database.airports = {Airport("EDDF", 50.0F, 8.5F), Airport("EDFE", 49.96F, 8.64F)};
  RunwayRec runway;
  runway.strRwyID = std::string_view("07L");
  runway.sngHeading = 70;
  for (std::uint32_t i = 0; i < 2; ++i) {
    AirportRec& airport = database.airports[i];
    runway.sngLat = airport.sngLat;
    runway.sngLon = airport.sngLon;
    runway.intLength = i == 0 ? std::int16_t{13123} : std::int16_t{3000};
    airport.firstRunway = i;
    airport.lngRunways = 1;
    database.runways.push_back(runway);
  }
  database.airports.resize(2 + NavDatabase::surplusAirportRows + 1);
  database.lngAirports = 2;
  database.intersections.resize(NavDatabase::intersectionRows);
  database.lngIntersections = 4;
  const Position fixes[] = {{50, 8}, {50, 9}, {52, 60}, {50, 100}};
  for (std::size_t i = 0; i < 4; ++i) {
    IntersectionRec& fix = database.intersections[i + 1];
    fix.strCode = std::string_view("FIX");
    fix.sngLat = fixes[i].lat;
    fix.sngLon = fixes[i].lon;
  }
  const auto segment = [](std::int32_t from, std::int32_t to, const char* name) {
    AirwaySegmentRec row;
    row.strName = std::string_view(name);
    row.lngFrom = from;
    row.lngTo = to;
    row.strLower = std::string_view("FL100");
    row.strUpper = std::string_view("FL245");
    return row;
  };
  database.victorAirways = {segment(1, 2, "L1"), segment(2, 3, "L2"), segment(3, 4, "L3"),
                            segment(1, 999999, "BAD")};
  database.jetAirways = {segment(1, 2, "UL1")};
  BuildIndexes(database);
  return database;
}

struct Painted {
  RecordingSurface surface;
  ColorSettings colors;

  Painted(int row, const MapSwitches& switches = {}, Position centre = {50, 8.5F}) {
    const NavDatabase database = SmallWorld();
    MapView view = MapView::At(centre.lat, centre.lon, row);
    modDeclutter labels;
    DrawMap({view, labels, database, Settings(), switches, {}}, InDrawingOrder(DatabaseLayers()), surface);
  }
  bool Has(const std::string& text) const {
    const auto texts = surface.Texts();
    return std::find(texts.begin(), texts.end(), text) != texts.end();
  }
};

TEST(DrawingOrder, IsTheOneOfThePlacesWhateverTheListHolds) {
  auto layers = DatabaseLayers();
  std::reverse(layers.begin(), layers.end());
  std::vector<std::string_view> names;
  for (const MapLayer& layer : InDrawingOrder(layers))
    names.push_back(layer.name);
  EXPECT_EQ(names, (std::vector<std::string_view>{"coastlines", "airports", "jet", "victor"}));
}

TEST(AirportLayer, ShowsByRange) {
  struct Case {
    int row;
    int runways;
    bool designators, label;
    int circles, points;
  };
  // Runways to 100 NM, designators to 10, labels to 200, circles to 900, then points.
  const Case cases[] = {{4, 2, true, true, 2, 0},    {5, 2, false, true, 2, 0},  {9, 2, false, true, 2, 0},
                        {10, 0, false, true, 2, 0},  {11, 0, false, true, 2, 0}, {12, 0, false, false, 2, 0},
                        {18, 0, false, false, 2, 0}, {19, 0, false, false, 0, 2}};
  for (const Case& c : cases) {
    const Painted map(c.row);
    const int range = ZoomTable[static_cast<std::size_t>(c.row)].rangeNM;
    EXPECT_EQ(map.surface.Count("polygon", map.colors.RWY), c.runways) << range << " NM";
    EXPECT_EQ(map.Has("07L"), c.designators) << range << " NM";
    EXPECT_EQ(map.Has("25R"), c.designators) << range << " NM";
    EXPECT_EQ(map.Has("EDDF"), c.label) << range << " NM";
    EXPECT_EQ(map.surface.Count("circle", map.colors.AP), c.circles) << range << " NM";
    EXPECT_EQ(map.surface.Count("point", map.colors.AP), c.points) << range << " NM";
  }
}

TEST(AirportLayer, RunwayLengthIsToScale) {
  const Painted map(4);
  for (const auto& one : map.surface.drawn) {
    if (one.what != "polygon" || one.points.size() != 5 || one.color != map.colors.RWY) continue;
    const double length = std::hypot(one.points[1].x - one.points[2].x, one.points[1].y - one.points[2].y);
    EXPECT_NEAR(length, 13123 * 0.3048 * 42000 / 111130.556, 2);
    break;
  }
}

TEST(AirportLayer, LeavesOutWhatIsOutOfView) {
  const Painted map(9, {}, {20, 100});
  EXPECT_EQ(map.surface.Count("circle"), 0);
}

TEST(AirportLabels, FollowTheSwitches) {
  AirportRec airport = Airport("EDDF", 50, 8);
  struct Case {
    bool icao, name;
    std::int16_t range;
    const char* first;
    const char* second;
  };
  const Case cases[] = {{true, false, 50, "EDDF", ""},
                        {true, true, 150, "EDDF", "Field"},
                        {true, true, 200, "EDDF", ""},
                        {false, true, 200, "Field", ""},
                        {false, false, 50, "", ""}};
  for (const Case& c : cases) {
    MapSwitches switches;
    switches.btnIcao = c.icao;
    switches.btnName = c.name;
    const AirportLabel label = LabelOf(airport, switches, c.range);
    EXPECT_EQ(label.first, c.first) << c.range;
    EXPECT_EQ(label.second, c.second) << c.range;
  }
}

TEST(Airways, AreDrawnWithOneEndInView) {
  const NavDatabase database = SmallWorld();
  MapView view = MapView::At(50, 8.5F, 9);
  view.UpdateVisibilityBox();
  const auto shown = SegmentsInView(view, database, database.victorAirways, database.victorAirwaysByEnds);
  std::vector<std::string> names;
  for (const AirwaySegmentRec* segment : shown)
    names.push_back(segment->strName.Text());
  // L3 has both ends far away, BAD names no row of the table.
  EXPECT_EQ(names, (std::vector<std::string>{"L1", "L2"}));
}

TEST(Airways, JetLiesBelowVictor) {
  const Painted map(13);
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
  MapSwitches switches;
  switches.btnFreq = true;
  switches.mnuJet = false;
  switches.mnuAirport = false;
  EXPECT_TRUE(Painted(8, switches).Has("(FL100-FL245)"));
  EXPECT_FALSE(Painted(9, switches).Has("(FL100-FL245)"));
  EXPECT_TRUE(Painted(9, switches).Has("L1"));
  EXPECT_FALSE(Painted(10, switches).Has("L1"));
}

TEST(Switches, TurnTheirLayersOff) {
  MapSwitches none;
  none.mnuCoastlines = none.mnuAirport = none.mnuJet = none.mnuVictor = false;
  const Painted map(9, none);
  ASSERT_EQ(map.surface.drawn.size(), 1u);
  EXPECT_EQ(map.surface.drawn[0].what, "clear");
}

}  // namespace
