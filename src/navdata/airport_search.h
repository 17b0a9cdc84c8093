// Finds airports by what a pilot types: a code, or words of the name, the city,
// the state and the country. The texts of all airports are folded once (small
// letters without accents, blanks between the words); a search then walks them
// for the beginnings of words.
#pragma once

#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

#include "navdata/nav_database.h"

// Length of the airport's longest runway in feet, water runways only if it has
// no others; 0 if it has none.
std::int32_t LongestRunwayFeet(const NavDatabase& database, const AirportRec& airport);

struct AirportsFound {
  std::vector<std::int32_t> rows;  // of the airport table, best first
  std::size_t total = 0;           // how many there are beyond those that are listed
};

class AirportSearch {
 public:
  static constexpr std::size_t mostListed = 200;

  // The database must outlive the search and stay as it is.
  explicit AirportSearch(const NavDatabase& database);

  // Airports of which every typed word (UTF-8, accents and capitals do not
  // matter; ü is found as u and as ue) begins some word. The airport whose code
  // was typed comes first, then those whose code begins so, then those that
  // have all the words whole, then the others; within each, longer runways (on
  // land) first, then by code. Nothing is found for a text without letters or
  // digits. The rows for "AFIL" and "ZZZZ" are no airports.
  AirportsFound Find(std::string_view typed, std::size_t most = mostListed) const;

 private:
  struct Entry {
    std::size_t start = 0;           // of the airport's words in folded, each with a blank before it
    std::int32_t longestRunway = 0;  // on land
  };

  const NavDatabase& database;
  std::string folded;
  std::vector<Entry> entries;  // by row, one more at the end
};

// Of the airports with exactly this name (code page, trimmed) the one nearest to
// a place, of equally near ones the first; -1 if there is none.
std::int32_t NearestAirportNamed(const NavDatabase& database, std::string_view name, Position place);
