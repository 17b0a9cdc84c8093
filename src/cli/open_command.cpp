#include <filesystem>

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
  PlanFiles files = request.files;
  if (files.saveAs.empty()) files.name = std::filesystem::path(request.file).stem().string();
  return WritePlanFiles(files, options, plan, context, settings.FUEL);
}
