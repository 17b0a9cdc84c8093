#include "map/airport_layer.h"

#include <gtest/gtest.h>

#include <cmath>

#include "map/ils_layer.h"
#include "tests/map/painted.h"

namespace {

constexpr Position frankfurt{50.0F, 8.5F};

void AddAirport(NavDatabase& database, std::string_view code, Position place, std::int16_t runwayFeet,
                float heading = 70) {
  auto airport = RowAt<AirportRec>(code, place, "Field");
  airport.sngMagVar = 2;
  airport.firstRunway = static_cast<std::uint32_t>(database.runways.size());
  airport.lngRunways = 1;
  RunwayRec runway;
  runway.strRwyID = std::string_view("07L");
  runway.sngHeading = heading;
  runway.sngLat = place.lat;
  runway.sngLon = place.lon;
  runway.intLength = runwayFeet;
  database.runways.push_back(runway);
  database.airports.push_back(airport);
}

// Two airports; the first has an ILS and two parking spots.
NavDatabase TwoAirports() {
  NavDatabase database;
  AddAirport(database, "EDDF", frankfurt, 13123);
  AddAirport(database, "EDFE", {49.96F, 8.64F}, 3000);
  auto ils = RowAt<IlsRec>("IFNE", frankfurt, "RWY 07L");
  ils.sngCourse = 70;
  ils.sngFrequency = 111.75F;
  ils.sngILSGlideAngle = 3;
  database.ils.push_back(ils);
  database.airports[0].lngIls = 1;
  for (const std::int32_t type : {10, 8}) {
    ParkingRec parking;
    parking.sngLat = frankfurt.lat;
    parking.sngLon = frankfurt.lon;
    parking.lngType = type;
    database.parkings.push_back(parking);
  }
  database.airports[0].lngParkings = 2;
  database.lngAirports = 2;
  database.airports.resize(2 + NavDatabase::surplusAirportRows + 1);
  BuildIndexes(database);
  return database;
}

MapView ViewAt(int row, Position centre = frankfurt) {
  return MapView::At(centre.lat, centre.lon, row);
}

int RowOf(std::int16_t range) {
  int row = 0;
  while (ZoomTable[static_cast<std::size_t>(row)].rangeNM < range)
    ++row;
  return row;
}

TEST(AirportLayer, ShowsByRange) {
  const NavDatabase database = TwoAirports();
  struct Case {
    std::int16_t range;
    int runways;
    bool designators, label, feather;
    int circles, points;
  };
  const Case cases[] = {{10, 2, true, true, true, 2, 0},     {20, 2, false, true, true, 2, 0},
                        {100, 2, false, true, true, 2, 0},   {150, 0, false, true, true, 2, 0},
                        {200, 0, false, true, true, 2, 0},   {300, 0, false, false, false, 2, 0},
                        {900, 0, false, false, false, 2, 0}, {2000, 0, false, false, false, 0, 2}};
  for (const Case& c : cases) {
    const Painted map(database, ViewAt(RowOf(c.range)));
    EXPECT_EQ(map.surface.Count("polygon", map.colors.RWY), c.runways) << c.range << " NM";
    EXPECT_EQ(map.Has("07L"), c.designators) << c.range << " NM";
    EXPECT_EQ(map.Has("25R"), c.designators) << c.range << " NM";
    EXPECT_EQ(map.Has("EDDF"), c.label) << c.range << " NM";
    EXPECT_EQ(map.surface.Count("line", map.colors.ILS) > 0, c.feather) << c.range << " NM";
    EXPECT_EQ(map.surface.Count("circle", map.colors.AP), c.circles) << c.range << " NM";
    EXPECT_EQ(map.surface.Count("point", map.colors.AP), c.points) << c.range << " NM";
  }
}

TEST(AirportLayer, RunwayIsToScaleAndOneShapeFromBothEnds) {
  const NavDatabase database = TwoAirports();
  const Painted map(database, ViewAt(4));
  const auto runway = std::find_if(map.surface.drawn.begin(), map.surface.drawn.end(), [&](const auto& one) {
    return one.what == "polygon" && one.color == map.colors.RWY;
  });
  ASSERT_NE(runway, map.surface.drawn.end());
  const auto side = [&](std::size_t from, std::size_t to) {
    return std::hypot(runway->points[from].x - runway->points[to].x,
                      runway->points[from].y - runway->points[to].y);
  };
  EXPECT_NEAR(side(1, 2), 13123 * 0.3048 * 42000 / 111130.556, 2);
  EXPECT_NEAR(side(0, 1), 250 * 0.3048 * 42000 / 111130.556, 2);
}

TEST(AirportLayer, ParkingSpotsGrowAsTheMapComesNear) {
  const NavDatabase database = TwoAirports();
  struct Case {
    int row;
    std::vector<float> radii;
  };
  // Round(200 / range) and Round(150 / range), halves to even.
  const Case cases[] = {{2, {67, 50}}, {3, {40, 30}}, {4, {20, 15}}, {5, {}}};
  for (const Case& c : cases) {
    const Painted map(database, ViewAt(c.row));
    std::vector<float> radii;
    for (const auto& one : map.surface.drawn)
      if (one.what == "circle" && one.color == map.colors.PARKING) radii.push_back(one.points.front().x);
    EXPECT_EQ(radii, c.radii) << "row " << c.row;
  }
}

TEST(AirportLayer, EndsAtTheBoxWithoutAMargin) {
  MapView view = ViewAt(9);
  view.UpdateVisibilityBox();
  const auto shownAt = [&](float lat, float lon) {
    NavDatabase database;
    AddAirport(database, "EDGE", {lat, lon}, 3000);
    database.lngAirports = 1;
    database.airports.resize(1 + NavDatabase::surplusAirportRows + 1);
    BuildIndexes(database);
    return Painted(database, ViewAt(9)).surface.Count("circle") > 0;
  };
  EXPECT_FALSE(shownAt(view.MapNorthLat, frankfurt.lon));
  EXPECT_TRUE(shownAt(std::nextafter(view.MapNorthLat, 0.0F), frankfurt.lon));
  EXPECT_TRUE(shownAt(view.MapSouthLat, frankfurt.lon));
  EXPECT_FALSE(shownAt(std::nextafter(view.MapSouthLat, 0.0F), frankfurt.lon));
  EXPECT_TRUE(shownAt(frankfurt.lat, view.MapWestLon));
  EXPECT_TRUE(shownAt(frankfurt.lat, view.MapEastLon));
  EXPECT_FALSE(shownAt(frankfurt.lat, std::nextafter(view.MapEastLon, 90.0F)));
}

TEST(AirportLayer, HighlightsTheSelectedAirport) {
  const NavDatabase database = TwoAirports();
  MapSelection selection;
  selection.SelectedObjectIndex = 1;
  selection.SelectedObjectType = SelectedObject::airport;
  for (const int row : {9, 13, 18, 19}) {
    const Painted map(database, ViewAt(row), {}, selection);
    EXPECT_EQ(map.surface.Count(row < 19 ? "circle" : "point", map.colors.HILITE), 1) << "row " << row;
  }
  const Painted ils(database, ViewAt(9), {}, {0, SelectedObject::ils, {}, -1, {}});
  EXPECT_EQ(ils.surface.Count("line", ils.colors.HILITE), 5);
  EXPECT_EQ(ils.surface.Count("circle", ils.colors.HILITE), 0) << "row 0 of another table";
}

// The labels claim their cells in file order, an airport's ILS before itself.
TEST(AirportLayer, LabelsClaimInFileOrder) {
  NavDatabase database;
  AddAirport(database, "STRP", frankfurt, 1000);
  AddAirport(database, "LONG", frankfurt, 12000);
  database.lngAirports = 2;
  database.airports.resize(2 + NavDatabase::surplusAirportRows + 1);
  BuildIndexes(database);
  const Painted map(database, ViewAt(9));
  std::vector<RecordingSurface::Drawn> prints;
  for (const auto& one : map.surface.drawn)
    if (one.what == "print") prints.push_back(one);
  ASSERT_EQ(prints.size(), 2u);
  EXPECT_EQ(prints[0].text, "STRP");
  EXPECT_EQ(prints[0].y, 3550) << "where it is wanted";
  EXPECT_EQ(prints[1].text, "LONG");
  EXPECT_NE(prints[1].y, 3550) << "pushed away, however long its runway";
}

TEST(AirportLayer, AnAirportsIlsComesBeforeItsOwnLabel) {
  MapSwitches switches = NothingOn();
  switches.mnuAirport = switches.mnuILS = switches.btnIcao = true;
  const Painted map(TwoAirports(), ViewAt(9), switches);
  EXPECT_EQ(map.surface.Texts(), (std::vector<std::string>{"IFNE", "EDDF", "EDFE"}));
}

TEST(AirportLabels, FollowTheSwitches) {
  const auto airport = RowAt<AirportRec>("EDDF", frankfurt, "Field");
  struct Case {
    bool icao, name;
    std::int16_t range;
    const char* label;
  };
  const Case cases[] = {{true, false, 50, "EDDF"},
                        {true, true, 150, "EDDF\nField"},
                        {true, true, 200, "EDDF"},
                        {false, true, 200, "Field"},
                        {false, false, 50, ""}};
  for (const Case& c : cases) {
    MapSwitches switches;
    switches.btnIcao = c.icao;
    switches.btnName = c.name;
    EXPECT_EQ(AirportLabel(airport, switches, c.range), c.label) << c.range;
  }
}

TEST(IlsLabels, FollowSwitchesAndRange) {
  auto ils = RowAt<IlsRec>("IFNE", frankfurt, "RWY 07L");
  ils.sngCourse = 1;
  ils.sngFrequency = 111.75F;
  struct Case {
    bool icao, freq;
    std::int16_t range;
    const char* label;
  };
  // The course is magnetic: 1 less 3 is 358.
  const Case cases[] = {{true, true, 75, "IFNE RWY 07L\n358 / 111.75"},
                        {true, false, 50, "IFNE RWY 07L"},
                        {false, true, 50, "358 / 111.75"},
                        {true, true, 100, "IFNE\n111.75"},
                        {true, true, 150, ""},
                        {false, false, 50, ""}};
  for (const Case& c : cases) {
    MapSwitches switches;
    switches.btnIcao = c.icao;
    switches.btnFreq = c.freq;
    EXPECT_EQ(IlsLabel(ils, 3, switches, c.range), c.label) << c.range;
  }
}

// 100 units left of the feather's end for courses below 180, shortened by its own width; else right.
TEST(IlsLayer, LabelStandsOutsideTheFeather) {
  for (const float course : {90.0F, 270.0F}) {
    NavDatabase database;
    auto ils = RowAt<IlsRec>("PEND", frankfurt, "");
    ils.sngCourse = course;
    database.pendingIls.push_back(ils);
    BuildIndexes(database);
    const Painted map(database, ViewAt(7));
    const double length = 8400 / 7.0 / 1.1;
    const double x = course < 180 ? 5662.5 - length - 100 - 4 * 60 : 5662.5 + length + 100;
    ASSERT_TRUE(map.Has("PEND"));
    EXPECT_NEAR(map.surface.drawn.back().x, x, 1) << course;
  }
}

TEST(IlsLayer, PendingOnesNeedAirportsIlsAnd200NM) {
  NavDatabase database;
  database.pendingIls.push_back(RowAt<IlsRec>("PEND", frankfurt, ""));
  BuildIndexes(database);
  MapSwitches on = NothingOn();
  on.mnuAirport = on.mnuILS = true;
  const auto feathers = [&](int row, const MapSwitches& switches) {
    const Painted map(database, ViewAt(row), switches);
    return map.surface.Count("line", map.colors.ILS);
  };
  EXPECT_EQ(feathers(RowOf(200), on), 4) << "no glide path: no centre line";
  EXPECT_EQ(feathers(RowOf(300), on), 0);
  on.mnuAirport = false;
  EXPECT_EQ(feathers(7, on), 0);
  on.mnuAirport = true, on.mnuILS = false;
  EXPECT_EQ(feathers(7, on), 0);
}

}  // namespace
