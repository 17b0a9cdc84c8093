// The map's switches as numbers of vlm.ini. Every switch has its bit for good:
// a new one takes the next free bit of its key, and none is ever given another
// meaning. COMPMENU and LATLONGMENU are flags, 0 and -1.
//
//   bit  MENU             BUTTON    AIRSPACE
//     0  mnuCoastlines    btnIcao   mnuCtrz
//     1  mnuMSA           btnName   mnuAir1
//     2  mnuAirport       btnFreq   mnuAir2
//     3  mnuILS
//     4  mnuVOR
//     5  mnuNDB
//     6  mnuIntersection
//     7  mnuVictor
//     8  mnuJet
//     9  mnuGPSFix
//    10  mnuUserWP
//    11  mnuSunrise
//    12  mnuAutozoom
//    13  mnuAoM
//    30  always set: a MENU without it was never stored, and all switches have
//        their defaults
#pragma once

#include "map/map_switches.h"
#include "settings/settings.h"

// Bits without a meaning are passed over.
MapSwitches SwitchesFrom(const Settings& settings);

// Sets the five keys; bits without a meaning become 0.
void StoreSwitches(const MapSwitches& switches, Settings& settings);
