#include "base/numbers.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <cstddef>
#include <limits>

#include "base/fixed_text.h"

namespace {

bool IsDigit(char c) {
  return c >= '0' && c <= '9';
}

template <class Integer>
Integer Hold(double value) {
  if (std::isnan(value)) return 0;
  constexpr auto low = static_cast<double>(std::numeric_limits<Integer>::min());
  constexpr auto high = static_cast<double>(std::numeric_limits<Integer>::max());
  return static_cast<Integer>(std::clamp(value, low, high));
}

// Half to even without regard to the thread's rounding mode.
double NearestEven(double value) {
  const double down = std::floor(value);
  const double rest = value - down;
  if (rest < 0.5) return down;
  if (rest > 0.5) return down + 1.0;
  return std::fmod(down, 2.0) == 0.0 ? down : down + 1.0;
}

// |value| with the given decimals as digits, halves rounded up. Works on the
// 15 decimal digits that a double holds for certain, so that 0.285 is a half.
std::string RoundedDigits(double value, int decimals) {
  constexpr int certainDigits = 15;
  std::array<char, 32> buffer{};
  const auto written = std::to_chars(buffer.data(), buffer.data() + buffer.size(), std::fabs(value),
                                     std::chars_format::scientific, certainDigits - 1);
  const std::string_view text(buffer.data(), static_cast<std::size_t>(written.ptr - buffer.data()));
  const std::size_t mark = text.find('e');
  std::string digits = "0" + std::string(text.substr(0, 1)) + std::string(text.substr(2, mark - 2));
  int exponent = 0;
  const char* sign = text.data() + mark + 1;
  std::from_chars(*sign == '+' ? sign + 1 : sign, text.data() + text.size(), exponent);

  // digits, read as a fraction behind its first two figures, times 10^exponent.
  int keep = 2 + exponent + decimals;
  if (keep < 1) {
    digits = "0";
    keep = 1;
  }
  if (keep < static_cast<int>(digits.size())) {
    const bool up = digits[static_cast<std::size_t>(keep)] >= '5';
    digits.resize(static_cast<std::size_t>(keep));
    for (std::size_t i = digits.size(); up && i-- > 0;) {
      if (digits[i] != '9') {
        ++digits[i];
        break;
      }
      digits[i] = '0';
    }
  }
  digits.append(static_cast<std::size_t>(std::max(0, keep - static_cast<int>(digits.size()))), '0');
  const auto wholeDigits = static_cast<int>(digits.size()) - decimals;
  if (wholeDigits < 1) digits.insert(0, static_cast<std::size_t>(1 - wholeDigits), '0');
  const std::size_t point = digits.size() - static_cast<std::size_t>(decimals);
  const std::size_t first = std::min(digits.find_first_not_of('0'), point - 1);
  return digits.substr(first, point - first) + (decimals > 0 ? "." + digits.substr(point) : "");
}

}  // namespace

double Val(std::string_view text) {
  std::string number;
  std::size_t i = 0;
  const auto skipBlanks = [&] {
    while (i < text.size() && (text[i] == ' ' || text[i] == '\t' || text[i] == '\n' || text[i] == '\r'))
      ++i;
  };
  skipBlanks();
  if (i < text.size() && (text[i] == '-' || text[i] == '+')) {
    if (text[i] == '-') number.push_back('-');
    ++i;
  }
  bool digits = false;
  bool point = false;
  for (skipBlanks(); i < text.size(); ++i, skipBlanks()) {
    if (IsDigit(text[i])) {
      digits = true;
    } else if (text[i] == '.' && !point) {
      point = true;
    } else {
      break;
    }
    number.push_back(text[i]);
  }
  if (!digits) return 0.0;
  if (i < text.size() && (AsciiUpper(text[i]) == 'E' || AsciiUpper(text[i]) == 'D')) {
    std::size_t j = i + 1;
    std::string exponent = "e";
    if (j < text.size() && (text[j] == '-' || text[j] == '+')) exponent.push_back(text[j++]);
    const std::size_t firstDigit = exponent.size();
    while (j < text.size() && IsDigit(text[j]))
      exponent.push_back(text[j++]);
    if (exponent.size() > firstDigit) number += exponent;
  }
  double value = 0.0;
  const auto result = std::from_chars(number.data(), number.data() + number.size(), value);
  return result.ec == std::errc() ? value : 0.0;
}

std::int32_t ValInt32(std::string_view text) {
  return RoundToEven(Val(text));
}
std::int16_t ValInt16(std::string_view text) {
  return Hold<std::int16_t>(NearestEven(Val(text)));
}
std::uint8_t ValByte(std::string_view text) {
  return Hold<std::uint8_t>(NearestEven(Val(text)));
}

std::int32_t RoundToEven(double value) {
  return Hold<std::int32_t>(NearestEven(value));
}
std::int32_t CutToInt(double value) {
  return Hold<std::int32_t>(std::trunc(value));
}
std::int32_t FloorToInt(double value) {
  return Hold<std::int32_t>(std::floor(value));
}

std::string FormatPicture(double value, std::string_view picture) {
  if (!std::isfinite(value)) return "---";
  const std::size_t first = picture.find_first_of("0#.");
  if (first == std::string_view::npos) return std::string(picture);
  const std::size_t behind = picture.find_last_of("0#.") + 1;
  const std::string_view digitsPicture = picture.substr(first, behind - first);
  const std::size_t point = digitsPicture.find('.');
  const std::string_view whole = digitsPicture.substr(0, point);
  const std::string_view fraction =
      point == std::string_view::npos ? std::string_view{} : digitsPicture.substr(point + 1);

  const std::string rounded = RoundedDigits(value, static_cast<int>(fraction.size()));
  const bool isZero = rounded.find_first_not_of("0.") == std::string::npos;
  std::string wholeDigits = rounded.substr(0, rounded.find('.'));
  std::string fractionDigits = fraction.empty() ? "" : rounded.substr(rounded.find('.') + 1);
  if (wholeDigits == "0") wholeDigits.clear();
  const std::size_t firstZero = whole.find('0');
  const std::size_t least = firstZero == std::string_view::npos ? 0 : whole.size() - firstZero;
  if (wholeDigits.size() < least) wholeDigits.insert(0, least - wholeDigits.size(), '0');
  const std::size_t lastZero = fraction.rfind('0');
  const std::size_t leastFraction = lastZero == std::string_view::npos ? 0 : lastZero + 1;
  while (fractionDigits.size() > leastFraction && fractionDigits.back() == '0')
    fractionDigits.pop_back();

  std::string out(picture.substr(0, first));
  if (value < 0.0 && !isZero) out.push_back('-');
  out += wholeDigits;
  if (point != std::string_view::npos) out.push_back('.');
  out += fractionDigits;
  out += picture.substr(behind);
  return out;
}
