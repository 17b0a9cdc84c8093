// The points without a transmitter: intersections of the airways, GPS fixes
// and the pilot's own waypoints.
#pragma once

#include "map/map_layer.h"

void DrawIntersections(const MapPaint& paint);
void DrawFixes(const MapPaint& paint);
// Their names are printed where they belong, whatever lies there.
void DrawUserWaypoints(const MapPaint& paint);

// True if an intersection is to be seen: all with mnuIntersection, else those
// on victor airways with mnuVictor and on jet airways with mnuJet.
bool IsShown(const IntersectionRec& intersection, const MapSwitches& switches);
