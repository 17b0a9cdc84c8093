// A flown track has a point a second; a plan wants the few that give its shape.
#pragma once

#include <cstddef>
#include <span>
#include <vector>

#include "navdata/geodesy.h"

// A point this close to the line between its neighbours says nothing (NM).
constexpr double straightEnough = 0.1;

// Which points stay, in order: again and again the one that lies closest to
// the line between its neighbours goes, until no more than most are left and
// each of them is off that line by more than straightEnough. The ends stay.
// Time grows with n log n. most is at least 2.
std::vector<std::size_t> ThinnedTrack(std::span<const Position> track, std::size_t most);
