#include "flightplan/plan_file_name.h"

#include <algorithm>

#include "base/code_page.h"

namespace {

// Leaves room for an extension, and for what a file is called while it is written.
constexpr std::size_t longestName = 200;
constexpr std::size_t longestExtension = 8;

bool IsLetter(char c) {
  return (c >= 'A' && c <= 'Z') || (c >= 'a' && c <= 'z');
}

bool IsExtension(std::string_view text) {
  const auto fits = [](char c) { return IsLetter(c) || (c >= '0' && c <= '9'); };
  return !text.empty() && text.size() <= longestExtension && IsLetter(text.front()) &&
         std::all_of(text.begin(), text.end(), fits);
}

std::string_view WithoutBlanks(std::string_view text) {
  while (!text.empty() && text.front() == ' ')
    text.remove_prefix(1);
  while (!text.empty() && text.back() == ' ')
    text.remove_suffix(1);
  return text;
}

}  // namespace

std::string PlanBaseName(std::string_view typed) {
  const std::string_view name = WithoutBlanks(typed);
  const std::size_t dot = name.rfind('.');
  if (dot == std::string_view::npos || dot == 0 || !IsExtension(name.substr(dot + 1)))
    return std::string(name);
  return std::string(WithoutBlanks(name.substr(0, dot)));
}

std::string PlanNameFault(std::string_view baseName) {
  if (baseName.empty()) return "Please specify file name!";
  if (!IsValidUtf8(baseName)) return "The name is no text.";
  if (baseName.front() == '.') return "A file name cannot begin with a dot.";
  if (baseName.find_first_of("/\\:*?\"<>|") != std::string_view::npos)
    return "A file name cannot hold any of / \\ : * ? \" < > |";
  const auto isControl = [](char c) { return static_cast<unsigned char>(c) < 32 || c == 127; };
  if (std::any_of(baseName.begin(), baseName.end(), isControl))
    return "The name holds a character that cannot be shown.";
  if (baseName.size() > longestName) return "The name is too long.";
  return {};
}

std::string PlanFileName(const PlanFormatInfo& format, std::string_view baseName, std::string_view departure,
                         std::string_view destination) {
  std::string name =
      format.namedByAirports ? std::string(departure) + std::string(destination) : std::string(baseName);
  return name.append(format.extension);
}
