// awy.dat: the world's airway segments, formats 640 (ends with positions) and
// 1100 (ends by ident, region and kind; their positions are in the fixes and
// navaids).
#pragma once

#include <functional>
#include <optional>
#include <string>
#include <vector>

#include "dbmanager/rejects.h"
#include "dbmanager/source_lines.h"

struct AirwayEnd {
  std::string ident;   // code page
  std::string region;  // two letters, or empty
  SourcePosition position;
};

enum class AirwayDirection { both, forward, backward };

struct SourceAirway {
  AirwayEnd from;
  AirwayEnd to;
  AirwayDirection direction = AirwayDirection::both;
  bool high = false;
  int base = 0;  // flight levels
  int top = 0;
  std::vector<std::string> names;  // code page; at least one
};

struct AirwayData {
  SourceHead head;
  std::vector<SourceAirway> segments;  // source order
  bool complete = false;
};

// Where an end of format 1100 is; kind: 2 NDB, 3 VOR or DME, 11 fix.
using FindAirwayEnd =
    std::function<std::optional<SourcePosition>(std::string_view ident, std::string_view region, int kind)>;

// Lines that are no segment, and those whose ends are not found, go to
// rejects. Throws BuildError for a file of another kind or version.
AirwayData ReadAwyDat(LineReader& lines, const FindAirwayEnd& findEnd, Rejects& rejects);
