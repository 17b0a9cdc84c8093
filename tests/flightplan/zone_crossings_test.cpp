#include "flightplan/zone_crossings.h"

#include <gtest/gtest.h>

#include <cmath>

#include "tests/flightplan/drawn_world.h"

namespace {

AirspaceRec Zone(std::vector<Position> outline, std::int16_t type = 1) {
  AirspaceRec zone;
  zone.intType = type;
  zone.strName = std::string_view("ZONE");
  zone.points = std::move(outline);
  return zone;
}

AirspaceRec Square(float lat, float lon, float half, std::int16_t type = 1) {
  const auto turned = [](float degrees) { return degrees > 180 ? degrees - 360 : degrees; };
  const float west = lon - half, east = turned(lon + half);
  return Zone({{lat + half, west}, {lat + half, east}, {lat - half, east}, {lat - half, west}}, type);
}

std::vector<std::int32_t> Crossed(std::vector<AirspaceRec> zones, Position from, Position to) {
  NavDatabase database;
  database.airspaces = std::move(zones);
  BuildIndexes(database);
  std::vector<std::int32_t> rows;
  for (const ZoneCrossing& crossing : ZonesCrossed(database, from, to))
    rows.push_back(crossing.row);
  return rows;
}

TEST(ZonesCrossed, HoldsTheLegAgainstTheOutline) {
  const AirspaceRec square = Square(50, 8, 0.5F);
  AirspaceRec closed = square;
  closed.points.push_back(closed.points.front());
  // Open to the east: between 7.9 and 8.5 degrees only the north and the south belong to it.
  const AirspaceRec notched = Zone({{50.5F, 7.5F},
                                    {50.5F, 8.5F},
                                    {50.3F, 8.5F},
                                    {50.3F, 7.9F},
                                    {49.7F, 7.9F},
                                    {49.7F, 8.5F},
                                    {49.5F, 8.5F},
                                    {49.5F, 7.5F}});
  const struct {
    const char* what;
    AirspaceRec zone;
    Position from, to;
    bool crossed;
  } cases[] = {
      {"through it", square, {49, 8}, {51, 8}, true},
      {"the last side is not in the file", square, {50, 7}, {50, 7.6F}, true},
      {"the last side is in the file", closed, {50, 7}, {50, 7.6F}, true},
      {"a corner cut within one step", square, {50.45F, 7.45F}, {50.55F, 7.55F}, true},
      {"begins in it", square, {50, 8}, {52, 8}, true},
      {"ends in it", square, {48, 8}, {50, 8}, true},
      {"stays in it", square, {50, 8}, {50.1F, 8.1F}, true},
      {"ends before it", square, {48, 8}, {49.4F, 8}, false},
      {"passes beside it", square, {48, 8.6F}, {52, 8.6F}, false},
      {"through its notch", notched, {49.9F, 8}, {50.1F, 8.4F}, false},
      {"out of its notch", notched, {50, 8}, {50, 7}, true},
      {"over the date line, eastward", Square(10, 180, 0.3F), {10, 179}, {10, -179}, true},
      {"over the date line, westward", Square(10, 180, 0.3F), {10, -179}, {10, 179}, true},
      {"west of the date line alone", Square(10, 179, 0.3F), {10, 179.5F}, {10, -179}, false},
      // Half way from 60 N 0 E to 60 N 60 E the tangent of the great circle's latitude is tan 60 / cos
      // 30: 63.43.
      {"on the great circle", Square(63.43F, 30, 0.1F), {60, 0}, {60, 60}, true},
      {"on the parallel", Square(60, 30, 0.5F), {60, 0}, {60, 60}, false},
      {"a leg of no length in it", square, {50, 8}, {50, 8}, true},
      {"a leg of no length beside it", square, {51, 8}, {51, 8}, false},
      {"a controlled airspace", Square(50, 8, 0.5F, 2), {49, 8}, {51, 8}, false},
      {"a line", Zone({{50, 7}, {50, 9}}), {49, 8}, {51, 8}, false},
      {"no outline", Zone({}), {49, 8}, {51, 8}, false},
      {"no place", square, {NAN, 8}, {51, 8}, false},
      {"off the earth", square, {49, 8}, {91, 8}, false},
  };
  for (const auto& c : cases)
    EXPECT_EQ(Crossed({c.zone}, c.from, c.to).size(), c.crossed ? 1U : 0U) << c.what;
}

TEST(ZonesCrossed, ComeInTheOrderInWhichTheyAreMet) {
  const auto north = Square(52, 8, 0.2F), south = Square(49.5F, 8, 0.2F), around = Square(49.5F, 8, 0.6F);
  EXPECT_EQ(Crossed({north, south, around, south}, {48, 8}, {53, 8}),
            (std::vector<std::int32_t>{2, 1, 3, 0}));
  EXPECT_EQ(Crossed({north, south, around, south}, {53, 8}, {48, 8}),
            (std::vector<std::int32_t>{0, 2, 1, 3}));
  NavDatabase database;
  database.airspaces = {Square(50, 0, 0.5F)};
  BuildIndexes(database);
  const auto met = ZonesCrossed(database, {48, 0}, {51, 0});
  ASSERT_EQ(met.size(), 1U);
  EXPECT_NEAR(met[0].afterNM, 90, 0.01) << "its south side lies at 49.5 N";
}

TEST(ZonesOnRoute, HasEveryLegOfThePlan) {
  DrawnPlan drawn("airport EDDA 50 8 0\nairport EDDB 50 12 0\nairport AFIL 0 0 0\n");
  drawn.plan.rows.back().Lat = 50;
  drawn.plan.rows.back().Lon = 12;
  drawn.Add("Fix", "MID", 50, 10);
  drawn.world.database.airspaces = {Square(50, 11, 0.4F), Square(50, 8, 0.2F)};
  BuildIndexes(drawn.world.database);
  const auto legs = ZonesOnRoute(drawn.plan, drawn.world.database);
  ASSERT_EQ(legs.size(), 2U);
  EXPECT_EQ(legs[0].row, 1);
  ASSERT_EQ(legs[0].zones.size(), 1U);
  EXPECT_EQ(legs[0].zones[0].row, 1);
  ASSERT_EQ(legs[1].zones.size(), 1U);
  EXPECT_EQ(legs[1].zones[0].row, 0);
}

TEST(ZoneText, MarksAnUnknownClass) {
  AirspaceRec zone;
  zone.strName = "M\xfcnchen";
  zone.strUpper = "3500 ft";
  zone.strLower = "GND";
  for (const auto& [given, shown] :
       {std::pair{"D", "D"}, {"G", "G"}, {"", "XXX"}, {"?", "XXX"}, {"H", "XXX"}}) {
    zone.strClass = given;
    EXPECT_EQ(ZoneText(zone), "Class: " + std::string(shown) + "   München   GND - 3500 ft");
  }
  zone.strCode = "EDDM";
  zone.strUnit1 = "118.70";
  EXPECT_EQ(ZoneText(zone), "Class: XXX   EDDM München   GND - 3500 ft   118.70");
}

}  // namespace
