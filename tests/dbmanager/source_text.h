// Sources written out in a test, and what a reader rejected of them.
#pragma once

#include <string>

#include "dbmanager/rejects.h"
#include "dbmanager/source_lines.h"

inline std::string RejectTexts(const Rejects& rejects) {
  std::string text;
  for (const RejectedLine& line : rejects.Kept()) {
    text += line.file + ":" + std::to_string(line.line) + ": " + line.reason + "\n";
  }
  return text;
}

// A source with its two-line head in front; its own lines begin at line 3.
inline std::string WithHead(const std::string& version, const std::string& lines) {
  return "I\n" + version + " Version - data cycle 2013.10, build 1\n" + lines;
}
