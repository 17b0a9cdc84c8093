// Navaids and fixes from their source rows to the rows of the database.
#include <gtest/gtest.h>

#include "dbmanager/fix_dat.h"
#include "dbmanager/nav_dat.h"
#include "dbmanager/navaid_files.h"
#include "dbmanager/source_error.h"
#include "navdata/nav_database.h"
#include "navdata/navaid_loader.h"
#include "navdata/world_loader.h"
#include "source_text.h"

namespace {

NavData ReadNav(const std::string& text, Rejects& rejects) {
  LineReader lines("nav.dat", text);
  return ReadNavDat(lines, rejects);
}

FixData ReadFixes(const std::string& text, Rejects& rejects) {
  LineReader lines("fix.dat", text);
  return ReadFixDat(lines, rejects);
}

const std::string rows810 =
    "2  38.0 -077.3      0   396  50    0.0 APH  A P HILL NDB\r\n"
    "3  57.1  009.9     57 11670 130    1.0 AAL  AALBORG VOR-DME\n"
    "4  39.9 -075.8    660 10850  18     281.662 IMQS 40N  29  ILS-cat-I\n"
    "5  67.0 -050.6    165 10955  18      61.600 ISF  BGSF 10  LOC\n"
    "6  39.9 -075.7    630 10850  10  300281.662 IMQS 40N  29  GS\n"
    "7  39.9 -075.7    660     0   0     281.700 ---- 40N  29  OM\n"
    "9  39.9 -075.7    660     0   0     -10.000 ---- 40N  29  IM\n"
    "12 57.1  009.9     57 11670 130    0.0 AAL  AALBORG VOR-DME\n"
    "13 57.2  009.9     57 11670 199    0.0 AAL  AALBORG TACAN\n"
    "99\n";

TEST(NavDat, ReadsFormat810) {
  Rejects rejects;
  const NavData data = ReadNav(WithHead("810", rows810), rejects);
  EXPECT_EQ(RejectTexts(rejects), "");
  EXPECT_TRUE(data.complete);
  ASSERT_EQ(data.ndbs.size(), 1u);
  EXPECT_EQ(data.ndbs[0].name, "A P HILL");
  EXPECT_DOUBLE_EQ(data.ndbs[0].frequency, 396);
  ASSERT_EQ(data.vors.size(), 1u);
  EXPECT_EQ(data.vors[0].kind, "VOR-DME");
  EXPECT_NEAR(data.vors[0].frequency, 116.7, 1e-9);
  ASSERT_EQ(data.localizers.size(), 2u);
  EXPECT_EQ(data.localizers[0].airport + " " + data.localizers[0].runway, "40N 29");
  EXPECT_DOUBLE_EQ(data.localizers[0].glideAngle, 3.0);
  EXPECT_DOUBLE_EQ(data.localizers[1].glideAngle, 0.0);
  ASSERT_EQ(data.markers.size(), 2u);
  EXPECT_EQ(data.markers[1].kind, "IM");
  EXPECT_DOUBLE_EQ(data.markers[1].course, 350);
  EXPECT_EQ(data.pairedDmes, 1u);
  EXPECT_EQ(data.dmes.size(), 1u);
}

TEST(NavDat, ReadsFormat1100WithRegionsAndMagneticCourses) {
  Rejects rejects;
  const NavData data = ReadNav(WithHead("1150",
                                        "2  38.0 -077.3 0 396 50 0.0 APH ENRT K6 A P HILL NDB\n"
                                        "3  57.1  009.9 57 11670 130 1.0 AAL ENRT EK AALBORG VOR/DME\n"
                                        "4  50.0  008.5 329 11155 25 89989.568 IFCW EDDF ED 25C ILS-cat-III\n"
                                        "6  50.0  008.5 329 11155 10 300249.568 IFCW EDDF ED 25C GS\n"
                                        "14 50.0  008.5 329 55555 0 249.568 WAAS EDDF ED 25C LPV\n"
                                        "99\n"),
                               rejects);
  EXPECT_EQ(RejectTexts(rejects), "");
  EXPECT_EQ(data.ndbs.at(0).region, "K6");
  EXPECT_EQ(data.ndbs.at(0).name, "A P HILL");
  EXPECT_EQ(data.vors.at(0).kind, "VOR-DME");
  EXPECT_EQ(data.localizers.at(0).airport, "EDDF");
  EXPECT_EQ(data.localizers.at(0).runway, "25C");
  EXPECT_EQ(data.localizers.at(0).kind, "ILS-cat-III");
  EXPECT_NEAR(data.localizers.at(0).course, 349.568, 1e-9);  // 89989.568 = 249 * 360 + 349.568
  EXPECT_DOUBLE_EQ(data.localizers.at(0).glideAngle, 3.0);
  EXPECT_EQ(data.satelliteRows, 1u);
}

TEST(NavDat, RejectsWithLineAndReason) {
  Rejects rejects;
  ReadNav(WithHead("810",
                   "2  98.0 -077.3 0 396 50 0.0 APH A P HILL NDB\n"
                   "3  57.1 009.9\n"
                   "6  39.9 -075.7 630 10850 10 300281.662 ILOST 40N 29 GS\n"
                   "77 1 2\n"
                   "hello\n"
                   "4  39.9 -075.8 660 10850 18 281.662 IMQS\n"),
          rejects);
  EXPECT_EQ(RejectTexts(rejects),
            "nav.dat:3: no position\n"
            "nav.dat:4: no frequency\n"
            "nav.dat:6: unknown row number\n"
            "nav.dat:7: no row number\n"
            "nav.dat:8: no airport and runway\n"
            "nav.dat:5: glide slope without a localizer\n");
}

TEST(FixDat, ReadsBothFormats) {
  Rejects rejects;
  const FixData old = ReadFixes(WithHead("600", " 50.5  008.5 ABCDE\n99 000 X\n91.0 0 BAD\n99\n"), rejects);
  EXPECT_TRUE(old.complete);
  ASSERT_EQ(old.fixes.size(), 1u);
  EXPECT_EQ(old.fixes[0].ident, "ABCDE");
  EXPECT_EQ(RejectTexts(rejects), "fix.dat:4: no position\nfix.dat:5: no position\n");
  const FixData fresh = ReadFixes(WithHead("1200", "50.5 8.5 ABCDE ENRT ED 4530211 ABCDE\n"), rejects);
  EXPECT_FALSE(fresh.complete);
  EXPECT_EQ(fresh.fixes.at(0).region, "ED");
  LineReader other("fix.dat", "I\n640 awy\n");
  EXPECT_THROW(ReadFixDat(other, rejects), BuildError);
}

TEST(VorTypeOf, FollowsTheNumbersOfTheDatabase) {
  const std::pair<const char*, int> cases[] = {{"VOR", 1}, {"VORTAC", 2},  {"TACAN", 3}, {"VOR-DME", 4},
                                               {"DME", 9}, {"NDB-DME", 9}, {"", 1}};
  for (const auto& [kind, type] : cases)
    EXPECT_EQ(VorTypeOf(kind), type) << kind;
}

TEST(NavaidFiles, LoadAsTheRowsThatTheSourceHas) {
  Rejects rejects;
  const NavData navaids = ReadNav(WithHead("810", rows810.substr(0, rows810.size() - 3) +
                                                      "2  10.0 020.0 0 300 25 0.0 PAIR NEAR NDB\n"
                                                      "13 10.0 020.01 0 11000 25 0.0 PAIR NEAR NDB-DME\n"
                                                      "13 40.0 020.0 0 11000 25 0.0 PAIR FAR NDB-DME\n"
                                                      "99\n"),
                                  rejects);
  const FixData fixes = ReadFixes(WithHead("600", "10 20 KEPT\n30 40 ONWAY\n30.2 40 ONWAY\n99\n"), rejects);
  IdentPlaces airwayPoints;
  airwayPoints.Add("ONWAY", {30.001, 40.001}, 1);
  airwayPoints.Add("KEPT", {50, 20}, 2);
  const NavaidFiles files =
      MakeNavaidFiles(navaids, fixes.fixes, airwayPoints, [](SourcePosition) { return 1.5; });

  NavDatabase database;
  EXPECT_TRUE(ParseVors(files.vor, database));
  EXPECT_TRUE(ParseNdbs(files.ndb, database));
  EXPECT_TRUE(ParseFixes(files.fixes, database));
  EXPECT_TRUE(ParseMarkers(files.marker, database.markers));
  // A VOR-DME, a TACAN of its own, and the DME whose NDB is elsewhere.
  ASSERT_EQ(database.vors.size(), 3u);
  EXPECT_EQ(database.vors[0].strType, "VOR-DME");
  EXPECT_EQ(database.vors[0].sngFrequency, 116.7F);
  EXPECT_EQ(database.vors[1].strType, "TACAN");
  EXPECT_EQ(database.vors[2].strType, "DME");
  EXPECT_EQ(database.vors[2].strName, "FAR");
  ASSERT_EQ(database.ndbs.size(), 2u);
  EXPECT_EQ(database.ndbs[0].strType, "NDB");
  EXPECT_EQ(database.ndbs[1].strType, "NDB-DME");
  ASSERT_EQ(database.fixes.size(), 2u);
  EXPECT_EQ(database.fixes[0].strCode, "KEPT");
  EXPECT_EQ(database.fixes[1].sngLat, 30.2F);
  EXPECT_EQ(files.fixesOnAirways, 1u);
  ASSERT_EQ(database.markers.size(), 2u);
  EXPECT_EQ(database.markers[0].strCode, "OM");
}

}  // namespace
