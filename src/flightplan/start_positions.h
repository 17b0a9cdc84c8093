// Where a flight can begin at its airport: the thresholds of all runways in
// both directions, and the gates and parking positions.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

#include "flightplan/flight_plan.h"
#include "flightplan/plan_context.h"

// Texts are UTF-8.
struct StartPosition {
  std::string type;      // "Rwy" or "Gate"
  std::int16_t num = 0;  // runways from 1, their reverse ends behind them; gates from firstGateNum
  std::string id;        // "25R", "Gate A 12"
  std::string text;      // as the list shows it: "25R  (13123ft)", "Gate A 12"
  Position place;        // the threshold of the runway, the gate's place
  float heading = 0;     // true, of the runway; 0 for a gate
  bool IsRunway() const { return type == "Rwy"; }
};
constexpr std::int16_t firstGateNum = 100;

// All of an airport, the runways (each followed by its reverse end) before the
// gates, in the order of the tables. Empty for a row that is no airport.
std::vector<StartPosition> StartPositions(const NavDatabase& database, std::int32_t airportRow);

// Which of the list a plan's DepartureType, DepartureNum and DepartureID name,
// -1 for none: the item whose text before "(" is the ID, of several the one of
// that number. A gate that is not there falls back on the first item of an
// airport without runways.
int FindStart(const std::vector<StartPosition>& starts, const FlightPlan& plan);

// The plan begins at start, or at the airport's own position if start is null:
// header and first row take its place, and the first leg and the totals are
// computed anew. The cruise level stays unless the flight now leads the other
// way. Throws std::out_of_range for a plan without a departure.
void SetStartPosition(FlightPlan& plan, const PlanContext& context, const StartPosition* start);
