// The options against the settings that they stand for, and what is refused.
#include "settings/option_list.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <set>

#include "settings/folder_check.h"
#include "tests/temporary_folder.h"

namespace {

const Option& Of(std::string_view key) {
  for (const Option& option : OptionList())
    if (option.key == key) return option;
  throw std::out_of_range("no option " + std::string(key));
}

// The keys of vlm.ini, without those of the set of colours that is not in use.
std::multiset<std::string> KeysOfTheFile() {
  std::multiset<std::string> keys;
  const std::string text = SettingsText(Settings(), "");
  for (std::size_t at = 0; at < text.find("[COLORDAY]");) {
    const std::size_t end = text.find('\n', at);
    const std::string line = text.substr(at, end - at);
    if (const std::size_t equals = line.find('='); equals != line.npos) keys.insert(line.substr(0, equals));
    at = end + 1;
  }
  return keys;
}

// Places of windows, choices of other windows and menus, and keys that nothing uses.
const std::set<std::string> leftOut = {
    "MAPWIN",     "WINX",     "WINY",        "GPSWINX", "GPSWINY", "WIDTH",   "HEIGHT",   "SCALE",
    "AIRCRAFT",   "FPSEL",    "RECENT1",     "RECENT2", "RECENT3", "RECENT4", "RECENT5",  "REGION",
    "COUNTRY",    "STATE",    "CITY",        "BUTTON",  "MENU",    "AIMENU",  "AIRSPACE", "AITRAFFIC",
    "GPSVISIBLE", "COMPMENU", "LATLONGMENU", "ONTOP",   "FILL",    "LL",      "ARC",      "TSPATH"};

TEST(OptionList, EveryKeyOfTheFileIsAnOptionOrLeftOut) {
  std::multiset<std::string> options;
  for (const Option& option : OptionList()) {
    EXPECT_FALSE(option.label.empty()) << option.key;
    EXPECT_TRUE(option.kind == OptionKind::color || !option.sentence.empty()) << option.key;
    EXPECT_FALSE(leftOut.contains(std::string(option.key))) << option.key;
    options.emplace(option.key);
  }
  std::multiset<std::string> wanted = KeysOfTheFile();
  EXPECT_GT(wanted.size(), 100u);
  for (const std::string& key : leftOut)
    EXPECT_EQ(wanted.erase(key), 1u) << key;
  for (const char* key : {"FSPATH09", "FSPATH10"})
    wanted.emplace(key);
  EXPECT_EQ(options, wanted);
}

// Each option names the member that its key is read into.
TEST(OptionList, AnOptionIsReadAndWrittenUnderItsKey) {
  for (const Option& option : OptionList()) {
    if (option.kind == OptionKind::simulatorFolder || option.key == "NIGHT") continue;
    Options options;
    std::string other = "ftp://x";
    if (option.kind == OptionKind::flag) other = OptionText(options, option) == "1" ? "0" : "1";
    if (option.kind == OptionKind::number) other = std::to_string(static_cast<int>(option.highest) - 1);
    if (option.kind == OptionKind::choice) {
      const std::string present = OptionText(options, option);
      other = std::to_string(option.choices.front().value);
      if (other == present) other = std::to_string(option.choices.back().value);
    }
    if (option.kind == OptionKind::color) other = "#123456";
    if (option.kind == OptionKind::fileName) other = "x";
    SetOption(options, option, other);
    EXPECT_EQ(OptionText(options, option), other) << option.key;
    const std::string changed = SettingsText(options.settings, "");
    const Settings back = ReadSettings(changed).settings;
    Options read{back, {}};
    if (option.kind == OptionKind::password) read.settings.IVAOVPW = DecodeIvaoPWord(back.IVAOVPW);
    EXPECT_EQ(OptionText(read, option), other) << option.key;
    EXPECT_NE(changed.find("\n" + std::string(option.key) + "="), changed.npos);
    // No other option has moved with it.
    for (const Option& still : OptionList()) {
      if (still.key == option.key) continue;
      EXPECT_EQ(OptionText(options, still), OptionText({}, still)) << option.key << still.key;
    }
  }
}

TEST(OptionList, DefaultsAreNotRefusedAndAreThoseOfTheirSet) {
  for (const Option& option : OptionList())
    for (const bool night : {false, true})
      EXPECT_EQ(OptionRefusal(option, DefaultText(option, night)), "") << option.key;
  EXPECT_EQ(DefaultText(Of("SECLEN"), true), "50");
  EXPECT_EQ(DefaultText(Of("FAFDIST"), true), "8.5");
  EXPECT_EQ(DefaultText(Of("GC"), true), "1");
  EXPECT_EQ(DefaultText(Of("NIGHT"), false), "-1");
  // 12079 = 0x002F2F, red in the low byte.
  EXPECT_EQ(DefaultText(Of("LAND"), true), "#2f2f00");
  EXPECT_EQ(DefaultText(Of("LAND"), false), "#f3f1e6");
}

TEST(OptionList, WhatIsNoValueIsRefusedInOneLine) {
  const struct {
    const char *key, *text, *refusal;
  } cases[] = {
      {"SECLEN", "", "This is no number."},
      {"SECLEN", "5O", "This is no number."},
      {"SECLEN", "nan", "This is no number."},
      {"SECLEN", "9", "From 10 to 500 NM."},
      {"SECLEN", "10", ""},
      {"SECLEN", "500", ""},
      {"SECLEN", "1e9", "From 10 to 500 NM."},
      {"SECLEN", "50.5", "Whole numbers only."},
      {"SECWIDTH", "91", "From 1 to 90°."},
      {"FAFDIST", "7.25", ""},
      {"FAFDIST", "7.255", "No more than 2 digits behind the point."},
      {"IVAOVID", "-1", "From 0 to 9999999."},
      {"DLINTERVAL", "2", "From 3 to 60 minutes."},
      {"FUEL", "4", "One of the list."},
      {"LAND", "#12345", "A colour is written as #rrggbb."},
      {"LAND", "#12345g", "A colour is written as #rrggbb."},
      {"WXURL", "", ""},
      {"WXURL", "https://metar.example/all", ""},
      {"WXURL", "metar.example", "An address begins with http://, https:// or ftp://."},
      {"WXURL", "http:///all", "The server's name is missing."},
      {"WXURL", "http://a b", "An address has no blanks."},
      {"WXFILE", "", "The name is missing."},
      {"WXFILE", "../metar", "A file's name only, without a folder."},
      {"ONLUSRCALLSIGN", "DLH1234567890", "Too long: no more than 12 letters."},
      {"GPXPATH", " /tmp", "No blanks at the beginning or the end."},
      {"GPXPATH", "'/tmp'", "No quotation marks around it."},
      {"GPXPATH", "/home/pilot/Pläne", ""},
      {"GPXPATH", "/home/pilot/計画", "It holds a letter that cannot be stored."},
      {"IVAOVPW", " a b ", ""},
  };
  for (const auto& c : cases)
    EXPECT_EQ(OptionRefusal(Of(c.key), c.text), c.refusal) << c.key << " " << c.text;
  EXPECT_EQ(OptionRefusal(Of("DLINTERVAL"), "2", true), "");
  EXPECT_EQ(OptionRefusal(Of("DLINTERVAL"), "0", true), "From 1 to 60 minutes.");
  Options options;
  SetOption(options, Of("SECLEN"), "-5");
  EXPECT_EQ(options.settings.SECLEN, 50);
}

TEST(OptionList, AWildValueInTheFileHasItsDefault) {
  const struct {
    const char *section, *key, *value, *read;
  } cases[] = {
      {"Flightplan", "SECLEN", "-5", "50"},       {"Flightplan", "SECWIDTH", "720", "30"},
      {"Flightplan", "FAFDIST", "-1e300", "8.5"}, {"User", "FUEL", "9", "2"},
      {"User", "MMCOUNTERSET", "-1", "10"},       {"User", "ACSIZE", "0", "2"},
      {"Online", "DLINTERVAL", "0", "3"},         {"Color", "LAND", "-1", "#2f2f00"},
      {"Color", "LAND", "16777216", "#2f2f00"},
  };
  for (const auto& c : cases) {
    const ReadIniResult result =
        ReadSettings("[" + std::string(c.section) + "]\n" + c.key + "=" + c.value + "\n");
    EXPECT_FALSE(result.successful) << c.key;
    EXPECT_EQ(OptionText({result.settings, {}}, Of(c.key)), c.read) << c.key << " " << c.value;
  }
  // In use by developers, and any flag that is not 0 is on.
  const ReadIniResult fine = ReadSettings("[Online]\nDLINTERVAL=1\n[Fs]\nFSX=1\n");
  EXPECT_TRUE(fine.successful);
  EXPECT_EQ(fine.settings.DLINTERVAL, 1);
  EXPECT_EQ(OptionText({fine.settings, {}}, Of("FSX")), "-1");
  EXPECT_EQ(ReadSettings("[ColorDay]\nLAND=-1\n").settings.otherColors.LAND, dayColors.LAND);
}

TEST(ColorSets, EachKeepsItsOwnColoursThroughTheFile) {
  Options options;
  SetOption(options, Of("LAND"), "#010203");
  SetOption(options, Of("NIGHT"), "0");
  EXPECT_EQ(options.settings.colors.LAND, dayColors.LAND);
  SetOption(options, Of("MAP"), "#0a0b0c");
  Settings back = ReadSettings(SettingsText(options.settings, "")).settings;
  EXPECT_EQ(back.NIGHT, 0);
  EXPECT_EQ(back.colors.MAP, ColorOf(0x0A0B0C));
  EXPECT_EQ(back.colors.LAND, dayColors.LAND);
  EXPECT_EQ(back.otherColors.LAND, ColorOf(0x010203));
  // Back over a file that holds both.
  const std::string present = SettingsText(back, "");
  UseColorSet(back, true);
  back = ReadSettings(SettingsText(back, present)).settings;
  EXPECT_EQ(back.colors.LAND, ColorOf(0x010203));
  EXPECT_EQ(back.otherColors.MAP, ColorOf(0x0A0B0C));
}

TEST(ColorSets, WhatIsMissingIsTheSetsDefault) {
  const Settings day = ReadSettings("[Color]\nNIGHT=0\nMAP=255\n").settings;
  EXPECT_EQ(day.colors.MAP, 255);
  EXPECT_EQ(day.colors.LAND, dayColors.LAND);
  EXPECT_EQ(day.otherColors.LAND, nightColors.LAND);
}

TEST(FolderCheck, SaysWhatIsWrong) {
  const TemporaryFolder folder;
  const std::string at = folder.Path().string();
  const AppFolder home(folder.Path());
  folder.Write("plain.txt", "");
  std::filesystem::create_directory(folder.Path() / "sim");
  const struct {
    std::string folder;
    bool ofSimulator;
    FolderState state;
  } cases[] = {
      {"", true, FolderState::fine},
      {at, false, FolderState::fine},
      {at + "\\", false, FolderState::fine},
      {"\\SIM\\", false, FolderState::fine},
      {at + "/none/below", false, FolderState::missing},
      {at + "/none", true, FolderState::unusable},
      {"FSplan", false, FolderState::unusable},
      {"C:\\FSplan", false, FolderState::unusable},
      {at + "/plain.txt", false, FolderState::unusable},
      {at + "/sim", true, FolderState::unusable},
  };
  for (const auto& c : cases) {
    const FolderCheck check = CheckFolder(home, c.folder, c.ofSimulator);
    EXPECT_EQ(check.state, c.state) << c.folder;
    EXPECT_EQ(check.reason.empty(), c.state == FolderState::fine) << c.folder;
  }
  folder.Write("sim/Scenery.CFG", "");
  EXPECT_EQ(CheckFolder(home, at + "/sim", true).state, FolderState::fine);
  EXPECT_EQ(CreateFolderFor(home, at + "/none/below"), "");
  EXPECT_EQ(CheckFolder(home, at + "/none/below", false).state, FolderState::fine);
  EXPECT_NE(CreateFolderFor(home, at + "/plain.txt/below"), "");
}

}  // namespace
