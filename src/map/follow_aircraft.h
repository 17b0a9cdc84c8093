// How the map follows the aircraft: ShowFSPosition, run at every position
// display. It moves the view and answers what is left to do; it draws nothing.
#pragma once

#include <cstdint>

#include "map/map_view.h"

// What the simulator tells of the aircraft, as far as the map follows it.
struct AircraftFacts {
  Position position;
  float trueHdg = 0;  // degrees
  std::int32_t aglFt = 0;
  std::int32_t tas = 0;  // knots
  bool airborne = false;
  float magVar = 0;
  bool connected = false;
};

// The part of the page that is free for the aircraft: what the window shows of
// it, from the bottom of pnlFlightplan on while that panel is visible.
struct FollowFrame {
  float left = 0;
  float top = 0;
  float right = mapScaleWidth;
  float bottom = mapScaleHeight;
};

// What the pilot and the window have set.
struct FollowOptions {
  bool mnuAoM = false;             // the map follows the aircraft
  bool movingMap = false;          // the setting MOVINGMAP: periodic recentring
  std::int16_t MMCOUNTERSET = 10;  // seconds; the calls come twice a second
  bool minimised = false;
  FollowFrame frame;
};

struct FollowAnswer {
  bool repaint = false;   // the view has changed
  bool setPlane = false;  // the aircraft symbol is to be drawn anew
};

// One call a position display. counter belongs to the caller and holds the
// calls since the last periodic recentring. The view's stored aircraft position
// and MapMagVar take the facts' values; panels 2 and 3 are to be written anew.
// An aircraft whose position is no number is not followed.
FollowAnswer ShowFSPosition(MapView& view, std::int32_t& counter, const AircraftFacts& aircraft,
                            const FollowOptions& options);

// True if a place of the page lies on the frame or outside it.
bool OutsideFrame(std::int32_t x, std::int32_t y, const FollowFrame& frame);

// While mnuAutozoom: 2 NM on the ground, 50 NM in the air. Nothing to repaint
// when the map is there already.
ZoomAnswer AutomaticZoom(MapView& view, bool airborne);
