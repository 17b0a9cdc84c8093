#include "base/nearest_letters.h"

#include <array>

namespace {

// Unicode's blocks Latin Extended-A (U+0100 to U+017F) and Latin Extended
// Additional (U+1E00 to U+1EF9) without their marks.
constexpr std::string_view latinExtendedA =
    "AaAaAaCcCcCcCcDdDdEeEeEeEeEeGgGgGgGgHhHhIiIiIiIiIiIiJjKkkLlLlLlLlLlNnNnNnnN"
    "nOoOoOoOoRrRrRrSsSsSsSsTtTtTtUuUuUuUuUuUuWwYyYZzZzZzs";
constexpr std::string_view latinAdditional =
    "AaBbBbBbCcDdDdDdDdDdEeEeEeEeEeFfGgHhHhHhHhHhIiIiKkKkKkLlLlLlLlMmMmMmNnNnNnN"
    "nOoOoOoOoPpPpRrRrRrRrSsSsSsSsSsTtTtTtTtUuUuUuUuUuVvVvWwWwWwWwWwXxXxYyZzZzZz"
    "htwyasssSdAaAaAaAaAaAaAaAaAaAaAaAaEeEeEeEeEeEeEeEeIiIiOoOoOoOoOoOoOoOoOoOoO"
    "oOoUuUuUuUuUuUuUuYyYyYyYy";

// U+0410 to U+042F and their small letters from U+0430 on.
constexpr std::array<std::string_view, 32> cyrillic = {
    "a", "b", "v", "g", "d", "e",  "zh", "z",  "i",  "j",    "k", "l", "m", "n", "o",  "p",
    "r", "s", "t", "u", "f", "kh", "ts", "ch", "sh", "shch", "",  "y", "",  "e", "yu", "ya"};
constexpr std::array<std::string_view, 32> cyrillicCapitals = {
    "A", "B", "V", "G", "D", "E",  "Zh", "Z",  "I",  "J",    "K", "L", "M", "N", "O",  "P",
    "R", "S", "T", "U", "F", "Kh", "Ts", "Ch", "Sh", "Shch", "",  "Y", "",  "E", "Yu", "Ya"};

struct Single {
  char32_t character;
  std::string_view letters;
};
constexpr Single singles[] = {
    {0x01A0, "O"}, {0x01A1, "o"},  {0x01AF, "U"},  {0x01B0, "u"},  {0x0218, "S"},  {0x0219, "s"},
    {0x021A, "T"}, {0x021B, "t"},  {0x02BB, "'"},  {0x02BC, "'"},  {0x0401, "Yo"}, {0x0404, "Ye"},
    {0x0406, "I"}, {0x0407, "Yi"}, {0x0451, "yo"}, {0x0454, "ye"}, {0x0456, "i"},  {0x0457, "yi"},
    {0x0490, "G"}, {0x0491, "g"},  {0x2009, " "},  {0x200B, ""},   {0x2010, "-"},  {0x2011, "-"},
    {0x2012, "-"}, {0x2015, "-"},  {0x202F, " "},  {0x2032, "'"},  {0x2033, "\""}, {0x2192, ">"},
    {0x2212, "-"}, {0xFEFF, ""},
};

}  // namespace

std::string_view NearestLetters(char32_t c) {
  if (c >= 0x100 && c < 0x180) return latinExtendedA.substr(c - 0x100, 1);
  if (c >= 0x1E00 && c < 0x1E00 + latinAdditional.size()) return latinAdditional.substr(c - 0x1E00, 1);
  if (c >= 0x0300 && c < 0x0370) return "";
  if (c >= 0x0410 && c < 0x0430) return cyrillicCapitals[c - 0x0410];
  if (c >= 0x0430 && c < 0x0450) return cyrillic[c - 0x0430];
  for (const Single& single : singles)
    if (single.character == c) return single.letters;
  return "?";
}
