#include "flightplan/plan_history.h"

#include <gtest/gtest.h>

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

}  // namespace
