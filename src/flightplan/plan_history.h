// Undo and redo for every change of the plan, whatever made it: the states of
// the plan one behind the other. Whoever changed the plan says so; a state that
// equals the one before is not kept twice.
#pragma once

#include <vector>

#include "flightplan/flight_plan.h"

class PlanHistory {
 public:
  // The plan as it is now follows what was; what had been undone is gone.
  void Changed(const FlightPlan& plan);

  // The plan has other figures now but is no other plan (another aircraft): it
  // takes the place of its state.
  void Adopt(const FlightPlan& plan);

  bool CanUndo() const { return position > 0; }
  bool CanRedo() const { return position + 1 < states.size(); }
  // Bring plan back, or forward again, by one change. Nothing happens when there is none.
  void Undo(FlightPlan& plan);
  void Redo(FlightPlan& plan);

  static constexpr std::size_t mostStates = 200;

 private:
  std::vector<FlightPlan> states = std::vector<FlightPlan>(1);  // begins with no plan
  std::size_t position = 0;
};
