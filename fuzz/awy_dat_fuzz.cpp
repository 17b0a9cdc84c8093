// Any text as awy.dat: the graph that is made of it loads, and every link
// leads to a row that is there.
#include <cstdlib>

#include "dbmanager/airway_files.h"
#include "dbmanager/source_error.h"
#include "navdata/nav_database.h"
#include "navdata/navaid_loader.h"
#include "navdata/world_loader.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  LineReader lines("awy.dat", {reinterpret_cast<const char*>(data), size});
  Rejects rejects;
  AirwayData airways;
  const auto find = [](std::string_view ident, std::string_view, int) -> std::optional<SourcePosition> {
    if (ident.empty()) return std::nullopt;
    return SourcePosition{static_cast<double>(ident.size()), static_cast<double>(ident[0] % 16)};
  };
  try {
    airways = ReadAwyDat(lines, find, rejects);
  } catch (const BuildError&) {
    return 0;
  }
  constexpr std::size_t lastRow = 8;  // so that some points have no room
  const AirwayFiles files = MakeAirwayFiles(
      airways.segments, NavData{}, [](SourcePosition) { return 0.0; }, lastRow);
  NavDatabase database;
  if (!ParseIntersections(files.dijinter, database) || !ParseAirways(files.vicways, database.victorAirways) ||
      !ParseAirways(files.jetways, database.jetAirways)) {
    std::abort();
  }
  for (const auto* links : {&database.lowConnections, &database.highConnections}) {
    for (const ConnectionRec& link : *links) {
      if (link.lngNext < 1 || link.lngNext > static_cast<std::int32_t>(files.intersections)) std::abort();
    }
  }
  return 0;
}
