// Where plan files go: the folders that the settings name (stored_folder.h), the
// simulator's, and those below the program's own.
#pragma once

#include <filesystem>
#include <string>
#include <string_view>

#include "base/app_folder.h"
#include "flightplan/formats/plan_formats.h"
#include "settings/settings.h"
#include "settings/stored_folder.h"

// FPPATH09 or FPPATH10, by the simulator selected.
std::string& PlanFolderSetting(Settings& settings);
const std::string& PlanFolderSetting(const Settings& settings);

// The folder of the plans: the setting's, else \FSplan below the program's folder.
std::filesystem::path PlanFolder(const AppFolder& home, const Settings& settings);
std::filesystem::path OwnPlanFolder(const AppFolder& home);

// True if path is the root folder of a simulator: scenery.cfg stands in it, in any letter case.
bool CheckIfFSPathValid(const AppFolder& home, std::string_view path);

// True if a format wants the simulator's folder: where there is none, the pilot is told.
inline bool NeedsSimulator(const PlanFormatInfo& format) {
  return !format.simulatorUnknown.empty();
}

struct FormatPlace {
  std::filesystem::path folder;   // empty: the format cannot be written
  bool simulatorMissing = false;  // it belongs below the simulator's folder, which is unknown
};

// simulator: its root folder, empty if it is unknown. planFolder: of the plan itself.
FormatPlace PlaceOf(const PlanFormatInfo& format, const AppFolder& home, const Settings& settings,
                    const std::filesystem::path& simulator, const std::filesystem::path& planFolder);
