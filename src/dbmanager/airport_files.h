// From the sources' airports and localizers to airport.vlm, ils.vlm and the
// region, country, state and city lists.
#pragma once

#include <cstddef>
#include <functional>
#include <span>
#include <string>
#include <vector>

#include "dbmanager/apt_dat.h"
#include "dbmanager/countries.h"
#include "dbmanager/nav_dat.h"
#include "dbmanager/rejects.h"

// One airport's place in the database, for the files that are made from it.
struct AirportPlace {
  std::string code;  // cut to the field
  std::string name;
  SourcePosition position;
  double elevation = 0;  // feet
  bool towered = false;
  std::string towerFrequency;  // "118.70", of the first tower; empty without one
};

struct AirportFiles {
  std::vector<std::byte> airport, ils, region, country, state, city;
  std::vector<AirportPlace> places;  // row by row
  std::size_t runways = 0, helipads = 0, frequencies = 0, parkings = 0;
  std::size_t airportIls = 0, pendingIls = 0;
  std::size_t countries = 0;
};

// Magnetic variation in degrees at a position.
using VariationAt = std::function<double(SourcePosition)>;
// The country that a position lies in, for airports whose code tells none; may
// give null.
using CountryAt = std::function<const Country*(SourcePosition)>;

// Airports keep their order and none is dropped but those without any
// position; these go to rejects under sourceName.
AirportFiles MakeAirportFiles(std::span<const SourceAirport> airports,
                              std::span<const SourceLocalizer> localizers, const std::string& sourceName,
                              const VariationAt& variationAt, const CountryAt& countryAt, Rejects& rejects);

// strSurface() row of an apt.dat surface code; 254 "Unknown" for codes that have none.
int SurfaceOf(int aptCode);
// strFreqType() row of a frequency.
int FrequencyTypeOf(const SourceFrequency& frequency);

struct GateCodes {
  int type = 0;       // strGateType() row
  int name = 0;       // strGateName() row
  int number = 0;     // 0 if the name has none
  double radius = 0;  // metres
};
GateCodes GateCodesOf(const SourceStart& start);

// The airport's reference point: its datum, else the middle of the longest
// runway, else the first helipad, else a start position.
std::optional<SourcePosition> ReferencePoint(const SourceAirport& airport);
