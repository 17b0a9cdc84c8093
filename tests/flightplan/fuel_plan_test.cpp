#include "flightplan/fuel_plan.h"

#include <gtest/gtest.h>

#include <cmath>

#include "tests/flightplan/drawn_world.h"

namespace {

// Two hours and 500 NM at level 100 in an aircraft that burns 500 kg an hour;
// the whole figures below were worked out by hand.
struct Fuelled : DrawnPlan {
  Fuelled() : DrawnPlan("airport EDDA 0 0 0\nairport EDDX 0 9.3 0\nairport EDDB 0 8.3 0\n") {
    aircraft.CruiseSpeed = 250;
    aircraft.MaxRange = 1000;
    aircraft.MaxFuel = 2000;
    aircraft.MaxWeight = 10000;
    aircraft.EmptyWeight = 6000;
    aircraft.LoadWeight = 2000;
    plan.TotalMinutes = 120;
    plan.TotalDistance = 500;
    plan.CruiseFL = 100;
  }
};

TEST(FuelPlan, FollowsTheWorkedExample) {
  Fuelled f;
  const FuelSegments segments = ComputeFuelSegments(f.plan, f.context);
  EXPECT_NEAR(segments.trip, 948, 0.01);
  EXPECT_NEAR(segments.approach, 20.856, 0.001);
  EXPECT_NEAR(segments.cruise, 824.634, 0.01);
  EXPECT_NEAR(segments.climb, 92.259, 0.01);
  EXPECT_NEAR(segments.descent, 10.251, 0.01);

  const FuelFigures figures = CalculateFuel(f.plan, f.context);
  EXPECT_EQ(figures.ClimbFuel, 30);
  EXPECT_EQ(figures.CruiseFuel, 272);
  EXPECT_EQ(figures.DescentFuel, 3);
  EXPECT_EQ(figures.ApproachFuel, 7);
  EXPECT_EQ(figures.TripFuel, 312);
  EXPECT_NEAR(figures.ContingencyFuel, 31.2, 1e-9);
  EXPECT_NEAR(figures.HoldingFuel, 78, 1e-9);
  EXPECT_FALSE(figures.hasAlternate);
  EXPECT_EQ(figures.AlternateFuel, 0);
  EXPECT_NEAR(figures.TotalFuel, 421.2, 1e-9);
  EXPECT_EQ(figures.VfrStops, 0) << "945 of 2000 kg";
  EXPECT_EQ(figures.IfrStops, 0);
}

TEST(FuelPlan, AddsTheAlternateByDistance) {
  Fuelled f;
  f.plan.AlternateIndex = f.world.Airport("EDDX");
  f.aircraft.MaxFuel = 2000;
  const FuelFigures figures = CalculateFuel(f.plan, f.context);
  EXPECT_TRUE(figures.hasAlternate);
  EXPECT_EQ(figures.alternateText, "EDDX Airport  EDDX");
  EXPECT_NEAR(figures.alternateDistance, 60, 0.01);
  EXPECT_NEAR(figures.alternateCourse, 90, 0.01);
  EXPECT_NEAR(figures.AlternateFuel, 60 * 312 / 500.0, 0.01);
  EXPECT_NEAR(figures.TotalFuel, 421.2 + 37.44, 0.02);
}

TEST(FuelPlan, CountsTheStops) {
  Fuelled f;
  // The burn follows MaxFuel over the range: a tenth of both leaves it as it is.
  f.aircraft.MaxFuel = 200;
  f.aircraft.MaxRange = 100;
  const FuelFigures figures = CalculateFuel(f.plan, f.context);
  EXPECT_EQ(figures.TripFuel, 312);
  EXPECT_EQ(figures.VfrStops, 4) << "944.7 kg from tanks of 200";
  EXPECT_EQ(figures.IfrStops, 6) << "1275.4 kg";
}

TEST(FuelPlan, AShortFlightCruisesOnNothing) {
  Fuelled f;
  f.plan.TotalDistance = 40;  // climb and descent alone are 54
  const FuelSegments segments = ComputeFuelSegments(f.plan, f.context);
  EXPECT_EQ(segments.cruise, 0);
  EXPECT_GT(segments.climb + segments.descent + segments.approach, segments.trip);
}

TEST(FuelPlan, FollowsItsFormulaToTheLightestAircraft) {
  Fuelled f;
  f.aircraft.EmptyWeight = 60;
  f.aircraft.LoadWeight = 40;
  EXPECT_EQ(ComputeFuelSegments(f.plan, f.context).trip, 0);
  EXPECT_EQ(CalculateFuel(f.plan, f.context).TotalFuel, 0);
  f.aircraft.LoadWeight = 39;
  EXPECT_LT(ComputeFuelSegments(f.plan, f.context).trip, 0);
}

TEST(FuelPlan, SumsWholeGallons) {
  const Fuelled f;
  // The trip is 313.08 gallons, its parts 30.47, 272.34, 3.39 and 6.89.
  EXPECT_EQ(std::lround(ComputeFuelSegments(f.plan, f.context).trip / 3.028), 313);
  EXPECT_EQ(CalculateFuel(f.plan, f.context).TripFuel, 312);
}

TEST(FuelPlan, SaysWhenThereIsNoFigure) {
  Fuelled f;
  f.plan.TotalMinutes = 0;
  EXPECT_THROW(CalculateFuel(f.plan, f.context), std::domain_error);
  f.plan.TotalMinutes = 120;
  f.aircraft.MaxRange = 0;
  EXPECT_THROW(CalculateFuel(f.plan, f.context), std::domain_error);
}

TEST(FuelUnits, AreMultiplesOfTheGallon) {
  const struct {
    int unit;
    const char* text;
  } cases[] = {{0, "100.00 Gal"}, {1, "666.00 lbs"}, {2, "302.80 kg"}, {3, "378.50 lit"}, {9, "100.00 Gal"}};
  for (const auto& c : cases)
    EXPECT_EQ(FuelText(100, c.unit), c.text);
  EXPECT_EQ(FuelText(0, 2), ".00 kg");
}

}  // namespace
