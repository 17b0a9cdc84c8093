#include "flightplan/airport_choice.h"

#include "flightplan/plan_rows.h"

AirportChoice ChoiceOf(const FlightPlan& plan, const NavDatabase& database) {
  AirportChoice choice{plan.DepartureIndex, plan.DestinationIndex, plan.AlternateIndex, std::nullopt};
  const auto starts = StartPositions(database, plan.DepartureIndex);
  const int start = FindStart(starts, plan);
  if (start >= 0) choice.start = starts[static_cast<std::size_t>(start)];
  return choice;
}

bool IsNewPlan(const AirportChoice& choice, const FlightPlan& plan) {
  return plan.RowCount() < 2 || choice.departure != plan.DepartureIndex ||
         choice.destination != plan.DestinationIndex;
}

void ApplyAirports(FlightPlan& plan, const PlanContext& context, const AirportChoice& choice) {
  const AirportChoice before = ChoiceOf(plan, context.database);
  const bool isNew = IsNewPlan(choice, plan);
  if (isNew) SetDepartureAndDestination(plan, context, choice.departure, choice.destination);
  if (isNew || choice.alternate != before.alternate) SetAlternate(plan, context, choice.alternate);
  const bool sameStart =
      choice.start.has_value() == before.start.has_value() &&
      (!choice.start || (choice.start->id == before.start->id && choice.start->num == before.start->num));
  if (isNew ? choice.start.has_value() : !sameStart)
    SetStartPosition(plan, context, choice.start ? &*choice.start : nullptr);
}
