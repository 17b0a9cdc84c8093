#include "base/code_page.h"

#include <array>
#include <cstddef>
#include <cstdint>
#include <optional>

#include "base/nearest_letters.h"

namespace {

// Unicode code points of 0x80 to 0x9F; source: the Windows-1252 mapping table
// published by Unicode, Inc.
constexpr std::array<char32_t, 32> upperControls = {
    0x20AC, 0x0081, 0x201A, 0x0192, 0x201E, 0x2026, 0x2020, 0x2021, 0x02C6, 0x2030, 0x0160,
    0x2039, 0x0152, 0x008D, 0x017D, 0x008F, 0x0090, 0x2018, 0x2019, 0x201C, 0x201D, 0x2022,
    0x2013, 0x2014, 0x02DC, 0x2122, 0x0161, 0x203A, 0x0153, 0x009D, 0x017E, 0x0178};

char32_t CodePoint(unsigned char byte) {
  if (byte >= 0x80 && byte < 0xA0) return upperControls[byte - 0x80u];
  return byte;
}

void AppendUtf8(std::string& out, char32_t c) {
  const auto put = [&out](char32_t value) { out.push_back(static_cast<char>(value)); };
  if (c < 0x80) {
    put(c);
  } else if (c < 0x800) {
    put(0xC0 | (c >> 6));
    put(0x80 | (c & 0x3F));
  } else {
    put(0xE0 | (c >> 12));
    put(0x80 | ((c >> 6) & 0x3F));
    put(0x80 | (c & 0x3F));
  }
}

// Reads one character at position and moves behind it; nothing if the bytes
// there are no UTF-8 (position then moves on by one byte).
std::optional<char32_t> NextUtf8(std::string_view text, std::size_t& position) {
  const auto byte = [&](std::size_t i) -> std::uint32_t { return static_cast<unsigned char>(text[i]); };
  const std::uint32_t first = byte(position);
  std::size_t length = 0;
  char32_t value = 0;
  char32_t smallest = 0;
  if (first < 0x80) {
    ++position;
    return first;
  }
  if (first >= 0xC2 && first < 0xE0) {
    length = 2, value = first & 0x1F, smallest = 0x80;
  } else if (first >= 0xE0 && first < 0xF0) {
    length = 3, value = first & 0x0F, smallest = 0x800;
  } else if (first >= 0xF0 && first < 0xF5) {
    length = 4, value = first & 0x07, smallest = 0x10000;
  } else {
    ++position;
    return std::nullopt;
  }
  const std::size_t start = position++;
  if (start + length > text.size()) return std::nullopt;
  for (std::size_t i = 1; i < length; ++i) {
    if ((byte(start + i) & 0xC0) != 0x80) return std::nullopt;
    value = (value << 6) | (byte(start + i) & 0x3F);
  }
  if (value < smallest || value > 0x10FFFF || (value >= 0xD800 && value < 0xE000)) return std::nullopt;
  position = start + length;
  return value;
}

void AppendCodePage(std::string& out, char32_t c) {
  if (c < 0x80 || (c >= 0xA0 && c <= 0xFF)) return out.push_back(static_cast<char>(c));
  for (std::size_t i = 0; i < upperControls.size(); ++i) {
    if (upperControls[i] == c) return out.push_back(static_cast<char>(0x80 + i));
  }
  out += NearestLetters(c);
}

}  // namespace

std::string CodePageToUtf8(std::string_view text) {
  std::string out;
  out.reserve(text.size());
  for (const char c : text)
    AppendUtf8(out, CodePoint(static_cast<unsigned char>(c)));
  return out;
}

std::string Utf8ToCodePage(std::string_view text) {
  std::string out;
  out.reserve(text.size());
  for (std::size_t position = 0; position < text.size();) {
    const auto c = NextUtf8(text, position);
    AppendCodePage(out, c.value_or(U'\uFFFD'));
  }
  return out;
}

bool IsValidUtf8(std::string_view text) {
  for (std::size_t position = 0; position < text.size();) {
    if (!NextUtf8(text, position)) return false;
  }
  return true;
}
