// What the writers of plain-text formats share: lines that end with CR LF, and
// texts whose separators would be taken for the format's own. All text is in
// the code page.
#pragma once

#include <algorithm>
#include <string>
#include <string_view>

// A control character inside the line, which would end it early, becomes a blank.
inline void AddLine(std::string& text, std::string_view line) {
  for (const char c : line)
    text += static_cast<unsigned char>(c) < ' ' ? ' ' : c;
  text += "\r\n";
}

// The text with blanks for one character, as a comma in a format of comma separated fields.
inline std::string WithBlanksFor(char separator, std::string_view text) {
  std::string plain(text);
  std::replace(plain.begin(), plain.end(), separator, ' ');
  return plain;
}
