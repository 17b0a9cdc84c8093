// Any text as an airport's procedures: what is made of it reads back whole,
// and no step lies off the map.
#include <cmath>
#include <cstdlib>

#include "dbmanager/cifp_procedures.h"
#include "flightplan/procedure_file.h"

namespace {

const CifpPlaces& Places() {
  static const CifpPlaces places = [] {
    FixData fixes;
    fixes.fixes = {{"ALPHA", "ED", {50, 9}, "ENRT"},
                   {"BRAVO", "ED", {50, 180}, "ENRT"},
                   {"TERMI", "ED", {90, 8}, "EDDF"}};
    NavData navaids;
    navaids.vors.emplace_back();
    navaids.vors.back().ident = "FFM";
    navaids.vors.back().region = "ED";
    navaids.vors.back().position = {50, 8.5};
    return CifpPlaces(fixes, navaids);
  }();
  return places;
}

void Check(const std::vector<std::byte>& file, const ProcedureTotals& totals) {
  const ProcedureList list = ParseProcedures(file, "EDDF");
  if (!list.complete || list.entries.size() != std::min(totals.entries, mostListedProcedures)) std::abort();
  for (const SidStarEntry& entry : list.entries) {
    for (const ProcedureStep& step : entry.Steps)
      if (!(std::abs(step.Lat) <= 90) || !(std::abs(step.Lon) <= 180) ||
          !(step.Track >= 0 && step.Track <= 360))
        std::abort();
  }
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  Rejects rejects;
  const CifpAirport airport =
      ReadCifpAirport("EDDF.dat", {reinterpret_cast<const char*>(data), size}, rejects);
  ProcedureFiles files;
  AppendProcedures(
      "EDDF", "EDDF.dat", airport, Places(), [](SourcePosition p) { return p.lat / 10; }, files, rejects);
  Check(files.sid, files.sids);
  Check(files.star, files.stars);
  return 0;
}
