// Plan files read back: only this program's own section counts (plan_file.h
// has the layout). Every row is looked up again in the database at hand, which
// may be another than the one the plan was made with.
#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "flightplan/flight_plan.h"
#include "flightplan/plan_context.h"

struct PlanReading {
  bool valid = false;                 // plan is the file's
  std::vector<std::string> problems;  // UTF-8: lines and waypoints that could not be taken as they stand
};

// The highest number of a row in a file.
constexpr int lastRowInFile = 500;

// True for a file with this program's section, which ReadPlan takes; any other
// is ImportPlan's (formats/plan_import.h).
bool IsOwnPlan(std::string_view text);

// Replaces plan by what the file's text (code page) says; legs, totals and level
// are computed with the current aircraft, courses are the file's. A file
// without this program's section leaves plan as it is; an airport that the
// database lacks leaves it empty. Waypoints that the database lacks leave it
// whole but not to be changed (MissingWaypoints). In each case the pilot is told.
PlanReading ReadPlan(FlightPlan& plan, const PlanContext& context, std::string_view text);
