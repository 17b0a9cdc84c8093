// The airways: jet first, victor above them; the selected airway once more
// above the others of its net. A selected name counts in both nets, as an
// airway of one name may run through both.
#pragma once

#include "map/map_layer.h"

void DrawJetAirways(const MapPaint& paint);
void DrawVictorAirways(const MapPaint& paint);

// The segments with at least one end in the visibility box grown by the
// navaids' margin, in table order. Segments that name a row outside the
// intersection table are left out.
std::vector<const AirwaySegmentRec*> SegmentsInView(const MapView& view, const NavDatabase& database,
                                                    const std::vector<AirwaySegmentRec>& segments,
                                                    const PlaceIndex& byEnds);
