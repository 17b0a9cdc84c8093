#include <gtest/gtest.h>

#include "dbmanager/airspace_file.h"
#include "dbmanager/earth.h"
#include "navdata/world_loader.h"
#include "source_text.h"

namespace {

std::vector<SourceAirspace> Read(const std::string& text, Rejects& rejects) {
  LineReader lines("air.txt", text);
  return ReadOpenAir(lines, rejects);
}

TEST(OpenAir, PositionsInEveryStyle) {
  struct Case {
    const char* text;
    double lat, lon;
  };
  for (const Case& c :
       {Case{"50:01:30 N 008:34:12 E", 50.025, 8.57}, Case{"50:01.5 S 008:34.2 W", -50.025, -8.57},
        Case{"50.025N008.57E", 50.025, 8.57}, Case{" 50:01:30N 8:34:12 e ", 50.025, 8.57}}) {
    const auto position = ParseOpenAirPosition(c.text);
    ASSERT_TRUE(position) << c.text;
    EXPECT_NEAR(position->lat, c.lat, 1e-9) << c.text;
    EXPECT_NEAR(position->lon, c.lon, 1e-9) << c.text;
  }
  for (const char* text :
       {"", "50", "50:01:30", "50:01:30 N", "91:00:00 N 8:0:0 E", "50::1 N 8 E", "5 N 8 E 3"}) {
    EXPECT_FALSE(ParseOpenAirPosition(text)) << text;
  }
}

TEST(OpenAir, OutlinesOfPointsCirclesAndArcs) {
  Rejects rejects;
  const auto airspaces = Read(
      "* comment\r\n"
      "AC D\nAN Box\nAH 2500ft AGL\nAL GND\nAF 118.705\n"
      "DP 10:00:00 N 020:00:00 E\nDP 10:00:00 N 021:00:00 E\nDP 11:00:00 N 021:00:00 E\nDP 10:00:00 N "
      "020:00:00 E\n"
      "AC R\nAY DANGER\nAN Circle\nV X=50:00:00 N 008:00:00 E\nDC 5\n"
      "AC C\nAN Arcs\nV X=50:00:00 N 008:00:00 E\nV D=-\nDA 10,90,270\nSP 0,1,2\n"
      "AC C\nAN Two points\nDP 10:00:00 N 020:00:00 E\nDP 10:00:00 N 021:00:00 E\n"
      "AC E\nAN By points\nV X=50:00:00 N 008:00:00 E\nDB 50:10:00 N 008:00:00 E, 50:00:00 N 008:15:33 E\n"
      "DP 50:00:00 N 008:00:00 E\n",
      rejects);
  EXPECT_EQ(RejectTexts(rejects), "air.txt:22: airspace with fewer than three points\n");
  ASSERT_EQ(airspaces.size(), 4u);
  EXPECT_EQ(airspaces[0].points.size(), 3u);
  EXPECT_EQ(airspaces[0].upper, "2500ft AGL");
  for (const SourcePosition p : airspaces[1].points)
    EXPECT_NEAR(DistanceNM({50, 8}, p), 5, 1e-9);
  // Counter-clockwise from east over north to west.
  const auto& arc = airspaces[2].points;
  EXPECT_NEAR(TrueCourse({50, 8}, arc[arc.size() / 2]), 0, 3);
  EXPECT_NEAR(TrueCourse({50, 8}, arc.back()), 270, 1e-6);
  // Clockwise from north to east, a quarter, and the centre.
  const auto& quarter = airspaces[3].points;
  EXPECT_NEAR(quarter.front().lat, 50 + 10.0 / 60, 1e-9);
  EXPECT_LT(quarter.size(), 25u);
  for (const SourcePosition p : quarter)
    EXPECT_GT(p.lat, 49.99);
}

TEST(OpenAir, RejectsWithLineAndReason) {
  Rejects rejects;
  Read("AN before\nAC C\nDP here\nDC 5\nV X=nowhere\nDA 1,2\nQQ 1\nDB 1,2\nV x\nDC -1\nDC nan\n", rejects);
  EXPECT_EQ(RejectTexts(rejects),
            "air.txt:1: record before the first airspace\n"
            "air.txt:3: no position\n"
            "air.txt:4: circle without a centre\n"
            "air.txt:5: no position\n"
            "air.txt:6: no radius and angles\n"
            "air.txt:7: unknown record\n"
            "air.txt:8: no positions\n"
            "air.txt:9: variable without a value\n"
            "air.txt:10: no radius\n"
            "air.txt:11: no radius\n"
            "air.txt:2: airspace with fewer than three points\n");
}

TEST(AirspaceFile, LoadsClosedWithItsLimits) {
  SourceAirspace airspace;
  airspace.airspaceClass = "CTR";
  airspace.name = "Somewhere";
  airspace.upper = "2500 ft AGL";
  airspace.lower = "FL065";
  airspace.points = {{10, 179}, {10, -179}, {12, -179}};
  std::vector<AirspaceRec> table;
  EXPECT_TRUE(ParseAirspaces(MakeAirspaceFile(std::vector{airspace}).bytes, table));
  ASSERT_EQ(table.size(), 1u);
  EXPECT_EQ(table[0].intType, 1);
  EXPECT_EQ(table[0].strUpper, "2500ftAGL");
  EXPECT_EQ(table[0].strLower, "FL065");
  EXPECT_EQ(table[0].sngLat, 11.0F);
  EXPECT_EQ(std::abs(table[0].sngLon), 180.0F);
  ASSERT_EQ(table[0].points.size(), 4u);
  EXPECT_EQ(table[0].points.front(), table[0].points.back());
}

TEST(AirspaceFile, ThinsOutWhatTheCountCannotHold) {
  SourceAirspace airspace;
  for (int i = 0; i < 70000; ++i)
    airspace.points.push_back({i * 1e-3, i * 1e-3});
  std::vector<AirspaceRec> table;
  EXPECT_TRUE(ParseAirspaces(MakeAirspaceFile(std::vector{airspace}).bytes, table));
  ASSERT_EQ(table.size(), 1u);
  EXPECT_GT(table[0].points.size(), 20000u);
  EXPECT_LE(table[0].points.size(), 32768u);
}

TEST(ControlZones, StandAroundTowersOnly) {
  AirportPlace towered{"EDDF", "Frankfurt", {50, 8}, 355, true, "119.90"};
  AirportPlace plain{"EDXX", "Field", {51, 8}, 100, false, ""};
  std::vector<AirspaceRec> table;
  EXPECT_TRUE(ParseAirspaces(MakeControlZones(std::vector{plain, towered}).bytes, table));
  ASSERT_EQ(table.size(), 1u);
  EXPECT_EQ(table[0].strCode, "EDDF");
  EXPECT_EQ(table[0].strName2, "approximate");
  EXPECT_EQ(table[0].strUpper, "2900 ft");
  for (const Position p : table[0].points)
    EXPECT_NEAR(DistanceNM({50, 8}, {p.lat, p.lon}), 5, 1e-3);
}

TEST(AirspaceKindOf, GoesByTypeThenClass) {
  const std::tuple<const char*, const char*, AirspaceKind> cases[] = {
      {"CTR", "", AirspaceKind::controlZone}, {"D", "", AirspaceKind::controlZone},
      {"D", "TMA", AirspaceKind::controlled}, {"B", "", AirspaceKind::controlled},
      {"Q", "", AirspaceKind::restricted},    {"UNC", "DANGER", AirspaceKind::restricted},
      {"G", "", AirspaceKind::other},         {"UNC", "GSEC", AirspaceKind::other}};
  for (const auto& [airspaceClass, type, kind] : cases) {
    SourceAirspace airspace;
    airspace.airspaceClass = airspaceClass;
    airspace.type = type;
    EXPECT_EQ(AirspaceKindOf(airspace), kind) << airspaceClass << " " << type;
  }
}

}  // namespace
