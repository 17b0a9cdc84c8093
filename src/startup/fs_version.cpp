#include "startup/fs_version.h"

#include <filesystem>
#include <system_error>

std::string_view FSVersionText(std::int16_t blnFSX) {
  return blnFSX == 0 ? " for Flight Simulator 2004" : " for Flight Simulator X";
}

std::string_view FSDatabaseFolder(std::int16_t blnFSX) {
  return blnFSX == 0 ? "\\database\\FS09\\" : "\\database\\FS10\\";
}

std::string_view MagVarFileName(std::int16_t blnFSX) {
  return blnFSX == 0 ? "\\magvar09.qtr" : "\\magvar10.qtr";
}

bool IsDatabaseUsable(const AppFolder& home, std::int16_t blnFSX) {
  std::error_code error;
  return std::filesystem::exists(home.Resolve(std::string(FSDatabaseFolder(blnFSX)) + "airport.vlm"), error);
}

FSVersion ChooseFSVersion(const AppFolder& home, std::string_view commandLine, std::int16_t setting) {
  FSVersion version{setting, false};
  if (commandLine.find('0') != std::string_view::npos) version.blnFSX = 0;
  if (commandLine.find('1') != std::string_view::npos) version.blnFSX = -1;
  version.usable = IsDatabaseUsable(home, version.blnFSX);
  if (version.blnFSX == 0 && !version.usable && IsDatabaseUsable(home, -1)) version = {-1, true};
  return version;
}

DatabaseLocation LocationOf(const AppFolder& home, std::int16_t blnFSX) {
  return {home, std::string(FSDatabaseFolder(blnFSX)), std::string(FSVersionText(blnFSX))};
}
