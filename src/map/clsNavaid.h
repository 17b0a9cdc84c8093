// The one drawer of the map's symbols. A caller fills the properties, points
// objTarget at a surface and calls a DrawAs... operation; the same object
// serves the map, the printer and the charts, so it needs nothing but the
// surface. All sizes are in the surface's units, angles true degrees.
#pragma once

#include <cstdint>
#include <string>

#include "platform/draw_surface.h"

class clsNavaid {
 public:
  DrawSurface* objTarget = nullptr;
  std::int16_t rangeNM = 0;  // of the map; beyond 900 NM most symbols are a point
  float sngCenterX = 0;
  float sngCenterY = 0;
  float sngLength = 0;        // half size of a marker, length of a runway
  std::int16_t intWidth = 0;  // of a runway
  std::int16_t intRadius = 180;
  float sngCourse = 0;
  std::int32_t lngColor = 0;

  // An upward triangle. Moves sngCenterY up by 15, for good.
  void DrawAsIntersection();
  // The same triangle with a circle in it.
  void DrawAsVRP();
  // A circle of radius intRadius in the surface's fill style.
  void DrawAsAirportCircle();
  // A rectangle turned to sngCourse: filled with the surface's FillColor,
  // outlined in lngColor. Opposite courses give one shape.
  void DrawAsRwy();
  // A hexagon with a point in its middle.
  void DrawAsVorSymbol();
  // Three circles around the centre, the innermost with a point.
  void DrawAsNDB();

 private:
  void DrawTriangle();
  bool BeyondSymbolRange() const;
  void DrawPoint();
};
