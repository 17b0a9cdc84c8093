#include "flightplan/plan_commands.h"

#include <gtest/gtest.h>

namespace {

FlightPlan DirectPlan() {
  FlightPlan plan;
  plan.rows.resize(2);
  plan.rows[1].Kind = RowKind::destination;
  plan.PlanFiled = plan.CanSave = true;
  return plan;
}

TEST(PlanCommands, FollowFromThePlan) {
  struct Case {
    const char* what;
    FlightPlan plan;
    bool fromRouteString;
    PlanCommandStates expected;
  };
  const PlanCommandStates direct{.newPlan = true,
                                 .createRoute = true,
                                 .save = true,
                                 .openSegment = true,
                                 .saveSegment = true,
                                 .print = true,
                                 .stepLevel = true,
                                 .editRows = true,
                                 .extendedTable = true};
  std::vector<Case> cases;
  cases.push_back({"no plan", {}, false, {}});
  cases.push_back({"two airports", DirectPlan(), false, direct});
  cases.push_back({"a route string", DirectPlan(), true, direct});
  cases.back().expected.extendedTable = false;
  cases.push_back({"procedures", DirectPlan(), false, direct});
  cases.back().plan.SidName = "ANEKI1L";
  cases.back().plan.StarName = "PARCH3";
  cases.back().expected.deleteSid = cases.back().expected.deleteStar = true;
  cases.push_back({"shown, but not to be changed", DirectPlan(), false, direct});
  cases.back().plan.MissingWaypoints = true;
  PlanCommandStates& shown = cases.back().expected;
  shown.createRoute = shown.save = shown.saveAgain = shown.openSegment = shown.saveSegment = shown.editRows =
      shown.addWaypoint = shown.procedures = false;
  for (const Case& c : cases)
    EXPECT_EQ(CommandStates(c.plan, PlanHistory{}, c.fromRouteString), c.expected) << c.what;
}

TEST(PlanCommands, UndoAndRedoFollowFromTheHistory) {
  PlanHistory history;
  FlightPlan plan = DirectPlan();
  history.Changed(plan);
  EXPECT_TRUE(CommandStates(plan, history, false).undo);
  EXPECT_FALSE(CommandStates(plan, history, false).redo);
  history.Undo(plan);
  EXPECT_FALSE(CommandStates(plan, history, false).undo);
  EXPECT_TRUE(CommandStates(plan, history, false).redo);
}

}  // namespace
