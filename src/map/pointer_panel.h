// What follows the pointer in words: panel 5 of the status line (coordinates,
// or bearing and distance to or from the pointer) and the text of the line
// between the pointer and the leg picked in the plan.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>

#include "map/map_view.h"
#include "map/status_panels.h"

enum class CursorPanelMode : std::int16_t { coordinates = 0, to = 1, from = 2 };

// The mode after a click on the panel: 0, 1, 2, 0.
CursorPanelMode NextMode(CursorPanelMode mode);
// The words that are shown for a moment after the click: "Coordinates",
// "To Cursor Position", "From Cursor Position".
std::string_view ModeName(CursorPanelMode mode);
// Colour of the panel's text: 0 black, 255 red, 16711680 blue.
std::int32_t ModeColor(CursorPanelMode mode);

// What bearings on the map are counted from: the aircraft while a simulator is
// connected, else the map's centre.
Position MapReference(const MapView& view, bool connected);

// Panel 5, UTF-8: the pointer's position as PositionText() writes it, or
// "To:  12.3 NM / 47°", the way from reference to pointer, or "From:  12.3 NM /
// 227°", the same with the bearing reversed. Bearings are magnetic by the
// view's MapMagVar, in whole degrees.
std::string PointerPanelText(CursorPanelMode mode, const MapView& view, Position reference, Position pointer,
                             PositionFormat format, int style);

// True bearing (0..360) less variation (-180..180), brought to 0..360 and cut
// to whole degrees. No number gives 0.
std::int32_t WholeMagneticBearing(double trueBearing, double variation);

// The leg of the plan that the pointer is held against: from waypoint
// LegPickIndex - 1 to waypoint LegPickIndex.
struct PickedLeg {
  Position from;
  Position to;
  bool inbound = false;
};

// lblCourseRadial. Inbound: the way from the pointer to the leg's end, as
// "12.3 NM / Inbound: 47°". Else the way out from the leg's start and the
// radial of the leg's end that the pointer lies on, as
// "12.3 NM / HDG: 47° / RDL: 210°". Distances "###0.0", bearings magnetic.
std::string LegPickText(const PickedLeg& leg, Position pointer, float magVar);
// The end of the leg from which the bearing line is drawn to the pointer.
Position LegPickAnchor(const PickedLeg& leg);
