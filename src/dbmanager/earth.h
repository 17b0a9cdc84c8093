// Distances and courses in double precision for the making of the records,
// where the ends of a 50 m helipad still matter: one minute of arc is one
// nautical mile, as everywhere in the program.
#pragma once

#include "dbmanager/source_lines.h"

// Great circle (haversine, so it holds for centimetres too), NM.
double DistanceNM(SourcePosition a, SourcePosition b);
// Initial true course from a to b, 0 up to (not including) 360; 0 for equal points.
double TrueCourse(SourcePosition a, SourcePosition b);
// The middle of the great circle.
SourcePosition Midpoint(SourcePosition a, SourcePosition b);
// The point at a distance in NM along a true course in degrees.
SourcePosition Offset(SourcePosition from, double course, double distanceNM);
// Longitude within -180..180.
double WrapLon(double lon);
