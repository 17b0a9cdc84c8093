// The pilot's settings: one plain struct, filled from vlm.ini when the program
// starts and written back when the main window closes. Every key of the file
// is described once, in VisitSettings(), with its section, name and default.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>
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
  ColorSettings colors;
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
