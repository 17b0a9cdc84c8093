// Segments put into the plan: in their order, with the plan's own order kept.
#include "flightplan/segment_insertion.h"

#include <gtest/gtest.h>

#include "flightplan/route_string.h"
#include "tests/flightplan/drawn_world.h"

namespace {

const char* const world =
    "airport EDDA 50 8 0\nairport EDDB 50 18 0\nA 50 9\nB 50 10\nC 50 11\nD 50 12\nvor D 50 12\n";

PlanWaypoint Row(const char* sym, const char* code, float lon, RowKind kind = RowKind::enroute,
                 const char* airway = "") {
  PlanWaypoint row;
  row.Sym = std::string_view(sym);
  row.Code = std::string_view(code);
  row.Name = std::string_view(code);
  row.Lat = 50;
  row.Lon = lon;
  row.Kind = kind;
  row.Airway = std::string_view(airway);
  return row;
}

// "EDDA s:A B t:C EDDB"
std::string KindsOf(const FlightPlan& plan) {
  std::string text;
  for (const PlanWaypoint& row : plan.rows)
    text += (text.empty() ? "" : " ") +
            std::string(row.Kind == RowKind::sid    ? "s:"
                        : row.Kind == RowKind::star ? "t:"
                                                    : "") +
            row.Code.Text();
  return text;
}

TEST(SegmentInsertion, ComputesThePlanAnew) {
  DrawnPlan drawn(world);
  drawn.Add("Int", "A", 50, 9);
  drawn.plan.SelectedRow = 1;
  PlanWaypoint gone = Row("VOR", "GONE", 11.5F);
  gone.DbIndex = 99999;
  PlanWaypoint known = Row("Int", "B", 10);
  known.DbIndex = 77;
  InsertSegment(drawn.plan, drawn.context, 1, {known, gone});
  EXPECT_EQ(drawn.Codes(), "EDDA A B GONE EDDB");
  EXPECT_EQ(drawn.plan.Row(2).DbIndex, 2) << "of the database at hand";
  EXPECT_EQ(drawn.plan.Row(3).DbIndex, -1) << "not there, inserted all the same";
  EXPECT_EQ(drawn.plan.Row(3).Lon, 11.5F);
  EXPECT_EQ(drawn.plan.SelectedRow, 3);
  EXPECT_EQ(drawn.plan.RouteType, RouteKind::navaid);
  // One degree along the parallel of 50 is 38.57 NM.
  EXPECT_NEAR(drawn.plan.Row(3).Dist, 57.85, 0.05);
  EXPECT_NEAR(drawn.plan.Row(4).Dist, 250.6, 0.3);
  EXPECT_EQ(drawn.plan.TotalDistance, 387) << "38.6 is 39, + 38.6 is 78, + 57.8 is 136, + 250.6 is 387";
  EXPECT_EQ(drawn.plan.MissingWaypoints, false);
}

TEST(SegmentInsertion, KeepsTheOrderOfKinds) {
  constexpr RowKind sid = RowKind::sid, enroute = RowKind::enroute, star = RowKind::star;
  struct Case {
    int after;
    std::vector<RowKind> kinds;
    const char* plan;
  };
  const Case cases[] = {
      {0, {sid, star}, "EDDA s:X s:Y s:A s:B C t:D t:E EDDB"},
      {1, {enroute}, "EDDA s:A s:X s:B C t:D t:E EDDB"},
      {2, {sid, sid}, "EDDA s:A s:B s:X s:Y C t:D t:E EDDB"},
      {2, {enroute, sid}, "EDDA s:A s:B X Y C t:D t:E EDDB"},
      {3, {sid, star}, "EDDA s:A s:B C X t:Y t:D t:E EDDB"},
      {3, {star, enroute}, "EDDA s:A s:B C X Y t:D t:E EDDB"},
      {4, {enroute}, "EDDA s:A s:B C t:D t:X t:E EDDB"},
      {5, {sid, enroute}, "EDDA s:A s:B C t:D t:E t:X t:Y EDDB"},
  };
  for (const Case& c : cases) {
    DrawnPlan drawn(world);
    drawn.Add("Int", "A", 50, 9, sid);
    drawn.Add("Int", "B", 50, 10, sid);
    drawn.Add("Int", "C", 50, 11);
    drawn.Add("Int", "D", 50, 12, star);
    drawn.Add("Fix", "E", 50, 13, star);
    std::vector<PlanWaypoint> rows;
    for (const RowKind kind : c.kinds)
      rows.push_back(Row("Uwp", rows.empty() ? "X" : "Y", rows.empty() ? 14.0F : 16.0F, kind));
    InsertSegment(drawn.plan, drawn.context, c.after, rows);
    EXPECT_EQ(KindsOf(drawn.plan), c.plan);
  }
}

TEST(SegmentInsertion, JoinsThePlansOwnWaypoints) {
  DrawnPlan drawn(world);
  drawn.Add("Int", "A", 50, 9);
  drawn.Add("Int", "D", 50, 12).Airway = "V9";
  InsertSegment(drawn.plan, drawn.context, 1,
                {Row("Int", "A", 9), Row("Int", "B", 10, RowKind::enroute, "V1"),
                 Row("Int", "D", 12, RowKind::enroute, "V1")});
  EXPECT_EQ(drawn.Codes(), "EDDA A B D EDDB");
  EXPECT_EQ(drawn.plan.Row(2).Airway, "V1");
  EXPECT_EQ(drawn.plan.Row(3).Airway, "V1") << "V9 does not lead to D from B";
  // The airway of the leg that is torn in two goes.
  InsertSegment(drawn.plan, drawn.context, 2, {Row("Uwp", "X", 10.5F)});
  EXPECT_EQ(drawn.Codes(), "EDDA A B X D EDDB");
  EXPECT_FALSE(drawn.plan.Row(4).HasAirway());
}

TEST(SegmentInsertion, RefusesWithoutAChange) {
  DrawnPlan drawn(world);
  drawn.Add("Int", "A", 50, 9);
  EXPECT_EQ(InsertionFault(drawn.plan, -1, 1), "You have to select a waypoint for insertion!");
  EXPECT_EQ(InsertionFault(drawn.plan, 0, 1), "");
  EXPECT_EQ(InsertionFault(drawn.plan, 1, 1), "");
  EXPECT_EQ(InsertionFault(drawn.plan, 2, 1), "you cannot select the final waypoint for insertion!");
  EXPECT_EQ(InsertionFault(drawn.plan, 1, 0), "The segment has no waypoints!");
  const FlightPlan before = drawn.plan;
  EXPECT_THROW(InsertSegment(drawn.plan, drawn.context, 2, {Row("Uwp", "X", 10)}), std::out_of_range);
  const std::vector<PlanWaypoint> most(998, Row("Uwp", "X", 10));
  std::vector<PlanWaypoint> tooMany = most;
  tooMany.push_back(most.front());
  EXPECT_THROW(InsertSegment(drawn.plan, drawn.context, 1, tooMany), std::length_error);
  EXPECT_EQ(InsertionFault(drawn.plan, 1, 999), "The flight plan has no room for the segment's waypoints!");
  EXPECT_EQ(drawn.plan, before);
  EXPECT_NO_THROW(InsertSegment(drawn.plan, drawn.context, 1, most));
}

// They are in no procedure that a name in the route string would stand for.
TEST(SegmentInsertion, RowsOfANamelessProcedureStandInTheRouteString) {
  DrawnPlan drawn(world);
  InsertSegment(drawn.plan, drawn.context, 0,
                {Row("Int", "A", 9, RowKind::sid), Row("Int", "D", 12, RowKind::star)});
  EXPECT_EQ(KindsOf(drawn.plan), "EDDA s:A t:D EDDB");
  EXPECT_EQ(RouteStringFromPlan(drawn.plan), "EDDA A D EDDB");
}

}  // namespace
