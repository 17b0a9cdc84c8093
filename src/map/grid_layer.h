// The net of latitudes and longitudes, a few calm lines at any range, with
// their degrees along the left and the lower edge.
#pragma once

#include <string>

#include "map/map_layer.h"

void DrawGrid(const MapPaint& paint);

// The distance between the lines, in quarters of a minute (240 are a degree):
// the smallest of a quarter minute to 30 degrees whose lines lie leastUnits
// apart at so many units a degree.
std::int32_t GridStep(double unitsPerDegree, double leastUnits);

// "N50°", "E008°30'", "S12°07.25'"; the equator is "0°", the half turns "180°".
// longitudes beyond 180 are brought back by whole turns.
std::string GridLatText(std::int32_t quarterMinutes);
std::string GridLonText(std::int32_t quarterMinutes);
