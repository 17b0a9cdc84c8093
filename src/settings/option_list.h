// What a pilot may change in vlm.ini and VLMDbManager.ini: every option once,
// with its page, its words, its kind and its bounds. The options window is
// built from this table, and what is read from the files is held against it.
// Values pass as texts: "50", "8.5", "1" and "0" for a flag, the number of a
// choice, "#rrggbb" for a colour, UTF-8.
#pragma once

#include <cstdint>
#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <variant>

#include "settings/settings.h"
#include "settings/settings_file.h"

enum class OptionGroup {
  start,
  map,
  plan,
  flight,
  folders,
  networks,
  downloads,
  groundColors,
  navigationColors,
  trafficColors
};
inline constexpr int optionGroupCount = 10;
std::string_view GroupCaption(OptionGroup group);

enum class OptionKind {
  flag,
  number,
  choice,
  text,
  fileName,  // of a download: no folder, no ending
  address,   // http, https or ftp
  folder,
  simulatorFolder,
  color,
  password
};

struct OptionChoice {
  int value = 0;
  std::string_view label;
};

// All that the options are kept in.
struct Options {
  Settings settings;
  SimulatorPaths simulators;
};

using OptionField = std::variant<std::uint8_t Settings::*, std::int16_t Settings::*, std::int32_t Settings::*,
                                 double Settings::*, std::string Settings::*, ColorValue ColorSettings::*,
                                 std::string SimulatorPaths::*>;

struct Option {
  std::string_view key = {};
  OptionGroup group = OptionGroup::start;
  OptionKind kind = OptionKind::flag;
  OptionField field = {};
  std::string_view label = {};     // UTF-8
  std::string_view sentence = {};  // what it does, UTF-8; empty: the label says it
  // Of a number.
  double lowest = 0;
  double highest = 0;
  int decimals = 0;
  std::string_view unit = {};
  std::optional<double> lowestForDevelopers = {};  // with the developer switch, and when read from the file
  // Of a choice.
  std::span<const OptionChoice> choices = {};
  // Of a flag: what is stored for on.
  int on = -1;
  // Of a text, in bytes of the file.
  std::size_t longest = 256;
  // The control's name; empty: "opt_" and the key.
  std::string_view control = {};
};

// In the order in which they are shown, group by group.
std::span<const Option> OptionList();

// The option's value; a folder that is not set is an empty text.
std::string OptionText(const Options& options, const Option& option);

// The value that the program brings, for a colour that of the night's or of the day's set.
std::string DefaultText(const Option& option, bool night);

// Why the text is no value of the option, in one line for the pilot; empty if it is one.
// Folders are looked for by CheckFolder(), not here.
std::string OptionRefusal(const Option& option, std::string_view text, bool developer = false);

// Takes a text that is not refused; others are ignored. Another set of colours
// takes the colours along.
void SetOption(Options& options, const Option& option, std::string_view text);

// Gives every option whose value lies outside its bounds its default. False if there was one.
bool BringIntoRange(Settings& settings);
