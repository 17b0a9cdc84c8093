// The ground of airports near by: aprons, taxiways and their names.
#pragma once

#include "map/map_layer.h"

void DrawGroundPolygons(const MapPaint& paint);
void DrawTaxiways(const MapPaint& paint);
void DrawTaxiwayDesignators(const MapPaint& paint);
