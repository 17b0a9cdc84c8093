// Finds points by ident and position: sources give the same point in several
// files with positions that differ in the last digits.
#pragma once

#include <cmath>
#include <optional>
#include <string>
#include <string_view>
#include <unordered_map>
#include <vector>

#include "dbmanager/earth.h"

// Points of one ident that are closer than this in both latitude and
// longitude (degrees) are the same point.
constexpr double samePointDegrees = 0.01;

class IdentPlaces {
 public:
  void Add(std::string_view ident, SourcePosition position, std::size_t value) {
    places[std::string(ident)].push_back({position, value});
  }

  // The value of the first point added that is this one.
  std::optional<std::size_t> Find(std::string_view ident, SourcePosition position) const {
    const auto found = places.find(std::string(ident));
    if (found == places.end()) return std::nullopt;
    for (const Place& place : found->second) {
      if (std::abs(place.position.lat - position.lat) < samePointDegrees &&
          std::abs(WrapLon(place.position.lon - position.lon)) < samePointDegrees) {
        return place.value;
      }
    }
    return std::nullopt;
  }

 private:
  struct Place {
    SourcePosition position;
    std::size_t value;
  };
  std::unordered_map<std::string, std::vector<Place>> places;
};
