// The pilot's list of aircraft, as he changes it: what a record's figures may
// be, the numbers of new ones, and the list on paper.
#pragma once

#include <cstdint>
#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "flightplan/aircraft.h"

// One figure of an aircraft as it is shown and typed. The limits are those of
// aeroplanes that fly; they keep every time, level and fuel figure finite.
struct AircraftField {
  std::string_view name;   // of the record's field
  std::string_view label;  // "MaxFuel (kg):"
  std::int32_t AircraftRec::*value;
  std::int32_t lowest;
  std::int32_t highest;
};

// In the order of the form: weights and limits first, then speeds and rates.
std::span<const AircraftField> AircraftFields();

struct AircraftFault {
  std::string_view field;  // name of an AircraftField, or "Name"
  std::string reason;      // "1 to 500000", "more than the maximum weight"; UTF-8
};

// What keeps the record from giving a flight plan, one fault a field at most; empty: nothing does.
std::vector<AircraftFault> CheckAircraft(const AircraftRec& aircraft);

// The smallest number above 0 that no aircraft of the list has; 0 if all 32767 are taken.
std::int16_t FreeAircraftNumber(const std::vector<AircraftRec>& aircraft);

// The list as it is printed, line by line, with an empty line between two aircraft. UTF-8.
std::vector<std::string> AircraftLines(const std::vector<AircraftRec>& aircraft);
