// The two logs: VLM_Info.log, a line per step of the start-up, and
// VLM_Protocol.log, what happens in the session. Both keep one older
// generation and are flushed line by line, so a crash loses nothing.
#pragma once

#include <fstream>
#include <string>
#include <string_view>

#include "base/app_folder.h"

inline constexpr std::string_view versionText = " · Version 8.6 · Build:010810";

// "2026-11-22 21:34:05", local time.
std::string DateAndTime();

// Texts are UTF-8, the files in the code page.
class InfoLog {
 public:
  // Copies an existing log over VLM_Info.OLD and begins a new one. False if it
  // cannot be written; WriteInfoLog() then does nothing.
  bool Open(const AppFolder& home);
  void WriteInfoLog(std::string_view text);
  // Writes the closing line; further lines are dropped.
  void Close();

 private:
  std::ofstream file;
};

class ProtocolLog {
 public:
  // Copies an existing log over VLM_Protocol.old and begins a new one with an
  // error count of 0.
  bool Open(const AppFolder& home);
  void WriteProtocol(std::string_view text);
  // Writes an error's text and counts it.
  void WriteError(std::string_view text);
  int ErrorCount() const { return errorCount; }

 private:
  std::ofstream file;
  int errorCount = 0;
};
