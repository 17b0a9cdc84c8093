#include "settings/logs.h"

#include <array>
#include <ctime>
#include <filesystem>
#include <system_error>

#include "base/code_page.h"
#include "base/files.h"

namespace {

bool OpenLog(const AppFolder& home, std::string_view name, std::string_view oldName, std::ofstream& file) {
  const auto path = home.Resolve(name);
  std::error_code error;
  if (std::filesystem::exists(path, error)) CopyFileWhole(path, home.Resolve(oldName));
  file.open(path, std::ios::binary | std::ios::trunc);
  return file.is_open();
}

void WriteLine(std::ofstream& file, std::string_view text) {
  if (!file.is_open()) return;
  file << Utf8ToCodePage(text) << '\n' << std::flush;
  file.clear();
}

std::string FirstLine() {
  return "VLM " + std::string(versionText) + " - " + DateAndTime();
}

}  // namespace

std::string DateAndTime() {
  const std::time_t now = std::time(nullptr);
  std::tm local{};
  localtime_r(&now, &local);
  std::array<char, 32> buffer{};
  const std::size_t length = std::strftime(buffer.data(), buffer.size(), "%Y-%m-%d %H:%M:%S", &local);
  return {buffer.data(), length};
}

bool InfoLog::Open(const AppFolder& home) {
  if (!OpenLog(home, "\\VLM_Info.log", "\\VLM_Info.OLD", file)) return false;
  WriteLine(file, FirstLine());
  return true;
}

void InfoLog::WriteInfoLog(std::string_view text) {
  WriteLine(file, text);
}

void InfoLog::Close() {
  if (!file.is_open()) return;
  WriteLine(file, "Logfile Closed  at: " + DateAndTime());
  file.close();
}

bool ProtocolLog::Open(const AppFolder& home) {
  errorCount = 0;
  if (!OpenLog(home, "\\VLM_Protocol.log", "\\VLM_Protocol.old", file)) return false;
  WriteLine(file, FirstLine());
  return true;
}

void ProtocolLog::WriteProtocol(std::string_view text) {
  WriteLine(file, text);
}

void ProtocolLog::WriteError(std::string_view text) {
  ++errorCount;
  WriteLine(file, text);
}
