// airspace.vlm, from OpenAir airspaces or, where there are none, from a plain
// circle around each airport with a tower.
#pragma once

#include <cstddef>
#include <span>
#include <vector>

#include "dbmanager/airport_files.h"
#include "dbmanager/openair.h"

// AirspaceFileRecord::intType.
enum class AirspaceKind { other = 0, controlZone = 1, controlled = 2, restricted = 3 };
AirspaceKind AirspaceKindOf(const SourceAirspace& airspace);

struct AirspaceFile {
  std::vector<std::byte> bytes;
  std::size_t airspaces = 0;
};

// Outlines above 32767 points are thinned out evenly.
AirspaceFile MakeAirspaceFile(std::span<const SourceAirspace> airspaces);

// 5 NM around each towered airport, from the ground to 2500 ft above it, marked
// "approximate".
AirspaceFile MakeControlZones(std::span<const AirportPlace> places);
