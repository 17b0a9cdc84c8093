#include "map/switch_settings.h"

#include <array>

namespace {

using Flag = bool MapSwitches::*;
using Flags = MapSwitches;

// In the order of their bits.
constexpr std::array<Flag, 16> menuFlags = {
    &Flags::mnuCoastlines, &Flags::mnuMSA,    &Flags::mnuAirport,      &Flags::mnuILS,
    &Flags::mnuVOR,        &Flags::mnuNDB,    &Flags::mnuIntersection, &Flags::mnuVictor,
    &Flags::mnuJet,        &Flags::mnuGPSFix, &Flags::mnuUserWP,       &Flags::mnuSunrise,
    &Flags::mnuAutozoom,   &Flags::mnuAoM,    &Flags::profileChosen,   &Flags::mnuProfile};
constexpr std::array<Flag, 3> buttonFlags = {&Flags::btnIcao, &Flags::btnName, &Flags::btnFreq};
constexpr std::array<Flag, 3> airspaceFlags = {&Flags::mnuCtrz, &Flags::mnuAir1, &Flags::mnuAir2};

constexpr std::int32_t storedBit = 1 << 30;

template <std::size_t N>
void Read(std::int32_t mask, const std::array<Flag, N>& flags, MapSwitches& switches) {
  for (std::size_t bit = 0; bit < N; ++bit)
    switches.*flags[bit] = (mask >> bit & 1) != 0;
}

template <std::size_t N>
std::int32_t MaskOf(const MapSwitches& switches, const std::array<Flag, N>& flags) {
  std::int32_t mask = 0;
  for (std::size_t bit = 0; bit < N; ++bit)
    if (switches.*flags[bit]) mask |= std::int32_t{1} << bit;
  return mask;
}

}  // namespace

MapSwitches SwitchesFrom(const Settings& settings) {
  MapSwitches switches;
  if ((settings.MENU & storedBit) == 0) return switches;
  Read(settings.MENU, menuFlags, switches);
  Read(settings.BUTTON, buttonFlags, switches);
  Read(settings.AIRSPACE, airspaceFlags, switches);
  switches.mnuCompass = settings.COMPMENU != 0;
  switches.mnuLatLong = settings.LATLONGMENU != 0;
  return switches;
}

void StoreSwitches(const MapSwitches& switches, Settings& settings) {
  settings.MENU = MaskOf(switches, menuFlags) | storedBit;
  settings.BUTTON = MaskOf(switches, buttonFlags);
  settings.AIRSPACE = MaskOf(switches, airspaceFlags);
  settings.COMPMENU = switches.mnuCompass ? -1 : 0;
  settings.LATLONGMENU = switches.mnuLatLong ? -1 : 0;
}
