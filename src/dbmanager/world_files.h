// From world outlines to worldpolygon.bin (coasts) and worldline.bin (borders),
// and the answer to which country a position lies in.
#pragma once

#include <cstddef>
#include <span>
#include <vector>

#include "dbmanager/countries.h"
#include "dbmanager/topojson.h"

struct WorldFile {
  std::vector<std::byte> bytes;
  std::size_t shapes = 0, points = 0;
};

// Every ring is a shape, numbered from 1: kind 1 land, 3 a hole in it. Rings
// that cross the date line are cut there; one around a pole is closed along
// the pole.
WorldFile MakeWorldPolygons(const Outlines& land);

// Every side that two countries share is a shape of kind 2.
WorldFile MakeWorldLines(const Outlines& countries);

class CountryOutlines {
 public:
  explicit CountryOutlines(const Outlines& outlines);
  // Null at sea and where the outline belongs to no known country.
  const Country* At(SourcePosition position) const;
  // The same for a place off a coast that the outlines show too coarsely: if
  // it lies in no country, the first found in eight directions, up to half a
  // degree away.
  const Country* Near(SourcePosition position) const;

 private:
  struct Area {
    const Country* country;
    std::vector<OutlineRing> rings;   // longitudes run on over the date line
    double south, north, west, east;  // of the outer ring
  };
  std::vector<Area> areas;
};

// The ring with longitudes that run on without a jump at the date line (they
// may leave -180..180).
OutlineRing Unwrapped(const OutlineRing& ring);

// The parts of a ring, each within -180..180 and closed.
std::vector<OutlineRing> SplitAtDateLine(const OutlineRing& ring);
