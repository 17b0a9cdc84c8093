#include "settings/ini_file.h"

#include <algorithm>
#include <optional>

#include "base/fixed_text.h"

namespace {

std::string_view TrimLine(std::string_view text) {
  const auto isBlank = [](char c) { return c == ' ' || c == '\t' || c == '\r' || c == '\0'; };
  while (!text.empty() && isBlank(text.front()))
    text.remove_prefix(1);
  while (!text.empty() && isBlank(text.back()))
    text.remove_suffix(1);
  return text;
}

std::optional<std::string_view> SectionName(std::string_view line) {
  line = TrimLine(line);
  if (!line.starts_with('[')) return std::nullopt;
  const std::size_t end = line.find(']');
  return TrimLine(line.substr(1, end == std::string_view::npos ? line.npos : end - 1));
}

struct KeyLine {
  std::string_view key;
  std::string_view value;
};

std::optional<KeyLine> SplitKey(std::string_view line) {
  line = TrimLine(line);
  const std::size_t equals = line.find('=');
  if (line.starts_with(';') || line.starts_with('[') || equals == std::string_view::npos) return std::nullopt;
  return KeyLine{TrimLine(line.substr(0, equals)), TrimLine(line.substr(equals + 1))};
}

std::string_view Unquoted(std::string_view value) {
  const bool quoted =
      value.size() >= 2 && value.front() == value.back() && (value.front() == '"' || value.front() == '\'');
  return quoted ? value.substr(1, value.size() - 2) : value;
}

}  // namespace

IniFile IniFile::Parse(std::string_view text) {
  IniFile file;
  while (!text.empty()) {
    const std::size_t end = std::min(text.find('\n'), text.size());
    std::string_view line = text.substr(0, end);
    text.remove_prefix(std::min(end + 1, text.size()));
    while (line.ends_with('\r'))
      line.remove_suffix(1);
    file.lines.emplace_back(line);
  }
  return file;
}

std::ptrdiff_t IniFile::FindSection(std::string_view section) const {
  for (std::size_t i = 0; i < lines.size(); ++i) {
    const auto name = SectionName(lines[i]);
    if (name && EqualNoCase(*name, section)) return static_cast<std::ptrdiff_t>(i);
  }
  return -1;
}

std::ptrdiff_t IniFile::FindKey(std::ptrdiff_t head, std::string_view key) const {
  for (std::size_t i = static_cast<std::size_t>(head) + 1; i < lines.size() && !SectionName(lines[i]); ++i) {
    const auto split = SplitKey(lines[i]);
    if (split && EqualNoCase(split->key, key)) return static_cast<std::ptrdiff_t>(i);
  }
  return -1;
}

std::ptrdiff_t IniFile::EndOfSection(std::ptrdiff_t head) const {
  std::size_t end = static_cast<std::size_t>(head) + 1;
  for (std::size_t i = end; i < lines.size() && !SectionName(lines[i]); ++i) {
    if (!TrimLine(lines[i]).empty()) end = i + 1;
  }
  return static_cast<std::ptrdiff_t>(end);
}

std::string IniFile::Read(std::string_view section, std::string_view key,
                          std::string_view defaultValue) const {
  const std::ptrdiff_t head = FindSection(section);
  const std::ptrdiff_t at = head < 0 ? -1 : FindKey(head, key);
  if (at < 0) return std::string(defaultValue);
  const std::string_view value = Unquoted(SplitKey(lines[static_cast<std::size_t>(at)])->value);
  return std::string(value.substr(0, longestValue));
}

void IniFile::Write(std::string_view section, std::string_view key, std::string_view value) {
  std::string line = std::string(key) + "=" + std::string(value);
  std::replace_if(
      line.begin(), line.end(), [](char c) { return c == '\n' || c == '\r' || c == '\0'; }, ' ');
  std::ptrdiff_t head = FindSection(section);
  if (head < 0) {
    head = static_cast<std::ptrdiff_t>(lines.size());
    lines.push_back("[" + std::string(section) + "]");
  }
  const std::ptrdiff_t at = FindKey(head, key);
  if (at >= 0) {
    lines[static_cast<std::size_t>(at)] = std::move(line);
  } else {
    lines.insert(lines.begin() + EndOfSection(head), std::move(line));
  }
}

std::string IniFile::Text() const {
  std::string text;
  for (const std::string& line : lines)
    text += line + "\r\n";
  return text;
}
