// Folders as the settings hold them: of this system, or below the program's
// folder in the program's own writing ("\FSplan\RC"), and with or without a "\"
// at the end. This is the one place that turns such a text into a path.
#pragma once

#include <filesystem>
#include <string>
#include <string_view>

#include "base/app_folder.h"

// The folder that a setting names. What is below the program's folder is found
// in any letter case. Empty for an empty text.
std::filesystem::path FolderOf(const AppFolder& home, std::string_view stored);

// The text that a setting holds for a folder: with one "\" at its end.
std::string StoredFolder(const std::filesystem::path& folder);

// True if vlm.ini can hold the text: at most 256 characters, all of them in the code page.
bool CanBeStored(std::string_view text);
