// Looks at a folder that a pilot has named: whether it is there, whether files
// can be written into it, whether it is a simulator's.
#pragma once

#include <string>
#include <string_view>

#include "base/app_folder.h"

enum class FolderState { fine, missing, unusable };

struct FolderCheck {
  FolderState state = FolderState::fine;
  std::string reason;  // one line for the pilot; empty if it is fine
};

// folder as a setting holds it (stored_folder.h), UTF-8; empty is fine: it is not set. Missing is what could
// be created. A simulator's folder must hold scenery.cfg, in any letters.
FolderCheck CheckFolder(const AppFolder& home, std::string_view folder, bool ofSimulator);

// Creates the folder and those above it. Empty, or why it could not be done.
std::string CreateFolderFor(const AppFolder& home, std::string_view folder);
