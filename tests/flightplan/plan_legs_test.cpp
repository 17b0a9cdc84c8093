#include "flightplan/plan_legs.h"

#include <gtest/gtest.h>

#include "tests/flightplan/drawn_world.h"

namespace {

// Cruise 240 kts: a quarter of a minute a mile. Approach 120 kts: half a minute.
TEST(DestinationLeg, FliesTheLastThirtyMilesAtApproachSpeed) {
  const struct {
    double distance, minutes;
  } cases[] = {{0, 0}, {10, 5}, {29.9, 14.95}, {30, 15}, {30.1, 15.025}, {34, 16}, {130, 40}};
  for (const auto& c : cases)
    EXPECT_NEAR(DestinationLegMinutes(c.distance, SlowTwin()), c.minutes, 1e-9) << c.distance;
}

TEST(PlanLegs, ADirectPlanIsOneDestinationLeg) {
  DrawnPlan drawn("airport EDDA 0 0 0\nairport EDDB 0 2 0");
  ASSERT_EQ(drawn.plan.RowCount(), 2);
  EXPECT_NEAR(drawn.plan.Row(1).Dist, 120, 0.001);
  EXPECT_NEAR(drawn.plan.Row(1).Course, 90, 0.001);
  EXPECT_NEAR(drawn.plan.Row(1).EET, 22.5 + 15, 0.001);
  EXPECT_EQ(drawn.plan.TotalDistance, 120);
  EXPECT_EQ(drawn.plan.TotalMinutes, 38);  // 37.5, to the even
  EXPECT_TRUE(drawn.plan.PlanFiled);
  EXPECT_TRUE(drawn.plan.CanSave);
  EXPECT_EQ(drawn.plan.RouteType, RouteKind::direct);
}

TEST(PlanLegs, OnePlaceTwiceIsATinyLeg) {
  DrawnPlan drawn("airport EDDA 48 11 0\nairport EDDB 48 11 0");
  EXPECT_GT(drawn.plan.Row(1).Dist, 0);
  EXPECT_LT(drawn.plan.Row(1).Dist, 0.01);
  EXPECT_GE(drawn.plan.Row(1).Course, 0);
  EXPECT_LE(drawn.plan.Row(1).Course, 360);
}

TEST(PlanLegs, SumsRoundAfterEveryAddition) {
  DrawnPlan drawn("airport EDDA 0 0 0\nairport EDDB 0 2 0");
  for (const char* code : {"A", "B", "C", "D"})
    drawn.Add("Int", code, 1, 1);
  const float minutes[] = {0, 0.5f, 0.5f, 1.6f, 0.5f, 1.5f};
  for (int i = 0; i < 6; ++i)
    drawn.plan.Row(i).EET = drawn.plan.Row(i).Dist = minutes[i];
  EXPECT_EQ(ShowEta(drawn.plan), (std::vector<int>{0, 0, 0, 2, 2, 4}));
  ComputeTotals(drawn.plan);
  EXPECT_EQ(drawn.plan.TotalMinutes, 4);
  EXPECT_EQ(drawn.plan.TotalDistance, 4);
}

TEST(PlanLegs, MagneticCourseTakesTheVariationBefore) {
  DrawnPlan drawn("airport EDDA 0 0 0\nairport EDDB 0 2 0");
  drawn.Add("Int", "A", 1, 1).MagVar = 40;
  const struct {
    float course, variation, magnetic;
  } cases[] = {{90, 2.5f, 87.5f}, {1, 3, 358}, {359, -3, 2}, {0, 0, 0}, {360, 0, 360}};
  for (const auto& c : cases) {
    drawn.plan.Row(0).MagVar = c.variation;
    drawn.plan.Row(1).Course = c.course;
    EXPECT_FLOAT_EQ(MagneticCourse(drawn.plan, 1), c.magnetic) << c.course;
  }
}

TEST(PlanLegs, TheDirectionFollowsTheAirportsNotTheLegs) {
  DrawnPlan east("airport EDDA 0 0 0\nairport EDDB 0 20 0");
  EXPECT_FALSE(east.plan.Westbound);
  EXPECT_EQ(east.plan.CruiseFL, 250);
  DrawnPlan west("airport EDDA 0 20 0\nairport EDDB 0 0 0");
  EXPECT_TRUE(west.plan.Westbound);
  EXPECT_EQ(west.plan.CruiseFL, 240);
  west.Add("Int", "A", 0, 40);
  RecomputePlan(west.plan, west.context);
  EXPECT_TRUE(west.plan.Westbound);
}

TEST(SelectAircraft, ChangesTimesAndNothingElse) {
  DrawnPlan drawn("airport EDDA 0 0 0\nairport EDDB 0 20 0");
  drawn.Add("Int", "A", 0, 10).Course = 77;  // as a plan file may hold it
  RecomputePlan(drawn.plan, drawn.context);
  AircraftRec fast = SlowTwin();
  fast.CruiseSpeed = 480;
  fast.ApproachSpeed = 150;
  SelectAircraft(fast, drawn.aircraft, drawn.plan);
  EXPECT_EQ(drawn.aircraft.ApproachAltitude, 8500);
  EXPECT_NEAR(drawn.plan.Row(1).EET, 75, 0.01);
  EXPECT_NEAR(drawn.plan.Row(2).EET, 570 / 8.0 + 12, 0.01);
  EXPECT_EQ(drawn.plan.TotalMinutes, 158);
  EXPECT_EQ(drawn.plan.Row(1).Course, 77);
  EXPECT_EQ(drawn.plan.CruiseFL, 250);
}

}  // namespace
