// Which of the three airspace switches a row belongs to: kind 1 control zones,
// 2 controlled, 3 restricted; any other kind goes with the controlled ones.
#pragma once

#include "map/map_switches.h"
#include "navdata/tables.h"

// AirspaceRec::intType
constexpr std::int16_t controlZone = 1;
constexpr std::int16_t restrictedAirspace = 3;

inline bool AirspaceIsShown(const AirspaceRec& airspace, const MapSwitches& switches) {
  switch (airspace.intType) {
    case controlZone:
      return switches.mnuCtrz;
    case restrictedAirspace:
      return switches.mnuAir2;
    default:
      return switches.mnuAir1;
  }
}
