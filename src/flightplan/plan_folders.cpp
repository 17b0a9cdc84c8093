#include "flightplan/plan_folders.h"

#include <system_error>

namespace fs = std::filesystem;

std::string& PlanFolderSetting(Settings& settings) {
  return settings.FSX != 0 ? settings.FPPATH10 : settings.FPPATH09;
}

const std::string& PlanFolderSetting(const Settings& settings) {
  return settings.FSX != 0 ? settings.FPPATH10 : settings.FPPATH09;
}

fs::path OwnPlanFolder(const AppFolder& home) {
  return home.Resolve("\\FSplan");
}

fs::path PlanFolder(const AppFolder& home, const Settings& settings) {
  const std::string& chosen = PlanFolderSetting(settings);
  return chosen.empty() ? OwnPlanFolder(home) : FolderOf(home, chosen);
}

bool CheckIfFSPathValid(const AppFolder& home, std::string_view path) {
  if (path.empty()) return false;
  std::error_code error;
  return fs::exists(ResolveBelow(FolderOf(home, path), "scenery.cfg"), error);
}

FormatPlace PlaceOf(const PlanFormatInfo& format, const AppFolder& home, const Settings& settings,
                    const fs::path& simulator, const fs::path& planFolder) {
  if (format.folderSetting != nullptr && !(settings.*format.folderSetting).empty())
    return {FolderOf(home, settings.*format.folderSetting), false};
  const bool missing = !format.simulatorFolder.empty() && simulator.empty();
  if (!format.simulatorFolder.empty() && !missing)
    return {ResolveBelow(simulator, format.simulatorFolder), false};
  if (!format.ownFolder.empty()) return {home.Resolve(format.ownFolder), missing};
  if (missing && NeedsSimulator(format)) return {{}, true};
  return {planFolder, missing};
}
