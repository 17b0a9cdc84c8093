// What an airport shows of its ground: runways with their designators, and
// parking spots.
#pragma once

#include "map/map_layer.h"

// Runways up to 100 NM, designators and parking up to 10 NM; beyond, nothing.
void DrawAirportGround(const MapPaint& paint, const AirportRec& airport);
