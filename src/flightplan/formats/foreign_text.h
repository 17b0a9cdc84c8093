// Lines, numbers and positions as other programs write them. Nothing is
// guessed: what is no number, or lies off the earth, is none.
#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "navdata/geodesy.h"

// Without blanks and tabs at both ends.
std::string_view Stripped(std::string_view text);

// The next line of text (ended by LF, CR or both), which is cut off it; nothing at the end.
std::optional<std::string_view> TakeTextLine(std::string_view& text);

// The texts between the separators, stripped.
std::vector<std::string_view> Parts(std::string_view text, char separator);
// The words between blanks.
std::vector<std::string_view> WordsOf(std::string_view text);

// The whole of text as a finite number, with a point or a comma.
std::optional<double> NumberOf(std::string_view text);

// Degrees, north and east positive; nothing beyond a pole or 180 degrees.
std::optional<Position> PlaceOf(std::optional<double> lat, std::optional<double> lon);

// "N50* 15.1234'", "W1° 39' 11.73"": a letter, then degrees and what follows them.
std::optional<double> AngleOf(std::string_view text);
