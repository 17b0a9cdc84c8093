// fix.dat: the world's fixes, formats 600 and 1100 to 1200.
#pragma once

#include <string>
#include <vector>

#include "dbmanager/rejects.h"
#include "dbmanager/source_lines.h"

struct SourceFix {
  std::string ident;   // code page
  std::string region;  // two letters, or empty
  SourcePosition position;
  std::string terminal;  // code of the airport whose procedures use it, or "ENRT"; empty in format 600
};

struct FixData {
  SourceHead head;
  std::vector<SourceFix> fixes;  // source order
  bool complete = false;         // the closing row 99 was there
};

// Lines that are no fix go to rejects. Throws BuildError for a file of another
// kind or version.
FixData ReadFixDat(LineReader& lines, Rejects& rejects);
