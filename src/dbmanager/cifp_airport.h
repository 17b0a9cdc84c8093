// The procedures of one airport as the public per-airport text files write
// them: a line for each leg, "SID:", "STAR:" or "APPCH:" in front of fields in
// the order of ARINC 424 with commas between, and "RWY:" lines with the
// runways' thresholds. Approaches are passed over. A line that cannot be used
// goes to the rejects; the legs around it stay.
#pragma once

#include <optional>
#include <string_view>
#include <vector>

#include "dbmanager/rejects.h"
#include "dbmanager/source_lines.h"

// A fix as a leg names it: ident, ICAO region, and the section and subsection
// of the data it stands in ("EA" enroute fix, "PC" terminal fix, "D" VOR, "DB"
// NDB, "PG" runway ...). Texts are parts of the file's text.
struct CifpFixName {
  std::string_view ident;
  std::string_view region;
  char section = ' ';
  char subsection = ' ';

  bool Empty() const { return ident.empty(); }
  friend bool operator==(const CifpFixName&, const CifpFixName&) = default;
};

struct CifpAltitude {
  int feet = 0;
  bool flightLevel = false;  // written as "FL100"
};

struct CifpLeg {
  std::size_t line = 0;  // of the file
  int sequence = 0;
  std::string_view pathTerminator;  // two letters, such as "TF"
  CifpFixName fix;
  CifpFixName navaid;              // recommended
  char turn = ' ';                 // 'L', 'R'; ' ': not given
  std::optional<double> theta;     // magnetic bearing from the navaid, degrees
  std::optional<double> rho;       // distance from the navaid, NM
  std::optional<double> course;    // outbound, degrees
  bool trueCourse = false;         // else magnetic
  std::optional<double> distance;  // NM; a time has none
  char altitudeKind = ' ';         // '+', '-', 'B' ...; ' ': at
  std::optional<CifpAltitude> altitude1, altitude2;
  char speedKind = ' ';  // '+', '-'; ' ': at
  int speed = 0;         // knots, 0: none
};

enum class CifpPartKind { runwayTransition, common, enrouteTransition };

struct CifpPart {
  bool star = false;  // else a SID
  std::string_view name;
  CifpPartKind kind = CifpPartKind::common;
  std::string_view transition;  // "RW09L", "RW09B", a fix; empty: all
  std::vector<CifpLeg> legs;    // in the order of their sequence numbers
};

struct CifpRunway {
  std::string_view id;       // "09L"
  SourcePosition threshold;  // for landing
};

struct CifpAirport {
  std::vector<CifpRunway> runways;
  std::vector<CifpPart> parts;  // in the order of their first lines
  std::size_t lines = 0;        // of procedures, approaches included
};

// text must live as long as the result, which points into it.
CifpAirport ReadCifpAirport(std::string_view file, std::string_view text, Rejects& rejects);
