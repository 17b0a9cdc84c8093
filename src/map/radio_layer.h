// The radio stations on the map: VOR and NDB, with roses and rings near by,
// small symbols farther out and points on maps of half the world.
#pragma once

#include <string>

#include "map/map_layer.h"

void DrawVors(const MapPaint& paint);
void DrawNdbs(const MapPaint& paint);

// The label of a station, '\n' between its lines: code, frequency in a number
// picture, name, as the switches and the range tell; UTF-8.
std::string VorLabel(const VorRec& vor, const MapSwitches& switches, std::int16_t rangeNM);
std::string NdbLabel(const NdbRec& ndb, const MapSwitches& switches, std::int16_t rangeNM);
