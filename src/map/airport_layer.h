// Airports: runways and parking near by, then circles with labels, single
// points on maps of half the world.
#pragma once

#include "map/map_layer.h"

void DrawAirports(const MapPaint& paint);

// The text of an airport's label; second is the line below it. Both may be empty.
struct AirportLabel {
  std::string first;
  std::string second;
};
AirportLabel LabelOf(const AirportRec& airport, const MapSwitches& switches, std::int16_t rangeNM);
