#include "flightplan/segment_folder.h"

#include <algorithm>
#include <array>

#include "base/files.h"
#include "base/fixed_text.h"
#include "base/numbers.h"

namespace {

namespace fs = std::filesystem;

std::string_view FolderName(SegmentType type) {
  switch (type) {
    case SegmentType::departure:
      return "\\Segments\\Departures";
    case SegmentType::arrival:
      return "\\Segments\\Arrivals";
    case SegmentType::enroute:
      break;
  }
  return "\\Segments\\Enroute";
}

std::string_view ExtensionOf(SegmentType type) {
  switch (type) {
    case SegmentType::departure:
      return ".dep";
    case SegmentType::arrival:
      return ".arr";
    case SegmentType::enroute:
      break;
  }
  return ".enr";
}

bool Tell(std::string* reason, const fs::path& file, std::string_view what) {
  if (reason != nullptr) *reason = file.string() + ": " + std::string(what);
  return false;
}

bool HasExtension(const fs::path& file, std::string_view extension) {
  return EqualNoCase(file.extension().string(), extension);
}

std::string WithoutExtension(std::string_view name, std::string_view extension) {
  name = Trimmed(name);
  if (name.size() > extension.size() && EqualNoCase(name.substr(name.size() - extension.size()), extension))
    name.remove_suffix(extension.size());
  return std::string(Trimmed(name));
}

// A code is a file's name as it stands; what would lead elsewhere is no code.
std::string PlainCode(std::string_view code) {
  std::string plain(code);
  std::replace_if(
      plain.begin(), plain.end(), [](char c) { return c == '/' || c == '\\' || c == '.'; }, '_');
  return plain;
}

fs::path FileNamed(const AppFolder& home, SegmentType type, const std::string& name) {
  return home.Resolve(std::string(FolderName(type)) + "\\" + name + std::string(ExtensionOf(type)));
}

std::vector<fs::path> FilesWithin(const fs::path& folder, std::string_view extension) {
  std::vector<fs::path> files;
  std::error_code error;
  for (fs::directory_iterator entry(folder, error), end; !error && entry != end; entry.increment(error))
    if (HasExtension(entry->path(), extension) && entry->is_regular_file(error))
      files.push_back(entry->path());
  std::sort(files.begin(), files.end());
  return files;
}

}  // namespace

fs::path SegmentFolder(const AppFolder& home, SegmentType type) {
  return home.Resolve(FolderName(type));
}

bool MakeSegmentFolders(const AppFolder& home, std::string* reason) {
  for (const SegmentType type : {SegmentType::departure, SegmentType::arrival, SegmentType::enroute}) {
    const fs::path folder = SegmentFolder(home, type);
    std::error_code error;
    fs::create_directories(folder, error);
    if (error) return Tell(reason, folder, error.message());
  }
  return true;
}

std::vector<fs::path> SegmentFiles(const AppFolder& home, SegmentType type, std::string_view airportCode) {
  if (type == SegmentType::enroute) return FilesWithin(SegmentFolder(home, type), ExtensionOf(type));
  const fs::path file = FileNamed(home, type, PlainCode(airportCode));
  std::error_code error;
  if (airportCode.empty() || !fs::is_regular_file(file, error)) return {};
  return {file};
}

fs::path SegmentFileFor(const AppFolder& home, const SegmentToSave& wanted) {
  const bool enroute = wanted.type == SegmentType::enroute;
  return FileNamed(
      home, wanted.type,
      enroute ? WithoutExtension(wanted.fileName, ExtensionOf(wanted.type)) : PlainCode(wanted.airportCode));
}

std::string SavingFault(const SegmentToSave& wanted) {
  if (wanted.segment.rows.empty()) return "You have to select waypoints for the segment!";
  if (Trimmed(wanted.segment.description).empty()) return "You have to specify a description!";
  if (wanted.type != SegmentType::enroute) return {};
  const std::string name = WithoutExtension(wanted.fileName, ExtensionOf(wanted.type));
  if (name.empty()) return "You have to specify a file name!";
  constexpr std::string_view unfit = "/\\:*?\"<>|";
  const bool hasControl =
      std::any_of(name.begin(), name.end(), [](char c) { return static_cast<unsigned char>(c) < ' '; });
  if (name.front() == '.' || hasControl || name.find_first_of(unfit) != std::string::npos)
    return "\"" + name +
           "\" cannot be the name of a file: it must not begin with a point nor contain any of " +
           std::string(unfit);
  return {};
}

bool SaveSegment(const AppFolder& home, const SegmentToSave& wanted, std::string* reason) {
  if (!MakeSegmentFolders(home, reason)) return false;
  const fs::path file = SegmentFileFor(home, wanted);
  std::error_code error;
  if (wanted.type == SegmentType::enroute || !fs::exists(file, error))
    return ReplaceFile(file, WriteSegment(wanted.type, wanted.segment), reason);
  const auto present = ReadWholeFile(file, reason);
  if (!present) return false;
  const bool empty = Trimmed(present->Text()).empty();
  if (!empty && !ReadSegments(wanted.type, present->Text()).valid)
    return Tell(reason, file, NotASegmentText(wanted.type));
  return ReplaceFile(file, WithSegment(present->Text(), wanted.type, wanted.segment), reason);
}

bool DeleteSegment(const fs::path& file, std::string_view text, const StoredSegment& segment,
                   std::string* reason) {
  const auto present = ReadWholeFile(file, reason);
  if (!present) return false;
  if (present->Text() != text) return Tell(reason, file, "another program has changed it");
  const std::string rest = WithoutSegment(text, segment);
  return Trimmed(rest).empty() ? DeleteSegmentFile(file, reason) : ReplaceFile(file, rest, reason);
}

bool DeleteSegmentFile(const fs::path& file, std::string* reason) {
  constexpr std::array<std::string_view, 4> known = {".enr", ".dep", ".arr", ".sgm"};
  const bool segment = std::any_of(known.begin(), known.end(),
                                   [&](std::string_view extension) { return HasExtension(file, extension); });
  if (!segment) return Tell(reason, file, "this is no segment file");
  std::error_code error;
  if (fs::remove(file, error)) return true;
  return Tell(reason, file, error ? error.message() : "it is not there");
}
