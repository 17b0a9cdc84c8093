// A small world for the windows: two airports along the equator with a low and
// a high airway between them.
#pragma once

#include "tests/flightplan/drawn_world.h"

inline const std::string windowWorld =
    "airport EDDA 0 0 0\nairport EDDB 0 10 0\nairport AFIL 0 50 0\n"
    "A 0 0.3\nB 0 3\nC 0 6\nZ 0 9.8\n"
    "A --162-- B V1 FL60-FL200\nB --180-- C V1 FL60-FL200\nC --228-- Z V2 FL80-FL200\n"
    "A ==570== Z UL1 FL210-FL240\n";
