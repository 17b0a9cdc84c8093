// A compass rose around the middle of the map, turned to magnetic north.
#pragma once

#include "map/map_layer.h"

void DrawCompass(const MapPaint& paint);
