// apt.dat: airports with their runways, frequencies, start positions and
// ground layout, formats 1000 to 1200 (and the runway rows of 810 that older
// airports in such files still have). Lengths are metres, angles true degrees,
// texts in the code page.
#pragma once

#include <cstdint>
#include <functional>
#include <optional>
#include <string>
#include <vector>

#include "dbmanager/rejects.h"
#include "dbmanager/source_lines.h"

enum class RunwayKind { land, water, helipad };

struct RunwayEnd {
  std::string id;  // "07L"; a helipad has only the first end
  SourcePosition position;
};

struct SourceRunway {
  RunwayKind kind = RunwayKind::land;
  RunwayEnd ends[2];
  double width = 0;
  double length = 0;   // helipads; other runways are as long as their ends are apart
  double heading = 0;  // helipads
  int surface = 0;     // apt.dat code: 1 asphalt, 2 concrete, 3 turf ...
};

struct SourceFrequency {
  int kind = 0;  // 50 weather, 51 unicom, 52 clearance, 53 ground, 54 tower, 55 approach, 56 departure
  double mhz = 0;
  std::string name;
};

struct SourceStart {
  SourcePosition position;
  double heading = 0;
  std::string name;
  std::string kind;       // "gate", "hangar", "misc", "tie-down"; empty in the older row
  std::string airplanes;  // "heavy|jets|turboprops|props|helos"
  char widthCode = ' ';   // "A" to "F"
  std::string operation;  // "general_aviation", "airline", "cargo", "military"
};

struct GroundPoint {
  float lat = 0;
  float lon = 0;
};

struct SourceTaxiway {
  GroundPoint from;
  GroundPoint to;
  std::string name;
  char widthCode = ' ';  // "A" to "F", blank if unknown
};

struct SourcePavement {
  std::vector<GroundPoint> points;  // a closed ring, the first point not repeated
  bool hole = false;
};

struct SourceAirport {
  std::string code;
  std::string name;
  std::string city, state, country;  // from the metadata rows; empty if they have none
  std::optional<SourcePosition> datum;
  double elevation = 0;  // feet
  std::size_t line = 0;  // where it begins
  std::vector<SourceRunway> runways;
  std::vector<SourceFrequency> frequencies;
  std::vector<SourceStart> starts;
  std::vector<SourceTaxiway> network;      // of the taxi routes
  std::vector<SourceTaxiway> centrelines;  // of the painted lines
  std::vector<SourcePavement> pavement;
};

struct AptData {
  SourceHead head;
  std::size_t airports = 0;
  bool complete = false;
};

// Hands each airport to take as soon as it is whole, in source order. Lines
// that cannot be used go to rejects; rows of kinds that the database has no
// place for (beacons, windsocks, signs, boundaries, traffic flows) are passed
// over. Throws BuildError for a file of another kind or version.
AptData ReadAptDat(LineReader& lines, const std::function<void(SourceAirport&&)>& take, Rejects& rejects);
