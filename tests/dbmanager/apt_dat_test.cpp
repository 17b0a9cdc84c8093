#include "dbmanager/apt_dat.h"

#include <gtest/gtest.h>

#include "dbmanager/earth.h"
#include "source_text.h"

namespace {

std::vector<SourceAirport> Read(const std::string& rows, Rejects& rejects) {
  std::vector<SourceAirport> airports;
  const std::string text = WithHead("1000", rows);
  LineReader lines("apt.dat", text);
  ReadAptDat(
      lines, [&](SourceAirport&& airport) { airports.push_back(std::move(airport)); }, rejects);
  return airports;
}

SourceAirport ReadOne(const std::string& rows, Rejects& rejects) {
  auto airports = Read("1 100 1 0 TEST Test Field\n" + rows, rejects);
  EXPECT_EQ(airports.size(), 1u);
  return airports.empty() ? SourceAirport{} : airports.front();
}

TEST(AptDat, KeepsAirportsInOrder) {
  Rejects rejects;
  const auto airports = Read(
      "1     355 1 0 EDDF Frankfurt am Main\r\n"
      "100 60.00 1 0 0.25 1 3 0 07L 50.0370 8.4973 0 0 3 0 0 1 25R 50.0457 8.5336 0 0 3 0 0 1\n"
      "16       0 0 1 6MA8 [S] Acushnet River\n"
      "101  30.48 0 19 39.1374 -84.8278 01 39.1276 -84.8294\n"
      "17     803 0 0 02KY [H] Boone\n"
      "102 H1 51.1505 -1.5703 90.08 20.12 25.00 2 0 0 0.00 0\n"
      "99\n"
      "1 0 0 0 GONE Behind the end\n",
      rejects);
  EXPECT_EQ(RejectTexts(rejects), "");
  ASSERT_EQ(airports.size(), 3u);
  EXPECT_EQ(airports[0].code, "EDDF");
  EXPECT_EQ(airports[0].name, "Frankfurt am Main");
  EXPECT_EQ(airports[0].elevation, 355);
  ASSERT_EQ(airports[0].runways.size(), 1u);
  EXPECT_EQ(airports[0].runways[0].ends[1].id, "25R");
  EXPECT_EQ(airports[0].runways[0].ends[1].position.lon, 8.5336);
  EXPECT_EQ(airports[1].runways.at(0).kind, RunwayKind::water);
  EXPECT_EQ(airports[1].runways.at(0).ends[0].id, "19");
  EXPECT_EQ(airports[2].runways.at(0).kind, RunwayKind::helipad);
  EXPECT_EQ(airports[2].runways.at(0).width, 25);
  EXPECT_EQ(airports[2].runways.at(0).surface, 2);
}

TEST(AptDat, FrequenciesIn10kHzAnd1kHzSteps) {
  Rejects rejects;
  const SourceAirport airport = ReadOne(
      "54 11827 Tower\n54 12190 Ground\n54 12012 A\n1054 118005 North Tower\n1050 128730 ATIS\n53 0 none\n",
      rejects);
  const double expected[] = {118.275, 121.9, 120.125, 118.005, 128.73};
  ASSERT_EQ(airport.frequencies.size(), std::size(expected));
  for (std::size_t i = 0; i < std::size(expected); ++i) {
    EXPECT_NEAR(airport.frequencies[i].mhz, expected[i], 1e-9) << i;
  }
  EXPECT_EQ(airport.frequencies[3].kind, 54);
  EXPECT_EQ(airport.frequencies[3].name, "North Tower");
  EXPECT_EQ(RejectTexts(rejects), "apt.dat:9: no frequency\n");
}

TEST(AptDat, OldRunwayRowsBecomeRunwaysAndPavement) {
  Rejects rejects;
  const SourceAirport airport = ReadOne(
      "10 50.0 8.0 09L 90.0 6076 0.0 0.0 150 161161 1 0 0 0.25 0\n"
      "10 50.0 8.0 H1x 10.0 50 0.0 0.0 40 161161 2 0 0 0.25 0\n"
      "10 50.0 8.0 xxx 0.0 6076 0.0 0.0 608 161161 1 0 0 0.25 0\n",
      rejects);
  ASSERT_EQ(airport.runways.size(), 2u);
  const SourceRunway& runway = airport.runways[0];
  EXPECT_EQ(runway.ends[0].id, "09L");
  EXPECT_EQ(runway.ends[1].id, "27R");
  EXPECT_LT(runway.ends[0].position.lon, 8.0);  // one takes off eastward from the western end
  EXPECT_NEAR(DistanceNM(runway.ends[0].position, runway.ends[1].position), 1.0, 1e-3);
  EXPECT_NEAR(runway.width, 45.72, 1e-9);
  EXPECT_EQ(airport.runways[1].kind, RunwayKind::helipad);
  ASSERT_EQ(airport.pavement.size(), 1u);
  ASSERT_EQ(airport.pavement[0].points.size(), 4u);
  for (const GroundPoint point : airport.pavement[0].points) {
    EXPECT_NEAR(std::abs(point.lat - 50.0F), 1.0 / 120, 1e-5);
  }
}

TEST(AptDat, OppositeEndsOfOldRunways) {
  const std::pair<const char*, const char*> cases[] = {{"09L", "27R"}, {"27Cx", "09C"}, {"9", "27"},
                                                       {"36x", "18"},  {"18R", "36L"},  {"N", ""},
                                                       {"00", ""},     {"99", ""}};
  for (const auto& [id, opposite] : cases) {
    Rejects rejects;
    const SourceAirport airport =
        ReadOne("10 50.0 8.0 " + std::string(id) + " 90.0 6076 0.0 0.0 150 161161 1\n", rejects);
    ASSERT_EQ(airport.runways.size(), 1u) << id;
    EXPECT_EQ(airport.runways[0].ends[1].id, opposite) << id;
  }
}

TEST(AptDat, PavementHasHolesAndCurves) {
  Rejects rejects;
  const SourceAirport airport = ReadOne(
      "110 1 0.25 0 Ramp\n"
      "111 10 10\n112 10 11 10 11.5\n113 11 11\n"  // a curve leaves the second node
      "111 10.4 10.4\n111 10.4 10.6\n113 10.6 10.6\n"
      "110 1 0.25 0 Line only\n111 1 1\n113 2 2\n"  // too few
      "130 Boundary\n111 0 0\n111 0 1\n113 1 1\n"
      "111 5 5 99\n",  // behind the boundary: still a node of it
      rejects);
  ASSERT_EQ(airport.pavement.size(), 2u);
  EXPECT_FALSE(airport.pavement[0].hole);
  EXPECT_TRUE(airport.pavement[1].hole);
  // Node 2 leaves toward (10, 11.5) and is arrived at from the mirrored point
  // (10, 10.5): both of its sides bend.
  EXPECT_EQ(airport.pavement[0].points.size(), 9u);
  const GroundPoint halfWay =
      airport.pavement[0].points[6];  // between (10,11) and (11,11), control (10,11.5)
  EXPECT_NEAR(halfWay.lat, 10.25, 1e-6);
  EXPECT_NEAR(halfWay.lon, 11.25, 1e-6);
  EXPECT_EQ(airport.pavement[1].points.size(), 3u);
}

TEST(AptDat, TaxiwaysFromRoutesAndFromPaintedLines) {
  Rejects rejects;
  const SourceAirport airport = ReadOne(
      "1200\n"
      "1201 10.0 20.0 both 0 a\n1201 10.1 20.0 both 1 b\n1201 10.2 20.0 both 7 c\n"
      "1202 0 1 twoway taxiway_E A\n1202 1 7 oneway taxiway B1\n1202 0 7 twoway runway 18/36\n1202 0 9 "
      "twoway taxiway\n"
      "120 line\n111 1 1 1\n111 1 2 4\n111 1 3 51 102\n115 1 4\n"
      "120 loop\n111 2 1 51\n111 2 2 51\n113 3 3 51\n",
      rejects);
  ASSERT_EQ(airport.network.size(), 2u);
  EXPECT_EQ(airport.network[0].name, "A");
  EXPECT_EQ(airport.network[0].widthCode, 'E');
  EXPECT_EQ(airport.network[1].name, "B1");
  EXPECT_EQ(airport.network[1].to.lat, 10.2F);
  // Sides 1-2 and 3-4 of the line (the middle one is no centreline), all three of the loop.
  EXPECT_EQ(airport.centrelines.size(), 5u);
  EXPECT_EQ(RejectTexts(rejects), "apt.dat:11: taxi edge to an unknown node\n");
}

TEST(AptDat, StartPositionsAndMetadata) {
  Rejects rejects;
  const SourceAirport airport = ReadOne(
      "15 22.3 114.2 90.00 General Aviation\n"
      "1300 30.3 -9.4 323.85 gate jets|props Gate A12\n"
      "1301 E airline dlh\n"
      "1302 city Frankfurt\n1302 country DEU Germany\n1302 state Hesse\n1302 datum_lat 50.0333\n1302 "
      "datum_lon 8.5706\n"
      "1302 icao_code EDDF\n",
      rejects);
  ASSERT_EQ(airport.starts.size(), 2u);
  EXPECT_EQ(airport.starts[0].name, "General Aviation");
  EXPECT_EQ(airport.starts[1].kind, "gate");
  EXPECT_EQ(airport.starts[1].name, "Gate A12");
  EXPECT_EQ(airport.starts[1].widthCode, 'E');
  EXPECT_EQ(airport.starts[1].operation, "airline");
  EXPECT_EQ(airport.city + "/" + airport.state + "/" + airport.country, "Frankfurt/Hesse/Germany");
  ASSERT_TRUE(airport.datum);
  EXPECT_EQ(airport.datum->lon, 8.5706);
}

TEST(AptDat, RejectsWithLineAndReason) {
  Rejects rejects;
  Read(
      "100 60.00 1 0 0.25 1 3 0 07L 50 8 0 0 3 0 0 1 25R 50 9 0 0 3 0 0 1\n"
      "1 0 0 0\n"
      "1 0 0 0 A A\n"
      "100 60.00 1 0 0.25 1 3 0 07L 50 8\n"
      "111 1 1\n"
      "1301 E airline\n"
      "garbage\n",
      rejects);
  EXPECT_EQ(RejectTexts(rejects),
            "apt.dat:3: row outside an airport\n"
            "apt.dat:4: airport without a code\n"
            "apt.dat:6: runway end without identifier and position\n"
            "apt.dat:7: node outside an outline or line\n"
            "apt.dat:8: details without a start position\n"
            "apt.dat:9: no row number\n");
}

}  // namespace
