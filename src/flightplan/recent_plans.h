// The plan files last used, as the settings RECENT1 to RECENT5 hold them.
#pragma once

#include <filesystem>
#include <vector>

#include "settings/settings.h"

// The latest first.
std::vector<std::filesystem::path> RecentPlans(const Settings& settings);

// Puts a file in front; a file stands in the list once. A path that vlm.ini
// cannot hold (plan_folders.h) is not listed.
void RememberPlan(Settings& settings, const std::filesystem::path& file);

void ForgetPlan(Settings& settings, const std::filesystem::path& file);
