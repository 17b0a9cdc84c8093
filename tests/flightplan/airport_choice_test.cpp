// Airports, start positions and waypoints as the pilot chooses them.
#include "flightplan/airport_choice.h"

#include <gtest/gtest.h>

#include "flightplan/plan_legs.h"
#include "flightplan/waypoint_search.h"
#include "navdata/geodesy.h"
#include "tests/flightplan/drawn_world.h"

namespace {

// EDDA: two runways (07L/25R of 12152 ft, that is 2 NM, towards 70 degrees, and
// a helipad) and three gates; EDDB: gates only; EDDC: nothing.
struct Airports : DrawnPlan {
  Airports() : DrawnPlan("airport EDDA 50 8 300\nairport EDDC 51 9 0\nairport EDDB 50 14 0\n") {
    AddRunway(0, "07L", "25R", 70, 12152);
    AddRunway(0, "00H", "00H", 0, 50);
    AddGate(0, 12, 7, {50.01F, 8.01F});
    AddGate(0, 12, 7, {50.02F, 8.02F});
    AddGate(0, 10, 3, {50.03F, 8.03F});
    AddGate(2, 1, 5, {50.001F, 14.001F});
  }

  AirportRec& At(int row) { return world.database.airports[static_cast<std::size_t>(row)]; }

  void AddRunway(int airport, const char* id, const char* reverse, float heading, std::int16_t length) {
    auto& table = world.database.runways;
    if (At(airport).lngRunways++ == 0) At(airport).firstRunway = static_cast<std::uint32_t>(table.size());
    RunwayRec& runway = table.emplace_back();
    runway.strRwyID = std::string_view(id);
    runway.strRwyIDRecip = std::string_view(reverse);
    runway.sngLat = At(airport).sngLat;
    runway.sngLon = At(airport).sngLon;
    runway.sngHeading = heading;
    runway.intLength = length;
  }

  void AddGate(int airport, int name, int number, Position place) {
    auto& table = world.database.parkings;
    if (At(airport).lngParkings++ == 0) At(airport).firstParking = static_cast<std::uint32_t>(table.size());
    ParkingRec& gate = table.emplace_back();
    gate.lngName = name;
    gate.lngNumber = number;
    gate.sngLat = place.lat;
    gate.sngLon = place.lon;
  }

  StartPosition Start(const std::string& id) {
    for (const StartPosition& start : StartPositions(world.database, 0))
      if (start.id == id) return start;
    throw std::runtime_error("no start " + id);
  }
};

TEST(StartPositions, AreAllRunwaysInBothDirectionsThenTheGates) {
  Airports drawn;
  std::string list;
  for (const StartPosition& start : StartPositions(drawn.world.database, 0))
    list += start.text + "|" + start.type + "|" + std::to_string(start.num) + "\n";
  EXPECT_EQ(list,
            "07L  (12152ft)|Rwy|1\n25R  (12152ft)|Rwy|3\n00H  (00050ft)|Rwy|2\n"
            "Gate A 7|Gate|100\nGate A 7|Gate|101\nGate 3|Gate|102\n");
  EXPECT_TRUE(StartPositions(drawn.world.database, 1).empty());
  EXPECT_TRUE(StartPositions(drawn.world.database, -1).empty());
  EXPECT_TRUE(StartPositions(drawn.world.database, 99).empty());
}

TEST(StartPositions, ARunwayBeginsHalfItsLengthBeforeItsMiddle) {
  Airports drawn;
  const StartPosition east = drawn.Start("07L");
  const StartPosition west = drawn.Start("25R");
  EXPECT_EQ(east.heading, 70);
  EXPECT_EQ(west.heading, 250);
  EXPECT_NEAR(GreatCircleDistance(east.place.lat, east.place.lon, 50, 8), 1, 0.01);
  EXPECT_NEAR(GreatCircleCourse(east.place.lat, east.place.lon, 50, 8), 70, 0.5);
  EXPECT_NEAR(GreatCircleCourse(west.place.lat, west.place.lon, 50, 8), 250, 0.5);
}

TEST(StartPositions, AStoredStartIsFoundByItsId) {
  Airports drawn;
  const auto starts = StartPositions(drawn.world.database, 0);
  const auto gatesOnly = StartPositions(drawn.world.database, 2);
  const struct {
    const char* type;
    std::int16_t num;
    const char* id;
    int amongAll;
    int amongGates;
  } cases[] = {
      {"Rwy", 1, "07L", 0, -1},        {"Rwy", 0, " 25r ", 1, -1},    {"Rwy", 1, "25R", 1, -1},
      {"Gate", 101, "Gate A 7", 4, 0}, {"Gate", 9, "GATE A 7", 3, 0}, {"Gate", 100, "Parking 5", -1, 0},
      {"Gate", 100, "", -1, -1},       {"Rwy", 1, "07", -1, -1},      {"", 0, "", -1, -1},
  };
  for (const auto& c : cases) {
    FlightPlan plan;
    plan.DepartureType = c.type;
    plan.DepartureNum = c.num;
    plan.DepartureID = c.id;
    EXPECT_EQ(FindStart(starts, plan), c.amongAll) << c.id;
    EXPECT_EQ(FindStart(gatesOnly, plan), c.amongGates) << c.id;
    EXPECT_EQ(FindStart({}, plan), -1);
  }
}

TEST(StartPositions, ThePlanBeginsWhereTheFlightDoes) {
  Airports drawn;
  FlightPlan& plan = drawn.plan;
  drawn.Add("Fix", "MID", 50, 9);
  RecomputePlan(plan, drawn.context);
  const FlightPlan before = plan;
  const StartPosition gate = drawn.Start("Gate 3");
  plan.CruiseFL = 110;  // as the pilot set it
  SetStartPosition(plan, drawn.context, &gate);
  EXPECT_EQ(plan.DepartureType + " " + plan.DepartureID + " " + std::to_string(plan.DepartureNum),
            "Gate Gate 3 102");
  EXPECT_EQ(plan.DepartureLat, 50.03F);
  EXPECT_EQ(plan.Row(0).Lon, 8.03F);
  EXPECT_EQ(plan.Row(1).Dist, GreatCircleDistance(50.03F, 8.03F, 50, 9));
  EXPECT_EQ(plan.CruiseFL, 110);
  FlightPlan again = plan;
  ComputeTotals(again);
  EXPECT_EQ(plan.TotalDistance, again.TotalDistance);
  EXPECT_EQ(plan.TotalMinutes, again.TotalMinutes);

  plan.CruiseFL = before.CruiseFL;
  SetStartPosition(plan, drawn.context, nullptr);
  EXPECT_EQ(plan, before);
  FlightPlan none;
  EXPECT_THROW(SetStartPosition(none, drawn.context, nullptr), std::out_of_range);
}

TEST(StartPositions, AFlightThatLeadsTheOtherWayNowGetsTheLevelOfThatWay) {
  Airports drawn;
  drawn.AddGate(1, 10, 1, {51, 8.9F});
  FlightPlan plan;
  // From its own position EDDC lies east of the destination, from the gate west of it.
  drawn.At(0).sngLat = 60;
  drawn.At(0).sngLon = 8.95F;
  SetDepartureAndDestination(plan, drawn.context, 1, 0);
  ASSERT_TRUE(plan.Westbound);
  plan.CruiseFL = 20;
  const auto starts = StartPositions(drawn.world.database, 1);
  SetStartPosition(plan, drawn.context, &starts.front());
  EXPECT_FALSE(plan.Westbound);
  EXPECT_EQ(plan.CruiseFL / 10 % 2, 1) << plan.CruiseFL;
}

TEST(AirportChoice, OnlyAnotherPairOfAirportsBeginsANewPlan) {
  Airports drawn;
  FlightPlan& plan = drawn.plan;
  drawn.Add("Fix", "MID", 50, 9);
  AirportChoice choice = ChoiceOf(plan, drawn.world.database);
  EXPECT_FALSE(IsNewPlan(choice, plan));
  choice.alternate = 1;
  choice.start = drawn.Start("25R");
  EXPECT_FALSE(IsNewPlan(choice, plan));
  ApplyAirports(plan, drawn.context, choice);
  EXPECT_EQ(drawn.Codes(), "EDDA MID EDDB");
  ASSERT_TRUE(plan.AlternateRow);
  EXPECT_EQ(plan.AlternateRow->Code, "EDDC");
  EXPECT_EQ(plan.DepartureID, "25R");
  const FlightPlan set = plan;
  ApplyAirports(plan, drawn.context, ChoiceOf(plan, drawn.world.database));
  EXPECT_EQ(plan, set) << "nothing was changed";

  choice.alternate = -1;
  choice.start.reset();
  ApplyAirports(plan, drawn.context, choice);
  EXPECT_FALSE(plan.AlternateRow);
  EXPECT_EQ(plan.Row(0).Lat, 50);
  EXPECT_EQ(drawn.Codes(), "EDDA MID EDDB");

  choice.destination = 1;
  choice.alternate = 2;
  choice.start = drawn.Start("07L");
  EXPECT_TRUE(IsNewPlan(choice, plan));
  ApplyAirports(plan, drawn.context, choice);
  EXPECT_EQ(drawn.Codes(), "EDDA EDDC");
  EXPECT_EQ(plan.AlternateIndex, 2);
  EXPECT_EQ(plan.DepartureID, "07L");
  FlightPlan none;
  EXPECT_TRUE(IsNewPlan({0, 2, -1, {}}, none));
}

// ---- waypoints

struct Waypoints : DrawnPlan {
  Waypoints()
      : DrawnPlan(
            "airport EDDA 50 8 0\nairport EDDB 50 14 0\n"
            "vor FFM 50.1 13\nndb FFM 50.2 8.2\nfix FFMX 50 8.1\nvor FF 50 13.9\n"
            "SOBRA 50 9\nfix SOBRA 50.001 9.001\nfix SOBRO 50 8.2\n") {
    UserWaypointRec own;
    own.strCode = std::string_view("FFM");
    own.strName = std::string_view("My field");
    own.sngLat = 50;
    own.sngLon = 8.5F;
    world.database.userWaypoints.push_back(own);
  }

  std::string Find(std::string_view typed, std::size_t most = mostWaypointsFound) {
    std::string list;
    for (const FoundWaypoint& found : FindWaypoints(plan, world.database, typed, most))
      list += (list.empty() ? "" : ", ") + found.row.Sym.Text() + " " + found.row.Code.Text();
    return list;
  }
};

TEST(WaypointSearch, ExactIdentsComeFirstThenWhatIsNear) {
  Waypoints drawn;
  EXPECT_EQ(drawn.Find("ffm"), "NDB FFM, Uwp FFM, VOR FFM, Fix FFMX");
  EXPECT_EQ(drawn.Find(" FF "), "VOR FF, Fix FFMX, NDB FFM, Uwp FFM, VOR FFM");
  EXPECT_EQ(drawn.Find("FF", 2), "VOR FF, Fix FFMX");
  EXPECT_EQ(drawn.Find("sobr"), "Fix SOBRO, Int SOBRA") << "the fix SOBRA is the intersection";
  EXPECT_EQ(drawn.Find(""), "");
  EXPECT_EQ(drawn.Find("SOBRAX"), "");
  EXPECT_EQ(drawn.Find("EDDA"), "") << "airports are no waypoints";

  drawn.Add("Fix", "LAST", 50, 13);
  drawn.plan.SelectedRow = 1;
  EXPECT_EQ(drawn.Find("ffm"), "VOR FFM, Uwp FFM, NDB FFM, Fix FFMX") << "seen from the selected row";
  ClearFlightPlan(drawn.plan);
  EXPECT_EQ(drawn.Find("ffm"), "VOR FFM, NDB FFM, Uwp FFM, Fix FFMX")
      << "without a plan as the tables have them";
}

TEST(WaypointSearch, TellsDistanceAndCourseAndTakesPositions) {
  Waypoints drawn;
  const auto found = FindWaypoints(drawn.plan, drawn.world.database, "N50 E009");
  ASSERT_EQ(found.size(), 1U);
  EXPECT_EQ(found[0].row.Sym, "Uwp");
  EXPECT_EQ(found[0].row.Code, "WP01");
  EXPECT_EQ(found[0].distance, GreatCircleDistance(50, 8, 50, 9));
  EXPECT_EQ(found[0].course, GreatCircleCourse(50, 8, 50, 9));
  EXPECT_EQ(found[0].row.Kind, RowKind::enroute);
  drawn.plan.Row(0).MagVar = 100;
  EXPECT_EQ(FindWaypoints(drawn.plan, drawn.world.database, "N50 E009")[0].magneticCourse,
            found[0].course + 260);
  ASSERT_TRUE(InsertAfterSelection(drawn.plan, drawn.context, found[0].row));
  EXPECT_EQ(drawn.Find("N51 E009"), "Uwp WP02");
}

TEST(WaypointSearch, TheInsertionRowIsNeverInsideAProcedure) {
  Waypoints drawn;
  EXPECT_EQ(InsertionRow(FlightPlan{}), 0);
  for (const char* code : {"S1", "S2"})
    drawn.Add("Fix", code, 50, 8.1F, RowKind::sid);
  for (const char* code : {"E1", "E2"})
    drawn.Add("Fix", code, 50, 9);
  for (const char* code : {"A1", "A2"})
    drawn.Add("Fix", code, 50, 13, RowKind::star);
  // 0 EDDA, 1 and 2 SID, 3 and 4 enroute, 5 and 6 STAR, 7 EDDB
  const int rows[] = {2, 2, 2, 3, 4, 4, 4, 4};
  for (int selected = 0; selected < 8; ++selected) {
    drawn.plan.SelectedRow = static_cast<std::int16_t>(selected);
    EXPECT_EQ(InsertionRow(drawn.plan), rows[selected]) << selected;
  }
}

TEST(WaypointSearch, AnInsertedWaypointPartsItsLeg) {
  Waypoints drawn;
  FlightPlan& plan = drawn.plan;
  const auto insert = [&](const char* ident) {
    const auto found = FindWaypoints(plan, drawn.world.database, ident);
    return InsertAfterSelection(plan, drawn.context, found.at(0).row);
  };
  drawn.Add("Int", "SOBRA", 50, 9).Airway = std::string_view("Y180");
  drawn.Add("Int", "OTHER", 50, 10).Airway = std::string_view("Y180");
  plan.SelectedRow = 1;
  EXPECT_TRUE(insert("SOBRO"));
  EXPECT_EQ(drawn.Codes(), "EDDA SOBRA SOBRO OTHER EDDB");
  EXPECT_EQ(plan.SelectedRow, 2) << "the next one goes behind it";
  EXPECT_TRUE(plan.Row(1).HasAirway());
  EXPECT_FALSE(plan.Row(3).HasAirway()) << "the leg from SOBRO is no airway";

  plan.SelectedRow = 1;
  plan.Row(2).Airway = std::string_view("Y180");
  EXPECT_FALSE(insert("SOBRA")) << "it is there already";
  EXPECT_EQ(drawn.Codes(), "EDDA SOBRA SOBRO OTHER EDDB");
  EXPECT_TRUE(plan.Row(2).HasAirway());
  plan.SelectedRow = 0;
  EXPECT_FALSE(insert("SOBRA"));
  EXPECT_EQ(plan.SelectedRow, 1);

  plan.SelectedRow = 4;
  EXPECT_TRUE(insert("FFMX"));
  EXPECT_EQ(drawn.Codes(), "EDDA SOBRA SOBRO OTHER FFMX EDDB");
}

TEST(WaypointSearch, WithoutAirportsThePilotIsSentToThem) {
  Waypoints drawn;
  ClearFlightPlan(drawn.plan);
  EXPECT_FALSE(InsertAfterSelection(drawn.plan, drawn.context, PlanWaypoint{}));
  ASSERT_EQ(drawn.messages.texts.size(), 1U);
  EXPECT_EQ(drawn.messages.texts[0],
            "Select the departure and destination airports first by pressing the button <Select Airport>!");
  EXPECT_EQ(drawn.plan, FlightPlan{});
}

}  // namespace
