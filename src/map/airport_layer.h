// Airports: runways and parking near by, ILS feathers, then circles with
// labels, single points on maps of half the world. An airport looks as
// important as its longest runway is long.
#pragma once

#include <string>

#include "map/map_layer.h"

void DrawAirports(const MapPaint& paint);

// The text of an airport's label: code, name, both with '\n' between them, or
// nothing, as the switches and the range tell; UTF-8.
std::string AirportLabel(const AirportRec& airport, const MapSwitches& switches, std::int16_t rangeNM);
