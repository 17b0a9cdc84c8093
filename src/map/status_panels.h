// What the status panels under the map say: which panel shows what, the tool
// tips, and the texts of the clock, the range, the magnetic variation and the
// position. Panel 5, the pointer's, has a room of its own (pointer_panel.h);
// the traffic and fuel panels are filled by the simulator link.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>

#include "navdata/geodesy.h"

// Index into the control array lblMapStatus.
enum class StatusPanel : std::int16_t {
  clock = 0,
  range = 1,
  magVar = 2,
  position = 3,
  traffic = 4,
  pointer = 5,
  fuel = 6
};
constexpr int statusPanelCount = 7;

// The tool tip of a panel, ASCII; empty for a number that is no panel.
std::string_view StatusPanelToolTip(StatusPanel panel);

// How positions are written. A click on panel 3 goes to the other one.
enum class PositionFormat : std::int16_t { degreesMinutes = 0, decimal = 1 };
PositionFormat Toggled(PositionFormat format);

// A position as text, UTF-8: latitude and longitude as FormatLat() and
// FormatLon() write them in style (the setting DECSEC), joined by " - "; or in
// decimal degrees "00.0000" and "000.0000", south and west negative, joined by
// " / ".
std::string PositionText(Position position, PositionFormat format, int style);

// Panel 0: "13:05:09 UTC" or "14:05:09 LOCAL" for a second of the day. A day's
// end wraps; negative values count back from midnight.
std::string ClockText(std::int64_t secondOfDay, bool utc);

// Panel 2: "MagVar: E 03°", UTF-8.
std::string MagVarText(float variation);
