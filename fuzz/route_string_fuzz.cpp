// Route strings of any bytes over a small world with forks, rings and shared
// idents: the plan that comes of one has to stay whole.
#include <cstdlib>

#include "flightplan/route_parser.h"
#include "flightplan/route_string.h"
#include "tests/flightplan/drawn_world.h"

namespace {

DrawnWorld& World() {
  static DrawnWorld world(
      "airport EDDA 50 8 0\nairport EDDB 50 14 0\nairport A 51 9 0\n"
      "A 50 9\nB 50 10\nC 50 11\nD 50 12\nE 51 10\n"
      "A --38-- B V1 FL60-FL200\nB --38-- C V1 FL70-FL210\nC --38-- D V1\nB --60-- E V1\nE --60-- C V1\n"
      "C ==38=> D J1 25000-45000\nD ==38=> A J1\n"
      "vor D 50.5 12\nndb S 50 8.9\nvor S 50 8.9\nfix S 50 8.95\n");
  return world;
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  if (size > 4096) return 0;
  const AircraftRec aircraft = SlowTwin();
  HeardMessages messages;
  const PlanContext context{World().database, aircraft, messages, 8.5};
  FlightPlan plan;
  ParseRoute(plan, context, {reinterpret_cast<const char*>(data), size});
  if (plan.RowCount() == 1 || plan.RowCount() > FlightPlan::lastPossibleRow + 1) std::abort();
  for (const PlanWaypoint& row : plan.rows)
    if (row.AirwayLink != 0) std::abort();
  RouteStringFromPlan(plan);
  return 0;
}
