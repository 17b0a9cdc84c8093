#include "flightplan/airway_route.h"

#include <gtest/gtest.h>

#include <cmath>

#include "flightplan/plan_legs.h"
#include "flightplan/route_generation.h"
#include "tests/flightplan/drawn_world.h"

namespace {

// Sixty miles a degree along the equator. A is 18 NM behind the departure, Z
// 12 NM before the destination.
const std::string alongTheEquator =
    "airport EDDA 0 0 0\nairport EDDB 0 10 0\n"
    "A 0 0.3\nB 0 3\nC 0 6\nZ 0 9.8\n";
const std::string straight =
    alongTheEquator + "A --162-- B V1 FL60-FL200\nB --180-- C V1 FL60-FL200\nC --228-- Z V2 FL80-FL200\n";

std::string Airways(const FlightPlan& plan) {
  std::string names;
  for (const PlanWaypoint& row : plan.rows)
    names += "[" + row.Airway.Text() + "]";
  return names;
}

struct Builder : DrawnPlan {
  using DrawnPlan::DrawnPlan;
  AirwaySearch search{world.database};

  bool Low() { return GenerateAirwayRoute(plan, context, search, AirwayNetwork::lowAltitude); }
  bool Leg(int row, char level = 'V') { return CreateAirwayRoute(plan, context, search, level, row); }
};

TEST(AirwayRoute, FillsAWholePlan) {
  Builder b(straight);
  for (int again = 0; again < 2; ++again) {
    ASSERT_TRUE(b.Low());
    EXPECT_EQ(b.Codes(), "EDDA A B C Z EDDB");
    EXPECT_EQ(Airways(b.plan), "[][][V1][V1][V2][]");
    EXPECT_EQ(b.plan.RouteType, RouteKind::lowAltitude);
    EXPECT_EQ(b.plan.RouteMethod, RouteGenerator::lowAltitude);
    EXPECT_EQ(b.plan.SelectedRow, 0);
    EXPECT_EQ(b.plan.TotalDistance, 600);
    EXPECT_TRUE(b.messages.texts.empty());
  }
  const PlanWaypoint& row = b.plan.Row(2);
  EXPECT_EQ(row.Sym, "Int");
  EXPECT_EQ(row.Name, "B");
  EXPECT_EQ(row.AirwayMinAlt, 6000);
  EXPECT_EQ(row.AirwayMaxAlt, 20000);
  EXPECT_EQ(row.Level, "V");
  EXPECT_EQ(row.DbIndex, b.world.Node("B"));
  EXPECT_EQ(row.Kind, RowKind::enroute);
}

TEST(AirwayRoute, FollowsTheLinksOfItsLevelInTheirDirection) {
  Builder b(alongTheEquator +
            "A --162-- B V1 FL60-FL200\nB --408-> Z V2 FL60-FL200\n"
            "A ==342=> C UL1 FL210-FL460\nC ==228=> Z UL2 FL210-FL460\nB ==1== Z UL3\n"
            "Y 0 -20\nZ --1788-> Y V3\n");
  ASSERT_TRUE(b.Low());
  EXPECT_EQ(b.Codes(), "EDDA A B Z EDDB");
  EXPECT_EQ(Airways(b.plan), "[][][V1][V2][]");
  ASSERT_TRUE(GenerateAirwayRoute(b.plan, b.context, b.search, AirwayNetwork::highAltitude));
  EXPECT_EQ(b.Codes(), "EDDA A C Z EDDB");
  EXPECT_EQ(Airways(b.plan), "[][][UL1][UL2][]");
  EXPECT_EQ(b.plan.RouteType, RouteKind::highAltitude);
  EXPECT_EQ(b.plan.RouteMethod, RouteGenerator::highAltitude);
  // Back again the low network leads from Z to Y alone.
  SetDepartureAndDestination(b.plan, b.context, 1, 0);
  EXPECT_FALSE(b.Low());
  EXPECT_EQ(b.Codes(), "EDDB EDDA");
  EXPECT_TRUE(b.messages.texts.back().starts_with("No airway routing possible from Z!!"));
}

TEST(AirwayRoute, LeavesTheProceduresInPlace) {
  Builder b(straight);
  b.Add("Fix", "DEP1", 0.1f, 0.1f, RowKind::sid);
  b.Add("Fix", "OLD", 2, 2);
  b.Add("Fix", "ARR1", 0.1f, 9.9f, RowKind::star);
  ASSERT_TRUE(b.Low());
  EXPECT_EQ(b.Codes(), "EDDA DEP1 A B C Z ARR1 EDDB");
  ASSERT_TRUE(b.Low());
  EXPECT_EQ(b.Codes(), "EDDA DEP1 A B C Z ARR1 EDDB");
}

TEST(AirwayRoute, FillsOnlyTheLegBehindTheSelectedRow) {
  Builder b(straight);
  b.Add("Fix", "KEEP1", 0.1f, 2.9f);
  b.Add("Fix", "KEEP2", 0.1f, 6.2f);
  b.plan.SelectedRow = 1;
  ASSERT_TRUE(b.Low());
  EXPECT_EQ(b.Codes(), "EDDA KEEP1 B C KEEP2 EDDB");
  EXPECT_EQ(b.plan.RouteType, RouteKind::navaid);
  EXPECT_EQ(b.plan.SelectedRow, 1);
}

TEST(AirwayRoute, WarnsOfAnAirwayAboveTheAircraft) {
  Builder b(straight);
  b.aircraft.CruiseFlightLevel = 59;
  ASSERT_TRUE(b.Low());
  EXPECT_EQ(b.plan.RowCount(), 6);
  // The first airway above the level, not the highest.
  EXPECT_EQ(b.messages.texts, (std::vector<std::string>{
                                  "\nILLEGAL FLIGHT PLAN FOR CURRENT AIRCRAFT!    \n\n6000 minimal altitude "
                                  "required on airway V1!    "}));
  b.messages.texts.clear();
  b.aircraft.CruiseFlightLevel = 60;
  ASSERT_TRUE(b.Low());
  ASSERT_EQ(b.messages.texts.size(), 1u);
  EXPECT_NE(b.messages.texts[0].find("8000 minimal altitude required on airway V2!"), std::string::npos);
}

// A row before the destination, and what becomes of it when it is the entry.
struct EntryRowCase {
  const char* name;
  const char *sym, *code;
  float lon;
  RowKind kind;
  const char* codes;
};

const EntryRowCase entryRowCases[] = {
    {"an intersection comes back with the route", "Int", "B", 3, RowKind::enroute, "EDDA B C Z EDDB"},
    {"a VOR of the entry's name gives way", "VOR", "B", 3.01f, RowKind::enroute, "EDDA B C Z EDDB"},
    {"a VOR of a SID stays, the entry goes", "VOR", "B", 3.01f, RowKind::sid, "EDDA B C Z EDDB"},
    {"a VOR too far from the entry of its name", "VOR", "B", 2.98f, RowKind::enroute, "EDDA B B C Z EDDB"},
    {"a VOR of another name", "VOR", "FFM", 3, RowKind::enroute, "EDDA FFM B C Z EDDB"},
};

TEST(AirwayRoute, TakesThePlaceOfARowThatIsItsEntry) {
  for (const EntryRowCase& c : entryRowCases) {
    SCOPED_TRACE(c.name);
    Builder b(straight);
    PlanWaypoint& row = b.Add(c.sym, c.code, 0, c.lon, c.kind);
    row.DbIndex = row.Sym == "Int" ? b.world.Node(c.code) : 7;
    row.Level = row.Sym == "Int" ? "V" : "";
    EXPECT_TRUE(b.Leg(1));
    EXPECT_EQ(b.Codes(), c.codes);
  }
}

TEST(FindEntryFix, PrefersTheRowsOwnNode) {
  // Two nodes bear the VOR's name and lie on it; the last one on the network counts.
  Builder b(straight + "FFM 0 1\nFFM2 0 1\nFFM3 0 1\nFFM --9-- A V3\nFFM2 --9-- A V3\nFFM3 ==9== A UL3\n");
  for (const char* code : {"FFM2", "FFM3"}) {
    b.world.database.intersections[static_cast<std::size_t>(b.world.Node(code))].strCode = "FFM";
  }
  BuildIndexes(b.world.database);
  b.Add("VOR", "FFM", 0, 1);
  float radius = 30;
  EXPECT_EQ(FindEntryFix(b.plan, b.context, 1, 'V', radius), b.world.Node("FFM2"));
  EXPECT_EQ(FindEntryFix(b.plan, b.context, 1, 'J', radius), b.world.Node("FFM3"));
}

struct EntryCase {
  const char* name;
  const char* nodes;  // besides far away F at 0, 5
  char level;
  const char* entry;  // empty: none
  float radius;
};

const EntryCase entryCases[] = {
    {"straight ahead", "P 0 0.4\nQ 0.1 0.4\nP --1-> F V1\nQ --1-> F V1", 'V', "P", 30},
    {"of equals the first", "P 0.1 0.4\nQ -0.1 0.4\nP --1-> F V1\nQ --1-> F V1", 'V', "P", 30},
    {"its link leads back", "P 0 0.4\nQ 0.1 0.4\nP --1-> W V1\nQ --1-> F V1\nW 0 -1", 'V', "Q", 30},
    {"its link on the other network leads on",
     "P 0 0.4\nQ 0.1 0.4\nP ==1=> F V1\nP --1-> W V1\nQ --1-> F V1\nW 0 -1", 'V', "Q", 30},
    {"behind the row, but leading on", "P 0 -0.2\nP --1-> F V1", 'V', "P", 30},
    {"on the other network", "P 0 0.4\nP ==1=> F V1", 'V', "", 310},
    {"on both", "P 0 0.4\nP --1-> F V1\nP ==1=> F V1", 'J', "P", 30},
    {"found in a wider circle", "P 0 0.6\nP --1-> F V1", 'V', "P", 50},
    {"just within the widest", "P 0 4.8\nP --1-> F V1", 'V', "P", 290},
    {"beyond the widest", "P 0 4.9\nP --1-> F V1", 'V', "", 310},
    {"link within sixty degrees", "P 0 0.4\nP --1-> U V1\nU 1.7 1.4", 'V', "P", 30},
    {"link past sixty degrees", "P 0 0.4\nP --1-> U V1\nU 1.8 1.4", 'V', "", 310},
};

TEST(FindEntryFix, LooksForAFixTowardsTheNextRow) {
  for (const EntryCase& c : entryCases) {
    SCOPED_TRACE(c.name);
    Builder b("airport EDDA 0 0 0\nairport EDDB 0 10 0\nF 0 5.5\n" + std::string(c.nodes));
    float radius = 30;
    const int entry = FindEntryFix(b.plan, b.context, 0, c.level, radius);
    EXPECT_EQ(entry < 0 ? "" : b.world.Code(entry), c.entry);
    EXPECT_EQ(radius, c.radius);
    EXPECT_EQ(b.messages.texts.size(), entry < 0 ? 1u : 0u);
    if (entry < 0) {
      EXPECT_EQ(b.messages.texts[0], "No fix found within 300nm of insertion waypoint!");
    }
  }
}

// The radius itself, with the distance measured as the program does.
TEST(FindEntryFix, RefusesTheRadius) {
  Builder b("airport EDDA 0 0 0\nairport EDDB 0 10 0\nP 0.4 0\nF 0 5.5\nP --1-> F V1");
  IntersectionRec& node = b.world.database.intersections[static_cast<std::size_t>(b.world.Node("P"))];
  for (node.sngLat = 0.499F; GreatCircleDistance(0, 0, node.sngLat, 0) < 30;)
    node.sngLat = std::nextafter(node.sngLat, 90.0F);
  node.sngLon = 0;
  BuildIndexes(b.world.database);
  ASSERT_EQ(GreatCircleDistance(0, 0, node.sngLat, 0), 30);
  float radius = 30;
  EXPECT_EQ(FindEntryFix(b.plan, b.context, 0, 'V', radius), b.world.Node("P"));
  EXPECT_EQ(radius, 50);
}

TEST(FindExitRadius, FindsTheSmallestCircleThatHoldsAFix) {
  const struct {
    const char* node;  // degrees before the destination at 0, 10
    float radius;
  } cases[] = {
      {"P 0 9.5", 35},   {"P 0 9.917", -1} /* 4.98 NM */,
      {"P 0 9.916", 35}, {"P 0 9.42", 35},
      {"P 0 9.41", 60},  {"P 0 1.92", 485},
      {"P 0 1.91", -1},
  };
  for (const auto& c : cases) {
    Builder b("airport EDDA 0 0 0\nairport EDDB 0 10 0\n" + std::string(c.node) + "\nP --1-> P V1");
    EXPECT_EQ(FindExitRadius(b.plan, b.context, 0, 'V'), c.radius) << c.node;
    EXPECT_EQ(FindExitRadius(b.plan, b.context, 0, 'J'), -1);
    EXPECT_EQ(b.messages.texts.back(), "No fix found within 500nm of destination waypoint!");
  }
}

// 5 NM and the radius themselves, with the distance measured as the program does.
TEST(FindExitRadius, TakesFiveMilesAndRefusesTheRadius) {
  Builder b("airport EDDA 0 0 0\nairport EDDB 0 10 0\nP 0 9.5\nP --1-> P V1");
  IntersectionRec& node = b.world.database.intersections[1];
  const auto moveTo = [&](float distance) {
    for (node.sngLat = distance / 60.5f; GreatCircleDistance(0, 10, node.sngLat, 10) < distance;) {
      node.sngLat = std::nextafter(node.sngLat, 90.0f);
    }
    node.sngLon = 10;
    BuildIndexes(b.world.database);
    return GreatCircleDistance(0, 10, node.sngLat, 10);
  };
  ASSERT_EQ(moveTo(35), 35);
  EXPECT_EQ(FindExitRadius(b.plan, b.context, 0, 'V'), 60);
  if (moveTo(5) == 5) {
    EXPECT_EQ(FindExitRadius(b.plan, b.context, 0, 'V'), 35);
  }
}

TEST(AirwayRoute, WidensTheCircleWhenTheEntryLeadsNowhere) {
  // P's airway ends at X. Q is 38 NM away and less off the course.
  const std::string deadEnd = alongTheEquator + "P 0.1 0.2\nX 0.1 1\nP --10-> X V9\nC --228-- Z V2\n";
  Builder b(deadEnd + "Q 0.2 0.6\nQ --200-- C V1\n");
  ASSERT_TRUE(b.Low());
  EXPECT_EQ(b.Codes(), "EDDA Q C Z EDDB");
  EXPECT_TRUE(b.messages.texts.empty());

  Builder c(deadEnd);
  EXPECT_FALSE(c.Low());
  EXPECT_EQ(c.Codes(), "EDDA EDDB");
  EXPECT_EQ(c.messages.texts,
            (std::vector<std::string>{"No airway routing possible from P!!\nChoose different "
                                      "airway intersection manually!"}));
}

TEST(AirwayRoute, LeavesThePlanWhenThereIsNoRoute) {
  Builder b(alongTheEquator + "A --162-- B V1\nC --228-- Z V2");
  PlanWaypoint& row = b.Add("Int", "B", 0, 3);
  row.DbIndex = b.world.Node("B");
  row.Level = "V";
  RecomputePlan(b.plan, b.context);
  FlightPlan before = b.plan;
  EXPECT_FALSE(b.Leg(1));
  ASSERT_EQ(b.messages.texts.size(), 1u);
  EXPECT_EQ(b.plan.rows, before.rows);
  EXPECT_EQ(b.plan.RouteType, before.RouteType);
  EXPECT_EQ(b.plan.RouteMethod, RouteGenerator::lowAltitude);
}

TEST(AirwayRoute, LeavesAPlanWithoutRoomForTheRoute) {
  Builder b(straight);
  PlanWaypoint filler;
  filler.Code = "X";
  b.plan.rows.insert(b.plan.rows.begin() + 1, 997, filler);
  b.plan.Row(1).Lon = 0.2f;
  const FlightPlan before = b.plan;
  EXPECT_THROW(b.Leg(b.plan.DestinationRow() - 1), std::length_error);
  EXPECT_EQ(b.plan.rows, before.rows);
}

TEST(AirwayRoute, NeedsAFiledPlan) {
  Builder b(straight);
  ClearFlightPlan(b.plan);
  EXPECT_FALSE(b.Low());
  EXPECT_EQ(b.plan.RowCount(), 0);
}

}  // namespace
