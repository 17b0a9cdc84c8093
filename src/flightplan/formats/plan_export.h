// A plan on its way to another program: what the writers of the formats are
// given. A writer is one function from it to the file's bytes; where they go is
// plan_formats.h's, putting them there save_plan.h's.
#pragma once

#include <chrono>
#include <optional>
#include <string>
#include <string_view>

#include "flightplan/aircraft.h"
#include "flightplan/flight_plan.h"
#include "flightplan/fuel_plan.h"
#include "flightplan/plan_context.h"
#include "navdata/nav_database.h"

// The plan has its departure and destination.
struct PlanExport {
  const FlightPlan& plan;
  const NavDatabase& database;
  const AircraftRec& aircraft;
  double finalFixDistance = 8.5;    // NM (setting FAFDIST)
  int fuelUnit = 0;                 // setting FUEL
  std::optional<FuelFigures> fuel;  // none if the aircraft's data give none
  bool withProcedures = true;       // the rows of SID and STAR too
  std::chrono::sys_seconds now{};   // UTC
  std::string airacCycle;           // year and number, "2601"; empty: unknown
};

// airacCycle as the start-up tells it: "2026.01", or words without a number.
// Throws std::logic_error for a plan without its airports.
PlanExport MakePlanExport(const FlightPlan& plan, const PlanContext& context, int fuelUnit,
                          std::chrono::sys_seconds now, std::string_view airacCycle);

// The plan's airports. The alternate is null without one.
const AirportRec& DepartureOf(const PlanExport& plan);
const AirportRec& DestinationOf(const PlanExport& plan);
const AirportRec* AlternateOf(const PlanExport& plan);
