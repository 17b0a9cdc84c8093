// sid.vlm and star.vlm from a folder of per-airport procedure files and the
// fixes and navaids of the same installation.
#pragma once

#include <filesystem>
#include <vector>

#include "dbmanager/cifp_procedures.h"

struct CifpSources {
  std::vector<std::filesystem::path> airports;  // by name
  std::filesystem::path fixes, navaids;
};

// folder is the folder with the airports' files, the data folder that holds it
// as "CIFP", or the simulator's own folder, whose custom data come before its
// default data. The fixes and navaids are looked for beside and in that
// folder, then in the installation's other data folder. Throws BuildError
// naming what is missing.
CifpSources FindCifpSources(const std::filesystem::path& folder);

struct ProcedureReport {
  std::size_t airports = 0;  // with a procedure
  std::size_t lines = 0;     // of procedures
};

// Reads the fixes, the navaids and every airport's file. keepOn is called
// between files with the part that is done, 0 to 1; it ends the work by
// throwing. A file that cannot be read goes to the rejects.
ProcedureFiles MakeProcedureFiles(const CifpSources& sources, const CifpVariation& variation,
                                  const std::function<void(double)>& keepOn, Rejects& rejects,
                                  ProcedureReport& report);
