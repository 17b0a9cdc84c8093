// From the airports' ground layout to taxi.vlm and poly.vlm.
#pragma once

#include <cstddef>
#include <span>
#include <vector>

#include "dbmanager/apt_dat.h"

struct GroundFiles {
  std::vector<std::byte> taxi, poly;
  std::size_t taxiways = 0, polygons = 0, polygonPoints = 0;
};

// Taxiways come from the taxi routes, at airports without any from the painted
// centrelines. A polygon begins with "M" and goes on with "L" back to its
// first point; a hole has the value 1 and the mark "H".
GroundFiles MakeGroundFiles(std::span<const SourceAirport> airports);
