#include "flightplan/formats/plan_export.h"

#include <algorithm>
#include <stdexcept>

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

// The first number of the text: "2026.01" is cycle "2601".
std::string CycleNumber(std::string_view cycle) {
  std::string digits;
  const std::size_t start = std::min(cycle.find_first_of("0123456789"), cycle.size());
  for (const char c : cycle.substr(start)) {
    if (c >= '0' && c <= '9') {
      digits += c;
    } else if (c != '.') {
      break;
    }
  }
  return digits.size() < 4 ? std::string() : digits.substr(digits.size() - 4);
}

}  // namespace

PlanExport MakePlanExport(const FlightPlan& plan, const PlanContext& context, int fuelUnit,
                          std::chrono::sys_seconds now, std::string_view airacCycle) {
  PlanExport made{plan, context.database,       context.aircraft, context.FAFDIST, fuelUnit, {}, true,
                  now,  CycleNumber(airacCycle)};
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
