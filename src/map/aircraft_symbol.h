// The aircraft over the map (SetPlane): a filled shape of 15 points, a track
// vector ahead of it and a tag with its altitude. It is drawn over a copy of
// the finished picture and never repaints the map.
#pragma once

#include <array>
#include <cstdint>
#include <string>

#include "map/map_view.h"
#include "platform/draw_surface.h"

struct AircraftSymbol {
  SurfacePoint centre;
  SurfacePoint nose;       // 600 x factor ahead
  SurfacePoint vectorEnd;  // three times as far
  std::array<SurfacePoint, 15> outline;
  std::string tag;
};

// 0.7, 0.8, 1.0 for the setting ACSIZE of 1, 2, 3; 0.8 for anything else.
double AircraftSizeFactor(int acSize);

// The altitude in feet; from 10000 ft on "FL" and hundreds of feet, cut.
std::string AltitudeTag(std::int32_t altFt);

AircraftSymbol SetPlane(const MapView& view, Position position, float trueHeading, std::int32_t altFt,
                        int acSize);

// In colour MOVAC. Leaves the surface's style as it was.
void DrawAircraft(const AircraftSymbol& symbol, std::int32_t color, DrawSurface& surface);
