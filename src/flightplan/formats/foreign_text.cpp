#include "flightplan/formats/foreign_text.h"

#include <charconv>
#include <cmath>

namespace {

bool IsBlank(char c) {
  return c == ' ' || c == '\t' || c == '\r' || c == '\n' || c == '\0';
}

bool IsNumeric(char c) {
  return (c >= '0' && c <= '9') || c == '.';
}

}  // namespace

std::string_view Stripped(std::string_view text) {
  while (!text.empty() && IsBlank(text.front()))
    text.remove_prefix(1);
  while (!text.empty() && IsBlank(text.back()))
    text.remove_suffix(1);
  return text;
}

std::optional<std::string_view> TakeTextLine(std::string_view& text) {
  if (text.empty()) return std::nullopt;
  const std::size_t end = text.find_first_of("\r\n");
  const std::string_view line = text.substr(0, end);
  if (end == std::string_view::npos) {
    text = {};
  } else {
    text.remove_prefix(end + (text.substr(end, 2) == "\r\n" ? 2 : 1));
  }
  return line;
}

std::vector<std::string_view> Parts(std::string_view text, char separator) {
  std::vector<std::string_view> parts;
  for (std::size_t start = 0;;) {
    const std::size_t end = text.find(separator, start);
    parts.push_back(Stripped(text.substr(start, end - start)));
    if (end == std::string_view::npos) return parts;
    start = end + 1;
  }
}

std::vector<std::string_view> WordsOf(std::string_view text) {
  std::vector<std::string_view> words;
  for (std::size_t from = 0; from < text.size();) {
    if (IsBlank(text[from])) {
      ++from;
      continue;
    }
    std::size_t to = from;
    while (to < text.size() && !IsBlank(text[to]))
      ++to;
    words.push_back(text.substr(from, to - from));
    from = to;
  }
  return words;
}

std::optional<double> NumberOf(std::string_view text) {
  std::string plain(Stripped(text));
  if (plain.starts_with('+')) plain.erase(0, 1);
  if (const std::size_t comma = plain.find(','); comma != std::string::npos) plain[comma] = '.';
  double value = 0;
  const char* const end = plain.data() + plain.size();
  const auto [stop, error] = std::from_chars(plain.data(), end, value);
  if (error != std::errc() || stop != end || !std::isfinite(value)) return std::nullopt;
  return value;
}

std::optional<Position> PlaceOf(std::optional<double> lat, std::optional<double> lon) {
  if (!lat || !lon || std::abs(*lat) > 90 || std::abs(*lon) > 180) return std::nullopt;
  return Position{static_cast<float>(*lat), static_cast<float>(*lon)};
}

std::optional<double> AngleOf(std::string_view text) {
  text = Stripped(text);
  if (text.empty()) return std::nullopt;
  const char letter = text.front();
  const bool negative = letter == 'S' || letter == 'W';
  if (!negative && letter != 'N' && letter != 'E') return std::nullopt;
  double degrees = 0;
  double unit = 1;
  for (std::size_t at = 1; at < text.size();) {
    if (!IsNumeric(text[at])) {
      ++at;
      continue;
    }
    const std::size_t start = at;
    while (at < text.size() && IsNumeric(text[at]))
      ++at;
    const std::optional<double> part = NumberOf(text.substr(start, at - start));
    if (!part || unit > 3600 || (unit > 1 && *part > 60)) return std::nullopt;
    degrees += *part / unit;
    unit *= 60;
  }
  if (unit == 1) return std::nullopt;
  return negative ? -degrees : degrees;
}
