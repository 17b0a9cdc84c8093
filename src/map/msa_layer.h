// Minimum sector altitudes: a net of cells, in each its altitude in hundreds of feet.
#pragma once

#include "map/map_layer.h"

void DrawMsa(const MapPaint& paint);
