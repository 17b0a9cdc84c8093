#include "settings/settings_file.h"

#include <array>
#include <charconv>
#include <limits>
#include <type_traits>

#include "base/code_page.h"
#include "base/files.h"
#include "base/fixed_text.h"
#include "base/numbers.h"
#include "settings/ini_file.h"
#include "settings/option_list.h"

namespace {

constexpr std::string_view passwordKey = "pdn5183&zk7392";
constexpr std::string_view settingsName = "\\vlm.ini";
constexpr std::string_view managerName = "\\VLMDbManager.ini";

// Every key of the file with its section, in the file's order.
template <class SettingsType, class Visitor>
void VisitUser(SettingsType& s, Visitor&& key) {
  key("USER", "MAPWIN", s.MAPWIN);
  key("USER", "SCALE", s.SCALE);
  key("USER", "AIRCRAFT", s.AIRCRAFT);
  key("USER", "FUEL", s.FUEL);
  key("USER", "FILL", s.FILL);
  key("USER", "FONTSIZE", s.FONTSIZE);
  key("USER", "ACSIZE", s.ACSIZE);
  key("USER", "LL", s.LL);
  key("USER", "GC", s.GC);
  key("USER", "DECSEC", s.DECSEC);
  key("USER", "ARC", s.ARC);
  key("USER", "DIRCON", s.DIRCON);
  key("USER", "TRACEALT", s.TRACEALT);
  key("USER", "TRACEALTTYPE", s.TRACEALTTYPE);
  key("USER", "MZOOM", s.MZOOM);
  key("USER", "HOTKEYS", s.HOTKEYS);
  key("USER", "MOVINGMAP", s.MOVINGMAP);
  key("USER", "MMCOUNTERSET", s.MMCOUNTERSET);
  key("USER", "BUTTON", s.BUTTON);
  key("USER", "MENU", s.MENU);
  key("USER", "AIMENU", s.AIMENU);
  key("USER", "AIRSPACE", s.AIRSPACE);
  key("USER", "AITRAFFIC", s.AITRAFFIC);
  key("USER", "GPSVISIBLE", s.GPSVISIBLE);
  key("USER", "COMPMENU", s.COMPMENU);
  key("USER", "LATLONGMENU", s.LATLONGMENU);
  key("USER", "ONTOP", s.ONTOP);
}

template <class SettingsType, class Visitor>
void VisitFlightplan(SettingsType& s, Visitor&& key) {
  key("FLIGHTPLAN", "SECLEN", s.SECLEN);
  key("FLIGHTPLAN", "SECWIDTH", s.SECWIDTH);
  key("FLIGHTPLAN", "FAFDIST", s.FAFDIST);
  key("FLIGHTPLAN", "FPSEL", s.FPSEL);
  key("FLIGHTPLAN", "FPPATH09", s.FPPATH09);
  key("FLIGHTPLAN", "FPPATH10", s.FPPATH10);
  key("FLIGHTPLAN", "SQUAWKBOXPATH", s.SQUAWKBOXPATH);
  key("FLIGHTPLAN", "IVAOPATH", s.IVAOPATH);
  key("FLIGHTPLAN", "FSINNPATH", s.FSINNPATH);
  key("FLIGHTPLAN", "RADCONPATH", s.RADCONPATH);
  key("FLIGHTPLAN", "PROMAGPATH", s.PROMAGPATH);
  key("FLIGHTPLAN", "TSPATH", s.TSPATH);
  key("FLIGHTPLAN", "XPLANEPATH", s.XPLANEPATH);
  key("FLIGHTPLAN", "FSXPLANPATH", s.FSXPLANPATH);
  key("FLIGHTPLAN", "MSFSPATH", s.MSFSPATH);
  key("FLIGHTPLAN", "XPLANE11PATH", s.XPLANE11PATH);
  key("FLIGHTPLAN", "FLIGHTGEARPATH", s.FLIGHTGEARPATH);
  key("FLIGHTPLAN", "GARMINPATH", s.GARMINPATH);
  key("FLIGHTPLAN", "GPXPATH", s.GPXPATH);
  key("FLIGHTPLAN", "RECENT1", s.RECENT1);
  key("FLIGHTPLAN", "RECENT2", s.RECENT2);
  key("FLIGHTPLAN", "RECENT3", s.RECENT3);
  key("FLIGHTPLAN", "RECENT4", s.RECENT4);
  key("FLIGHTPLAN", "RECENT5", s.RECENT5);
}

template <class ColorsType, class Visitor>
void VisitColors(std::string_view section, ColorsType& c, Visitor&& key) {
  key(section, "MAP", c.MAP);
  key(section, "COAST", c.COAST);
  key(section, "LATLONG", c.LATLONG);
  key(section, "COMP", c.COMP);
  key(section, "WIND", c.WIND);
  key(section, "HILITE", c.HILITE);
  key(section, "MEASURE", c.MEASURE);
  key(section, "ZOOM", c.ZOOM);
  key(section, "MSA", c.MSA);
  key(section, "VICTOR", c.VICTOR);
  key(section, "CTRZ", c.CTRZ);
  key(section, "JET", c.JET);
  key(section, "AIR1", c.AIR1);
  key(section, "AIR2", c.AIR2);
  key(section, "VOR", c.VOR);
  key(section, "NDB", c.NDB);
  key(section, "ILS", c.ILS);
  key(section, "INT", c.INT);
  key(section, "FIX", c.FIX);
  key(section, "USER", c.USER);
  key(section, "MOVAC", c.MOVAC);
  key(section, "ACINCTRZ", c.ACINCTRZ);
  key(section, "ACATCTRZ", c.ACATCTRZ);
  key(section, "ROUTE", c.ROUTE);
  key(section, "AI", c.AI);
  key(section, "AIFREQ", c.AIFREQ);
  key(section, "TCAS1", c.TCAS1);
  key(section, "TCAS2", c.TCAS2);
  key(section, "AP", c.AP);
  key(section, "RWY", c.RWY);
  key(section, "TAXI", c.TAXI);
  key(section, "TAXINAME", c.TAXINAME);
  key(section, "RWYID", c.RWYID);
  key(section, "PARKING", c.PARKING);
  key(section, "LAND", c.LAND);
  key(section, "RIVER", c.RIVER);
  key(section, "IVAOFIR", c.IVAOFIR);
  key(section, "IVAOFSS", c.IVAOFSS);
  key(section, "IVAOTWR", c.IVAOTWR);
  key(section, "IVAOGND", c.IVAOGND);
  key(section, "IVAOAPP", c.IVAOAPP);
  key(section, "STATICACCOLOR", c.STATICACCOLOR);
  key(section, "FIRACTIVCOLOR", c.FIRACTIVCOLOR);
  key(section, "FIRINACTIVCOLOR", c.FIRINACTIVCOLOR);
}

template <class SettingsType, class Visitor>
void VisitRest(SettingsType& s, Visitor&& key) {
  key("MAP", "REGION", s.REGION);
  key("MAP", "COUNTRY", s.COUNTRY);
  key("MAP", "STATE", s.STATE);
  key("MAP", "CITY", s.CITY);
  key("MAP", "WINX", s.WINX);
  key("MAP", "WINY", s.WINY);
  key("MAP", "REMWINPOS", s.REMWINPOS);
  key("MAP", "GPSWINX", s.GPSWINX);
  key("MAP", "GPSWINY", s.GPSWINY);
  key("MAP", "REMGPSWINPOS", s.REMGPSWINPOS);
  key("DOWNLOAD", "NATRACKURL", s.NATRACKURL);
  key("DOWNLOAD", "NATRACKFILE", s.NATRACKFILE);
  key("DOWNLOAD", "PACOTURL", s.PACOTURL);
  key("DOWNLOAD", "PACOTFILE", s.PACOTFILE);
  key("DOWNLOAD", "WXURL", s.WXURL);
  key("DOWNLOAD", "WXFILE", s.WXFILE);
  key("ONLINE", "AUTODOWNLOAD", s.AUTODOWNLOAD);
  key("ONLINE", "DLINTERVAL", s.DLINTERVAL);
  key("ONLINE", "ONLUSRCALLSIGN", s.ONLUSRCALLSIGN);
  key("ONLINE", "ONLSHOWALTSPEED", s.ONLSHOWALTSPEED);
  key("ONLINE", "ONLSHOWDEPDEST", s.ONLSHOWDEPDEST);
  key("ONLINE", "VATSIMURLSTATUS", s.VATSIMURLSTATUS);
  key("ONLINE", "IVAOURLSTATUS", s.IVAOURLSTATUS);
  key("ONLINE", "IVAOVID", s.IVAOVID);
  key("ONLINE", "IVAOVPW", s.IVAOVPW);
  key("ONLINE", "USECALLSIGN", s.USECALLSIGN);
  key("FS", "FSX", s.FSX);
  key("FIND", "CLOSE", s.CLOSE);
  key("FIND", "SHOW", s.SHOW);
  key("WINDOW", "WIDTH", s.WIDTH);
  key("WINDOW", "HEIGHT", s.HEIGHT);
}

template <class SettingsType, class Visitor>
void VisitSettings(SettingsType& settings, Visitor&& key) {
  VisitUser(settings, key);
  VisitFlightplan(settings, key);
  VisitColors("COLOR", settings.colors, key);
  key("COLOR", "NIGHT", settings.NIGHT);
  VisitRest(settings, key);
  // The set that is not in use.
  VisitColors(settings.NIGHT != 0 ? "COLORDAY" : "COLORNIGHT", settings.otherColors, key);
}

// Fills a setting from its text; false (and the value as it was) if a number does not fit.
bool FromText(std::string_view text, std::string& value) {
  value = CodePageToUtf8(text);
  return true;
}

bool FromText(std::string_view text, double& value) {
  value = Val(text);
  return true;
}

template <class Integer>
requires std::is_integral_v<Integer>
bool FromText(std::string_view text, Integer& value) {
  const double number = Val(text);
  if (number < std::numeric_limits<Integer>::min() || number > std::numeric_limits<Integer>::max())
    return false;
  value = static_cast<Integer>(RoundToEven(number));
  return true;
}

std::string ToText(const std::string& value) {
  return Utf8ToCodePage(value);
}

std::string ToText(double value) {
  std::array<char, 32> buffer{};
  return {buffer.data(), std::to_chars(buffer.data(), buffer.data() + buffer.size(), value).ptr};
}

template <class Integer>
requires std::is_integral_v<Integer> std::string ToText(Integer value) {
  return std::to_string(static_cast<int>(value));
}

int HexDigit(char c) {
  c = AsciiUpper(c);
  if (c >= '0' && c <= '9') return c - '0';
  return c >= 'A' && c <= 'F' ? c - 'A' + 10 : 0;
}

char KeyCharacter(std::size_t position) {
  return passwordKey[position % passwordKey.size()];
}

// Keeps the present file as the older generation, then replaces it.
bool ReplaceKeepingOld(const AppFolder& home, std::string_view name, std::string_view oldName,
                       std::string_view present, const std::string& text, std::string* reason) {
  if (!present.empty() && !ReplaceFile(home.Resolve(oldName), present, reason)) return false;
  return ReplaceFile(home.Resolve(name), text, reason);
}

std::string ReadText(const AppFolder& home, std::string_view name) {
  const auto file = ReadWholeFile(home.Resolve(name));
  return file ? std::string(file->Text()) : std::string();
}

}  // namespace

ReadIniResult ReadSettings(std::string_view text) {
  const IniFile file = IniFile::Parse(text);
  ReadIniResult result;
  // Which colours are the defaults depends on the set in use.
  if (Val(file.Read("COLOR", "NIGHT", "-1")) == 0) UseColorSet(result.settings, false);
  VisitSettings(result.settings, [&](std::string_view section, std::string_view key, auto& value) {
    if (!FromText(file.Read(section, key, ToText(value)), value)) result.successful = false;
  });
  if (!BringIntoRange(result.settings)) result.successful = false;
  return result;
}

ReadIniResult ReadIni(const AppFolder& home) {
  const auto path = home.Resolve(settingsName);
  const auto file = ReadWholeFile(path);
  if (file) return ReadSettings(file->Text());
  std::error_code error;
  ReadIniResult result;
  result.successful = !std::filesystem::exists(path, error);
  return result;
}

std::string SettingsText(const Settings& settings, std::string_view present) {
  IniFile file = IniFile::Parse(present);
  Settings scrambled = settings;
  scrambled.IVAOVPW = EncodeIvaoPWord(Utf8ToCodePage(settings.IVAOVPW));
  VisitSettings(scrambled, [&](std::string_view section, std::string_view key, const auto& value) {
    file.Write(section, key, ToText(value));
  });
  return file.Text();
}

bool WriteIni(const AppFolder& home, const Settings& settings, std::string* reason,
              const SimulatorPaths* simulators) {
  const std::string present = ReadText(home, settingsName);
  if (!ReplaceKeepingOld(home, settingsName, "\\vlmini.old", present, SettingsText(settings, present),
                         reason)) {
    return false;
  }
  const std::string presentManager = ReadText(home, managerName);
  IniFile manager = IniFile::Parse(presentManager);
  const auto path = [&](std::string_view key, const std::string* chosen) {
    manager.Write("FS", key, chosen != nullptr ? Utf8ToCodePage(*chosen) : manager.Read("FS", key, ""));
  };
  path("FSPATH09", simulators != nullptr ? &simulators->fsPath09 : nullptr);
  path("FSPATH10", simulators != nullptr ? &simulators->fsPath10 : nullptr);
  manager.Write("FS", "FSLAST", settings.FSX == 0 ? "09" : "10");
  return ReplaceKeepingOld(home, managerName, "\\VLMDbManagerini.old", presentManager, manager.Text(),
                           reason);
}

SimulatorPaths ReadSimulatorPaths(const AppFolder& home) {
  const IniFile manager = IniFile::Parse(ReadText(home, managerName));
  return {CodePageToUtf8(manager.Read("FS", "FSPATH09", "")),
          CodePageToUtf8(manager.Read("FS", "FSPATH10", ""))};
}

std::string EncodeIvaoPWord(std::string_view password) {
  static constexpr std::string_view digits = "0123456789ABCDEF";
  std::string scrambled;
  for (std::size_t i = 0; i < password.size(); ++i) {
    const auto code = static_cast<unsigned char>(password[i] ^ KeyCharacter(i));
    scrambled.push_back(digits[code >> 4]);
    scrambled.push_back(digits[code & 15]);
  }
  return scrambled;
}

std::string DecodeIvaoPWord(std::string_view scrambled) {
  std::string password;
  for (std::size_t i = 0; 2 * i + 1 < scrambled.size(); ++i) {
    const int code = HexDigit(scrambled[2 * i]) * 16 + HexDigit(scrambled[2 * i + 1]);
    password.push_back(static_cast<char>(code ^ KeyCharacter(i)));
  }
  return password;
}
