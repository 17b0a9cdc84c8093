// Looks at a folder that a pilot has named: whether it is there, whether files
// can be written into it, whether it is a simulator's.
#pragma once

#include <string>
#include <string_view>

enum class FolderState { fine, missing, unusable };

struct FolderCheck {
  FolderState state = FolderState::fine;
  std::string reason;  // one line for the pilot; empty if it is fine
};

// folder is UTF-8; empty is fine: it is not set. Missing is what could be
// created. A simulator's folder must hold scenery.cfg, in any letters.
FolderCheck CheckFolder(std::string_view folder, bool ofSimulator);

// Creates the folder and those above it. Empty, or why it could not be done.
std::string CreateFolderFor(std::string_view folder);
