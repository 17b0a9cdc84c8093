// Any text as apt.dat: what was read must make files that the loaders take
// whole, with one row for each airport that has a position.
#include <cstdlib>

#include "dbmanager/airport_files.h"
#include "dbmanager/ground_files.h"
#include "dbmanager/source_error.h"
#include "navdata/airport_loader.h"
#include "navdata/world_loader.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  LineReader lines("apt.dat", {reinterpret_cast<const char*>(data), size});
  Rejects rejects;
  std::vector<SourceAirport> airports;
  try {
    ReadAptDat(
        lines, [&](SourceAirport&& airport) { airports.push_back(std::move(airport)); }, rejects);
  } catch (const BuildError&) {
    return 0;
  }
  const AirportFiles files = MakeAirportFiles(
      airports, {}, "apt.dat", [](SourcePosition) { return 0.0; },
      [](SourcePosition) -> const Country* { return nullptr; }, rejects);
  NavDatabase database;
  if (!ParseAirports(files.airport, database)) std::abort();
  if (database.AirportCount() != static_cast<std::int32_t>(files.places.size())) std::abort();
  const GroundFiles ground = MakeGroundFiles(airports);
  std::vector<TaxiRec> taxiways;
  std::vector<PolygonRec> points;
  if (!ParseTaxiways(ground.taxi, taxiways) || !ParsePolygons(ground.poly, points)) std::abort();
  if (points.size() != ground.polygonPoints) std::abort();
  return 0;
}
