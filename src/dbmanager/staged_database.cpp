#include "dbmanager/staged_database.h"

#include <fcntl.h>
#include <sys/file.h>
#include <unistd.h>

#include <cerrno>
#include <cstdio>
#include <cstring>

#include "base/app_folder.h"
#include "base/fixed_text.h"
#include "dbmanager/source_error.h"

namespace fs = std::filesystem;

namespace {

constexpr std::string_view stagePrefix = ".new-database.";
constexpr std::string_view retired = "old-database";  // within a stage, while it is swapped out by hand

[[noreturn]] void Fail(const fs::path& path, int code) {
  throw BuildError(path.string() + ": " + std::strerror(code));
}

void CreateFolders(const fs::path& folder) {
  std::error_code error;
  fs::create_directories(folder, error);
  if (error) throw BuildError(folder.string() + ": " + error.message());
}

void SyncFolder(const fs::path& folder) {
  const int descriptor = open(folder.c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC);
  if (descriptor < 0) return;
  fsync(descriptor);
  close(descriptor);
}

// False with errno set.
bool WriteAll(int descriptor, std::span<const std::byte> contents) {
  while (!contents.empty()) {
    const ssize_t count = write(descriptor, contents.data(), contents.size());
    if (count < 0 && errno == EINTR) continue;
    if (count < 0) return false;
    contents = contents.subspan(static_cast<std::size_t>(count));
  }
  return true;
}

}  // namespace

StagedDatabase::StagedDatabase(fs::path homeFolder) : home(std::move(homeFolder)) {
  CreateFolders(home);
  const fs::path lockFile = home / ".database-manager.lock";
  lock = open(lockFile.c_str(), O_RDWR | O_CREAT | O_CLOEXEC, 0644);
  if (lock < 0) Fail(lockFile, errno);
  if (flock(lock, LOCK_EX | LOCK_NB) != 0) {
    const int code = errno;
    close(lock);
    if (code == EWOULDBLOCK) throw BuildError(home.string() + ": another Database Manager is at work here");
    Fail(lockFile, code);
  }
  ClearLeftovers();
  std::string pattern = (home / (std::string(stagePrefix) + "XXXXXX")).string();
  if (mkdtemp(pattern.data()) == nullptr) {
    const int code = errno;
    close(lock);
    Fail(home, code);
  }
  stage = pattern;
}

StagedDatabase::~StagedDatabase() {
  std::error_code ignored;
  fs::remove_all(stage, ignored);
  close(lock);
}

// A run that was killed while it swapped by hand has the old database in its
// folder and none in place: it goes back first.
void StagedDatabase::ClearLeftovers() {
  std::error_code error;
  std::vector<fs::path> found;
  for (fs::directory_iterator entry(home, error), end; !error && entry != end; entry.increment(error)) {
    if (entry->path().filename().string().starts_with(stagePrefix)) found.push_back(entry->path());
  }
  for (const fs::path& folder : found) {
    const fs::path database = ResolveBelow(home, "database");
    if (fs::exists(folder / retired, error) && !fs::exists(database, error)) {
      fs::rename(folder / retired, database, error);
      if (error) throw BuildError((folder / retired).string() + ": " + error.message());
    }
    fs::remove_all(folder, error);
  }
}

void StagedDatabase::Write(const std::string& name, std::span<const std::byte> contents) {
  const fs::path path = stage / name;
  CreateFolders(path.parent_path());
  const int descriptor = open(path.c_str(), O_WRONLY | O_CREAT | O_TRUNC | O_CLOEXEC, 0644);
  if (descriptor < 0) Fail(home / name, errno);
  const bool whole = WriteAll(descriptor, contents);
  const int code = errno;
  const bool closed = close(descriptor) == 0;
  if (!whole) Fail(home / name, code);
  if (!closed) Fail(home / name, errno);
  written.push_back(name);
  writtenUpper.insert(AsciiUpper(std::string_view(name)));
  bytesWritten += contents.size();
}

void StagedDatabase::Write(const std::string& name, std::string_view contents) {
  Write(name, std::as_bytes(std::span(contents.data(), contents.size())));
}

void StagedDatabase::WriteAgain(const std::string& existing, const std::string& name) {
  CreateFolders((stage / name).parent_path());
  BringFile(stage / existing, stage / name);
  written.push_back(name);
  writtenUpper.insert(AsciiUpper(std::string_view(name)));
}

void StagedDatabase::BringFile(const fs::path& from, const fs::path& to) {
  std::error_code error;
  CreateFolders(to.parent_path());
  if (fs::is_symlink(from, error)) {
    fs::copy_symlink(from, to, error);
  } else {
    fs::create_hard_link(from, to, error);
    if (error) fs::copy_file(from, to, fs::copy_options::overwrite_existing, error);
  }
  if (error) throw BuildError(from.string() + ": " + error.message());
}

// Everything in the old database folder that this database does not replace.
void StagedDatabase::BringPilotsFiles() {
  const fs::path old = ResolveBelow(home, "database");
  std::error_code error;
  if (!fs::is_directory(old, error)) return;
  for (fs::recursive_directory_iterator entry(old, error), end; entry != end; entry.increment(error)) {
    if (error) throw BuildError(old.string() + ": " + error.message());
    const fs::path relative = entry->path().lexically_relative(old);
    const std::string name = "database/" + relative.generic_string();
    if (writtenUpper.contains(AsciiUpper(std::string_view(name)))) continue;
    const fs::path target = ResolveBelow(stage, name);
    if (entry->is_directory() && !entry->is_symlink()) {
      CreateFolders(target);
    } else if (entry->is_regular_file() || entry->is_symlink()) {
      BringFile(entry->path(), target);
    }
  }
  if (error) throw BuildError(old.string() + ": " + error.message());
}

void StagedDatabase::SyncStage() {
  const int descriptor = open(stage.c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC);
  if (descriptor < 0) Fail(stage, errno);
  const bool synced = syncfs(descriptor) == 0;
  const int code = errno;
  close(descriptor);
  if (!synced) Fail(stage, code);
}

void StagedDatabase::SwapIn() {
  BringPilotsFiles();
  SyncStage();
  for (const std::string& name : written) {
    if (name.starts_with("database/")) continue;
    const fs::path target = ResolveBelow(home, name);
    CreateFolders(target.parent_path());
    if (rename((stage / name).c_str(), target.c_str()) != 0) Fail(target, errno);
    SyncFolder(target.parent_path());
  }
  SwapDatabaseFolder();
  SyncFolder(home);
}

void StagedDatabase::SwapDatabaseFolder() {
  const fs::path fresh = stage / "database";
  const fs::path place = ResolveBelow(home, "database");
  if (renameat2(AT_FDCWD, fresh.c_str(), AT_FDCWD, place.c_str(), RENAME_EXCHANGE) == 0) return;
  if (errno == ENOENT) {
    if (rename(fresh.c_str(), place.c_str()) != 0) Fail(place, errno);
    return;
  }
  if (errno != EINVAL && errno != ENOSYS) Fail(place, errno);
  // A file system that cannot exchange: two renames, undone if the second fails.
  const fs::path aside = stage / retired;
  if (rename(place.c_str(), aside.c_str()) != 0) Fail(place, errno);
  if (rename(fresh.c_str(), place.c_str()) != 0) {
    const int code = errno;
    if (rename(aside.c_str(), place.c_str()) != 0) stage.clear();  // keep it: the next run puts it back
    Fail(place, code);
  }
}
