// A new database on its way to the disk: written into a folder of its own
// inside the application folder, then swapped in. Until then, and if anything
// fails or the object goes away before, the old database stays as it was. The
// pilot's own files inside the database folder come along.
#pragma once

#include <cstddef>
#include <filesystem>
#include <set>
#include <span>
#include <string>
#include <string_view>
#include <vector>

class StagedDatabase {
 public:
  // Creates the application folder if there is none, takes the lock that keeps
  // a second Database Manager out, and clears away what a killed run left.
  // Throws BuildError.
  explicit StagedDatabase(std::filesystem::path home);
  ~StagedDatabase();
  StagedDatabase(const StagedDatabase&) = delete;
  StagedDatabase& operator=(const StagedDatabase&) = delete;

  // Writes a file; name is relative to the application folder, with "/".
  // Throws BuildError if the disk does not take all of it.
  void Write(const std::string& name, std::span<const std::byte> contents);
  void Write(const std::string& name, std::string_view contents);
  // The same contents under a second name: a hard link, else a copy.
  void WriteAgain(const std::string& written, const std::string& name);

  // Flushes everything to the disk and swaps it in: single files by rename,
  // the database folder last and as a whole. Throws BuildError; the old
  // database folder is then still the one in place.
  void SwapIn();

  std::size_t BytesWritten() const { return bytesWritten; }
  std::size_t FilesWritten() const { return written.size(); }

 private:
  void ClearLeftovers();
  void BringPilotsFiles();
  void BringFile(const std::filesystem::path& from, const std::filesystem::path& to);
  void SyncStage();
  void SwapDatabaseFolder();

  std::filesystem::path home;
  std::filesystem::path stage;
  int lock = -1;
  std::vector<std::string> written;
  std::set<std::string> writtenUpper;  // for comparing without regard to case
  std::size_t bytesWritten = 0;
};
