// nav.dat: the world's radio navaids, formats 810 and 1100 to 1200.
#pragma once

#include <string>
#include <vector>

#include "dbmanager/rejects.h"
#include "dbmanager/source_lines.h"

// Fields that all rows share. Texts are in the code page.
struct SourceNavaid {
  std::string ident;
  std::string region;  // two letters, or empty
  std::string name;    // without the kind at its end
  std::string kind;    // the last word of the name: "NDB", "VOR-DME", "TACAN", "ILS-cat-I" ...
  SourcePosition position;
  double elevation = 0;  // feet
  double frequency = 0;  // MHz; NDB: kHz
  double range = 0;      // NM
};

struct SourceLocalizer : SourceNavaid {
  std::string airport;
  std::string runway;
  double course = 0;      // true
  double glideAngle = 0;  // 0: no glide slope
};

struct SourceMarker {
  std::string kind;  // "OM", "MM", "IM"
  SourcePosition position;
  double course = 0;  // true
};

struct NavData {
  SourceHead head;
  std::vector<SourceNavaid> ndbs;
  std::vector<SourceNavaid> vors;           // VOR, VORTAC, VOR-DME
  std::vector<SourceNavaid> dmes;           // stand-alone TACAN and DME, and the DMEs paired with an NDB
  std::vector<SourceLocalizer> localizers;  // in source order; with the angle of their glide slope
  std::vector<SourceMarker> markers;
  std::size_t pairedDmes = 0;     // DME rows that belong to a VOR or ILS and are not kept
  std::size_t satelliteRows = 0;  // rows of satellite landing systems, which are not kept
  std::size_t glideSlopes = 0;
  bool complete = false;
};

// Lines that are no navaid go to rejects. Throws BuildError for a file of
// another kind or version.
NavData ReadNavDat(LineReader& lines, Rejects& rejects);
