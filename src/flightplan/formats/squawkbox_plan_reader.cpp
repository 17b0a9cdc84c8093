// SquawkBox: the flight plan form, with the route as one line of text.
#include <algorithm>
#include <cctype>

#include "base/fixed_text.h"
#include "flightplan/formats/foreign_readers.h"
#include "flightplan/formats/foreign_text.h"

namespace {

// "N0447F380", "M082F350", "K0830S1130": speed and level at the head of a route.
bool IsSpeedAndLevel(std::string_view word) {
  if (word.size() < 8 || std::string_view("NKM").find(word[0]) == std::string_view::npos) return false;
  const std::size_t level = word.find_first_of("FASM", 1);
  if (level == std::string_view::npos || level < 4) return false;
  return std::all_of(word.begin() + 1, word.end(),
                     [&](const char& c) { return &c == &word[level] || (c >= '0' && c <= '9'); });
}

// The words that name points, airways and procedures.
std::string PlainRoute(std::string_view route) {
  std::string plain;
  for (const std::string_view written : WordsOf(route)) {
    const std::string word = AsciiUpper(written.substr(0, written.find('/')));
    if (word.empty() || word == "DCT" || IsSpeedAndLevel(word)) continue;
    plain += (plain.empty() ? "" : " ") + word;
  }
  return plain;
}

// "380", "FL380" and "38000" are one altitude.
double FeetOf(std::string_view value) {
  constexpr double highestLevel = 999;
  value.remove_prefix(std::min(value.size(), value.find_first_of("0123456789")));
  const double number = NumberOf(value).value_or(0);
  return number <= highestLevel ? number * 100 : number;
}

}  // namespace

ForeignPlan ReadSquawkBoxPlan(std::string_view text) {
  ForeignPlan plan;
  plan.format = "SquawkBox plan";
  while (const std::optional<std::string_view> line = TakeTextLine(text)) {
    const std::size_t equals = line->find('=');
    if (equals == std::string_view::npos) continue;
    const std::string_view key = Stripped(line->substr(0, equals));
    const std::string_view value = Stripped(line->substr(equals + 1));
    if (key == "Type") plan.planType = value == "1" ? "VFR" : "IFR";
    if (key == "Departure") plan.departure.code = value;
    if (key == "Arrival") plan.destination.code = value;
    if (key == "Alternate" && value != "0") plan.alternate.code = value;
    if (key == "Altitude") plan.cruiseFeet = FeetOf(value);
    if (key == "Route") plan.route = PlainRoute(value);
  }
  return plan;
}
