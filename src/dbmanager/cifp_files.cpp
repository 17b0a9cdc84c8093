#include "dbmanager/cifp_files.h"

#include <algorithm>

#include "base/files.h"
#include "dbmanager/source_error.h"
#include "dbmanager/source_files.h"
#include "flightplan/procedure_file.h"

namespace fs = std::filesystem;

namespace {

constexpr std::uintmax_t largestFile = std::uintmax_t{64} << 20;
constexpr std::size_t longestCode = 10;
const fs::path customData = "Custom Data";
const fs::path defaultData = fs::path("Resources") / "default data";

bool IsFolder(const fs::path& path) {
  std::error_code error;
  return fs::is_directory(path, error);
}

// "CIFP" in any letters; an empty path if there is none.
fs::path ProcedureFolderIn(const fs::path& folder) {
  std::error_code error;
  for (fs::directory_iterator entry(folder, error), end; !error && entry != end; entry.increment(error))
    if (EqualNoCase(entry->path().filename().string(), "CIFP") && IsFolder(entry->path()))
      return entry->path();
  return {};
}

fs::path ProcedureFolder(const fs::path& given) {
  if (!IsFolder(given)) throw BuildError(given.string() + ": no such folder");
  for (const fs::path& folder : {given, given / customData, given / defaultData})
    if (fs::path found = ProcedureFolderIn(folder); !found.empty()) return found;
  return given;
}

// An airport's file is named after its code; the world's files are longer.
bool IsAirportFile(const fs::path& path) {
  const std::string stem = path.stem().string();
  return EqualNoCase(path.extension().string(), ".dat") && !stem.empty() && stem.size() <= longestCode &&
         std::all_of(stem.begin(), stem.end(), [](char c) {
           const char upper = AsciiUpper(c);
           return (upper >= 'A' && upper <= 'Z') || (c >= '0' && c <= '9') || c == '-';
         });
}

std::vector<fs::path> AirportFilesIn(const fs::path& folder) {
  std::vector<fs::path> files;
  std::error_code error;
  for (fs::directory_iterator entry(folder, error), end; !error && entry != end; entry.increment(error))
    if (IsAirportFile(entry->path()) && entry->is_regular_file(error)) files.push_back(entry->path());
  if (error) throw BuildError(folder.string() + ": " + error.message());
  if (files.empty()) throw BuildError(folder.string() + ": no procedure files such as EDDF.dat");
  std::sort(files.begin(), files.end());
  return files;
}

fs::path FirstOf(const std::vector<fs::path>& folders, const char* name) {
  for (const fs::path& folder : folders)
    if (fs::path file = PlainOrPacked(folder / name); !file.empty()) return file;
  throw BuildError(folders.front().string() + ": no " + name + " (plain or .gz) beside the procedures");
}

// An airport that has more than a list shows is told.
void TellLongList(std::string_view file, std::string_view kind, std::size_t entries, Rejects& rejects) {
  if (entries > mostListedProcedures)
    rejects.Add(file, 0,
                std::to_string(entries) + " " + std::string(kind) + ": a list shows the first " +
                    std::to_string(mostListedProcedures));
}

}  // namespace

CifpSources FindCifpSources(const fs::path& given) {
  CifpSources sources;
  const fs::path folder = fs::absolute(ProcedureFolder(given)).lexically_normal();
  const fs::path clean = folder.has_filename() ? folder : folder.parent_path();
  sources.airports = AirportFilesIn(clean);
  const fs::path beside = clean.parent_path();
  const std::vector<fs::path> folders = {beside, clean, beside / ".." / defaultData,
                                         beside / "../.." / customData};
  sources.fixes = FirstOf(folders, "earth_fix.dat");
  sources.navaids = FirstOf(folders, "earth_nav.dat");
  return sources;
}

ProcedureFiles MakeProcedureFiles(const CifpSources& sources, const CifpVariation& variation,
                                  const std::function<void(double)>& keepOn, Rejects& rejects,
                                  ProcedureReport& report) {
  keepOn(0);
  // What is wrong with those files is told where the world is made of them.
  Rejects ofOthers;
  LineReader fixLines(sources.fixes);
  const FixData fixes = ReadFixDat(fixLines, ofOthers);
  keepOn(0.1);
  LineReader navLines(sources.navaids);
  const NavData navaids = ReadNavDat(navLines, ofOthers);
  const CifpPlaces places(fixes, navaids);
  ProcedureFiles files;
  for (std::size_t i = 0; i < sources.airports.size(); ++i) {
    const fs::path& path = sources.airports[i];
    keepOn(0.2 + 0.8 * static_cast<double>(i) / static_cast<double>(sources.airports.size()));
    const std::string name = path.filename().string();
    std::string reason = "larger than 64 MiB";
    const auto contents = FileSizeOrZero(path) > largestFile ? std::nullopt : ReadWholeFile(path, &reason);
    if (!contents) {
      rejects.Add(name, 0, reason);
      continue;
    }
    const CifpAirport airport = ReadCifpAirport(name, contents->Text(), rejects);
    report.lines += airport.lines;
    report.airports += airport.parts.empty() ? 0 : 1;
    const std::size_t sids = files.sids.entries, stars = files.stars.entries;
    AppendProcedures(AsciiUpper(path.stem().string()), name, airport, places, variation, files, rejects);
    TellLongList(name, "SIDs", files.sids.entries - sids, rejects);
    TellLongList(name, "STARs", files.stars.entries - stars, rejects);
  }
  return files;
}
