// The names behind the number codes of the database: what a frequency, a
// surface, a gate or a fuel unit is called on the screen.
#pragma once

#include <string_view>

// Each returns the name of a code, empty for a code that has none.
std::string_view strFuel(int unit);        // 0 to 3: "gal", "lbs", "kg", "lit"
std::string_view strGateName(int name);    // 0 to 37: "None" to "Gate Z"
std::string_view strGateType(int type);    // 1 to 13: "Ramp GA" to "Service"
std::string_view strFreqType(int type);    // 1 to 12: "ATIS" to "ASOS"
std::string_view strSurface(int surface);  // 0 to 24 and 254
