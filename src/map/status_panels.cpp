#include "map/status_panels.h"

#include <array>
#include <cstddef>

#include "base/numbers.h"

namespace {

constexpr std::int64_t secondsPerDay = 86400;

constexpr std::array<std::string_view, statusPanelCount> toolTips = {
    "Click UTC / LOCAL",
    "LeftClick Zoom IN/RightClick Zoom OUT",
    "Magnetic Variation",
    "Aircraft Coordinates",
    "LeftClick Select AC / RightClick AC on Map ON/OFF",
    "Click Coordinates / To / From Cursor Position",
    "Fuel"};

}  // namespace

std::string_view StatusPanelToolTip(StatusPanel panel) {
  const auto index = static_cast<std::size_t>(panel);
  return index < toolTips.size() ? toolTips[index] : std::string_view{};
}

PositionFormat Toggled(PositionFormat format) {
  return format == PositionFormat::decimal ? PositionFormat::degreesMinutes : PositionFormat::decimal;
}

std::string PositionText(Position position, PositionFormat format, int style) {
  if (format == PositionFormat::decimal)
    return FormatPicture(position.lat, "00.0000") + " / " + FormatPicture(position.lon, "000.0000");
  return FormatLat(position.lat, style) + " - " + FormatLon(position.lon, style);
}

std::string ClockText(std::int64_t secondOfDay, bool utc) {
  const std::int64_t second = (secondOfDay % secondsPerDay + secondsPerDay) % secondsPerDay;
  const auto part = [](std::int64_t value) { return FormatPicture(static_cast<double>(value), "00"); };
  return part(second / 3600) + ":" + part(second / 60 % 60) + ":" + part(second % 60) +
         (utc ? " UTC" : " LOCAL");
}

std::string MagVarText(float variation) {
  return "MagVar: " + FormatMagVar(variation);
}
