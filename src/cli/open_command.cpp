#include "cli/commands.h"
#include "cli/plan_output.h"
#include "settings/settings_file.h"

int RunOpen(const CliOptions& options, const OpenRequest& request) {
  auto world = OpenWorld(options);
  if (!world) return exitNotDone;
  const Settings settings = ReadIni(options.home).settings;
  const auto aircraft = ChooseAircraft(options, settings, std::nullopt);
  if (!aircraft) return exitNotDone;
  CliMessages messages;
  const PlanContext context{world->database, *aircraft, messages, settings.FAFDIST};
  FlightPlan plan;
  if (!OpenPlan(request.file, plan, context)) return exitNotDone;
  PrintPlan(options, plan, context, settings.FUEL, messages);
  if (request.saveAs.empty()) return exitDone;
  if (plan.MissingWaypoints) return Fail("a plan with missing waypoints is not saved");
  return SavePlanAs(request.saveAs, plan, world->database);
}
