// Any text as nav.dat: every navaid that was read is a row that loads.
#include <cstdlib>

#include "dbmanager/navaid_files.h"
#include "dbmanager/source_error.h"
#include "navdata/nav_database.h"
#include "navdata/navaid_loader.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  LineReader lines("nav.dat", {reinterpret_cast<const char*>(data), size});
  Rejects rejects;
  NavData navaids;
  try {
    navaids = ReadNavDat(lines, rejects);
  } catch (const BuildError&) {
    return 0;
  }
  const NavaidFiles files = MakeNavaidFiles(navaids, {}, IdentPlaces{}, [](SourcePosition) { return 0.0; });
  NavDatabase database;
  if (!ParseVors(files.vor, database) || !ParseNdbs(files.ndb, database)) std::abort();
  if (database.vors.size() != files.vors || database.ndbs.size() != navaids.ndbs.size()) std::abort();
  return 0;
}
