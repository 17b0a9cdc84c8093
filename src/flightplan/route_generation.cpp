#include "flightplan/route_generation.h"

#include <algorithm>

#include "flightplan/airway_route.h"
#include "flightplan/plan_legs.h"
#include "flightplan/plan_rows.h"

namespace {

void DeleteRowsBetweenProcedures(FlightPlan& plan, const PlanContext& context) {
  for (int i = plan.DestinationRow() - 1; i > 0; --i) {
    if (plan.Row(i).Kind == RowKind::enroute) DeleteWaypoint(plan, context, i, false);
  }
}

}  // namespace

bool GenerateAirwayRoute(FlightPlan& plan, const PlanContext& context, AirwaySearch& search,
                         AirwayNetwork network) {
  if (!plan.PlanFiled || plan.RowCount() < 2) return false;
  const char level = network == AirwayNetwork::lowAltitude ? 'V' : 'J';
  const bool wholeRoute = plan.SelectedRow <= 0;
  if (wholeRoute) DeleteRowsBetweenProcedures(plan, context);
  int insertionRow = wholeRoute ? plan.SidRows() : std::min<int>(plan.SelectedRow, plan.DestinationRow() - 1);
  const bool done = CreateAirwayRoute(plan, context, search, level, insertionRow);
  if (!done && wholeRoute) RecomputePlan(plan, context);
  if (done && wholeRoute) {
    plan.RouteType = network == AirwayNetwork::lowAltitude ? RouteKind::lowAltitude : RouteKind::highAltitude;
  }
  // The next whole-route command must find no row selected by this one.
  if (wholeRoute) plan.SelectedRow = 0;
  return done;
}
