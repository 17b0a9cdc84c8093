// Positions as pilots type them:
//
//   50.5, 8.5      -33.95 151.18           degrees, latitude first
//   N50 30 E008 30.5    N50°30'15" E8°30'  degrees, minutes, seconds
//   50 30 N 8 30 E      50.5N 8.5E         the letters behind
//   5030N00830E    503015N0083015E         as in a flight plan form
#pragma once

#include <optional>
#include <string_view>

#include "navdata/geodesy.h"

// The position that the whole of text (UTF-8) stands for; nothing if it is no
// position or lies beyond a pole or 180 degrees. With letters the longitude
// may come first. Only the last of degrees, minutes and seconds may have a
// fraction.
std::optional<Position> PositionFromText(std::string_view text);
