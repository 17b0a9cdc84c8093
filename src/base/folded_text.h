// Texts as a search compares them: small ASCII letters and digits, one blank
// between two words. Accents are taken off, everything else parts words.
#pragma once

#include <string>
#include <string_view>

enum class Umlauts {
  plain,   // ä, ö, ø, ü, å are a, o, o, u, a
  spelled  // ä, ö, ø, ü, å are ae, oe, oe, ue, aa
};

enum class Apostrophes {
  join,  // d'Azur is dazur
  part   // d'Azur is d azur
};

// text is in the 8-bit code page. Blanks at the ends are cut.
std::string Folded(std::string_view text, Umlauts umlauts, Apostrophes apostrophes);
