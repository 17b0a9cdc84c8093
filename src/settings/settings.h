// The pilot's settings: one plain struct, filled from vlm.ini when the program
// starts and written back when the main window closes. Every key of the file
// is described once, in VisitSettings(), with its section, name and default.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

// Colours are 24-bit values with red in the low byte.
using ColorValue = std::int32_t;

struct ColorSettings {
  ColorValue MAP = 4194304, COAST = 98, LATLONG = 6250335, COMP = 8388608, WIND = 255, HILITE = 255,
             MEASURE = 16776960, ZOOM = 255, MSA = 8421504, VICTOR = 16744448, CTRZ = 4144959, JET = 16776960,
             AIR1 = 21760, AIR2 = 5963867, VOR = 33023, NDB = 48896, ILS = 32896, INT = 12615680, FIX = 19948,
             USER = 8421504, MOVAC = 16776960, ACINCTRZ = 255, ACATCTRZ = 16776960, ROUTE = 255, AI = 255,
             AIFREQ = 65280, TCAS1 = 33023, TCAS2 = 255, AP = 11513775, RWY = 4144959, TAXI = 14671839,
             TAXINAME = 14671839, RWYID = 14671839, PARKING = 65280, LAND = 12079, RIVER = 12615680,
             IVAOFIR = 6553700, IVAOFSS = 65280, IVAOTWR = 255, IVAOGND = 65535, IVAOAPP = 16744576,
             STATICACCOLOR = 16777088, FIRACTIVCOLOR = 65280, FIRINACTIVCOLOR = 255;
};

// From 0xRRGGBB, as colours are usually written.
constexpr ColorValue ColorOf(std::int32_t rgb) {
  return (rgb & 0xFF) << 16 | (rgb & 0xFF00) | rgb >> 16;
}

// The colours as the program brings them: a dark map for the night, a light one for the day.
inline constexpr ColorSettings nightColors{};
inline constexpr ColorSettings dayColors{.MAP = ColorOf(0xD3E6F2),
                                         .COAST = ColorOf(0x6E8296),
                                         .LATLONG = ColorOf(0x8FA3B5),
                                         .COMP = ColorOf(0x2F5D9E),
                                         .WIND = ColorOf(0xC81E1E),
                                         .HILITE = ColorOf(0xE00000),
                                         .MEASURE = ColorOf(0x0B7A8C),
                                         .ZOOM = ColorOf(0xD00000),
                                         .MSA = ColorOf(0x6B6B6B),
                                         .VICTOR = ColorOf(0x2E62C8),
                                         .CTRZ = ColorOf(0x7A4E9C),
                                         .JET = ColorOf(0x00708A),
                                         .AIR1 = ColorOf(0x2E7D32),
                                         .AIR2 = ColorOf(0xB0306A),
                                         .VOR = ColorOf(0xB35A00),
                                         .NDB = ColorOf(0x0A7A3A),
                                         .ILS = ColorOf(0x7A6A00),
                                         .INT = ColorOf(0x005F94),
                                         .FIX = ColorOf(0xB83A00),
                                         .USER = ColorOf(0x5A5A5A),
                                         .MOVAC = ColorOf(0x0047AB),
                                         .ACINCTRZ = ColorOf(0xC00000),
                                         .ACATCTRZ = ColorOf(0x007C91),
                                         .ROUTE = ColorOf(0xC2002E),
                                         .AI = ColorOf(0xB71C1C),
                                         .AIFREQ = ColorOf(0x00802B),
                                         .TCAS1 = ColorOf(0xD06A00),
                                         .TCAS2 = ColorOf(0xD00000),
                                         .AP = ColorOf(0x37474F),
                                         .RWY = ColorOf(0x4A4F55),
                                         .TAXI = ColorOf(0x8A8F94),
                                         .TAXINAME = ColorOf(0x2A2F36),
                                         .RWYID = ColorOf(0x1B1F24),
                                         .PARKING = ColorOf(0x2E8B57),
                                         .LAND = ColorOf(0xF3F1E6),
                                         .RIVER = ColorOf(0x6FA8D0),
                                         .IVAOFIR = ColorOf(0x640064),
                                         .IVAOFSS = ColorOf(0x00802B),
                                         .IVAOTWR = ColorOf(0xC00000),
                                         .IVAOGND = ColorOf(0xA08A00),
                                         .IVAOAPP = ColorOf(0x3F51B5),
                                         .STATICACCOLOR = ColorOf(0x00838F),
                                         .FIRACTIVCOLOR = ColorOf(0x00802B),
                                         .FIRINACTIVCOLOR = ColorOf(0xB00020)};

// Texts are UTF-8 in memory, the code page in the file. Flags are 0 and -1.
struct Settings {
  // User
  std::uint8_t MAPWIN = 0;
  std::int16_t SCALE = 6;  // row of the zoom table
  std::int16_t AIRCRAFT = 12;
  std::uint8_t FUEL = 2;
  std::uint8_t FILL = 0;
  std::uint8_t FONTSIZE = 0;
  std::int16_t ACSIZE = 2;
  std::int16_t LL = 3;
  std::int16_t GC = -1;
  std::int16_t DECSEC = 1;  // position texts: 0 degrees, minutes, seconds; else decimal minutes
  std::uint8_t ARC = 1;
  std::uint8_t DIRCON = 0;  // show the map at once at start-up
  std::int32_t TRACEALT = 15000;
  std::int16_t TRACEALTTYPE = 0;
  std::uint8_t MZOOM = 0;  // 1: the wheel zooms
  std::int16_t HOTKEYS = 0;
  std::int16_t MOVINGMAP = 0;
  std::int16_t MMCOUNTERSET = 10;
  // Flightplan
  std::int16_t SECLEN = 50;
  std::int16_t SECWIDTH = 30;
  double FAFDIST = 8.5;     // NM
  std::int32_t FPSEL = 81;  // bit i: save format i
  std::string FPPATH09, FPPATH10, SQUAWKBOXPATH, IVAOPATH, FSINNPATH, RADCONPATH, PROMAGPATH, TSPATH,
      XPLANEPATH;
  std::string FSXPLANPATH, MSFSPATH, XPLANE11PATH, FLIGHTGEARPATH, GARMINPATH, GPXPATH;
  std::string RECENT1, RECENT2, RECENT3, RECENT4, RECENT5;  // plan files last used, the latest first
  // Color
  ColorSettings colors;                   // the set in use
  ColorSettings otherColors = dayColors;  // the set that is not in use
  std::int16_t NIGHT = -1;                // which of the two is in use: 0 day, -1 night
  // Map
  std::int32_t REGION = 0;
  std::int32_t COUNTRY = 75;
  std::int32_t STATE = -1;
  std::int32_t CITY = 85;
  std::int32_t WINX = 0;
  std::int32_t WINY = 0;
  std::int32_t REMWINPOS = 0;
  std::int32_t GPSWINX = 500;
  std::int32_t GPSWINY = 1200;
  std::int32_t REMGPSWINPOS = 0;
  // Download
  std::string NATRACKURL, PACOTURL, WXURL;
  std::string NATRACKFILE = "North Atlantic Tracks";
  std::string PACOTFILE = "Defense Internet NOTAM Service";
  std::string WXFILE = "vlm_metar";
  // Online
  std::int16_t AUTODOWNLOAD = 1;
  std::int16_t DLINTERVAL = 3;
  std::string ONLUSRCALLSIGN;
  std::int16_t ONLSHOWALTSPEED = 0;
  std::int16_t ONLSHOWDEPDEST = 0;
  std::string VATSIMURLSTATUS, IVAOURLSTATUS;
  std::int32_t IVAOVID = 0;
  std::string IVAOVPW;  // scrambled in the file, in clear here once DecryptIvaoPWord() has run
  std::int16_t USECALLSIGN = 0;
  // Fs
  std::int16_t FSX = 0;  // 0: Flight Simulator 2004, -1: Flight Simulator X
  // Find
  std::int16_t CLOSE = 0;
  std::int16_t SHOW = 0;
  // Window: of the map window when it is not maximised, in pixels; 0: never stored
  std::int32_t WIDTH = 0;
  std::int32_t HEIGHT = 0;
  // What the main window keeps of its menus and ribbons: bits by map/switch_settings.h.
  std::int32_t BUTTON = 1;
  std::int32_t MENU = 1 << 30 | 9661;  // stored; the switches that are on at first
  std::int32_t AIMENU = 0;
  std::int32_t AIRSPACE = 0;
  std::int32_t AITRAFFIC = 0;
  std::int32_t GPSVISIBLE = 0;
  std::int32_t COMPMENU = 0;
  std::int32_t LATLONGMENU = 0;
  std::int32_t ONTOP = 0;
};

// Puts the day's or the night's colours in use; the others are kept beside.
inline void UseColorSet(Settings& settings, bool night) {
  if (night == (settings.NIGHT != 0)) return;
  settings.NIGHT = night ? -1 : 0;
  std::swap(settings.colors, settings.otherColors);
}
