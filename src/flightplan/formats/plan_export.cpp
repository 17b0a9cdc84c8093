#include "flightplan/formats/plan_export.h"

#include <stdexcept>
#include <utility>

namespace {

const AirportRec* Airport(const PlanExport& plan, std::int32_t row) {
  if (row < 0 || static_cast<std::size_t>(row) >= plan.database.airports.size()) return nullptr;
  return &plan.database.airports[static_cast<std::size_t>(row)];
}

const AirportRec& NeededAirport(const PlanExport& plan, std::int32_t row) {
  const AirportRec* airport = Airport(plan, row);
  if (airport == nullptr) throw std::logic_error("the flight plan has no departure or destination");
  return *airport;
}

}  // namespace

PlanExport MakePlanExport(const FlightPlan& plan, const PlanContext& context, int fuelUnit,
                          std::chrono::sys_seconds now, std::string airacCycle) {
  PlanExport made{plan, context.database,     context.aircraft, context.FAFDIST, fuelUnit, {}, true,
                  now,  std::move(airacCycle)};
  DepartureOf(made);
  DestinationOf(made);
  try {
    made.fuel = CalculateFuel(plan, context);
  } catch (const std::domain_error&) {
    made.fuel.reset();
  }
  return made;
}

const AirportRec& DepartureOf(const PlanExport& plan) {
  return NeededAirport(plan, plan.plan.DepartureIndex);
}

const AirportRec& DestinationOf(const PlanExport& plan) {
  return NeededAirport(plan, plan.plan.DestinationIndex);
}

const AirportRec* AlternateOf(const PlanExport& plan) {
  return Airport(plan, plan.plan.AlternateIndex);
}
