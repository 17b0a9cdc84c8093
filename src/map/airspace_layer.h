// Control zones, controlled and restricted airspaces, each kind by its own
// switch, and once more those that the pilot's list holds.
#pragma once

#include "map/map_layer.h"

void DrawAirspaces(const MapPaint& paint);

// MapSelection::activeAirspaces in HILITE, whatever the switches. Numbers off
// the table draw nothing.
void DrawActiveAirspaces(const MapPaint& paint);
