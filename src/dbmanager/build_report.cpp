#include <algorithm>
#include <array>
#include <cstdio>

#include "dbmanager/build_database.h"

namespace {

std::string Line(const char* format, const std::string& what, const std::string& read,
                 const std::string& written, const std::string& remark) {
  std::array<char, 256> text{};
  std::snprintf(text.data(), text.size(), format, what.c_str(), read.c_str(), written.c_str(),
                remark.c_str());
  std::string line(text.data());
  while (!line.empty() && line.back() == ' ')
    line.pop_back();
  return line + "\n";
}

std::string RejectText(const Rejects& rejects) {
  if (rejects.Count() == 0) return "No line was rejected.\n";
  std::string text = "Rejected lines: " + std::to_string(rejects.Count()) + "\n";
  for (const RejectedLine& line : rejects.Kept()) {
    text += "  " + line.file + (line.line > 0 ? ", line " + std::to_string(line.line) : "") + ": " +
            line.reason + "\n";
  }
  if (rejects.Count() > rejects.Kept().size()) {
    text += "  and " + std::to_string(rejects.Count() - rejects.Kept().size()) + " more\n";
  }
  return text;
}

}  // namespace

std::string FormatReport(const BuildReport& report) {
  constexpr const char* format = "%-22s %9s %9s  %s";
  std::string text;
  if (!report.rows.empty()) text += Line(format, "", "read", "written", "");
  for (const BuildReport::Row& row : report.rows) {
    text += Line(format, row.what, std::to_string(row.read), std::to_string(row.written), row.remark);
  }
  for (const std::string& note : report.notes)
    text += note + "\n";
  text += RejectText(report.rejects);
  if (report.failure.empty()) {
    std::array<char, 128> summary{};
    std::snprintf(summary.data(), summary.size(), "%zu files, %.1f MB, in %.1f s.\n", report.files,
                  static_cast<double>(report.bytes) / 1e6, report.seconds);
    text += summary.data();
  }
  return text;
}
