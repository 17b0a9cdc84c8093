#include <filesystem>

#include "cli/commands.h"
#include "cli/plan_output.h"

int RunOpen(const CliOptions& options, const OpenRequest& request) {
  OpenedPlan opened;
  if (!OpenPlan(options, request.file, opened)) return exitNotDone;
  const PlanContext context = opened.Context();
  PrintPlan(options, opened.plan, context, opened.settings.FUEL, opened.messages);
  PlanFiles files = request.files;
  if (files.saveAs.empty()) files.name = std::filesystem::path(request.file).stem().string();
  return WritePlanFiles(files, options, opened.plan, context, opened.settings.FUEL);
}
