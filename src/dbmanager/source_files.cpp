#include "dbmanager/source_files.h"

#include <algorithm>
#include <fstream>
#include <set>
#include <string>

#include "base/fixed_text.h"
#include "dbmanager/source_error.h"

namespace fs = std::filesystem;

namespace {

bool IsFile(const fs::path& path) {
  std::error_code error;
  return fs::is_regular_file(path, error);
}

fs::path Required(const fs::path& path) {
  fs::path found = PlainOrPacked(path);
  if (found.empty()) throw BuildError(path.string() + " is missing (plain or .gz)");
  return found;
}

// The first of two that is there.
fs::path RequiredEither(const fs::path& preferred, const fs::path& other) {
  fs::path found = PlainOrPacked(preferred);
  return found.empty() ? Required(other) : found;
}

struct SceneryPacks {
  std::vector<fs::path> byPriority;  // highest first
  std::set<fs::path> named;          // also those that are switched off
};

SceneryPacks ReadSceneryPacks(const fs::path& folder, const fs::path& list) {
  SceneryPacks packs;
  std::ifstream file(list);
  for (std::string line; std::getline(file, line);) {
    while (!line.empty() && (line.back() == '\r' || line.back() == ' ' || line.back() == '/'))
      line.pop_back();
    constexpr std::string_view on = "SCENERY_PACK ", off = "SCENERY_PACK_DISABLED ";
    const std::string_view word = line.starts_with(on)    ? on
                                  : line.starts_with(off) ? off
                                                          : std::string_view{};
    if (word.empty() || line.size() == word.size()) continue;
    const fs::path pack = (folder / line.substr(word.size())).lexically_normal();
    packs.named.insert(pack);
    if (word == on) packs.byPriority.push_back(pack);
  }
  return packs;
}

// Lowest priority first. A pack that the list does not name yet counts as newest.
std::vector<fs::path> CustomAirports(const fs::path& folder) {
  const fs::path custom = folder / "Custom Scenery";
  SceneryPacks packs = ReadSceneryPacks(folder, custom / "scenery_packs.ini");
  std::vector<fs::path> unnamed;
  std::error_code error;
  for (fs::directory_iterator entry(custom, error), end; !error && entry != end; entry.increment(error)) {
    const fs::path pack = entry->path().lexically_normal();
    if (!packs.named.contains(pack)) unnamed.push_back(pack);
  }
  std::sort(unnamed.begin(), unnamed.end());
  packs.byPriority.insert(packs.byPriority.begin(), unnamed.begin(), unnamed.end());
  std::vector<fs::path> files;
  for (auto pack = packs.byPriority.rbegin(); pack != packs.byPriority.rend(); ++pack) {
    fs::path file = PlainOrPacked(*pack / "Earth nav data/apt.dat");
    if (!file.empty()) files.push_back(std::move(file));
  }
  return files;
}

void AddXPlane(const fs::path& folder, SourceFiles& files) {
  const fs::path newest = folder / "Global Scenery/Global Airports/Earth nav data/apt.dat";
  const fs::path older = folder / "Resources/default scenery/default apt dat/Earth nav data/apt.dat";
  files.airports.push_back(RequiredEither(newest, older));
  for (fs::path& file : CustomAirports(folder))
    files.airports.push_back(std::move(file));
  const fs::path custom = folder / "Custom Data", standard = folder / "Resources/default data";
  files.navaids = RequiredEither(custom / "earth_nav.dat", standard / "earth_nav.dat");
  files.fixes = RequiredEither(custom / "earth_fix.dat", standard / "earth_fix.dat");
  files.airways = RequiredEither(custom / "earth_awy.dat", standard / "earth_awy.dat");
}

void AddFlightGear(const fs::path& folder, SourceFiles& files) {
  files.airports.push_back(Required(folder / "Airports/apt.dat"));
  files.navaids = Required(folder / "Navaids/nav.dat");
  files.fixes = Required(folder / "Navaids/fix.dat");
  files.airways = Required(folder / "Navaids/awy.dat");
  const fs::path stations = PlainOrPacked(folder / "Airports/metar.dat");
  if (!stations.empty()) files.weatherStations = stations;
}

void AddBundled(const fs::path& data, SourceFiles& files) {
  files.airports.push_back(Required(data / "apt.dat"));
  files.navaids = Required(data / "nav.dat");
  files.fixes = Required(data / "fix.dat");
  files.airways = Required(data / "awy.dat");
}

}  // namespace

fs::path PlainOrPacked(const fs::path& path) {
  if (IsFile(path)) return path;
  fs::path packed = path;
  packed += ".gz";
  return IsFile(packed) ? packed : fs::path();
}

SourceFiles FindSourceFiles(SourceKind kind, const fs::path& folder, const fs::path& data) {
  SourceFiles files;
  files.weatherStations = Required(data / "metar.dat");
  files.land = Required(data / "land-50m.json");
  files.countries = Required(data / "countries-50m.json");
  files.magneticModel = Required(data / "wmm2025.txt");
  files.introPicture = RequiredEither(data / "VLM_intro.bmp", data / "../assets/VLM_intro.bmp");
  switch (kind) {
    case SourceKind::bundled:
      AddBundled(data, files);
      break;
    case SourceKind::flightGear:
      AddFlightGear(folder, files);
      break;
    case SourceKind::xPlane:
      AddXPlane(folder, files);
      break;
  }
  return files;
}
