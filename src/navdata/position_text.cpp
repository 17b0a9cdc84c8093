#include "navdata/position_text.h"

#include <cctype>
#include <string>
#include <vector>

#include "base/fixed_text.h"
#include "base/numbers.h"

namespace {

constexpr std::size_t longestText = 64;

struct Number {
  std::string digits;  // with its point
  bool negative = false;

  std::size_t WholeDigits() const { return std::min(digits.find('.'), digits.size()); }
  bool HasFraction() const { return digits.find('.') != std::string::npos; }
  double Value() const { return Val(digits); }
};

// A number, or one of the letters N, S, E, W.
struct Piece {
  char letter = 0;
  Number number;
};

using Pieces = std::vector<Piece>;

bool IsDigit(char c) {
  return c >= '0' && c <= '9';
}

// Signs of degrees, minutes and seconds, and what else stands between numbers.
bool SkipSeparator(std::string_view& text) {
  static constexpr std::string_view separators[] = {
      " ", ",", ";", ":", "*", "'", "\"", "/", "\u00B0", "\u00BA", "\u2032", "\u2033", "\u2019", "\u201D"};
  for (const std::string_view separator : separators) {
    if (!text.starts_with(separator)) continue;
    text.remove_prefix(separator.size());
    return true;
  }
  return false;
}

std::optional<Number> TakeNumber(std::string_view& text) {
  Number number;
  if (text.front() == '-' || text.front() == '+') {
    number.negative = text.front() == '-';
    text.remove_prefix(1);
  }
  std::size_t length = 0;
  while (length < text.size() && (IsDigit(text[length]) || text[length] == '.'))
    ++length;
  number.digits = text.substr(0, length);
  text.remove_prefix(length);
  const std::size_t point = number.digits.find('.');
  const bool onePoint = point == std::string::npos || number.digits.find('.', point + 1) == std::string::npos;
  if (number.digits.empty() || !IsDigit(number.digits.front()) || !onePoint) return std::nullopt;
  return number;
}

std::optional<Pieces> PiecesOf(std::string_view text) {
  Pieces pieces;
  while (!text.empty()) {
    if (SkipSeparator(text)) continue;
    const char letter = AsciiUpper(text.front());
    if (std::string_view("NSEW").find(letter) != std::string_view::npos) {
      pieces.push_back({letter, {}});
      text.remove_prefix(1);
      continue;
    }
    const std::optional<Number> number = TakeNumber(text);
    if (!number) return std::nullopt;
    pieces.push_back({0, *number});
  }
  return pieces;
}

// 5030 or 503015 (longitudes with a digit more) as degrees, minutes, seconds.
std::vector<Number> Parted(const Number& number, bool latitude) {
  const std::size_t degreeDigits = latitude ? 2 : 3;
  const std::size_t whole = number.WholeDigits();
  if (whole != degreeDigits + 2 && whole != degreeDigits + 4) return {number};
  std::vector<Number> parts{{number.digits.substr(0, degreeDigits), false}};
  if (whole == degreeDigits + 2) {
    parts.push_back({number.digits.substr(degreeDigits), false});
  } else {
    parts.push_back({number.digits.substr(degreeDigits, 2), false});
    parts.push_back({number.digits.substr(degreeDigits + 2), false});
  }
  return parts;
}

std::optional<double> Degrees(std::vector<Number> parts, bool latitude) {
  if (parts.size() == 1) parts = Parted(parts.front(), latitude);
  if (parts.empty() || parts.size() > 3) return std::nullopt;
  double degrees = 0;
  double unit = 1;
  for (std::size_t i = 0; i < parts.size(); ++i) {
    const double value = parts[i].Value();
    if (parts[i].negative || (i > 0 && value >= 60)) return std::nullopt;
    if (i + 1 < parts.size() && parts[i].HasFraction()) return std::nullopt;
    degrees += value / unit;
    unit *= 60;
  }
  if (degrees > (latitude ? 90 : 180)) return std::nullopt;
  return degrees;
}

std::optional<Position> FromSignedDegrees(const Pieces& pieces) {
  if (pieces.size() != 2) return std::nullopt;
  const Number& lat = pieces[0].number;
  const Number& lon = pieces[1].number;
  if (lat.Value() > 90 || lon.Value() > 180) return std::nullopt;
  return Position{static_cast<float>(lat.negative ? -lat.Value() : lat.Value()),
                  static_cast<float>(lon.negative ? -lon.Value() : lon.Value())};
}

struct Half {
  char letter = 0;
  std::vector<Number> numbers;
};

// The two halves of a text with letters, all before their numbers or all behind.
std::optional<std::pair<Half, Half>> HalvesOf(const Pieces& pieces) {
  std::vector<Half> halves(1);
  const bool lettersBefore = pieces.front().letter != 0;
  for (const Piece& piece : pieces) {
    if (piece.letter == 0) {
      halves.back().numbers.push_back(piece.number);
    } else if (lettersBefore && halves.back().letter != 0) {
      halves.push_back({piece.letter, {}});
    } else {
      halves.back().letter = piece.letter;
      if (!lettersBefore) halves.emplace_back();
    }
  }
  if (!lettersBefore) {
    if (!halves.back().numbers.empty()) return std::nullopt;
    halves.pop_back();
  }
  if (halves.size() != 2) return std::nullopt;
  return std::pair(halves[0], halves[1]);
}

}  // namespace

std::optional<Position> PositionFromText(std::string_view text) {
  if (text.size() > longestText) return std::nullopt;
  const std::optional<Pieces> pieces = PiecesOf(text);
  if (!pieces || pieces->empty()) return std::nullopt;
  bool letters = false;
  for (const Piece& piece : *pieces)
    letters = letters || piece.letter != 0;
  if (!letters) return FromSignedDegrees(*pieces);
  const auto halves = HalvesOf(*pieces);
  if (!halves) return std::nullopt;
  auto [lat, lon] = *halves;
  if (lat.letter == 'E' || lat.letter == 'W') std::swap(lat, lon);
  const bool south = lat.letter == 'S';
  const bool west = lon.letter == 'W';
  if ((!south && lat.letter != 'N') || (!west && lon.letter != 'E')) return std::nullopt;
  const auto latitude = Degrees(lat.numbers, true);
  const auto longitude = Degrees(lon.numbers, false);
  if (!latitude || !longitude) return std::nullopt;
  return Position{static_cast<float>(south ? -*latitude : *latitude),
                  static_cast<float>(west ? -*longitude : *longitude)};
}
