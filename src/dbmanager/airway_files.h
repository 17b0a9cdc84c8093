// From airway segments to the graph of dijinter.vlm and the segment lists
// vicways.vlm (low) and jetways.vlm (high).
#pragma once

#include <cstddef>
#include <functional>
#include <span>
#include <string>
#include <vector>

#include "dbmanager/awy_dat.h"
#include "dbmanager/ident_places.h"
#include "dbmanager/nav_dat.h"

struct AirwayFiles {
  std::vector<std::byte> dijinter, vicways, jetways;
  IdentPlaces points;  // of the intersection table, by row
  std::size_t intersections = 0;
  std::size_t lowSegments = 0, highSegments = 0;  // one per airway name
  std::size_t lowLinks = 0, highLinks = 0;        // directions as stored
  std::size_t repeatedSegments = 0;               // the same airway between the same points again
  std::size_t pointsLeftOut = 0;                  // beyond the table's last row
  std::size_t segmentsLeftOut = 0;                // with such a point
  std::size_t linksLeftOut = 0;                   // beyond 255 of one point
};

// Points are numbered from 1 in the order in which the source first names
// them, at most lastRow of them: if there are more, those with the most links
// stay. A point that is a navaid lies where the
// navaid lies and bears its name, any other bears its ident.
AirwayFiles MakeAirwayFiles(std::span<const SourceAirway> segments, const NavData& navaids,
                            const std::function<double(SourcePosition)>& variationAt,
                            std::size_t lastRow = 40000);
