#include "cli/plan_document.h"

#include <stdexcept>

#include "flightplan/cruise_level.h"
#include "flightplan/fuel_plan.h"
#include "flightplan/plan_legs.h"
#include "flightplan/route_string.h"
#include "navdata/geodesy.h"

namespace {

// The code of a row of the airport table, null for none.
Json AirportCode(const NavDatabase& database, std::int32_t row) {
  if (row < 0 || static_cast<std::size_t>(row) >= database.airports.size()) return nullptr;
  return Utf8(database.airports[static_cast<std::size_t>(row)].strCode.View());
}

Json Leg(const FlightPlan& plan, int rowIndex, int eta) {
  const PlanWaypoint& row = plan.Row(rowIndex);
  return {{"row", rowIndex},
          {"sym", Utf8(row.Sym.View())},
          {"code", Utf8(row.Code.View())},
          {"name", Utf8(row.Name.View())},
          {"airway", Utf8(row.Airway.View())},
          {"minAlt", row.AirwayMinAlt},
          {"maxAlt", row.AirwayMaxAlt},
          {"freq", JsonNumber(row.Freq)},
          {"lat", JsonNumber(row.Lat)},
          {"lon", JsonNumber(row.Lon)},
          {"magVar", JsonNumber(row.MagVar)},
          {"dist", JsonNumber(row.Dist)},
          {"trueCourse", JsonNumber(row.Course)},
          {"magCourse", JsonNumber(rowIndex == 0 ? 0.0f : MagneticCourse(plan, rowIndex))},
          {"eet", JsonNumber(row.EET)},
          {"eta", FormatMinutes(eta)},
          {"level", Utf8(row.Level.View())},
          {"kind", static_cast<int>(row.Kind)},
          {"dbIndex", row.DbIndex}};
}

Json Legs(const FlightPlan& plan) {
  Json legs = Json::array();
  const std::vector<int> eta = ShowEta(plan);
  for (int i = 0; i < plan.RowCount(); ++i)
    legs.push_back(Leg(plan, i, eta[static_cast<std::size_t>(i)]));
  return legs;
}

Json Fuel(const FlightPlan& plan, const PlanContext& context, int unit) {
  FuelFigures figures;
  try {
    figures = CalculateFuel(plan, context);
  } catch (const std::domain_error&) {
    return nullptr;
  }
  const auto amount = [unit](double gallons) { return JsonNumber(static_cast<float>(Conv(gallons, unit))); };
  return {{"unit", std::string(Trimmed(FuelUnitText(unit)))},
          {"trip", amount(figures.TripFuel)},
          {"climb", amount(figures.ClimbFuel)},
          {"cruise", amount(figures.CruiseFuel)},
          {"descent", amount(figures.DescentFuel)},
          {"approach", amount(figures.ApproachFuel)},
          {"contingency", amount(figures.ContingencyFuel)},
          {"holding", amount(figures.HoldingFuel)},
          {"alternate", amount(figures.AlternateFuel)},
          {"total", amount(figures.TotalFuel)}};
}

}  // namespace

Json PlanDocument(const FlightPlan& plan, const PlanContext& context, int fuelUnit, const Json& messages) {
  const VerticalProfile profile = ComputeVerticalProfile(plan, context);
  return {{"departure", AirportCode(context.database, plan.DepartureIndex)},
          {"destination", AirportCode(context.database, plan.DestinationIndex)},
          {"alternate", AirportCode(context.database, plan.AlternateIndex)},
          {"planType", plan.PlanType},
          {"routeType", static_cast<int>(plan.RouteType)},
          {"routeMethod", static_cast<int>(plan.RouteMethod)},
          {"cruiseFL", plan.CruiseFL},
          {"westbound", plan.Westbound},
          {"totalDistance", plan.TotalDistance},
          {"totalMinutes", plan.TotalMinutes},
          {"routeString", RouteStringFromPlan(plan)},
          {"sid", plan.SidName},
          {"star", plan.StarName},
          {"aircraft", {{"number", context.aircraft.Number}, {"name", context.aircraft.Name}}},
          {"toc", JsonNumber(static_cast<float>(profile.TopOfClimb))},
          {"tod", JsonNumber(static_cast<float>(profile.TopOfDescent))},
          {"fuel", Fuel(plan, context, fuelUnit)},
          {"legs", Legs(plan)},
          {"messages", messages}};
}
