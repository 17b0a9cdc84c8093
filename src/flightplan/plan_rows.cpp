#include "flightplan/plan_rows.h"

#include <algorithm>
#include <stdexcept>

#include "base/numbers.h"
#include "flightplan/plan_legs.h"
#include "navdata/geodesy.h"

namespace {

PlanWaypoint AirportRow(const AirportRec& airport, int airportRow, RowKind kind) {
  PlanWaypoint row;
  row.Code = airport.strCode.View();
  row.Name = airport.strName.View();
  row.Lat = airport.sngLat;
  row.Lon = airport.sngLon;
  row.MagVar = airport.sngMagVar;
  row.DbIndex = airportRow;
  row.Kind = kind;
  return row;
}

// A user's position bears its place in the table as its name.
void NumberFix(FlightPlan& plan, int rowIndex) {
  PlanWaypoint& row = plan.Row(rowIndex);
  if (row.Code.Raw().substr(0, 3) != "Fix") return;
  const std::string name = "Fix " + FormatPicture(rowIndex, "00");
  row.Code = name;
  row.Name = name;
}

void RefreshRowsFrom(FlightPlan& plan, const PlanContext& context, int firstRow) {
  for (int i = firstRow; i < plan.RowCount(); ++i) {
    ComputeLeg(plan, context.aircraft, i);
    NumberFix(plan, i);
  }
}

void TakeAirway(PlanWaypoint& row, const PlanWaypoint& removed) {
  row.Airway = removed.Airway;
  row.AirwayMinAlt = removed.AirwayMinAlt;
  row.AirwayMaxAlt = removed.AirwayMaxAlt;
}

}  // namespace

bool AreDoubled(const PlanWaypoint& row, const PlanWaypoint& next) {
  return EqualNoCase(row.Code.View(), next.Code.View()) &&
         GreatCircleDistance(row.Lat, row.Lon, next.Lat, next.Lon) <= doubledNeighbourDistance;
}

void SetDepartureAndDestination(FlightPlan& plan, const PlanContext& context, int departureRow,
                                int destinationRow) {
  const auto& airports = context.database.airports;
  const AirportRec& departure = airports.at(static_cast<std::size_t>(departureRow));
  const AirportRec& destination = airports.at(static_cast<std::size_t>(destinationRow));
  ClearFlightPlan(plan);
  plan.DepartureIndex = departureRow;
  plan.DestinationIndex = destinationRow;
  plan.DepartureLat = departure.sngLat;
  plan.DepartureLon = departure.sngLon;
  plan.DestinationLat = destination.sngLat;
  plan.DestinationLon = destination.sngLon;
  plan.rows.push_back(AirportRow(departure, departureRow, RowKind::departure));
  plan.rows.push_back(AirportRow(destination, destinationRow, RowKind::destination));
  plan.PlanFiled = true;
  plan.CanSave = true;
  plan.RouteType = RouteKind::direct;
  RecomputePlan(plan, context);
}

void SetAlternate(FlightPlan& plan, const PlanContext& context, int airportRow) {
  if (airportRow < 0) {
    plan.AlternateIndex = -1;
    plan.AlternateRow.reset();
    return;
  }
  const AirportRec& airport = context.database.airports.at(static_cast<std::size_t>(airportRow));
  plan.AlternateIndex = airportRow;
  plan.AlternateRow = AirportRow(airport, airportRow, RowKind::destination);
}

void ReplaceArrivalByAlternate(FlightPlan& plan, const PlanContext& context) {
  if (!plan.AlternateRow || plan.RowCount() < 2) return;
  plan.rows.back() = *plan.AlternateRow;
  plan.DestinationIndex = plan.AlternateIndex;
  plan.DestinationLat = plan.rows.back().Lat;
  plan.DestinationLon = plan.rows.back().Lon;
  plan.GlideAngle = 0;  // that of the runway given up
  plan.AlternateIndex = -1;
  plan.AlternateRow.reset();
  RebuildTable(plan, context);
  RecomputePlan(plan, context);
}

bool AskReplaceArrivalByAlternate(FlightPlan& plan, const PlanContext& context) {
  if (!plan.AlternateRow || plan.RowCount() < 2) return false;
  if (!context.messages.AskYesNo("Do you wish to replace arrival by alternate airport?",
                                 MessageIcon::question))
    return false;
  ReplaceArrivalByAlternate(plan, context);
  return true;
}

void InsertWaypoint(FlightPlan& plan, const PlanContext& context, int& afterRow, const PlanWaypoint& row,
                    bool refresh) {
  const int newRow = std::max(afterRow, 0) + 1;
  if (newRow > plan.DestinationRow()) throw std::out_of_range("no row to insert behind in the flight plan");
  if (plan.DestinationRow() >= FlightPlan::lastPossibleRow) {
    throw std::length_error("the flight plan is full");
  }
  plan.rows.insert(plan.rows.begin() + newRow, row);
  RefreshRowsFrom(plan, context, newRow);
  afterRow = newRow;
  if (refresh) {
    plan.SelectedRow = static_cast<std::int16_t>(newRow);
    RebuildTable(plan, context);
    afterRow = plan.SelectedRow;
    RecomputePlan(plan, context);
  }
  plan.RouteType = RouteKind::navaid;
}

void DeleteWaypoint(FlightPlan& plan, const PlanContext& context, int rowIndex, bool refresh) {
  if (rowIndex < 1 || rowIndex >= plan.DestinationRow()) {
    throw std::out_of_range("only rows between the airports can be deleted");
  }
  PlanWaypoint& following = plan.Row(rowIndex + 1);
  if (following.Airway != plan.Row(rowIndex).Airway) following.ClearAirway();
  plan.rows.erase(plan.rows.begin() + rowIndex);
  if (plan.SelectedRow >= rowIndex) --plan.SelectedRow;
  RefreshRowsFrom(plan, context, rowIndex);
  if (refresh) {
    RebuildTable(plan, context);
    RecomputePlan(plan, context);
  }
  plan.RouteType = RouteKind::navaid;
}

void DeleteRowsOfKind(FlightPlan& plan, const PlanContext& context, RowKind kind) {
  for (int row = plan.DestinationRow() - 1; row > 0; --row)
    if (plan.Row(row).Kind == kind) DeleteWaypoint(plan, context, row, false);
}

void RebuildTable(FlightPlan& plan, const PlanContext& context) {
  for (int i = 1; i <= plan.DestinationRow() - 2;) {
    PlanWaypoint& row = plan.Row(i);
    const PlanWaypoint& next = plan.Row(i + 1);
    if (!AreDoubled(row, next)) {
      ++i;
      continue;
    }
    const std::string_view level = next.Level.View();
    if (row.Kind == RowKind::star || level == "V" || level == "J") TakeAirway(row, next);
    DeleteWaypoint(plan, context, i + 1, false);
  }
}

bool DeleteEnrouteWaypoints(FlightPlan& plan, const PlanContext& context) {
  if (plan.RowCount() <= 2) {
    context.messages.Show("There is no flight plan with waypoints to be deleted!", MessageIcon::exclamation);
    return false;
  }
  if (!context.messages.AskYesNo("Are you sure you want to delete all enroute waypoints?",
                                 MessageIcon::question)) {
    return false;
  }
  while (plan.RowCount() > 2)
    DeleteWaypoint(plan, context, plan.DestinationRow() - 1, false);
  plan.SidName.clear();
  plan.StarName.clear();
  plan.SidSteps.clear();
  plan.StarSteps.clear();
  plan.TotalDistance = 0;
  plan.TotalMinutes = 0;
  plan.CruiseFL = 0;
  return true;
}
