// Plans of other programs (foreign_plan.h) as plans of ours: airports, points
// and airways are looked up in the database, and what it lacks stands in the
// plan as a position of the pilot's own. Nothing goes in silence: whatever was
// not taken as the file says is listed.
#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "flightplan/flight_plan.h"
#include "flightplan/plan_context.h"

struct PlanImport {
  bool valid = false;                 // plan is the file's
  std::string format;                 // "X-Plane plan"; empty: none that is known
  std::vector<std::string> problems;  // UTF-8: what was not taken as it stands
};

// Replaces plan by what the file's text (its bytes) says; legs, totals and level
// are computed with the current aircraft, a sensible cruise altitude of the file
// is kept. The plan can be changed and saved. A file of no known format, or
// without airports that the database has, leaves plan as it is, and the pilot
// is told.
PlanImport ImportPlan(FlightPlan& plan, const PlanContext& context, std::string_view text);

// What the pilot is shown of the problems: at most so many lines, the rest
// counted. Empty when there are none.
std::string ImportSummary(const PlanImport& import, const FlightPlan& plan, std::size_t mostLines = 12);
