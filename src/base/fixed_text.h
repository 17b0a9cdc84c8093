// A text field of fixed width, blank padded, in the files' 8-bit code page.
// It is both the file's layout and the table's: rows stay plain, small and
// free of allocations. Convert with CodePageToUtf8() where a person reads it.
#pragma once

#include <algorithm>
#include <array>
#include <cstddef>
#include <string>
#include <string_view>

// Cuts blanks (and the zero bytes that some writers pad with) at both ends.
constexpr std::string_view Trimmed(std::string_view text) {
  const auto padding = [](char c) { return c == ' ' || c == '\0'; };
  while (!text.empty() && padding(text.front()))
    text.remove_prefix(1);
  while (!text.empty() && padding(text.back()))
    text.remove_suffix(1);
  return text;
}

// Upper case of the ASCII letters; other characters stay.
constexpr char AsciiUpper(char c) {
  return c >= 'a' && c <= 'z' ? static_cast<char>(c - 'a' + 'A') : c;
}

constexpr char AsciiLower(char c) {
  return c >= 'A' && c <= 'Z' ? static_cast<char>(c - 'A' + 'a') : c;
}

inline std::string AsciiUpper(std::string_view text) {
  std::string upper(text);
  std::transform(upper.begin(), upper.end(), upper.begin(), [](char c) { return AsciiUpper(c); });
  return upper;
}

// Equality without regard to the case of ASCII letters.
constexpr bool EqualNoCase(std::string_view a, std::string_view b) {
  return std::equal(a.begin(), a.end(), b.begin(), b.end(),
                    [](char x, char y) { return AsciiUpper(x) == AsciiUpper(y); });
}

template <std::size_t N>
struct FixedText {
  std::array<char, N> characters;

  constexpr FixedText() { characters.fill(' '); }

  // Takes the first N bytes of text (code page), pads with blanks.
  constexpr explicit FixedText(std::string_view text) { Assign(text); }

  constexpr FixedText& operator=(std::string_view text) {
    Assign(text);
    return *this;
  }

  // All N characters, padding included.
  constexpr std::string_view Raw() const { return {characters.data(), N}; }
  // Without the padding.
  constexpr std::string_view View() const { return Trimmed(Raw()); }
  std::string Text() const { return std::string(View()); }
  constexpr bool Empty() const { return View().empty(); }
  // True if the field marks an empty slot: its first character has code 0.
  constexpr bool IsEmptySlot() const { return characters[0] == '\0'; }

  friend constexpr bool operator==(const FixedText& a, const FixedText& b) { return a.View() == b.View(); }
  friend constexpr bool operator==(const FixedText& a, std::string_view b) { return a.View() == b; }

 private:
  constexpr void Assign(std::string_view text) {
    const std::size_t length = std::min(N, text.size());
    std::copy_n(text.begin(), length, characters.begin());
    std::fill(characters.begin() + static_cast<std::ptrdiff_t>(length), characters.end(), ' ');
  }
};
