#include "dbmanager/airway_files.h"

#include <gtest/gtest.h>

#include "dbmanager/airway_ends.h"
#include "navdata/geodesy.h"
#include "navdata/nav_database.h"
#include "navdata/navaid_loader.h"
#include "navdata/world_loader.h"
#include "source_text.h"

namespace {

double NoVariation(SourcePosition) {
  return 0;
}

std::vector<SourceAirway> Read(const std::string& text, Rejects& rejects, const FindAirwayEnd& find = {}) {
  LineReader lines("awy.dat", text);
  return ReadAwyDat(lines, find, rejects).segments;
}

// "A>B W1 FL050-FL100" for each link, level by level and row by row.
std::string Links(const NavDatabase& database, bool high) {
  std::string text;
  for (const IntersectionRec& point : database.intersections) {
    for (const ConnectionRec& link : high ? database.HighAlt(point) : database.LowAlt(point)) {
      text += point.strCode.Text() + ">" +
              database.intersections[static_cast<std::size_t>(link.lngNext)].strCode.Text() + " " +
              link.strAirway.Text() + " " + link.strMinAlt.Text() + "-" + link.strMaxAlt.Text() + "\n";
    }
  }
  return text;
}

NavDatabase Load(const AirwayFiles& files) {
  NavDatabase database;
  EXPECT_TRUE(ParseIntersections(files.dijinter, database));
  EXPECT_TRUE(ParseAirways(files.vicways, database.victorAirways));
  EXPECT_TRUE(ParseAirways(files.jetways, database.jetAirways));
  return database;
}

TEST(AirwayFiles, HoldEachSegmentInBothDirectionsAndOnceInTheLists) {
  Rejects rejects;
  const auto segments = Read(WithHead("640",
                                      "A 10.0 20.0 B 11.0 20.0 1 050 100 W1-W 22\n"
                                      "B 11.0 20.0 C 12.0 20.0 2 245 460 UW3\r\n"
                                      "C 12.0 20.0 B 11.0 20.0 2 245 460 UW3\n"  // the same the other way
                                      "99\n"),
                             rejects);
  NavData navaids;
  SourceNavaid vor;
  vor.ident = "B";
  vor.name = "BRAVO";
  vor.position = {11.001, 20};
  navaids.vors.push_back(vor);
  const AirwayFiles files = MakeAirwayFiles(segments, navaids, NoVariation);
  const NavDatabase database = Load(files);
  EXPECT_EQ(Links(database, false),
            "A>B W1 FL050-FL100\nA>B W 22 FL050-FL100\nB>A W1 FL050-FL100\nB>A W 22 FL050-FL100\n");
  EXPECT_EQ(Links(database, true), "B>C UW3 FL245-FL460\nC>B UW3 FL245-FL460\n");
  // Rows from 1 in the order of the source; row 0 stays empty.
  EXPECT_EQ(database.lngIntersections, 3);
  EXPECT_TRUE(database.intersections[0].strCode.Empty() || database.intersections[0].strCode.IsEmptySlot());
  EXPECT_EQ(database.intersections[1].strCode, "A");
  EXPECT_EQ(database.intersections[2].strName, "BRAVO");
  EXPECT_EQ(database.intersections[2].strAirwayType, "B");
  EXPECT_EQ(database.intersections[3].strName, "C");
  EXPECT_EQ(database.intersections[2].sngLat, 11.001F) << "where the navaid of that name is";
  EXPECT_EQ(database.LowAlt(database.intersections[1])[0].sngDistance,
            GreatCircleDistance(10, 20, 11.001F, 20));
  ASSERT_EQ(database.victorAirways.size(), 2u);
  EXPECT_EQ(database.victorAirways[1].strName, "W 22");
  EXPECT_EQ(database.victorAirways[1].strUpper, "FL100");
  EXPECT_EQ(database.victorAirways[1].strLower, "FL050");
  ASSERT_EQ(database.jetAirways.size(), 1u);
  EXPECT_EQ(database.jetAirways[0].lngFrom, 2);
  EXPECT_EQ(database.jetAirways[0].lngTo, 3);
  EXPECT_EQ(files.repeatedSegments, 1u);
}

TEST(AirwayFiles, OneWaySegmentsOfFormat1100LinkOneWay) {
  Rejects rejects;
  LineReader fixLines("fix.dat",
                      "I\n1100 Version\n10 20 ALFA ENRT ED\n11 20 BRAVO ENRT ED\n50 20 BRAVO ENRT K1\n");
  const FixData fixes = ReadFixDat(fixLines, rejects);
  LineReader navLines("nav.dat", "I\n1100 Version\n3 12 20 0 11670 130 0 CHA ENRT ED CHARLIE VOR\n");
  const NavData navaids = ReadNavDat(navLines, rejects);
  const AirwayEnds ends(navaids, fixes.fixes);
  const auto segments =
      Read(WithHead("1100",
                    "ALFA ED 11 BRAVO ED 11 F 1 50 100 W1\n"
                    "BRAVO ED 11 CHA ED 3 B 1 50 100 W2\n"
                    "ALFA ED 11 CHA ED 2 N 1 50 100 W3\n"
                    "ALFA ED 11 BRAVO ED 11 X 1 50 100 W4\n"
                    "ALFA ED 11 BRAVO ED 11 N 3 50 100 W5\n"
                    "ALFA ED 11 BRAVO ED 11 N 1 50 100 -\n"),
           rejects, [&](auto ident, auto region, int kind) { return ends.Find(ident, region, kind); });
  EXPECT_EQ(RejectTexts(rejects),
            "awy.dat:5: the second end is in no fix or navaid file\n"
            "awy.dat:6: direction is none of N, F, B\n"
            "awy.dat:7: level is neither 1 nor 2\n"
            "awy.dat:8: no airway name\n");
  const NavDatabase database = Load(MakeAirwayFiles(segments, navaids, NoVariation));
  EXPECT_EQ(Links(database, false), "ALFA>BRAVO W1 FL050-FL100\nCHA>BRAVO W2 FL050-FL100\n");
  EXPECT_EQ(database.victorAirways.size(), 2u);
  EXPECT_EQ(database.intersections[2].sngLat, 11.0F);
  EXPECT_EQ(database.intersections[2].strRegion, "ED");
}

TEST(AirwayFiles, AFullTableKeepsTheBestConnectedPoints) {
  Rejects rejects;
  const auto segments = Read(WithHead("640",
                                      "A 10 20 B 11 20 1 50 100 W1\n"
                                      "B 11 20 C 12 20 1 50 100 W1\n"
                                      "C 12 20 D 13 20 1 50 100 W1\n"),
                             rejects);
  const AirwayFiles files = MakeAirwayFiles(segments, NavData{}, NoVariation, 2);
  const NavDatabase database = Load(files);
  EXPECT_EQ(Links(database, false), "B>C W1 FL050-FL100\nC>B W1 FL050-FL100\n");
  EXPECT_EQ(files.pointsLeftOut, 2u);
  EXPECT_EQ(files.segmentsLeftOut, 2u);
  EXPECT_EQ(database.victorAirways.size(), 1u);
}

TEST(AirwayFiles, APointKeepsItsShortest255Links) {
  std::string lines = "HUB 10 20 FAR 60 20 1 50 100 W0\n";
  for (int i = 1; i <= 255; ++i) {
    lines += "HUB 10 20 P" + std::to_string(i) + " 11 20 1 50 100 W" + std::to_string(i) + "\n";
  }
  Rejects rejects;
  const AirwayFiles files = MakeAirwayFiles(Read(WithHead("640", lines), rejects), NavData{}, NoVariation);
  const NavDatabase database = Load(files);
  const auto links = database.LowAlt(database.intersections[1]);
  EXPECT_EQ(links.size(), 255u);
  EXPECT_TRUE(
      std::none_of(links.begin(), links.end(), [](const ConnectionRec& l) { return l.strAirway == "W0"; }));
  EXPECT_EQ(files.linksLeftOut, 1u);
  EXPECT_EQ(database.lngIntersections, 257);
}

TEST(AirwayFiles, PointsOfOneIdentAreToldApartByPosition) {
  Rejects rejects;
  const auto segments = Read(WithHead("640",
                                      "ZZ 10 179.999 A 10 178 1 50 100 W1\n"
                                      "ZZ 10 179.99 B 10 -178 1 50 100 W2\n"
                                      "ZZ 40 20 B 10 -178 1 50 100 W3\n"),
                             rejects);
  const NavDatabase database = Load(MakeAirwayFiles(segments, NavData{}, NoVariation));
  EXPECT_EQ(Links(database, false),
            "ZZ>A W1 FL050-FL100\nA>ZZ W1 FL050-FL100\nZZ>B W2 FL050-FL100\nB>ZZ W2 FL050-FL100\n"
            "B>ZZ W3 FL050-FL100\nZZ>B W3 FL050-FL100\n");
}

}  // namespace
