// A seeded random world with rows in every table, thick around some places
// that are awkward to draw: the date line, the poles, the prime meridian.
#pragma once

#include <cstdint>

#include "navdata/nav_database.h"

// No two places that one line joins lie farther apart, in degrees of latitude or longitude.
constexpr float longestLink = 4;

// The same rows for the same seed, with all indexes built.
NavDatabase RandomWorld(std::uint32_t seed);

// Puts an index that answers with every row in the place of each place index.
void WalkWholeTables(NavDatabase& database);

// Places around which RandomWorld() puts its rows.
std::vector<Position> ThickPlaces();
