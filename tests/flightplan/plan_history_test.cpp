#include "flightplan/plan_history.h"

#include <gtest/gtest.h>

#include <random>

#include "flightplan/plan_legs.h"
#include "tests/flightplan/drawn_world.h"

namespace {

const std::string twoAirports = "airport EDDA 50 8 300\nairport EDDB 52 13 200\n";

TEST(PlanHistory, GoesBackAndForward) {
  DrawnPlan p(twoAirports);
  PlanHistory history;
  history.Changed(p.plan);
  p.Add("Fix", "AAA", 50.5F, 9);
  history.Changed(p.plan);
  p.Add("Fix", "BBB", 51, 10);
  history.Changed(p.plan);
  history.Changed(p.plan);
  p.plan.SelectedRow = 1;
  history.Changed(p.plan);
  history.Undo(p.plan);
  EXPECT_EQ(p.Codes(), "EDDA AAA EDDB")
      << "one step back, though nothing or only a selection was noted twice";
  history.Undo(p.plan);
  history.Redo(p.plan);
  EXPECT_EQ(p.Codes(), "EDDA AAA EDDB");
  p.Add("Fix", "CCC", 51, 11);
  history.Changed(p.plan);
  EXPECT_FALSE(history.CanRedo()) << "a new change takes the undone one's place";
  for (int i = 0; i < 3; ++i)
    history.Undo(p.plan);
  EXPECT_FALSE(history.CanUndo());
  EXPECT_EQ(p.plan.RowCount(), 0) << "the first state is no plan";
  history.Undo(p.plan);
  EXPECT_TRUE(history.CanRedo());
}

TEST(PlanHistory, ForgetsTheOldestStates) {
  DrawnPlan p(twoAirports);
  PlanHistory history;
  for (int level = 0; level < 300; ++level) {
    p.plan.CruiseFL = level;
    history.Changed(p.plan);
  }
  int steps = 0;
  while (history.CanUndo()) {
    history.Undo(p.plan);
    ++steps;
  }
  EXPECT_EQ(steps, static_cast<int>(PlanHistory::mostStates) - 1);
  EXPECT_EQ(p.plan.CruiseFL, 300 - steps - 1);
}

// Whatever was inserted, deleted and undone: legs, numbers and totals are those
// of a plan that is built from its rows anew.
TEST(PlanHistory, RandomChangesLeaveAConsistentPlan) {
  std::mt19937 random(5);
  const auto number = [&](int below) { return static_cast<int>(random() % static_cast<unsigned>(below)); };
  DrawnPlan p(twoAirports);
  PlanHistory history;
  history.Changed(p.plan);
  for (int change = 0; change < 2000; ++change) {
    switch (number(4)) {
      case 0:
      case 1: {
        PlanWaypoint row;
        row.Sym = "Uwp";
        row.Code = number(3) == 0 ? std::string("Fix 99") : "P" + std::to_string(number(5));
        row.Lat = static_cast<float>(40 + number(2000) / 100.0);
        row.Lon = static_cast<float>(number(2000) / 100.0);
        int after = number(p.plan.RowCount() - 1);
        if (p.plan.RowCount() < 40) InsertWaypoint(p.plan, p.context, after, row, true);
        break;
      }
      case 2:
        if (p.plan.RowCount() > 2) DeleteWaypoint(p.plan, p.context, 1 + number(p.plan.RowCount() - 2), true);
        break;
      default:
        number(2) == 0 ? history.Undo(p.plan) : history.Redo(p.plan);
        if (p.plan.RowCount() == 0) history.Redo(p.plan);
        break;
    }
    history.Changed(p.plan);

    FlightPlan anew = p.plan;
    for (int row = 0; row < anew.RowCount(); ++row)
      ComputeLeg(anew, p.aircraft, row);
    ComputeTotals(anew);
    ASSERT_EQ(anew.TotalDistance, p.plan.TotalDistance) << change;
    ASSERT_EQ(anew.TotalMinutes, p.plan.TotalMinutes) << change;
    for (int row = 1; row < anew.RowCount(); ++row) {
      ASSERT_EQ(anew.Row(row), p.plan.Row(row)) << change << ", row " << row;
      const std::string code = p.plan.Row(row).Code.Text();
      if (code.starts_with("Fix")) {
        ASSERT_EQ(std::stoi(code.substr(4)), row) << change;
      }
    }
  }
}

}  // namespace
