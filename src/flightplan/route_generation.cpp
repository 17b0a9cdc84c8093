#include "flightplan/route_generation.h"

#include <algorithm>

#include "flightplan/airway_route.h"
#include "flightplan/plan_legs.h"
#include "flightplan/plan_rows.h"

namespace {

// The row whose leg is to be filled: the selected one, else the SID's last.
int InsertionRow(const FlightPlan& plan) {
  return plan.SelectedRow <= 0 ? plan.SidRows() : std::min<int>(plan.SelectedRow, plan.DestinationRow() - 1);
}

}  // namespace

bool GenerateAirwayRoute(FlightPlan& plan, const PlanContext& context, AirwaySearch& search,
                         AirwayNetwork network) {
  if (!plan.PlanFiled || plan.RowCount() < 2) return false;
  const char level = network == AirwayNetwork::lowAltitude ? 'V' : 'J';
  const bool wholeRoute = plan.SelectedRow <= 0;
  if (wholeRoute) DeleteRowsOfKind(plan, context, RowKind::enroute);
  int insertionRow = InsertionRow(plan);
  const bool done = CreateAirwayRoute(plan, context, search, level, insertionRow);
  if (!done && wholeRoute) RecomputePlan(plan, context);
  if (done && wholeRoute) {
    plan.RouteType = network == AirwayNetwork::lowAltitude ? RouteKind::lowAltitude : RouteKind::highAltitude;
  }
  // The next whole-route command must find no row selected by this one.
  if (wholeRoute) plan.SelectedRow = 0;
  return done;
}

bool GenerateNavaidRoute(FlightPlan& plan, const PlanContext& context, const NavaidKinds& kinds,
                         const NavaidSector& sector) {
  if (!plan.PlanFiled || plan.RowCount() < 2) return false;
  const bool wholeRoute = plan.SelectedRow <= 0;
  const bool any = kinds.vor || kinds.ndb || kinds.intersection;
  if (wholeRoute && any) DeleteRowsOfKind(plan, context, RowKind::enroute);
  int insertionRow = InsertionRow(plan);
  const bool done = CreateNavaidRoute(plan, context, kinds, sector, insertionRow);
  if (!done && any) {
    RebuildTable(plan, context);
    RecomputePlan(plan, context);
  }
  if (wholeRoute) plan.SelectedRow = 0;
  return done;
}
