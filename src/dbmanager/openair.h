// Airspaces in the OpenAir text format: class, name, limits, and an outline of
// points, arcs and circles.
#pragma once

#include <string>
#include <vector>

#include "dbmanager/rejects.h"
#include "dbmanager/source_lines.h"

// Texts are in the code page, as the source has them.
struct SourceAirspace {
  std::string airspaceClass;  // "A" to "G", "R", "Q", "P", "CTR" ...
  std::string type;           // "CTR", "TMA" ...; empty if the source gives none
  std::string name;
  std::string frequency;
  std::string upper;
  std::string lower;
  std::vector<SourcePosition> points;  // the first point not repeated
};

// Lines that cannot be read and airspaces with fewer than three points go to
// rejects. Records for drawing (pens, labels, terrain) are passed over.
std::vector<SourceAirspace> ReadOpenAir(LineReader& lines, Rejects& rejects);

// "50:01:59 N 008:34:14 E", with minutes or seconds as decimals, or plain
// decimal degrees; nothing if text is none of these or goes on behind it.
std::optional<SourcePosition> ParseOpenAirPosition(std::string_view text);
