#include "base/files.h"

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cerrno>
#include <cstring>

namespace {

void Tell(std::string* reason, const std::filesystem::path& path, const char* what) {
  if (reason != nullptr) *reason = path.string() + ": " + what;
}

class Descriptor {
 public:
  explicit Descriptor(int number) : number(number) {}
  ~Descriptor() { Close(); }
  Descriptor(const Descriptor&) = delete;
  Descriptor& operator=(const Descriptor&) = delete;

  bool IsOpen() const { return number >= 0; }
  int Number() const { return number; }
  bool Close() {
    if (number < 0) return true;
    const bool closed = close(number) == 0;
    number = -1;
    return closed;
  }

 private:
  int number;
};

bool WriteAll(int descriptor, std::span<const std::byte> contents) {
  while (!contents.empty()) {
    const ssize_t written = write(descriptor, contents.data(), contents.size());
    if (written < 0) {
      if (errno == EINTR) continue;
      return false;
    }
    contents = contents.subspan(static_cast<std::size_t>(written));
  }
  return true;
}

// Makes the rename itself durable; a file system that cannot sync a folder
// still has the renamed file.
void SyncFolder(const std::filesystem::path& folder) {
  const Descriptor opened(open(folder.empty() ? "." : folder.c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC));
  if (opened.IsOpen()) fsync(opened.Number());
}

}  // namespace

std::optional<FileBytes> ReadWholeFile(const std::filesystem::path& path, std::string* reason) {
  const Descriptor file(open(path.c_str(), O_RDONLY | O_CLOEXEC));
  struct stat status {};
  if (!file.IsOpen() || fstat(file.Number(), &status) != 0) {
    Tell(reason, path, std::strerror(errno));
    return std::nullopt;
  }
  if (!S_ISREG(status.st_mode)) {
    Tell(reason, path, "not a regular file");
    return std::nullopt;
  }
  const auto size = static_cast<std::size_t>(status.st_size);
  auto bytes = std::make_unique_for_overwrite<std::byte[]>(size);
  std::size_t have = 0;
  while (have < size) {
    const ssize_t got = read(file.Number(), bytes.get() + have, size - have);
    if (got < 0 && errno == EINTR) continue;
    if (got < 0) {
      Tell(reason, path, std::strerror(errno));
      return std::nullopt;
    }
    if (got == 0) break;
    have += static_cast<std::size_t>(got);
  }
  return FileBytes(std::move(bytes), have);
}

std::uintmax_t FileSizeOrZero(const std::filesystem::path& path) {
  struct stat status {};
  if (stat(path.c_str(), &status) != 0 || !S_ISREG(status.st_mode)) return 0;
  return static_cast<std::uintmax_t>(status.st_size);
}

bool ReplaceFile(const std::filesystem::path& path, std::span<const std::byte> contents,
                 std::string* reason) {
  std::string pattern = path.string() + ".XXXXXX";
  Descriptor file(mkostemp(pattern.data(), O_CLOEXEC));
  if (!file.IsOpen()) {
    Tell(reason, path, std::strerror(errno));
    return false;
  }
  const auto fail = [&] {
    Tell(reason, path, std::strerror(errno));
    file.Close();
    unlink(pattern.c_str());
    return false;
  };
  struct stat old {};
  const mode_t mode = stat(path.c_str(), &old) == 0 ? (old.st_mode & 07777u) : 0644u;
  if (fchmod(file.Number(), mode) != 0) return fail();
  if (!WriteAll(file.Number(), contents)) return fail();
  if (fsync(file.Number()) != 0) return fail();
  if (!file.Close()) return fail();
  if (rename(pattern.c_str(), path.c_str()) != 0) return fail();
  SyncFolder(path.parent_path());
  return true;
}

bool ReplaceFile(const std::filesystem::path& path, std::string_view contents, std::string* reason) {
  return ReplaceFile(path, std::as_bytes(std::span(contents.data(), contents.size())), reason);
}

bool CopyFileWhole(const std::filesystem::path& from, const std::filesystem::path& to, std::string* reason) {
  const auto contents = ReadWholeFile(from, reason);
  return contents && ReplaceFile(to, contents->Bytes(), reason);
}
