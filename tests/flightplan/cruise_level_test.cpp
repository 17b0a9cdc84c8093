#include "flightplan/cruise_level.h"

#include <gtest/gtest.h>

#include <cmath>

#include "flightplan/plan_legs.h"
#include "tests/flightplan/drawn_world.h"

namespace {

TEST(SemicircularLevel, OddEastEvenWest) {
  const struct {
    double course;
    int feet, level;
    bool westbound;
  } cases[] = {
      {0, 35000, 350, false},  {90, 36000, 350, false}, {179.99, 34000, 330, false}, {180, 35000, 340, true},
      {180, 36000, 360, true}, {270, 35000, 340, true}, {359.9, 34000, 340, true},   {90, 35900, 359, false},
      {90, 36500, 355, false}, {270, 35500, 345, true}, {360, 12000, 120, true},     {45, 1000, 10, false},
  };
  for (const auto& c : cases) {
    const CruiseLevel level = SemicircularLevel(c.course, c.feet);
    EXPECT_EQ(level.CruiseFL, c.level) << c.course << " " << c.feet;
    EXPECT_EQ(level.Westbound, c.westbound) << c.course << " " << c.feet;
  }
}

// The distances were computed apart from this program by the model's formula.
TEST(ClimbModel, DistancesAndTimes) {
  AircraftRec aircraft = SlowTwin();
  EXPECT_NEAR(ClimbDistance(25000, 364, aircraft), 74.497819, 1e-5);
  aircraft.DescentSpeed = 250;
  aircraft.DescentRate = 1800;
  EXPECT_NEAR(DescentDistance(35000, 1487, aircraft), 101.013669, 1e-5);
  EXPECT_EQ(ClimbTime(10500, 0, aircraft), 10);
  EXPECT_EQ(ClimbTime(11500, 0, aircraft), 12);
  EXPECT_EQ(DescentTime(18000, 0, aircraft), 10);
  aircraft.ClimbRate = 0;
  EXPECT_TRUE(std::isnan(ClimbDistance(25000, 0, aircraft)));
  EXPECT_EQ(ClimbTime(25000, 0, aircraft), 0);
}

// Climb and descent of 7000 ft take 18.485 NM each, of 8000 ft 21.293 NM.
TEST(ProposeAltitude, WalksDownUntilThePlanIsLongEnough) {
  const struct {
    int totalDistance, elevation, feet;
  } cases[] = {
      {1000, 0, 25000},  // the aircraft's cruise level
      {54, 0, 8000},     // 53.585 is less than 54
      {53, 0, 7000},     // but not than 53
      {12, 0, 0},        // 11 NM and nothing to climb in
      {38, 6000, 8000},  // 37.866, as low as 2000 above the field
      {38, 6001, 0},     // lower is not proposed
      {37, 6000, 0},
  };
  for (const auto& c : cases) {
    DrawnPlan drawn("airport EDDA 0 0 0\nairport EDDB 0 1 0");
    drawn.world.database.airports[0].lngElevation = c.elevation;
    drawn.plan.TotalDistance = c.totalDistance;
    EXPECT_EQ(ProposeAltitude(drawn.plan, drawn.context), c.feet) << c.totalDistance << " " << c.elevation;
  }
}

TEST(ProposeAltitude, GivesLevelZeroToAPlanTooShort) {
  for (const char* drawing :
       {"airport EDDA 0 0 0\nairport EDDB 0 0.1 0", "airport EDDA 0 0.1 0\nairport EDDB 0 0 0"}) {
    DrawnPlan drawn(drawing);
    EXPECT_EQ(drawn.plan.TotalDistance, 6);
    EXPECT_EQ(drawn.plan.CruiseFL, 0);
  }
}

TEST(ProposeAltitude, SurvivesAnAircraftWithoutFigures) {
  DrawnPlan drawn("airport EDDA 0 0 0\nairport EDDB 0 30 0");
  for (const int level : {0, -1, 2147483647}) {
    drawn.aircraft = AircraftRec{};
    drawn.aircraft.CruiseFlightLevel = level;
    RecomputePlan(drawn.plan, drawn.context);
    EXPECT_EQ(drawn.plan.CruiseFL, 0);
    EXPECT_EQ(drawn.plan.TotalMinutes, 0);
    EXPECT_EQ(drawn.plan.TotalDistance, 1800);
  }
}

TEST(LevelButtons, StayWithinTheirLimits) {
  const struct {
    const char* name;
    int level, ceiling, totalDistance;
    bool up;
    int result;
  } cases[] = {
      {"down", 250, 300, 900, false, 230},
      {"down to 20", 30, 300, 900, false, 20},
      {"not below 20", 20, 300, 900, false, 20},
      {"up", 250, 300, 900, true, 270},
      {"up to the ceiling", 280, 300, 900, true, 300},
      {"not past the ceiling", 290, 300, 900, true, 290},
      {"not past 600", 600, 900, 9000, true, 600},
      {"up to 600", 580, 900, 9000, true, 600},
      {"plan long enough", 60, 300, 43, true, 80},
      {"plan too short", 60, 300, 42, true, 60},
  };
  for (const auto& c : cases) {
    DrawnPlan drawn("airport EDDA 0 0 0\nairport EDDB 0 1 0");
    drawn.aircraft.Ceiling = c.ceiling;
    drawn.plan.CruiseFL = c.level;
    drawn.plan.TotalDistance = c.totalDistance;
    const auto press = [&] {
      c.up ? RaiseCruiseLevel(drawn.plan, drawn.context) : LowerCruiseLevel(drawn.plan);
    };
    press();
    EXPECT_EQ(drawn.plan.CruiseFL, c.result) << c.name;
    drawn.plan.CruiseFL = c.level;
    drawn.plan.CanSave = false;
    press();
    EXPECT_EQ(drawn.plan.CruiseFL, c.level) << c.name << ", plan that cannot be saved";
  }
}

TEST(VerticalProfile, MeasuresFromFieldAndFinalFix) {
  DrawnPlan drawn("airport EDDA 0 0 364\nairport EDDB 0 10 364");
  drawn.plan.CruiseFL = 250;
  VerticalProfile profile = ComputeVerticalProfile(drawn.plan, drawn.context);
  EXPECT_NEAR(profile.TopOfClimb, 74.497819, 1e-5);
  EXPECT_NEAR(profile.FinalFixAltitude, 3070.7034, 1e-3);
  EXPECT_NEAR(profile.TopOfDescent, DescentDistance(25000, 3070.7034, drawn.aircraft), 1e-5);
  drawn.plan.GlideAngle = 6;
  EXPECT_NEAR(ComputeVerticalProfile(drawn.plan, drawn.context).FinalFixAltitude, 5792.3161, 1e-3);
  drawn.plan.CruiseFL = 0;
  profile = ComputeVerticalProfile(drawn.plan, drawn.context);
  EXPECT_EQ(profile.TopOfClimb, 0);
  EXPECT_EQ(profile.TopOfDescent, 0);
}

}  // namespace
