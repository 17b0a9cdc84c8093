// Any text as fix.dat: every fix that was read is a row that loads.
#include <cstdlib>

#include "dbmanager/navaid_files.h"
#include "dbmanager/source_error.h"
#include "navdata/nav_database.h"
#include "navdata/navaid_loader.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  LineReader lines("fix.dat", {reinterpret_cast<const char*>(data), size});
  Rejects rejects;
  try {
    const FixData fixes = ReadFixDat(lines, rejects);
    const NavaidFiles files =
        MakeNavaidFiles(NavData{}, fixes.fixes, IdentPlaces{}, [](SourcePosition) { return 0.0; });
    NavDatabase database;
    if (!ParseFixes(files.fixes, database) || database.fixes.size() != fixes.fixes.size()) std::abort();
  } catch (const BuildError&) {
  }
  return 0;
}
