#include "map/switch_settings.h"

#include <gtest/gtest.h>

namespace {

constexpr std::int32_t storedBit = 1 << 30;

TEST(SwitchSettings, ASettingsFileThatNeverHeldThemGivesTheDefaults) {
  Settings settings;
  settings.MENU = settings.BUTTON = 0;
  EXPECT_EQ(SwitchesFrom(settings), MapSwitches{});
}

TEST(SwitchSettings, TheDefaultsOfBothAgree) {
  EXPECT_EQ(SwitchesFrom(Settings{}), MapSwitches{});
  Settings stored;
  stored.MENU = stored.BUTTON = stored.AIRSPACE = stored.COMPMENU = stored.LATLONGMENU = 12345;
  StoreSwitches(MapSwitches{}, stored);
  const Settings defaults;
  EXPECT_EQ(stored.MENU, defaults.MENU);
  EXPECT_EQ(stored.BUTTON, defaults.BUTTON);
  EXPECT_EQ(stored.AIRSPACE, defaults.AIRSPACE);
  EXPECT_EQ(stored.COMPMENU, defaults.COMPMENU);
  EXPECT_EQ(stored.LATLONGMENU, defaults.LATLONGMENU);
}

TEST(SwitchSettings, EverySwitchHasItsPlaceForGood) {
  using Flags = MapSwitches;
  struct Case {
    bool MapSwitches::*flag;
    std::int32_t Settings::*key;
    std::int32_t value;
  };
  const Case cases[] = {
      {&Flags::mnuCoastlines, &Settings::MENU, 1},     {&Flags::mnuMSA, &Settings::MENU, 2},
      {&Flags::mnuAirport, &Settings::MENU, 4},        {&Flags::mnuILS, &Settings::MENU, 8},
      {&Flags::mnuVOR, &Settings::MENU, 16},           {&Flags::mnuNDB, &Settings::MENU, 32},
      {&Flags::mnuIntersection, &Settings::MENU, 64},  {&Flags::mnuVictor, &Settings::MENU, 128},
      {&Flags::mnuJet, &Settings::MENU, 256},          {&Flags::mnuGPSFix, &Settings::MENU, 512},
      {&Flags::mnuUserWP, &Settings::MENU, 1024},      {&Flags::mnuSunrise, &Settings::MENU, 2048},
      {&Flags::mnuAutozoom, &Settings::MENU, 4096},    {&Flags::mnuAoM, &Settings::MENU, 8192},
      {&Flags::profileChosen, &Settings::MENU, 16384}, {&Flags::mnuProfile, &Settings::MENU, 32768},
      {&Flags::btnIcao, &Settings::BUTTON, 1},         {&Flags::btnName, &Settings::BUTTON, 2},
      {&Flags::btnFreq, &Settings::BUTTON, 4},         {&Flags::mnuCtrz, &Settings::AIRSPACE, 1},
      {&Flags::mnuAir1, &Settings::AIRSPACE, 2},       {&Flags::mnuAir2, &Settings::AIRSPACE, 4},
      {&Flags::mnuCompass, &Settings::COMPMENU, -1},   {&Flags::mnuLatLong, &Settings::LATLONGMENU, -1},
  };
  // Every switch of the map is in the table, but for the two of the plan's procedures.
  EXPECT_EQ(std::size(cases) + 2, sizeof(MapSwitches) / sizeof(bool));
  Settings nothing;
  nothing.BUTTON = nothing.AIRSPACE = nothing.COMPMENU = nothing.LATLONGMENU = 0;
  nothing.MENU = storedBit;
  const MapSwitches allOff = SwitchesFrom(nothing);
  for (const Case& c : cases) {
    MapSwitches one = allOff;
    one.*c.flag = true;
    Settings stored;
    StoreSwitches(one, stored);
    EXPECT_EQ(stored.*c.key, c.key == &Settings::MENU ? c.value | storedBit : c.value);
    EXPECT_EQ(SwitchesFrom(stored), one) << "value " << c.value;
  }
}

TEST(SwitchSettings, UnknownBitsAreDropped) {
  Settings settings;
  settings.MENU = -1;
  MapSwitches switches = SwitchesFrom(settings);
  EXPECT_TRUE(switches.mnuCoastlines && switches.mnuAoM);
  StoreSwitches(switches, settings);
  EXPECT_EQ(settings.MENU, storedBit | ((1 << 16) - 1));
}

}  // namespace
