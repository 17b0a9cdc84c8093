// Land, coastlines, lakes, borders and rivers, and the one outline that the
// pilot picked out.
#pragma once

#include "map/map_layer.h"

void DrawWorld(const MapPaint& paint);

// The shape MapSelection::SelectedOutline of the world polygons, in HILITE. A
// number off the table draws nothing.
void DrawSelectedOutline(const MapPaint& paint);
