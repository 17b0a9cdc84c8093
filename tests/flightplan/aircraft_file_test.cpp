#include "flightplan/aircraft_file.h"

#include <gtest/gtest.h>

#include <random>

#include "flightplan/aircraft_list.h"

namespace {

const std::string skylane = "1,\"Cessna 182\",260,181,1406,880,250,920,80,500,110,145,80,70,3500,773";

AircraftRec Skylane() {
  AircraftRec aircraft;
  aircraft.Number = 1;
  aircraft.Name = "Cessna 182";
  aircraft.MaxFuel = 260;
  aircraft.Ceiling = 181;
  aircraft.MaxWeight = 1406;
  aircraft.EmptyWeight = 880;
  aircraft.LoadWeight = 250;
  aircraft.ClimbRate = 920;
  aircraft.ClimbSpeed = 80;
  aircraft.DescentRate = 500;
  aircraft.DescentSpeed = 110;
  aircraft.CruiseSpeed = 145;
  aircraft.CruiseFlightLevel = 80;
  aircraft.ApproachSpeed = 70;
  aircraft.ApproachAltitude = 3500;
  aircraft.MaxRange = 773;
  return aircraft;
}

std::string Replaced(std::string text, const std::string& from, const std::string& to) {
  return text.replace(text.find(from), from.size(), to);
}

std::string OneValueALine(std::string text) {
  for (char& c : text)
    c = c == ',' ? '\n' : c;
  return text;
}

TEST(AircraftFile, ReadsEveryLayoutOfTheValues) {
  const std::string layouts[] = {
      skylane,
      skylane + "\r\n",
      "\n\r\n" + skylane + "\n\n",
      Replaced(skylane, "\"Cessna 182\"", "Cessna 182"),
      Replaced(skylane, ",260,", " ,  260  , "),
      OneValueALine(skylane),
      Replaced(skylane, ",920,", "\r\n920\r"),
      Replaced(skylane, ",260,", ",+260.4,"),
  };
  for (const std::string& text : layouts) {
    const AircraftFile file = ParseAircraft(text);
    EXPECT_EQ(file.aircraft, std::vector<AircraftRec>{Skylane()}) << text;
    EXPECT_TRUE(file.problems.empty()) << text << ": " << file.problems.front();
  }
}

struct DamageCase {
  const char* name;
  std::string text;
  std::size_t aircraft;
  std::vector<std::string> problems;
};

TEST(AircraftFile, ReportsDamageAndReadsTheRest) {
  const DamageCase cases[] = {
      {"nothing", "", 0, {}},
      {"blank lines", "\r\n\n \n", 0, {}},
      {"cut off", skylane + "\n2,Boeing", 1, {"line 2: MaxFuel: missing; the last aircraft is left out"}},
      {"a word for a number",
       skylane + "\n" + Replaced(skylane, "920", "fast"),
       2,
       {"line 2: ClimbRate: no number in \"fast\""}},
      {"a number and more",
       Replaced(skylane, "920", "920 fpm"),
       1,
       {"line 1: ClimbRate: no number in \"920 fpm\""}},
      {"nothing for a number", Replaced(skylane, "920", ""), 1, {"line 1: ClimbRate: no number in \"\""}},
      {"too large", Replaced(skylane, "1,", "70000,"), 1, {"line 1: Number: out of range: 70000"}},
      {"infinite", Replaced(skylane, "773", "inf"), 1, {"line 1: MaxRange: no number in \"inf\""}},
      {"an open quote",
       Replaced(skylane, "182\"", "182") + "\n",
       0,
       {"line 1: MaxFuel: missing; the last aircraft is left out"}},
  };
  for (const DamageCase& c : cases) {
    const AircraftFile file = ParseAircraft(c.text);
    EXPECT_EQ(file.aircraft.size(), c.aircraft) << c.name;
    if (c.name != std::string("an open quote")) {
      EXPECT_EQ(file.problems, c.problems) << c.name;
    } else {
      EXPECT_FALSE(file.problems.empty());
    }
  }
  EXPECT_EQ(ParseAircraft(Replaced(skylane, "920", "920 fpm")).aircraft[0].ClimbRate, 920);
  EXPECT_EQ(ParseAircraft(Replaced(skylane, "1,", "70000,")).aircraft[0].Number, 32767);
}

TEST(AircraftFile, ListsAHundredProblems) {
  std::string junk;
  for (int i = 0; i < 1600; ++i)
    junk += "x,";
  const AircraftFile file = ParseAircraft(junk);
  EXPECT_EQ(file.aircraft.size(), 100u);
  ASSERT_EQ(file.problems.size(), 101u);
  EXPECT_EQ(file.problems.back(), "and 1400 more");
}

TEST(AircraftFile, SurvivesAnyBytes) {
  std::mt19937 random(182);
  const std::string alphabet = "0123456789,,,,\"\r\n -+.eE\x80\xffz" + std::string(1, char{});
  for (int round = 0; round < 2000; ++round) {
    std::string text;
    for (auto i = random() % 300; i > 0; --i)
      text += alphabet[random() % alphabet.size()];
    const AircraftFile file = ParseAircraft(text);
    const AircraftFile again = ParseAircraft(AircraftText(file.aircraft));
    ASSERT_EQ(again.aircraft.size(), file.aircraft.size());
    ASSERT_TRUE(again.problems.empty());
  }
}

TEST(AircraftFile, KeepsWhatItWrites) {
  std::vector<AircraftRec> aircraft = {Skylane(), Skylane()};
  aircraft[1].Number = -2;
  aircraft[1].Name = "Flugzeug, größer";
  aircraft[1].MaxFuel = 2147483647;
  const std::string text = AircraftText(aircraft);
  EXPECT_NE(text.find("gr\xf6\xdf"
                      "er"),
            std::string::npos);
  EXPECT_EQ(text.substr(0, skylane.size() + 2), skylane + "\r\n");
  EXPECT_EQ(ParseAircraft(text).aircraft, aircraft);
  aircraft[1].Name = "The \"Queen\"\n";
  EXPECT_EQ(ParseAircraft(AircraftText(aircraft)).aircraft.at(1).Name, "The 'Queen' ");
}

TEST(AircraftFile, IsReplacedOnDisk) {
  const auto path = std::filesystem::path(testing::TempDir()) / "velmora_aircraft_test.vlm";
  std::filesystem::remove(path);
  EXPECT_EQ(ReadAircraftFile(path).problems.size(), 1u);
  ASSERT_TRUE(WriteAircraftFile(path, {Skylane()}));
  EXPECT_EQ(ReadAircraftFile(path).aircraft, std::vector<AircraftRec>{Skylane()});
  std::filesystem::remove(path);
}

TEST(ReadAircraft, TakesTheNumberElseTheLast) {
  std::vector<AircraftRec> aircraft(4, Skylane());
  for (std::size_t i = 0; i < 4; ++i)
    aircraft[i].Name = std::string(1, static_cast<char>('A' + i));
  aircraft[1].Number = aircraft[2].Number = 12;
  EXPECT_EQ(ReadAircraft(aircraft, 12)->Name, "B");
  EXPECT_EQ(ReadAircraft(aircraft, 99)->Name, "D");
  EXPECT_FALSE(ReadAircraft({}, 12));
}

TEST(ReadAircraft, SetsTheApproachAltitude) {
  const struct {
    int speed, altitude;
  } cases[] = {{0, 3500},   {100, 3500}, {101, 5000}, {120, 5000},  {121, 7000},
               {140, 7000}, {141, 8500}, {160, 8500}, {161, 10000}, {500, 10000}};
  for (const auto& c : cases) {
    AircraftRec aircraft = Skylane();
    aircraft.ApproachSpeed = c.speed;
    aircraft.ApproachAltitude = 1;
    EXPECT_EQ(ReadAircraft({aircraft}, 1)->ApproachAltitude, c.altitude) << c.speed;
  }
}

TEST(AircraftList, GivesNewOnesTheFirstFreeNumber) {
  std::vector<AircraftRec> list(3);
  EXPECT_EQ(FreeAircraftNumber({}), 1);
  list[0].Number = 2;
  list[1].Number = 1;
  list[2].Number = 32767;
  EXPECT_EQ(FreeAircraftNumber(list), 3);
  list.assign(32767, {});
  for (std::size_t i = 0; i < list.size(); ++i)
    list[i].Number = static_cast<std::int16_t>(i + 1);
  EXPECT_EQ(FreeAircraftNumber(list), 0);
  list[32766].Number = 0;
  EXPECT_EQ(FreeAircraftNumber(list), 32767);
}

TEST(AircraftList, IsPrintedLineByLine) {
  AircraftRec a;
  a.Name = "Twin";
  a.CruiseFlightLevel = 250;
  a.MaxFuel = 1000;
  a.Ceiling = 300;
  a.MaxWeight = 9000;
  a.LoadWeight = 800;
  a.EmptyWeight = 6000;
  a.ClimbRate = 1500;
  a.ClimbSpeed = 180;
  a.DescentRate = 1200;
  a.DescentSpeed = 200;
  a.CruiseSpeed = 280;
  a.ApproachSpeed = 110;
  const std::vector<std::string> one = {"Aircraft: Twin",
                                        "Cruise Flight Level: 250",
                                        "Maximum Fuel: 1000 kg",
                                        "Ceiling: 300",
                                        "Max Weight: 9000 kg",
                                        "Load Weight: 800 kg",
                                        "Empty Weight: 6000 kg",
                                        "Climb: ",
                                        "Rate: 1500 ft/min",
                                        "Speed: 180 kts",
                                        "Descent: ",
                                        "Rate: 1200 ft/min",
                                        "Speed: 200 kts",
                                        "Cruise: ",
                                        "Speed: 280 kts",
                                        "Approach: ",
                                        "Speed: 110 kts"};
  EXPECT_EQ(AircraftLines({a}), one);
  std::vector<std::string> two = one;
  two.emplace_back();
  two.insert(two.end(), one.begin(), one.end());
  EXPECT_EQ(AircraftLines({a, a}), two);
  EXPECT_TRUE(AircraftLines({}).empty());
}

}  // namespace
