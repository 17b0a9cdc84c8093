// Any text as OpenAir airspaces: every airspace that was read loads with a
// closed outline on the globe.
#include <cmath>
#include <cstdlib>

#include "dbmanager/airspace_file.h"
#include "navdata/world_loader.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  LineReader lines("airspace.txt", {reinterpret_cast<const char*>(data), size});
  Rejects rejects;
  const std::vector<SourceAirspace> airspaces = ReadOpenAir(lines, rejects);
  const AirspaceFile file = MakeAirspaceFile(airspaces);
  std::vector<AirspaceRec> table;
  if (!ParseAirspaces(file.bytes, table)) std::abort();
  for (const AirspaceRec& airspace : table) {
    if (airspace.points.size() < 4 || !(airspace.points.front() == airspace.points.back())) std::abort();
    for (const Position point : airspace.points) {
      if (!(std::abs(point.lat) <= 90) || !(std::abs(point.lon) <= 180)) std::abort();
    }
  }
  return 0;
}
