// Loads a database without a window, an information log or a message box: for
// the command line, the benchmarks and the tests.
#pragma once

#include <cstdint>
#include <optional>
#include <string>

#include "base/app_folder.h"
#include "navdata/nav_database.h"

struct WorldLoad {
  NavDatabase database;
  std::int16_t blnFSX = 0;  // the version that was loaded
  bool complete = true;     // false: a file is cut off, its table ends early
  // Why nothing could be loaded, in one line that names the file; empty if all went well.
  std::string error;
};

// Loads the database of a simulator version (0: 2004, -1: X); without one, as
// the start-up chooses it from the settings.
WorldLoad LoadWorld(const AppFolder& home, std::optional<std::int16_t> blnFSX = std::nullopt);
