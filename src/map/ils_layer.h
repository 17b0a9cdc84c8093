// ILS feathers and their labels: of an airport, within the airports' layer,
// and of the ILS that no airport claims.
#pragma once

#include <string>

#include "map/map_layer.h"

// The feathers of one airport, where the airports' layer shows them: mnuILS
// and up to 200 NM.
void DrawIlsOf(const MapPaint& paint, const AirportRec& airport);

// The ILS without an airport row.
void DrawPendingIls(const MapPaint& paint);

// The label of an ILS, '\n' between its lines, UTF-8: code and name, course
// and frequency as the switches tell; beyond 75 NM the code and the frequency,
// beyond 100 NM nothing. The course is magnetic by a variation in degrees.
std::string IlsLabel(const IlsRec& ils, float variation, const MapSwitches& switches, std::int16_t rangeNM);

// True if the row has a glide path: an ILS, else a localizer.
bool IsFullIls(const IlsRec& ils);
