// Plan files of any bytes over a small world: the plan that comes of one has
// to stay whole, and one that was read has to be written and read again.
#include <cstdlib>

#include "flightplan/plan_file.h"
#include "flightplan/plan_reader.h"
#include "tests/flightplan/drawn_world.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  static DrawnWorld world(
      "airport EDDA 50 8 0\nairport EDDB 50 14 0\nA 50 9\nB 50 10\nvor D 50.5 12\nndb S 50 8.9\nfix S 50 "
      "8.95\n");
  if (size > 65536) return 0;
  const AircraftRec aircraft = SlowTwin();
  HeardMessages messages;
  const PlanContext context{world.database, aircraft, messages, 8.5};
  FlightPlan plan;
  if (!ReadPlan(plan, context, {reinterpret_cast<const char*>(data), size}).valid) return 0;
  if (plan.RowCount() < 2 || plan.RowCount() > lastRowInFile + 2) std::abort();
  FlightPlan again;
  if (!ReadPlan(again, context, WritePlan(plan, world.database, PlanFormat::FS)).valid) std::abort();
  if (again.RowCount() != plan.RowCount()) std::abort();
  return 0;
}
