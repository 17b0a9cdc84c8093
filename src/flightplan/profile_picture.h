// The vertical picture: the flight seen from the side, drawn on a surface. The
// line of climb, level and descent above its altitudes, the plan's waypoints
// below it, the lowest altitudes of the airways, and what the pointer marks.
#pragma once

#include <optional>

#include "flightplan/vertical_profile.h"
#include "platform/draw_surface.h"

// Where a picture lies on its page, in units.
struct PictureFrame {
  float left = 0;
  float top = 0;
  float width = 0;
  float height = 0;
};

// Places of the picture from distances and altitudes, and back.
class ProfileScale {
 public:
  // unitsPerPixel: of the surface; margins and letters count in pixels.
  ProfileScale(const FlightProfile& profile, const FlightPlan& plan, PictureFrame frame, float unitsPerPixel);

  float XOf(double distance) const;
  float YOf(double altitude) const;
  // Within 0 and the plan's length.
  double DistanceAt(float x) const;

  // Of the plot, without the texts around it.
  float Left() const { return left; }
  float Right() const { return right; }
  float Top() const { return top; }
  float Bottom() const { return bottom; }
  float Pixels(float count) const { return count * unitsPerPixel; }
  double HighestAltitude() const { return highest; }
  const PictureFrame& Frame() const { return frame; }

 private:
  PictureFrame frame;
  float unitsPerPixel;
  float left, right, top, bottom;
  double length;
  double lowest;
  double highest;
};

// 24-bit values with red in the low byte.
struct ProfileColors {
  std::int32_t ground = 0, grid = 0, quiet = 0, text = 0, line = 0, sid = 0, star = 0, minimum = 0, fault = 0;
};
const ProfileColors& ProfileColorsOf(bool night);

// A leg's lowest altitude on its airway in feet; 0: none is known.
std::int32_t LegMinimum(const PlanWaypoint& row);

// Draws the picture of plan in scale's frame; profile belongs to the plan. marked: the
// distance that the pilot points at. Without points only the profile's note is
// written. The surface's style is left as it was found.
void DrawProfile(const FlightProfile& profile, const FlightPlan& plan, const ProfileScale& scale,
                 std::optional<double> marked, DrawSurface& surface,
                 const ProfileColors& colors = ProfileColorsOf(true));

// What is told of a place on the flight, UTF-8: "412 NM   FL 350   01:02".
std::string MarkText(const ProfilePoint& point);
