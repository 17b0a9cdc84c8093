#include "flightplan/recent_plans.h"

#include <algorithm>
#include <array>

#include "flightplan/plan_folders.h"

namespace fs = std::filesystem;

namespace {

constexpr std::array places = {&Settings::RECENT1, &Settings::RECENT2, &Settings::RECENT3, &Settings::RECENT4,
                               &Settings::RECENT5};

void Store(Settings& settings, const std::vector<fs::path>& files) {
  for (std::size_t i = 0; i < places.size(); ++i)
    settings.*places[i] = i < files.size() ? files[i].string() : std::string();
}

}  // namespace

std::vector<fs::path> RecentPlans(const Settings& settings) {
  std::vector<fs::path> files;
  for (std::string Settings::*place : places) {
    const fs::path file = settings.*place;
    if (!file.empty() && std::find(files.begin(), files.end(), file) == files.end()) files.push_back(file);
  }
  return files;
}

void RememberPlan(Settings& settings, const fs::path& file) {
  const fs::path normal = file.lexically_normal();
  if (!normal.is_absolute() || !CanBeStored(normal.string())) return;
  ForgetPlan(settings, normal);
  std::vector<fs::path> files = RecentPlans(settings);
  files.insert(files.begin(), normal);
  Store(settings, files);
}

void ForgetPlan(Settings& settings, const fs::path& file) {
  std::vector<fs::path> files = RecentPlans(settings);
  files.erase(std::remove(files.begin(), files.end(), file), files.end());
  Store(settings, files);
}
