#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>

#include "tests/map/painted.h"

namespace {

AirspaceRec Square(std::int16_t type, Position middle, float half, const char* name = "ZONE") {
  AirspaceRec airspace;
  airspace.intType = type;
  airspace.strName = std::string_view(name);
  airspace.strClass = std::string_view("D");
  airspace.strLower = std::string_view("GND");
  airspace.strUpper = std::string_view("FL65");
  const auto corner = [&](float north, float east) {
    const float lon = middle.lon + east;
    return Position{middle.lat + north, lon > 180 ? lon - 360 : lon};
  };
  airspace.points = {corner(half, -half), corner(half, half), corner(-half, half), corner(-half, -half)};
  return airspace;
}

TEST(AirspaceLayer, ShowsEachKindByItsSwitch) {
  NavDatabase database;
  for (const std::int16_t type :
       {std::int16_t{0}, std::int16_t{1}, std::int16_t{2}, std::int16_t{3}, std::int16_t{9}})
    database.airspaces.push_back(Square(type, {50, 8}, 0.5F));
  const ColorSettings colors;
  struct Case {
    bool MapSwitches::*flag;
    std::int32_t color;
    int count;
  };
  // Kinds that are neither control zone nor restricted go with the controlled ones.
  const Case cases[] = {{&MapSwitches::mnuCtrz, colors.CTRZ, 1},
                        {&MapSwitches::mnuAir1, colors.AIR1, 3},
                        {&MapSwitches::mnuAir2, colors.AIR2, 1}};
  for (const Case& c : cases) {
    MapSwitches on = NothingOn();
    EXPECT_EQ(PaintedMap(database, ViewAtRow({50, 8}, 9), on).drawn.size(), 1u) << "only the clearing";
    on.*c.flag = true;
    const RecordingSurface surface = PaintedMap(database, ViewAtRow({50, 8}, 9), on);
    EXPECT_EQ(surface.Count("polyline", c.color), c.count);
    EXPECT_EQ(surface.Count("polyline"), c.count);
  }
}

TEST(AirspaceLayer, ClosesTheRingAndCrossesTheDateLineWhole) {
  NavDatabase database;
  database.airspaces = {Square(1, {-17, 179.8F}, 0.5F)};
  MapSwitches on = NothingOn();
  on.mnuCtrz = true;
  for (const float lon : {179.0F, -179.5F}) {
    const MapView view = ViewAtRow({-17, lon}, 11);
    const RecordingSurface surface = PaintedMap(database, view, on);
    ASSERT_EQ(surface.Count("polyline"), 1) << lon;
    const auto& ring = std::find_if(surface.drawn.begin(), surface.drawn.end(), [](const auto& one) {
                         return one.what == "polyline";
                       })->points;
    ASSERT_EQ(ring.size(), 5u);
    EXPECT_EQ(ring.front().x, ring.back().x);
    EXPECT_NEAR(ring[1].x - ring[0].x, 2100 * std::cos(17 * geodesyPi / 180), 2);
    EXPECT_NEAR(ring[0].x, view.LonToX(179.3F), 2);
  }
}

TEST(AirspaceLayer, IsSeenFromInsideAndNotFromAfar) {
  NavDatabase database;
  database.airspaces = {Square(1, {50, 8}, 15)};
  MapSwitches on = NothingOn();
  on.mnuCtrz = true;
  const RecordingSurface inside = PaintedMap(database, ViewAtRow({50, 8}, 7), on);
  EXPECT_EQ(inside.Count("polygon"), 1) << "all of the page";
  EXPECT_EQ(inside.Count("polyline"), 0) << "its border is far away";
  EXPECT_EQ(PaintedMap(database, ViewAtRow({50, 60}, 7), on).drawn.size(), 1u);
}

TEST(AirspaceLayer, NamesItselfNearBy) {
  NavDatabase database;
  database.airspaces = {Square(1, {50, 8}, 0.2F, "FRANKFURT"), Square(1, {50.2F, 8}, 0.001F, "SMALL")};
  struct Case {
    int row;
    bool name, freq;
    std::vector<std::string> texts;
  };
  const Case cases[] = {{7, true, false, {"D  FRANKFURT"}},
                        {7, true, true, {"D  FRANKFURT", "GND - FL65"}},
                        {7, false, true, {}},
                        {8, true, true, {}}};
  for (const Case& c : cases) {
    MapSwitches on = NothingOn();
    on.mnuCtrz = true;
    on.btnName = c.name;
    on.btnFreq = c.freq;
    EXPECT_EQ(PaintedMap(database, ViewAtRow({50, 8}, c.row), on).Texts(), c.texts) << c.row;
  }
}

TEST(ActiveAirspaces, AreDrawnAgainWhateverTheSwitches) {
  NavDatabase database;
  database.airspaces = {Square(1, {50, 8}, 0.5F), Square(2, {50, 8}, 0.3F)};
  MapSelection selection;
  selection.activeAirspaces = {1, 2, -1};
  const ColorSettings colors;
  MapSwitches on = NothingOn();
  EXPECT_EQ(PaintedMap(database, ViewAtRow({50, 8}, 9), on, selection).Count("polyline", colors.HILITE), 1);
  on.mnuAir1 = true;
  const RecordingSurface surface = PaintedMap(database, ViewAtRow({50, 8}, 9), on, selection);
  EXPECT_EQ(surface.drawn.back().color, colors.HILITE) << "above the others";
}

TEST(MsaLayer, ShowsHundredsOfFeetRoundedUpTo300NM) {
  NavDatabase database;
  MsaRec sector;
  SetArea(sector, {8, 50, 9, 51, 4210});
  database.msa.push_back(sector);
  SetArea(sector, {179, 50, -179, 51, 900});
  database.msa.push_back(sector);
  // Nothing to tell, no place, no numbers.
  const float nan = std::nanf("");
  for (const MsaArea& broken : {MsaArea{8, 51, 9, 52, 0},
                                {170, 50, 200, 51, 900},
                                {nan, 50, 9, 51, 900},
                                {8, 50, 9, nan, 900},
                                {8, 51, 9, 50, 900},
                                {8, 50, 9, 51, nan}}) {
    SetArea(sector, broken);
    database.msa.push_back(sector);
  }
  MapSwitches on = NothingOn();
  on.mnuMSA = true;
  struct Case {
    Position centre;
    int row;
    std::vector<std::string> texts;
  };
  const Case cases[] = {{{50.5F, 8.5F}, 9, {"43"}},  {{50.5F, 8.5F}, 12, {"43"}},  {{50.5F, 8.5F}, 13, {}},
                        {{50.5F, 179.8F}, 9, {"9"}}, {{50.5F, -179.8F}, 9, {"9"}}, {{0, 0}, 9, {}}};
  for (const Case& c : cases)
    EXPECT_EQ(PaintedMap(database, ViewAtRow(c.centre, c.row), on).Texts(), c.texts)
        << c.centre.lon << " row " << c.row;
  const MsaArea area = AreaOf(database.msa[0]);
  EXPECT_EQ(area.north, 51);
  EXPECT_EQ(area.altitudeFeet, 4210);
  EXPECT_EQ(database.msa[0].numbers[1], 0) << "8.0 is 00 00 00 41, the low byte first";
  EXPECT_EQ(database.msa[0].numbers[3], 0x41);
  EXPECT_EQ(database.msa[0].numbers[31], 0);
}

}  // namespace
