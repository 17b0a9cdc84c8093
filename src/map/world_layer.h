// Land, coastlines, lakes and borders.
#pragma once

#include "map/map_layer.h"

void DrawWorld(const MapPaint& paint);
