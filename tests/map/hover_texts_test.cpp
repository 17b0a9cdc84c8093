// What the box says of each kind of object.
#include <gtest/gtest.h>

#include <cmath>

#include "navdata/sun_times.h"
#include "tests/map/hover_world.h"

namespace {

constexpr float placeX = 5662;
constexpr float placeY = 3500;

std::vector<std::string> Texts(const std::vector<HoverLine>& lines) {
  std::vector<std::string> texts;
  for (const HoverLine& line : lines)
    texts.push_back((line.heading ? "# " : "") + line.text);
  return texts;
}

using Lines = std::vector<std::string>;

TEST(HoverTexts, AnAirportTellsWhatAPilotAsks) {
  HoverWorld world;
  world.switches.mnuSunrise = false;
  NavDatabase& d = world.database;
  PutAirport(d, 50, 8, "EDDM");
  AirportRec& airport = d.airports[0];
  airport.strName = "M\xFCnchen";  // code page
  airport.lngElevation = 1487;
  airport.sngMagVar = 3;
  airport.lngRunways = 3;
  airport.lngFrequencies = 4;
  airport.lngIls = 1;
  d.runways.resize(3);
  d.runways[0].strRwyID = "08L";
  d.runways[0].strRwyIDRecip = "26R";
  d.runways[0].intLength = 13123;
  d.runways[0].intWidth = 197;
  d.runways[1].strRwyID = "00H";
  d.runways[1].strRwyIDRecip = "00H";
  d.runways[1].intLength = d.runways[1].intWidth = 66;
  d.runways[1].bytSurface = 1;
  d.runways[2].strRwyID = "N";
  d.runways[2].intLength = 900;
  d.runways[2].bytSurface = 200;  // a surface without a name
  d.frequencies.resize(4);
  d.frequencies[0].bytType = 6;
  d.frequencies[0].sngFrequency = 118.7F;
  d.frequencies[1].bytType = 1;
  d.frequencies[1].sngFrequency = 123.125F;
  d.frequencies[2].bytType = 6;
  d.frequencies[2].sngFrequency = 120.5F;
  d.frequencies[3].sngFrequency = 121.5F;  // of no known kind
  d.ils.resize(1);
  d.ils[0].strCode = "IMNW";
  d.ils[0].strRwyID = "26R";
  d.ils[0].sngFrequency = 108.7F;
  d.ils[0].sngCourse = 262.6F;
  world.Index();
  EXPECT_EQ(Texts(world.Find(placeX, placeY)),
            (Lines{"# EDDM München", "N50°00.0000' - E008°00.0000'", "Elevation: 1487 ft",
                   "Rwy 08L/26R: 13123 x 197 ft Concrete", "Heli 00H: 66 x 66 ft Grass", "Rwy N: 900 x 0 ft",
                   "Tower: 118.700, 120.500", "ATIS: 123.125", "Frequency: 121.500",
                   "ILS 26R IMNW: 108.70 / 260°"}));
}

TEST(HoverTexts, AVorTellsRadialAndDistanceOfTheReference) {
  HoverWorld world;
  world.database.vors.push_back(VorAt(50, 8, "FFM"));
  world.database.vors[0].strType = "VOR-DME";
  world.Index();
  world.view.MapCenterLat = 49;  // 60 NM south of the station, which then is 4200 units up
  world.view.MapMagVar = 2.5F;
  EXPECT_EQ(Texts(world.Find(placeX, placeY - 4200)),
            (Lines{"# VOR FFM Name (VOR-DME)", "114.20 MHz", "N50°00.0000' - E008°00.0000'", "Radial: 177°",
                   "DME:  60.0 NM"}));
  HoverQuestion question = world.Question(placeX, placeY - 4200);
  question.connected = true;
  world.view.AircraftLat = 50.5F;
  EXPECT_EQ(Texts(FindUnderPointer(question, DatabaseHoverSources())).back(), "DME:  30.0 NM")
      << "the aircraft while connected";
}

TEST(HoverTexts, ATypeThatSaysNothingMoreIsLeftOut) {
  HoverWorld world;
  world.database.vors.push_back(VorAt(50, 8, "FFM"));
  world.database.vors[0].strType = "VOR";
  world.Index();
  EXPECT_EQ(Headings(world.Find(placeX, placeY)), Lines{"VOR FFM Name"});
}

TEST(HoverTexts, PositionsFollowTheFormat) {
  HoverWorld world;
  world.database.ndbs.push_back(NdbAt(50, 8, "FR"));
  world.Index();
  HoverQuestion question = world.Question(placeX, placeY);
  question.format = PositionFormat::decimal;
  EXPECT_EQ(Texts(FindUnderPointer(question, DatabaseHoverSources())),
            (Lines{"# NDB FR Name", "297.00 kHz", "50.0000 / 008.0000"}));
  world.settings.DECSEC = 0;
  EXPECT_EQ(Texts(world.Find(placeX, placeY))[2], "N50°00'00\" - E008°00'00\"");
}

TEST(HoverTexts, AnIntersectionNamesItsAirwaysOnce) {
  HoverWorld world;
  NavDatabase& d = world.database;
  PutIntersection(d, 50, 8, "RID");
  d.intersections[0].strName = "RID";
  d.intersections[0].bytLowAlt = 3;
  d.intersections[0].bytHighAlt = 1;
  for (const char* name : {"L607", "Z12", "L607"}) {
    d.lowConnections.emplace_back();
    d.lowConnections.back().strAirway = name;
  }
  d.highConnections.emplace_back();
  d.highConnections.back().strAirway = "UL607";
  world.Index();
  EXPECT_EQ(Texts(world.Find(placeX, placeY)),
            (Lines{"# Int RID", "N50°00.0000' - E008°00.0000'", "Victor: L607, Z12", "Jet: UL607"}));
}

TEST(HoverTexts, SunTimesOfTheNearestAirport) {
  HoverWorld world(9);
  PutAirport(world.database, 50, 8.01F, "FAR");
  PutAirport(world.database, 50, 8, "NEAR");
  PutAirport(world.database, 50, 8, "SAME");
  world.switches.btnIcao = false;  // no airport box; the sun's is its own
  world.Index();
  const SunTimes times = SunTimesAt(50, 8, world.Question(0, 0).today);
  const auto clock = [](double minutes) { return FormatMinutes(std::round(minutes)) + " UTC"; };
  EXPECT_EQ(Texts(world.Find(placeX, placeY)),
            (Lines{"# Sun NEAR", "Sunrise: " + clock(*times.sunrise), "Sunset: " + clock(*times.sunset)}));
}

TEST(HoverTexts, PolarDayAndNightInWords) {
  for (const bool summer : {true, false}) {
    HoverWorld world;
    world.view = MapView::At(80, 8, 9);
    PutAirport(world.database, 80, 8, "ICE");
    world.switches.btnIcao = false;
    world.Index();
    HoverQuestion question = world.Question(placeX, placeY);
    question.today = std::chrono::sys_days{std::chrono::year{2024} / (summer ? 6 : 12) / 20};
    EXPECT_EQ(Texts(FindUnderPointer(question, DatabaseHoverSources())).back(),
              summer ? "The sun is up all day" : "The sun is down all day");
  }
}

TEST(HoverTexts, AnAirspaceTellsWhatItsRowHolds) {
  HoverWorld world;
  world.database.airspaces.push_back(AirspaceAt(50, 8, "FRANKFURT", 1));
  AirspaceRec& row = world.database.airspaces[0];
  row.strCode = "EDDF";
  row.strName2 = "CTR";
  row.strUnit1 = "119.9";
  row.strClass = "D";
  row.strUpper = "2500";
  row.strLower = "SFC";
  world.Index();
  EXPECT_EQ(Texts(world.Find(placeX, placeY)),
            (Lines{"# Name: FRANKFURT", "Icao: EDDF", "Ctr: CTR", "Frq1: 119.9", "Class: D", "UpAlt: 2500",
                   "LoAlt: SFC"}));
}

TEST(HoverTexts, AnAirspaceThatIsNotShownTellsNothing) {
  struct Case {
    std::int16_t kind;
    bool MapSwitches::*flag;
  };
  const Case cases[] = {{0, &MapSwitches::mnuAir1},
                        {1, &MapSwitches::mnuCtrz},
                        {2, &MapSwitches::mnuAir1},
                        {3, &MapSwitches::mnuAir2}};
  for (const Case& c : cases) {
    HoverWorld world;
    world.database.airspaces.push_back(AirspaceAt(50, 8, "A", c.kind));
    world.Index();
    EXPECT_FALSE(world.Find(placeX, placeY).empty());
    world.switches.*c.flag = false;
    EXPECT_TRUE(world.Find(placeX, placeY).empty()) << "kind " << c.kind;
  }
}

TEST(HoverTexts, AParkingSpotHasNameNumberAndKind) {
  HoverWorld world(4);
  world.database.parkings.push_back(ParkingAt(50, 8));
  world.database.parkings.push_back(ParkingAt(50, 8));
  world.database.parkings[1].lngName = 0;
  world.database.parkings[1].lngType = 0;
  world.Index();
  EXPECT_EQ(Texts(world.Find(placeX, placeY)), (Lines{"# Gate A 7", "Gate Heavy", "# Parking 7"}));
}

}  // namespace
