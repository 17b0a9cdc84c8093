#include "flightplan/plan_history.h"

namespace {

// Which row the pilot has selected is no part of the plan.
FlightPlan WithoutSelection(const FlightPlan& plan) {
  FlightPlan state = plan;
  state.SelectedRow = 0;
  return state;
}

}  // namespace

void PlanHistory::Changed(const FlightPlan& plan) {
  FlightPlan state = WithoutSelection(plan);
  if (state == states[position]) return;
  states.resize(position + 1);
  states.push_back(std::move(state));
  if (states.size() > mostStates) states.erase(states.begin());
  position = states.size() - 1;
}

void PlanHistory::Adopt(const FlightPlan& plan) {
  states[position] = WithoutSelection(plan);
}

void PlanHistory::Undo(FlightPlan& plan) {
  if (CanUndo()) plan = states[--position];
}

void PlanHistory::Redo(FlightPlan& plan) {
  if (CanRedo()) plan = states[++position];
}
