// Where plan files go. Settings hold folders as text: of this system, or below
// the program's folder in the program's own writing ("\FSplan\RC"), and with or
// without a "\" at the end. This is the one place that turns them into paths.
#pragma once

#include <filesystem>
#include <string>
#include <string_view>

#include "base/app_folder.h"
#include "flightplan/formats/plan_formats.h"
#include "settings/settings.h"

// The folder that a setting names. What is below the program's folder is found
// in any letter case. Empty for an empty text.
std::filesystem::path FolderOf(const AppFolder& home, std::string_view stored);

// The text that a setting holds for a folder: with one "\" at its end.
std::string StoredFolder(const std::filesystem::path& folder);

// True if vlm.ini can hold the text: at most 256 characters, all of them in the code page.
bool CanBeStored(std::string_view text);

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
