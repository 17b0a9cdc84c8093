#include "flightplan/plan_rows.h"

#include <gtest/gtest.h>

#include "flightplan/plan_legs.h"
#include "tests/flightplan/drawn_world.h"

namespace {

constexpr const char* twoAirports = "airport EDDA 0 0 0\nairport EDDB 0 10 0";

PlanWaypoint Fix(const char* code, float lat, float lon) {
  PlanWaypoint row;
  row.Sym = "Fix";
  row.Code = code;
  row.Lat = lat;
  row.Lon = lon;
  return row;
}

TEST(SetDepartureAndDestination, ReplacesThePlan) {
  DrawnPlan drawn("airport EDDA 50 8 0\nairport EDDB 48 11 0");
  drawn.Add("Int", "A", 49, 9);
  drawn.plan.AlternateIndex = 1;
  SetDepartureAndDestination(drawn.plan, drawn.context, 1, 0);
  EXPECT_EQ(drawn.Codes(), "EDDB EDDA");
  EXPECT_EQ(drawn.plan.AlternateIndex, -1);
  EXPECT_EQ(drawn.plan.DepartureLat, 48);
  EXPECT_EQ(drawn.plan.DestinationLon, 8);
  EXPECT_EQ(drawn.plan.Row(0).Kind, RowKind::departure);
  EXPECT_EQ(drawn.plan.Row(1).Kind, RowKind::destination);
  for (const int bad : {-1, 3}) {
    EXPECT_THROW(SetDepartureAndDestination(drawn.plan, drawn.context, 0, bad), std::out_of_range);
    EXPECT_EQ(drawn.Codes(), "EDDB EDDA");
  }
}

TEST(InsertWaypoint, ComputesTheLegsBehindIt) {
  DrawnPlan drawn(twoAirports);
  drawn.Add("Int", "B", 0, 6);
  int after = -5;
  InsertWaypoint(drawn.plan, drawn.context, after, Fix("A", 0, 2), false);
  EXPECT_EQ(after, 1);
  EXPECT_EQ(drawn.Codes(), "EDDA A B EDDB");
  EXPECT_NEAR(drawn.plan.Row(1).Dist, 120, 0.01);
  EXPECT_NEAR(drawn.plan.Row(1).EET, 30, 0.01);
  EXPECT_NEAR(drawn.plan.Row(2).Dist, 240, 0.01);
  EXPECT_NEAR(drawn.plan.Row(2).Course, 90, 0.01);
  EXPECT_NEAR(drawn.plan.Row(3).Dist, 240, 0.01);
  EXPECT_EQ(drawn.plan.RouteType, RouteKind::navaid);
  EXPECT_EQ(drawn.plan.TotalMinutes, 158);  // still of the direct plan
  InsertWaypoint(drawn.plan, drawn.context, after, Fix("C", 1, 2), true);
  EXPECT_EQ(after, 2);
  EXPECT_EQ(drawn.plan.SelectedRow, 2);
  EXPECT_EQ(drawn.plan.TotalDistance, 120 + 60 + 247 + 240);
}

TEST(InsertWaypoint, NumbersUserFixesByTheirRow) {
  DrawnPlan drawn(twoAirports);
  int after = 0;
  for (int i = 0; i < 3; ++i) {
    InsertWaypoint(drawn.plan, drawn.context, after, Fix("Fix", 0, 2.0f + static_cast<float>(i)), false);
  }
  EXPECT_EQ(drawn.plan.Row(3).Name.View(), "Fix 03");
  after = 0;
  InsertWaypoint(drawn.plan, drawn.context, after, Fix("FIXED", 0, 1), false);
  EXPECT_EQ(drawn.Codes(), "EDDA FIXED Fix 02 Fix 03 Fix 04 EDDB");
  DeleteWaypoint(drawn.plan, drawn.context, 2, false);
  EXPECT_EQ(drawn.Codes(), "EDDA FIXED Fix 02 Fix 03 EDDB");
  EXPECT_EQ(drawn.plan.Row(2).Lon, 3);
}

TEST(InsertWaypoint, LeavesAPlanItCannotChange) {
  DrawnPlan drawn(twoAirports);
  int after = 1;
  EXPECT_THROW(InsertWaypoint(drawn.plan, drawn.context, after, Fix("A", 0, 2), true), std::out_of_range);
  EXPECT_EQ(drawn.Codes(), "EDDA EDDB");
  PlanWaypoint filler = Fix("A", 0, 2);
  drawn.plan.rows.insert(drawn.plan.rows.begin() + 1, 998, filler);
  after = 0;
  InsertWaypoint(drawn.plan, drawn.context, after, Fix("B", 0, 2), false);
  EXPECT_EQ(drawn.plan.DestinationRow(), 1000);
  const FlightPlan full = drawn.plan;
  EXPECT_THROW(InsertWaypoint(drawn.plan, drawn.context, after, Fix("C", 0, 2), true), std::length_error);
  EXPECT_EQ(drawn.plan.rows, full.rows);
  EXPECT_EQ(after, 1);
  FlightPlan empty;
  EXPECT_THROW(InsertWaypoint(empty, drawn.context, after, Fix("C", 0, 2), true), std::out_of_range);
}

TEST(DeleteWaypoint, MakesTheNextLegDirectUnlessOnTheSameAirway) {
  const struct {
    const char *removed, *following, *result;
  } cases[] = {{"V1", "V1", "V1"}, {"V1", "V2", ""}, {"", "V2", ""}, {"V1", "", ""}};
  for (const auto& c : cases) {
    DrawnPlan drawn(twoAirports);
    drawn.Add("Int", "A", 0, 2).Airway = c.removed;
    PlanWaypoint& following = drawn.Add("Int", "B", 0, 4);
    following.Airway = c.following;
    following.AirwayMinAlt = 5000;
    DeleteWaypoint(drawn.plan, drawn.context, 1, true);
    EXPECT_EQ(drawn.Codes(), "EDDA B EDDB");
    EXPECT_EQ(drawn.plan.Row(1).Airway.View(), c.result) << c.removed << " " << c.following;
    EXPECT_EQ(drawn.plan.Row(1).AirwayMinAlt, *c.result == '\0' ? -1 : 5000);
    EXPECT_NEAR(drawn.plan.Row(1).Dist, 240, 0.01);
    for (const int airport : {-1, 0, 2, 3}) {
      EXPECT_THROW(DeleteWaypoint(drawn.plan, drawn.context, airport, true), std::out_of_range) << airport;
    }
  }
}

TEST(DeleteWaypoint, KeepsTheSelectionOnItsRow) {
  const struct {
    int selected, removed, left;
  } cases[] = {{3, 1, 2}, {1, 3, 1}, {2, 2, 1}, {1, 1, 0}, {0, 1, 0}};
  for (const auto& c : cases) {
    DrawnPlan drawn(twoAirports);
    for (const char* code : {"A", "B", "C"})
      drawn.Add("Int", code, 1, 1);
    drawn.plan.SelectedRow = static_cast<std::int16_t>(c.selected);
    DeleteWaypoint(drawn.plan, drawn.context, c.removed, false);
    EXPECT_EQ(drawn.plan.SelectedRow, c.left) << c.selected << " " << c.removed;
  }
}

struct DoubledCase {
  const char* name;
  const char* secondCode;
  float secondLon;  // the first lies at 0, 2
  RowKind kind;     // of both
  const char* secondLevel;
  const char* codes;
  const char* airway;  // of the first afterwards; it was V1, the second's is V2
};

const DoubledCase doubledCases[] = {
    {"same place", "FFM", 2, RowKind::enroute, "X", "EDDA FFM C EDDB", "V1"},
    {"small letters", "ffm", 2, RowKind::enroute, "", "EDDA FFM C EDDB", "V1"},
    {"on the victor network", "FFM", 2, RowKind::enroute, "V", "EDDA FFM C EDDB", "V2"},
    {"on the jet network", "FFM", 2, RowKind::enroute, "J", "EDDA FFM C EDDB", "V2"},
    {"of a STAR", "FFM", 2, RowKind::star, "X", "EDDA FFM C EDDB", "V2"},
    {"close together", "FFM", 2.016f, RowKind::enroute, "J", "EDDA FFM C EDDB", "V2"},
    {"further apart", "FFM", 2.018f, RowKind::enroute, "J", "EDDA FFM FFM C EDDB", "V1"},
    {"other code", "FFX", 2, RowKind::enroute, "J", "EDDA FFM FFX C EDDB", "V1"},
};

TEST(RebuildTable, RemovesDoubledNeighbours) {
  for (const DoubledCase& c : doubledCases) {
    SCOPED_TRACE(c.name);
    DrawnPlan drawn(twoAirports);
    drawn.Add("VOR", "FFM", 0, 2, c.kind).Airway = "V1";
    PlanWaypoint& second = drawn.Add("Int", c.secondCode, 0, c.secondLon, c.kind);
    second.Airway = "V2";
    second.AirwayMinAlt = 5000;
    second.Level = c.secondLevel;
    drawn.Add("Int", "C", 0, 4);
    RebuildTable(drawn.plan, drawn.context);
    EXPECT_EQ(drawn.Codes(), c.codes);
    EXPECT_EQ(drawn.plan.Row(1).Airway.View(), c.airway);
    EXPECT_EQ(drawn.plan.Row(1).AirwayMinAlt, std::string_view(c.airway) == "V2" ? 5000 : -1);
  }
}

TEST(RebuildTable, RemovesAWholeRunOfDoubles) {
  DrawnPlan drawn(twoAirports);
  for (int i = 0; i < 4; ++i)
    drawn.Add("Int", "A", 0, 2);
  int after = 4;
  InsertWaypoint(drawn.plan, drawn.context, after, drawn.plan.Row(1), true);
  EXPECT_EQ(drawn.Codes(), "EDDA A EDDB");
  EXPECT_EQ(after, 1);
  EXPECT_EQ(drawn.plan.SelectedRow, 1);
}

TEST(DeleteEnrouteWaypoints, AsksFirst) {
  DrawnPlan drawn(twoAirports);
  EXPECT_FALSE(DeleteEnrouteWaypoints(drawn.plan, drawn.context));
  for (const RowKind kind : {RowKind::sid, RowKind::enroute, RowKind::star})
    drawn.Add("Int", "A", 1, 2, kind);
  drawn.plan.SidName = "TABUM1F";
  drawn.messages.answer = false;
  EXPECT_FALSE(DeleteEnrouteWaypoints(drawn.plan, drawn.context));
  EXPECT_EQ(drawn.plan.RowCount(), 5);
  EXPECT_EQ(drawn.plan.SidRows(), 1);
  EXPECT_EQ(drawn.plan.StarRows(), 1);
  drawn.messages.answer = true;
  EXPECT_TRUE(DeleteEnrouteWaypoints(drawn.plan, drawn.context));
  EXPECT_EQ(drawn.Codes(), "EDDA EDDB");
  EXPECT_EQ(drawn.plan.SidName, "");
  EXPECT_EQ(drawn.plan.CruiseFL, 0);
  EXPECT_EQ(drawn.plan.TotalDistance, 0);
  EXPECT_EQ(drawn.messages.texts,
            (std::vector<std::string>{"There is no flight plan with waypoints to be deleted!",
                                      "Are you sure you want to delete all enroute waypoints?",
                                      "Are you sure you want to delete all enroute waypoints?"}));
}

}  // namespace
