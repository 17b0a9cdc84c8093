// What the commands on plans share: the aircraft that flies them, the printed
// plan, the saved file.
#pragma once

#include <optional>
#include <string>

#include "cli/cli_output.h"
#include "cli/commands.h"
#include "flightplan/aircraft.h"
#include "flightplan/flight_plan.h"
#include "flightplan/plan_context.h"
#include "settings/settings.h"

// The aircraft of this number, without one that of the settings; nothing after
// telling that there is none.
std::optional<AircraftRec> ChooseAircraft(const CliOptions& options, const Settings& settings,
                                          std::optional<int> wanted);

// The plan document, or the plan as a table for people.
void PrintPlan(const CliOptions& options, const FlightPlan& plan, const PlanContext& context, int fuelUnit,
               const CliMessages& messages);

// Reads a saved plan, ours or another program's; problems and messages go where they belong. False after
// telling that plan is not the file's.
bool OpenPlan(const std::string& path, FlightPlan& plan, const PlanContext& context);

// A plan from a file and all that it was opened with.
struct OpenedPlan {
  std::optional<WorldLoad> world;
  Settings settings;
  std::optional<AircraftRec> aircraft;
  CliMessages messages;
  FlightPlan plan;

  // Only of a plan that was opened; it refers to its parts.
  PlanContext Context() { return {world->database, *aircraft, messages, settings.FAFDIST}; }
};

// Loads the world and opens the plan with the settings' aircraft. False after telling why not.
bool OpenPlan(const CliOptions& options, const std::string& path, OpenedPlan& opened);

// Saves and exports the plan as asked. A format that cannot be written is told
// and the others are written all the same; the exit code.
int WritePlanFiles(const PlanFiles& files, const CliOptions& options, const FlightPlan& plan,
                   const PlanContext& context, int fuelUnit);
