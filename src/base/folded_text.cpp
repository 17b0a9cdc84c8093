#include "base/folded_text.h"

#include <cstdint>

namespace {

bool IsPlain(char c) {
  return (c >= 'a' && c <= 'z') || (c >= '0' && c <= '9');
}

char Lower(char c) {
  return c >= 'A' && c <= 'Z' ? static_cast<char>(c - 'A' + 'a') : c;
}

bool IsApostrophe(char c) {
  const auto code = static_cast<std::uint8_t>(c);
  return c == '\'' || c == '`' || code == 0x91 || code == 0x92 || code == 0xB4;
}

// What a letter above ASCII reads as; a second letter only where the plain form
// has two as well. Codes 0xC0 to 0xDF are the capitals of 0xE0 to 0xFF.
std::string_view WithoutAccent(std::uint8_t code) {
  switch (code) {
    case 0x8A:
    case 0x9A:
      return "s";
    case 0x8C:
    case 0x9C:
      return "oe";
    case 0x8E:
    case 0x9E:
      return "z";
    case 0x9F:
    case 0xFF:
      return "y";
    case 0xDF:
      return "ss";
    case 0xD7:
    case 0xF7:
      return "";
    default:
      break;
  }
  if (code < 0xC0) return "";
  static constexpr std::string_view letters[32] = {"a", "a", "a", "a", "a", "a", "ae", "c", "e",  "e", "e",
                                                   "e", "i", "i", "i", "i", "d", "n",  "o", "o",  "o", "o",
                                                   "o", "",  "o", "u", "u", "u", "u",  "y", "th", ""};
  return letters[code & 0x1F];
}

std::string_view Spelled(std::uint8_t code) {
  switch (code | 0x20) {
    case 0xE4:
      return "ae";
    case 0xE5:
      return "aa";
    case 0xF6:
    case 0xF8:
      return "oe";
    case 0xFC:
      return "ue";
    default:
      return {};
  }
}

}  // namespace

std::string Folded(std::string_view text, Umlauts umlauts, Apostrophes apostrophes) {
  std::string folded;
  folded.reserve(text.size() + 4);
  bool gap = false;
  for (const char c : text) {
    const char small = Lower(c);
    const auto code = static_cast<std::uint8_t>(c);
    std::string_view letters;
    if (IsPlain(small)) letters = {&small, 1};
    if (code >= 0xC0 && umlauts == Umlauts::spelled) letters = Spelled(code);
    if (code >= 0x80 && letters.empty()) letters = WithoutAccent(code);
    if (letters.empty()) {
      gap = gap || !IsApostrophe(c) || apostrophes == Apostrophes::part;
      continue;
    }
    if (gap && !folded.empty()) folded += ' ';
    gap = false;
    folded += letters;
  }
  return folded;
}
