// A text of sections and keys: "[Section]" lines, "key=value" lines, comments
// behind ";". Names are compared without regard to letter case, the first
// match wins. What is not changed stays as it was, line by line.
#pragma once

#include <string>
#include <string_view>
#include <vector>

class IniFile {
 public:
  // Longest value that is read, in characters; the rest is cut.
  static constexpr std::size_t longestValue = 256;

  IniFile() = default;
  // Takes any text: lines that are neither section nor key are kept and passed over.
  static IniFile Parse(std::string_view text);

  // The value without blanks around it and without one pair of quotes, or the
  // default if section or key is missing.
  std::string Read(std::string_view section, std::string_view key, std::string_view defaultValue) const;

  // Sets the value of a key, adding key and section (at the end) when missing.
  // Line breaks in the value become blanks: a key is one line.
  void Write(std::string_view section, std::string_view key, std::string_view value);

  // The whole text, lines ended by CR LF.
  std::string Text() const;

 private:
  // Line number of the section's head or -1.
  std::ptrdiff_t FindSection(std::string_view section) const;
  // Line number of the key within the section that starts at head, or -1.
  std::ptrdiff_t FindKey(std::ptrdiff_t head, std::string_view key) const;
  // Line number behind the section's last line that is not blank.
  std::ptrdiff_t EndOfSection(std::ptrdiff_t head) const;

  std::vector<std::string> lines;
};
