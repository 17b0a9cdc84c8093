#include "flightplan/segment_insertion.h"

#include <algorithm>
#include <stdexcept>

#include "flightplan/object_lookup.h"
#include "flightplan/plan_legs.h"
#include "flightplan/plan_rows.h"

namespace {

using Rows = std::vector<PlanWaypoint>;

bool IsWaypoint(const FlightPlan& plan, int row) {
  return row >= 1 && row < plan.DestinationRow();
}

bool HasRoom(const FlightPlan& plan, std::size_t waypoints) {
  return waypoints + static_cast<std::size_t>(plan.DestinationRow()) <= FlightPlan::lastPossibleRow;
}

void TakeAirway(PlanWaypoint& row, const PlanWaypoint& from) {
  row.Airway = from.Airway;
  row.AirwayMinAlt = from.AirwayMinAlt;
  row.AirwayMaxAlt = from.AirwayMaxAlt;
}

// The plan keeps its own row where the segment begins or ends with it; the leg
// into the row at the end is the segment's.
void JoinEnds(FlightPlan& plan, int afterRow, Rows& rows) {
  if (!rows.empty() && IsWaypoint(plan, afterRow) && AreDoubled(plan.Row(afterRow), rows.front()))
    rows.erase(rows.begin());
  if (rows.empty() || !IsWaypoint(plan, afterRow + 1)) return;
  PlanWaypoint& next = plan.Row(afterRow + 1);
  if (AreDoubled(rows.back(), next)) {
    TakeAirway(next, rows.back());
    rows.pop_back();
  } else if (next.Airway != rows.back().Airway) {
    next.ClearAirway();
  }
}

void FitKinds(const FlightPlan& plan, int afterRow, Rows& rows) {
  const RowKind before = plan.Row(afterRow).Kind;
  const RowKind behind = plan.Row(afterRow + 1).Kind;
  const bool withinSid = behind == RowKind::sid;
  if (withinSid || before == RowKind::star) {
    for (PlanWaypoint& row : rows)
      row.Kind = withinSid ? RowKind::sid : RowKind::star;
    return;
  }
  bool sidMayStand = before == RowKind::departure || before == RowKind::sid;
  for (PlanWaypoint& row : rows) {
    sidMayStand = sidMayStand && row.Kind == RowKind::sid;
    if (row.Kind == RowKind::sid && !sidMayStand) row.Kind = RowKind::enroute;
  }
  bool starMayStand = behind == RowKind::destination || behind == RowKind::star;
  for (auto row = rows.rbegin(); row != rows.rend(); ++row) {
    starMayStand = starMayStand && row->Kind == RowKind::star;
    if (row->Kind == RowKind::star && !starMayStand) row->Kind = RowKind::enroute;
  }
}

}  // namespace

std::string_view InsertionFault(const FlightPlan& plan, int afterRow, std::size_t waypoints) {
  if (afterRow < 0) return "You have to select a waypoint for insertion!";
  if (afterRow >= plan.DestinationRow()) return "you cannot select the final waypoint for insertion!";
  if (waypoints == 0) return "The segment has no waypoints!";
  if (!HasRoom(plan, waypoints)) return "The flight plan has no room for the segment's waypoints!";
  return {};
}

void InsertSegment(FlightPlan& plan, const PlanContext& context, int afterRow,
                   const std::vector<PlanWaypoint>& segment) {
  afterRow = std::max(afterRow, 0);
  if (afterRow >= plan.DestinationRow())
    throw std::out_of_range("no row to insert behind in the flight plan");
  if (!HasRoom(plan, segment.size()))
    throw std::length_error("the flight plan has no room for the segment's waypoints");
  Rows rows = segment;
  JoinEnds(plan, afterRow, rows);
  FitKinds(plan, afterRow, rows);
  int at = afterRow;
  for (PlanWaypoint& row : rows) {
    // The number in the file is that of another database.
    if (!FindObject(row, context.database)) row.DbIndex = -1;
    InsertWaypoint(plan, context, at, row, false);
  }
  plan.SelectedRow = static_cast<std::int16_t>(at);
  RebuildTable(plan, context);
  RecomputePlan(plan, context);
  plan.RouteType = RouteKind::navaid;
}
