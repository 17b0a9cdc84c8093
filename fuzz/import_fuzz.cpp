// Files of other programs of any bytes over a small world: every reader, the
// import, and what comes of it, which has to be a plan that can be saved, read
// and exported again.
#include <cstdlib>

#include "flightplan/formats/plan_formats.h"
#include "flightplan/formats/plan_import.h"
#include "flightplan/plan_file.h"
#include "flightplan/plan_reader.h"
#include "tests/flightplan/drawn_world.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  static DrawnWorld world(
      "airport EDDA 50 8 0\nairport EDDB 50 14 0\nA 50 9\nB 50 10\nC 50 11\nvor D 50.5 12\nndb S 50 8.9\nfix "
      "S 50 "
      "8.95\nA --38-- B V1 FL100-FL200\nB --38-- C V1 FL100-FL200\nC --38-- A V1 FL100-FL200\n");
  if (size > 65536) return 0;
  const AircraftRec aircraft = SlowTwin();
  HeardMessages messages;
  const PlanContext context{world.database, aircraft, messages, 8.5};
  FlightPlan plan;
  const PlanImport import = ImportPlan(plan, context, {reinterpret_cast<const char*>(data), size});
  if (!import.valid) {
    if (plan.RowCount() != 0 || messages.texts.size() != 1) std::abort();
    return 0;
  }
  if (plan.RowCount() < 2 || plan.RowCount() > lastRowInFile + 2 || plan.MissingWaypoints) std::abort();
  FlightPlan again;
  const PlanReading reading = ReadPlan(again, context, WritePlan(plan, world.database, PlanFormat::FS));
  if (!reading.valid || again.MissingWaypoints || again.RowCount() != plan.RowCount()) std::abort();
  if (again.SidName != plan.SidName || again.StarName != plan.StarName) std::abort();
  const PlanExport made = MakePlanExport(plan, context, 0, {}, "");
  for (const PlanFormatInfo& format : PlanFormats())
    if (format.write(made).empty()) std::abort();
  return 0;
}
