// Where the loaders find the files and whom they tell how they get on: the
// pilot through a progress line, the information log line by line.
#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

#include "base/app_folder.h"
#include "base/files.h"

class LoadListener {
 public:
  virtual ~LoadListener() = default;
  // Before a file's rows are read, such as "...loading airports".
  virtual void ShowProgress(std::string_view text) = 0;
  virtual void WriteInfoLog(std::string_view line) = 0;
};

struct DatabaseLocation {
  AppFolder home;
  std::string versionFolder;  // "\database\FS09\" or "\database\FS10\"
  std::string versionText;    // " for Flight Simulator 2004" or " for Flight Simulator X"
};

struct LoadResult {
  // False if a trap fired on the way: the tables end at their last good rows.
  bool successful = true;
  // A file that must have contents has none: the program cannot go on. Holds
  // its name between blanks, such as " region.vlm ".
  std::optional<std::string> emptyFile;
};

// One database file being read.
struct DatabaseFile {
  std::string name;  // such as "vor.vlm"
  FileBytes contents;

  std::span<const std::byte> Bytes() const { return contents.Bytes(); }
  bool IsEmpty() const { return Bytes().empty(); }
  // The name as the failure messages show it, between blanks.
  std::string SpacedName() const { return " " + name + " "; }
  // "vor.vlm = 152344"
  std::string SizeLine() const { return name + " = " + std::to_string(Bytes().size()); }
};

// Reads a file whole; a missing or unreadable one has no contents.
DatabaseFile OpenDatabaseFile(const DatabaseLocation& location, std::string_view folder,
                              std::string_view name);
