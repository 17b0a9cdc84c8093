#include "dbmanager/airport_files.h"

#include <gtest/gtest.h>

#include "dbmanager/ground_files.h"
#include "navdata/airport_loader.h"
#include "navdata/ils_positions.h"
#include "navdata/nav_database.h"
#include "navdata/world_loader.h"
#include "source_text.h"

namespace {

SourceRunway Runway(const char* id, SourcePosition from, const char* recip, SourcePosition to) {
  SourceRunway runway;
  runway.ends[0] = {id, from};
  runway.ends[1] = {recip, to};
  runway.width = 45.72;
  runway.surface = 2;
  return runway;
}

SourceAirport Airport(const char* code) {
  SourceAirport airport;
  airport.code = code;
  airport.name = "Name";
  airport.elevation = 100;
  airport.runways.push_back(Runway("18", {50, 8}, "36", {50 - 1.0 / 60, 8}));
  return airport;
}

SourceLocalizer Localizer(const char* ident, const char* airport, const char* runway) {
  SourceLocalizer localizer;
  localizer.ident = ident;
  localizer.airport = airport;
  localizer.runway = runway;
  localizer.kind = localizer.name = "ILS-cat-II";
  localizer.position = {50 - 1.1 / 60, 8};
  localizer.course = 180;
  localizer.glideAngle = 3;
  localizer.frequency = 110.55;
  return localizer;
}

struct Made {
  AirportFiles files;
  NavDatabase database;
  Rejects rejects;
};

Made Make(const std::vector<SourceAirport>& airports, const std::vector<SourceLocalizer>& localizers = {}) {
  Made made;
  made.files = MakeAirportFiles(
      airports, localizers, "apt.dat", [](SourcePosition) { return 2.5; },
      [](SourcePosition p) { return p.lat > 0 ? FindCountryByNumber("840") : nullptr; }, made.rejects);
  EXPECT_TRUE(ParseAirports(made.files.airport, made.database));
  EXPECT_TRUE(ParseRegions(made.files.region, made.database));
  EXPECT_TRUE(ParseCountries(made.files.country, made.database));
  EXPECT_TRUE(ParseStates(made.files.state, made.database));
  EXPECT_TRUE(ParseCities(made.files.city, made.database));
  EXPECT_TRUE(ParsePendingIls(made.files.ils, made.database));
  return made;
}

TEST(AirportFiles, RunwaysCarryCentreHeadingLengthAndIls) {
  const Made made = Make({Airport("EDDF")}, {Localizer("IONE", "EDDF", "18"), Localizer("ITWO", "EDDF", "36"),
                                             Localizer("ILOST", "XXXX", "09")});
  const auto& database = made.database;
  ASSERT_EQ(database.AirportCount(), 1);
  const RunwayRec& runway = database.Runways(database.airports[0])[0];
  EXPECT_EQ(runway.strRwyID, "18");
  EXPECT_EQ(runway.strRwyIDRecip, "36");
  EXPECT_EQ(runway.strIlsCode, "IONE");
  EXPECT_EQ(runway.strIlsCodeRecip, "ITWO");
  EXPECT_NEAR(runway.sngLat, 50 - 0.5 / 60, 1e-5);
  EXPECT_NEAR(runway.sngHeading, 180, 1e-3);
  EXPECT_EQ(runway.intLength, 6076);  // one minute of arc
  EXPECT_EQ(runway.intWidth, 150);
  EXPECT_EQ(runway.bytSurface, 0);
  const IlsRec& ils = database.Ils(database.airports[0])[0];
  EXPECT_EQ(ils.strName, "ILS-cat-II");
  EXPECT_EQ(ils.strType, "2");
  EXPECT_EQ(ils.strRwyID, "18");
  EXPECT_EQ(ils.sngILSGlideAngle, 3.0F);
  EXPECT_EQ(ils.sngMagVar, 2.5F);
  ASSERT_EQ(database.pendingIls.size(), 1u);
  EXPECT_EQ(database.pendingIls[0].strCode, "ILOST");
}

// The loader takes the ILS back by the runway's length along its course: from
// the antenna beyond the far end that must come out near the threshold.
TEST(AirportFiles, IlsComesOutAtItsThreshold) {
  Made made = Make({Airport("EDDF")}, {Localizer("IONE", "EDDF", "18")});
  ReassignILSCoords(made.database);
  EXPECT_NEAR(made.database.ils[0].sngLat, 50 - 0.1 / 60, 1e-4);
}

TEST(AirportFiles, HelipadsAndWaterRunways) {
  SourceAirport airport = Airport("HELI");
  airport.runways[0].kind = RunwayKind::water;
  SourceRunway pad;
  pad.kind = RunwayKind::helipad;
  pad.ends[0] = {"H1", {10, 20}};
  pad.heading = 370;
  pad.length = 30.48;
  pad.surface = 1;
  airport.runways.push_back(pad);
  const Made made = Make({airport});
  const auto runways = made.database.Runways(made.database.airports[0]);
  EXPECT_EQ(runways[0].bytSurface, 2);
  EXPECT_EQ(runways[1].strRwyID, "00H");
  EXPECT_EQ(runways[1].intLength, 100);
  EXPECT_EQ(runways[1].sngHeading, 10.0F);
  EXPECT_EQ(runways[1].sngLat, 10.0F);
  EXPECT_EQ(made.files.helipads, 1u);
}

TEST(AirportFiles, NoneIsDroppedAndRowsCountOn) {
  SourceAirport bare;
  bare.code = "NONE";
  bare.line = 77;
  SourceAirport onlyStart = bare;
  onlyStart.code = "START";
  onlyStart.starts.push_back({{1, 2}, 0, "Ramp", "", "", ' ', ""});
  // A second airport of the same code keeps its runways; the ILS go to the first.
  const Made made =
      Make({Airport("A"), bare, onlyStart, Airport("A"), Airport("TOOLONG")}, {Localizer("IONE", "A", "18")});
  ASSERT_EQ(made.database.AirportCount(), 4);
  EXPECT_EQ(made.database.airports[1].sngLon, 2.0F);
  EXPECT_EQ(made.database.airports[2].lngIls, 0);
  EXPECT_EQ(made.database.airports[2].lngRunways, 1);
  EXPECT_EQ(made.database.airports[3].strCode, "TOOLO");
  EXPECT_EQ(RejectTexts(made.rejects), "apt.dat:77: airport NONE has no position\n");
}

TEST(AirportFiles, CountryFromMetadataThenPrefixThenOutline) {
  SourceAirport tagged = Airport("KTAG");
  tagged.country = "Canada";
  tagged.state = "Ontario";
  tagged.city = "Toronto";
  SourceAirport atSea = Airport("XY12");
  atSea.runways[0] = Runway("18", {-50, 8}, "36", {-51, 8});
  const Made made = Make({tagged, Airport("EDDF"), Airport("02KY"), atSea});
  const char* countries[] = {"Canada", "Germany", "United States", ""};
  for (std::size_t i = 0; i < std::size(countries); ++i) {
    EXPECT_EQ(made.database.airports[i].strCountry, countries[i]) << i;
    EXPECT_EQ(made.database.airports[i].strState, i == 0 ? "Ontario" : "0");
  }
  ASSERT_EQ(made.database.countries.size(), 3u);
  EXPECT_EQ(made.database.countries[1].strCountry, "Germany");
  EXPECT_EQ(made.database.countries[1].strRegion, "Europe");
  EXPECT_EQ(made.database.regions.size(), 2u);
  ASSERT_EQ(made.database.cities.size(), 1u);
  EXPECT_EQ(made.database.cities[0].strState, "Ontario");
}

TEST(AirportFiles, ReferencePointIsTheDatumElseTheLongestRunway) {
  SourceAirport airport = Airport("A");
  airport.runways.insert(airport.runways.begin(), Runway("09", {20, 30}, "27", {20, 30.001}));
  EXPECT_NEAR(ReferencePoint(airport)->lat, 50 - 0.5 / 60, 1e-9);
  airport.datum = SourcePosition{49.5, 7.5};
  EXPECT_EQ(ReferencePoint(airport)->lat, 49.5);
}

TEST(GateCodes, TypeNameAndNumber) {
  struct Case {
    const char* name;
    const char* kind;
    const char* airplanes;
    char width;
    const char* operation;
    int type, nameCode, number;
  };
  for (const Case& c :
       {Case{"Gate A12", "gate", "jets", ' ', "", 9, 12, 12}, Case{"GATE Z 3", "", "", ' ', "", 9, 37, 3},
        Case{"Gate 7", "gate", "heavy|jets", ' ', "", 10, 10, 7},
        Case{"Stand 204B", "gate", "jets", 'B', "", 8, 10, 204},
        Case{"Terminal C", "", "", ' ', "", 9, 14, 0}, Case{"General Aviation", "", "", ' ', "", 3, 1, 0},
        Case{"North Ramp 2", "tie-down", "props", ' ', "", 2, 2, 2},
        Case{"Southwest Apron", "misc", "heavy", ' ', "", 4, 7, 0},
        Case{"Cargo 5", "misc", "all", ' ', "", 5, 1, 5}, Case{"X", "misc", "all", 'E', "military", 6, 1, 0},
        Case{"mil9-H", "misc", "props|helos", ' ', "", 7, 1, 9},
        Case{"Fuel", "misc", "all", ' ', "", 12, 1, 0}, Case{"Dock 3", "misc", "props", ' ', "", 11, 11, 3},
        Case{"", "", "", ' ', "", 3, 1, 0}}) {
    const GateCodes codes = GateCodesOf({{0, 0}, 0, c.name, c.kind, c.airplanes, c.width, c.operation});
    EXPECT_EQ(codes.type, c.type) << c.name;
    EXPECT_EQ(codes.name, c.nameCode) << c.name;
    EXPECT_EQ(codes.number, c.number) << c.name;
  }
}

TEST(FrequencyTypeOf, FollowsRowAndName) {
  struct Case {
    int kind;
    const char* name;
    int type;
  };
  for (const Case& c :
       {Case{50, "ATIS", 1}, Case{50, "AWOS 3", 12}, Case{51, "CTAF/UNICOM", 4}, Case{51, "Multicom", 2},
        Case{51, "Radio", 3}, Case{51, "Anchorage FSS", 11}, Case{52, "CLNC DEL", 7}, Case{53, "GND", 5},
        Case{54, "TWR", 6}, Case{55, "APP", 8}, Case{55, "Oakland Center", 10}, Case{56, "DEP", 9}}) {
    EXPECT_EQ(FrequencyTypeOf({c.kind, 118, c.name}), c.type) << c.name;
  }
}

TEST(SurfaceOf, FollowsTheDatabasesTable) {
  const std::pair<int, int> cases[] = {{1, 4},  {2, 0},  {3, 1},    {4, 12}, {5, 14}, {12, 12},
                                       {13, 2}, {14, 8}, {15, 254}, {25, 4}, {55, 0}, {0, 254}};
  for (const auto& [source, surface] : cases)
    EXPECT_EQ(SurfaceOf(source), surface) << source;
}

TEST(GroundFiles, RoutesWinOverPaintedLinesAndPolygonsAreClosed) {
  SourceAirport routes = Airport("A");
  routes.network.push_back({{1, 2}, {3, 4}, "B", 'E'});
  routes.centrelines.push_back({{5, 6}, {7, 8}, "", ' '});
  SourceAirport painted = Airport("B");
  painted.centrelines.push_back({{5, 6}, {7, 8}, "", ' '});
  painted.pavement.push_back({{{1, 1}, {1, 2}, {2, 2}}, false});
  painted.pavement.push_back({{{1.1F, 1.2F}, {1.1F, 1.8F}, {1.5F, 1.8F}}, true});
  const GroundFiles files = MakeGroundFiles(std::vector{routes, painted});
  std::vector<TaxiRec> taxiways;
  EXPECT_TRUE(ParseTaxiways(files.taxi, taxiways));
  ASSERT_EQ(taxiways.size(), 2u);
  EXPECT_EQ(taxiways[0].strName, "B");
  EXPECT_EQ(taxiways[0].bytWidth, 75);
  EXPECT_EQ(taxiways[1].sngLat2, 7.0F);
  std::vector<PolygonRec> points;
  EXPECT_TRUE(ParsePolygons(files.poly, points));
  std::string flags;
  for (const PolygonRec& point : points)
    flags += point.strFlag.Raw();
  EXPECT_EQ(flags, "MLLLMLLL");
  EXPECT_EQ(points[3].sngLat, points[0].sngLat);
  EXPECT_EQ(points[4].sngValue, 1.0F);
}

}  // namespace
