// The world's countries by ISO 3166-1 number, each with the continent that
// serves as its region, and the ICAO location indicators' prefixes (Doc 7910)
// with the country they stand for.
#pragma once

#include <string_view>

struct Country {
  std::string_view number;  // ISO 3166-1, three digits
  std::string_view name;    // UTF-8
  std::string_view region;
};

// By ISO number or by name; null if there is none.
const Country* FindCountryByNumber(std::string_view number);
const Country* FindCountryByName(std::string_view name);

// The country of an airport code of four letters by its longest known prefix;
// null for codes of another form (many private fields have such) and for
// prefixes that no country has.
const Country* FindCountryByAirportCode(std::string_view code);
