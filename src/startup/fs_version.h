// Which of the two simulator databases is used.
#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

#include "base/app_folder.h"
#include "navdata/database_files.h"

struct FSVersion {
  std::int16_t blnFSX = 0;  // 0: Flight Simulator 2004, -1: Flight Simulator X
  bool usable = false;      // its airport.vlm exists
};

// " for Flight Simulator 2004" or " for Flight Simulator X".
std::string_view FSVersionText(std::int16_t blnFSX);
// "\database\FS09\" or "\database\FS10\".
std::string_view FSDatabaseFolder(std::int16_t blnFSX);
// "\magvar09.qtr" or "\magvar10.qtr".
std::string_view MagVarFileName(std::int16_t blnFSX);

bool IsDatabaseUsable(const AppFolder& home, std::int16_t blnFSX);

// "0" in the command line asks for 2004, "1" for X (and wins), else the
// setting stays. 2004 without a database falls back to an existing X; X never
// falls back.
FSVersion ChooseFSVersion(const AppFolder& home, std::string_view commandLine, std::int16_t setting);

DatabaseLocation LocationOf(const AppFolder& home, std::int16_t blnFSX);
