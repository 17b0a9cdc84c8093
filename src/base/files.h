// Whole files: read at once, replaced at once. A replaced file is written
// beside the old one, flushed to the disk and renamed over it, so a crash or a
// full disk leaves either the old or the new one.
#pragma once

#include <cstddef>
#include <cstdint>
#include <filesystem>
#include <memory>
#include <optional>
#include <span>
#include <string>
#include <string_view>

// A file's contents, not zeroed before the read.
class FileBytes {
 public:
  FileBytes() = default;
  FileBytes(std::unique_ptr<std::byte[]> bytes, std::size_t size) : bytes(std::move(bytes)), size(size) {}

  std::span<const std::byte> Bytes() const { return {bytes.get(), size}; }
  std::string_view Text() const { return {reinterpret_cast<const char*>(bytes.get()), size}; }

 private:
  std::unique_ptr<std::byte[]> bytes;
  std::size_t size = 0;
};

// The whole file, or nothing if it is missing, no regular file or unreadable;
// reason (if given) then tells why in the system's words.
std::optional<FileBytes> ReadWholeFile(const std::filesystem::path& path, std::string* reason = nullptr);

// Size in bytes; 0 if the file is missing or no regular file.
std::uintmax_t FileSizeOrZero(const std::filesystem::path& path);

// Puts contents in place of the file (or creates it). On failure nothing has
// changed, the result is false and reason (if given) tells why.
bool ReplaceFile(const std::filesystem::path& path, std::span<const std::byte> contents,
                 std::string* reason = nullptr);
bool ReplaceFile(const std::filesystem::path& path, std::string_view contents, std::string* reason = nullptr);

// Copies a file over another, whole (as ReplaceFile). False if the source
// cannot be read or the target not written.
bool CopyFileWhole(const std::filesystem::path& from, const std::filesystem::path& to,
                   std::string* reason = nullptr);
