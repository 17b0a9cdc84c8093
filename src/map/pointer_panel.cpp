#include "map/pointer_panel.h"

#include "base/numbers.h"

namespace {

constexpr std::int32_t black = 0;
constexpr std::int32_t red = 255;
constexpr std::int32_t blue = 16711680;

double TrueBearing(Position from, Position to) {
  return GreatCircleCourse(from.lat, from.lon, to.lat, to.lon);
}

std::string DegreesText(double trueBearing, float variation) {
  return std::to_string(WholeMagneticBearing(trueBearing, variation)) + "°";
}

std::string DistanceText(Position from, Position to, std::string_view picture) {
  return FormatPicture(GreatCircleDistance(from.lat, from.lon, to.lat, to.lon), picture);
}

}  // namespace

CursorPanelMode NextMode(CursorPanelMode mode) {
  switch (mode) {
    case CursorPanelMode::coordinates:
      return CursorPanelMode::to;
    case CursorPanelMode::to:
      return CursorPanelMode::from;
    default:
      return CursorPanelMode::coordinates;
  }
}

std::string_view ModeName(CursorPanelMode mode) {
  switch (mode) {
    case CursorPanelMode::to:
      return "To Cursor Position";
    case CursorPanelMode::from:
      return "From Cursor Position";
    default:
      return "Coordinates";
  }
}

std::int32_t ModeColor(CursorPanelMode mode) {
  switch (mode) {
    case CursorPanelMode::to:
      return red;
    case CursorPanelMode::from:
      return blue;
    default:
      return black;
  }
}

Position MapReference(const MapView& view, bool connected) {
  return connected ? Position{view.AircraftLat, view.AircraftLon}
                   : Position{view.MapCenterLat, view.MapCenterLon};
}

std::int32_t WholeMagneticBearing(double trueBearing, double variation) {
  return CutToInt(NormalizeDeg(trueBearing - variation));
}

std::string PointerPanelText(CursorPanelMode mode, const MapView& view, Position reference, Position pointer,
                             PositionFormat format, int style) {
  if (mode == CursorPanelMode::coordinates) return PositionText(pointer, format, style);
  double bearing = TrueBearing(reference, pointer);
  if (mode == CursorPanelMode::from) bearing = NormalizeDeg(bearing - 180);
  return (mode == CursorPanelMode::to ? "To: " : "From: ") + DistanceText(reference, pointer, " ###0.0") +
         " NM / " + DegreesText(bearing, view.MapMagVar);
}

std::string LegPickText(const PickedLeg& leg, Position pointer, float magVar) {
  constexpr std::string_view picture = "###0.0";
  if (leg.inbound) {
    return DistanceText(pointer, leg.to, picture) +
           " NM / Inbound: " + DegreesText(TrueBearing(pointer, leg.to), magVar);
  }
  return DistanceText(leg.from, pointer, picture) +
         " NM / HDG: " + DegreesText(TrueBearing(leg.from, pointer), magVar) +
         " / RDL: " + DegreesText(TrueBearing(leg.to, pointer), magVar);
}

Position LegPickAnchor(const PickedLeg& leg) {
  return leg.inbound ? leg.to : leg.from;
}
