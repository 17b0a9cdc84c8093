#include "settings/option_list.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <cmath>
#include <type_traits>
#include <vector>

#include "base/code_page.h"
#include "base/numbers.h"
#include "settings/option_table.h"

namespace {

constexpr ColorValue brightest = 0xFFFFFF;
constexpr std::string_view setKey = "NIGHT";

// The member that the option's field names.
template <class OptionsType, class Visitor>
decltype(auto) VisitField(OptionsType& options, const Option& option, Visitor&& visitor) {
  return std::visit(
      [&](auto field) -> decltype(auto) {
        using Field = decltype(field);
        if constexpr (std::is_same_v<Field, ColorValue ColorSettings::*>)
          return visitor(options.settings.colors.*field);
        else if constexpr (std::is_same_v<Field, std::string SimulatorPaths::*>)
          return visitor(options.simulators.*field);
        else
          return visitor(options.settings.*field);
      },
      option.field);
}

bool IsText(const Option& option) {
  return std::holds_alternative<std::string Settings::*>(option.field) ||
         std::holds_alternative<std::string SimulatorPaths::*>(option.field);
}

std::string NumberText(double value) {
  std::array<char, 32> buffer{};
  return {buffer.data(), std::to_chars(buffer.data(), buffer.data() + buffer.size(), value).ptr};
}

std::optional<double> NumberOf(std::string_view text) {
  double value = 0;
  const auto end = std::from_chars(text.data(), text.data() + text.size(), value);
  if (end.ec != std::errc{} || end.ptr != text.data() + text.size() || !std::isfinite(value)) return {};
  return value;
}

std::string ColorText(ColorValue color) {
  constexpr std::string_view digits = "0123456789abcdef";
  const ColorValue rgb = ColorOf(color & brightest);
  std::string text = "#";
  for (int shift = 20; shift >= 0; shift -= 4)
    text.push_back(digits[static_cast<std::size_t>(rgb >> shift & 15)]);
  return text;
}

std::optional<ColorValue> ColorFrom(std::string_view text) {
  constexpr std::size_t length = 7;
  if (text.size() != length || text.front() != '#') return {};
  std::int32_t rgb = 0;
  const auto end = std::from_chars(text.data() + 1, text.data() + length, rgb, 16);
  if (end.ptr != text.data() + length || rgb < 0) return {};
  return ColorOf(rgb);
}

double NumberIn(const Options& options, const Option& option) {
  return VisitField(options, option, [](const auto& value) -> double {
    if constexpr (std::is_arithmetic_v<std::remove_cvref_t<decltype(value)>>)
      return static_cast<double>(value);
    else
      return 0;
  });
}

void StoreNumber(Options& options, const Option& option, double number) {
  VisitField(options, option, [&](auto& value) {
    using Value = std::remove_cvref_t<decltype(value)>;
    if constexpr (std::is_floating_point_v<Value>)
      value = number;
    else if constexpr (std::is_integral_v<Value>)
      value = static_cast<Value>(RoundToEven(number));
  });
}

void StoreText(Options& options, const Option& option, std::string_view text) {
  VisitField(options, option, [&](auto& value) {
    if constexpr (std::is_same_v<std::remove_cvref_t<decltype(value)>, std::string>) value = text;
  });
}

double LowestOf(const Option& option, bool developer) {
  return developer ? option.lowestForDevelopers.value_or(option.lowest) : option.lowest;
}

// What is stored for a choice: a flag among them counts as on whatever it is, if it is not 0.
int ChoiceOf(const Option& option, double stored) {
  const int value = RoundToEven(stored);
  const bool isFlag = std::any_of(option.choices.begin(), option.choices.end(),
                                  [](const OptionChoice& choice) { return choice.value == -1; });
  return isFlag && value != 0 ? -1 : value;
}

bool IsChoice(const Option& option, double value) {
  return std::any_of(option.choices.begin(), option.choices.end(),
                     [&](const OptionChoice& choice) { return choice.value == value; });
}

std::string BoundsText(const Option& option, bool developer) {
  std::string text = "From " + NumberText(LowestOf(option, developer)) + " to " + NumberText(option.highest);
  if (option.unit == "°") return text + "°.";
  if (!option.unit.empty()) text += " " + std::string(option.unit);
  return text + ".";
}

std::string NumberRefusal(const Option& option, std::string_view text, bool developer) {
  const auto number = NumberOf(text);
  if (!number) return "This is no number.";
  if (*number < LowestOf(option, developer) || *number > option.highest) return BoundsText(option, developer);
  const double scaled = *number * std::pow(10, option.decimals);
  if (std::abs(scaled - std::round(scaled)) > 1e-6)
    return option.decimals == 0
               ? "Whole numbers only."
               : "No more than " + std::to_string(option.decimals) + " digits behind the point.";
  return {};
}

std::string AddressRefusal(std::string_view text) {
  if (text.empty()) return {};
  for (const std::string_view scheme : {"http://", "https://", "ftp://"}) {
    if (!text.starts_with(scheme)) continue;
    const std::string_view rest = text.substr(scheme.size());
    if (rest.empty() || rest.front() == '/') return "The server's name is missing.";
    return text.find(' ') == std::string_view::npos ? "" : "An address has no blanks.";
  }
  return "An address begins with http://, https:// or ftp://.";
}

std::string FileNameRefusal(std::string_view text) {
  if (text.empty()) return "The name is missing.";
  if (text.find_first_of("/\\:*?\"<>|") != std::string_view::npos || text == "." || text == "..")
    return "A file's name only, without a folder.";
  return {};
}

// What the settings file cannot keep.
std::string TextRefusal(const Option& option, std::string_view text) {
  const bool hasControls =
      std::any_of(text.begin(), text.end(), [](char c) { return static_cast<unsigned char>(c) < ' '; });
  const std::string stored = Utf8ToCodePage(text);
  if (hasControls || CodePageToUtf8(stored) != text) return "It holds a letter that cannot be stored.";
  if (stored.size() > option.longest)
    return "Too long: no more than " + std::to_string(option.longest) + " letters.";
  if (option.kind == OptionKind::password || text.empty()) return {};
  if (text.front() == ' ' || text.back() == ' ') return "No blanks at the beginning or the end.";
  const bool quoted = text.size() > 1 && text.front() == text.back();
  if (quoted && (text.front() == '"' || text.front() == '\'')) return "No quotation marks around it.";
  return {};
}

bool InRange(const Options& options, const Option& option) {
  const double value = NumberIn(options, option);
  switch (option.kind) {
    case OptionKind::number:
      return value >= LowestOf(option, true) && value <= option.highest;
    case OptionKind::choice:
      return IsChoice(option, ChoiceOf(option, value));
    case OptionKind::color:
      return value >= 0 && value <= brightest;
    default:
      return true;
  }
}

}  // namespace

std::string_view GroupCaption(OptionGroup group) {
  static constexpr std::array<std::string_view, optionGroupCount> captions = {
      "Start and windows", "Map",       "Flight plan",     "In flight",           "Folders",
      "Flying networks",   "Downloads", "Colours: ground", "Colours: navigation", "Colours: traffic"};
  return captions[static_cast<std::size_t>(group)];
}

std::span<const Option> OptionList() {
  static const std::vector<Option> options = [] {
    std::vector<Option> all;
    for (const auto part : {GeneralOptions(), ExchangeOptions(), ColorOptions()})
      all.insert(all.end(), part.begin(), part.end());
    return all;
  }();
  return options;
}

std::string OptionText(const Options& options, const Option& option) {
  if (IsText(option)) {
    std::string text;
    VisitField(options, option, [&](const auto& value) {
      if constexpr (std::is_same_v<std::remove_cvref_t<decltype(value)>, std::string>) text = value;
    });
    return text;
  }
  const double value = NumberIn(options, option);
  if (option.kind == OptionKind::flag) return value != 0 ? "1" : "0";
  if (option.kind == OptionKind::color) return ColorText(RoundToEven(value));
  if (option.kind == OptionKind::choice) return std::to_string(ChoiceOf(option, value));
  return NumberText(value);
}

std::string DefaultText(const Option& option, bool night) {
  Options options;
  UseColorSet(options.settings, night);
  // Which set is in use is an option itself.
  if (option.key == setKey) options = {};
  return OptionText(options, option);
}

std::string OptionRefusal(const Option& option, std::string_view text, bool developer) {
  switch (option.kind) {
    case OptionKind::flag:
      return text == "0" || text == "1" ? "" : "On or off.";
    case OptionKind::number:
      return NumberRefusal(option, text, developer);
    case OptionKind::choice: {
      const auto number = NumberOf(text);
      return number && IsChoice(option, *number) ? "" : "One of the list.";
    }
    case OptionKind::color:
      return ColorFrom(text) ? "" : "A colour is written as #rrggbb.";
    default:
      break;
  }
  std::string refusal = TextRefusal(option, text);
  if (!refusal.empty()) return refusal;
  if (option.kind == OptionKind::address) return AddressRefusal(text);
  if (option.kind == OptionKind::fileName) return FileNameRefusal(text);
  return {};
}

void SetOption(Options& options, const Option& option, std::string_view text) {
  if (!OptionRefusal(option, text, true).empty()) return;
  if (option.key == setKey)
    UseColorSet(options.settings, text != "0");
  else if (option.kind == OptionKind::color)
    StoreNumber(options, option, *ColorFrom(text));
  else if (option.kind == OptionKind::flag)
    StoreNumber(options, option, text == "1" ? option.on : 0);
  else if (IsText(option))
    StoreText(options, option, text);
  else
    StoreNumber(options, option, *NumberOf(text));
}

bool BringIntoRange(Settings& settings) {
  Options options{settings, {}};
  bool inRange = true;
  const bool night = settings.NIGHT != 0;
  // Once with either set of colours.
  for (const bool set : {!night, night}) {
    UseColorSet(options.settings, set);
    for (const Option& option : OptionList()) {
      if (InRange(options, option)) continue;
      inRange = false;
      SetOption(options, option, DefaultText(option, set));
    }
  }
  settings = options.settings;
  return inRange;
}
