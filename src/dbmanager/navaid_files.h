// From the sources' navaids and fixes to vor.vlm, ndb.vlm, fixes.vlm and
// marker.vlm.
#pragma once

#include <cstddef>
#include <functional>
#include <span>
#include <vector>

#include "dbmanager/fix_dat.h"
#include "dbmanager/ident_places.h"
#include "dbmanager/nav_dat.h"

struct NavaidFiles {
  std::vector<std::byte> vor, ndb, fixes, marker;
  std::size_t vors = 0, ndbs = 0, fixRows = 0, markers = 0;
  std::size_t fixesOnAirways = 0;  // these are intersections instead
};

// airwayPoints: the points of the intersection table, which no fix repeats.
// A DME that is paired with an NDB makes that NDB an "NDB-DME"; without its
// NDB it stands alone.
NavaidFiles MakeNavaidFiles(const NavData& navaids, std::span<const SourceFix> fixes,
                            const IdentPlaces& airwayPoints,
                            const std::function<double(SourcePosition)>& variationAt);

// VorFileRecord::intType of the kind that ends a navaid's name.
int VorTypeOf(std::string_view kind);
