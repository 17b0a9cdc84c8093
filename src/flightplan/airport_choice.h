// The airports of a plan as the pilot chooses them together: departure with
// its start position, destination, alternate.
#pragma once

#include <optional>

#include "flightplan/plan_context.h"
#include "flightplan/start_positions.h"

// Rows of the airport table, -1: none.
struct AirportChoice {
  std::int32_t departure = -1;
  std::int32_t destination = -1;
  std::int32_t alternate = -1;
  std::optional<StartPosition> start;  // none: the airport's own position

  bool Complete() const { return departure >= 0 && destination >= 0; }
};

// What the plan has chosen.
AirportChoice ChoiceOf(const FlightPlan& plan, const NavDatabase& database);

// True if a choice asks for a new plan, not only for another alternate or start.
bool IsNewPlan(const AirportChoice& choice, const FlightPlan& plan);

// Begins a new plan if the choice asks for one; else the rows stay. Throws
// std::out_of_range if a row is not in the table.
void ApplyAirports(FlightPlan& plan, const PlanContext& context, const AirportChoice& choice);
