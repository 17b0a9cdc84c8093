#include "flightplan/fuel_plan.h"

#include <array>
#include <cmath>
#include <stdexcept>

#include "base/code_page.h"
#include "base/numbers.h"
#include "flightplan/cruise_level.h"
#include "navdata/geodesy.h"

namespace {

constexpr double approachNM = 11;
constexpr double kgPerGallon = 3.028;
constexpr double climbShare = 0.9;  // of what cruise and approach leave; the descent has the rest
constexpr double contingencyShare = 0.1;
constexpr double holdingMinutes = 30;

struct FuelUnit {
  std::string_view text;
  double perGallon;
};
constexpr std::array<FuelUnit, 4> units = {
    {{" Gal", 1}, {" lbs", 6.66}, {" kg", kgPerGallon}, {" lit", 3.785}}};

const FuelUnit& UnitOf(int unit) {
  return units[unit >= 0 && unit < static_cast<int>(units.size()) ? static_cast<std::size_t>(unit) : 0];
}

std::int32_t WholeGallons(float kg) {
  return RoundToEven(kg / kgPerGallon);
}

// How often a tank of MaxFuel kg is emptied by so many gallons.
std::int32_t Stops(double gallons, const AircraftRec& aircraft) {
  return aircraft.MaxFuel > 0 ? FloorToInt(gallons * kgPerGallon / aircraft.MaxFuel) : 0;
}

void FindAlternate(const FlightPlan& plan, const NavDatabase& database, FuelFigures& figures) {
  const auto index = static_cast<std::size_t>(plan.AlternateIndex);
  if (plan.AlternateIndex < 0 || index >= database.airports.size()) return;
  const AirportRec& airport = database.airports[index];
  const PlanWaypoint& destination = plan.Row(plan.DestinationRow());
  figures.hasAlternate = true;
  figures.alternateText = CodePageToUtf8(airport.strName.Text() + "  " + airport.strCode.Text());
  figures.alternateDistance =
      GreatCircleDistance(destination.Lat, destination.Lon, airport.sngLat, airport.sngLon);
  figures.alternateCourse =
      GreatCircleCourse(destination.Lat, destination.Lon, airport.sngLat, airport.sngLon);
  figures.AlternateFuel = figures.alternateDistance * figures.TripFuel / plan.TotalDistance;
}

}  // namespace

FuelSegments ComputeFuelSegments(const FlightPlan& plan, const PlanContext& context) {
  const AircraftRec& aircraft = context.aircraft;
  const double endurance = static_cast<double>(aircraft.MaxRange) / aircraft.CruiseSpeed;
  const double burn = aircraft.MaxFuel / endurance;
  const double percentRate = burn * 100 / aircraft.MaxWeight + 1;
  const double hours = plan.TotalMinutes / 60.0;
  const double weight = static_cast<double>(aircraft.EmptyWeight) + aircraft.LoadWeight;
  const double trip = percentRate * weight * hours / 100 - hours * percentRate;

  const double flAlt = plan.CruiseFL * 100.0;
  const double climb = ClimbDistance(flAlt, DepartureElevation(plan, context.database), aircraft);
  const double descent = DescentDistance(flAlt, DestinationElevation(plan, context.database), aircraft);
  const double cruiseDistance = plan.TotalDistance - climb - descent - approachNM;
  const double approach = trip * approachNM / plan.TotalDistance;
  const double cruise = trip * cruiseDistance / plan.TotalDistance;
  const double rest = trip - cruise - approach;
  return {static_cast<float>(rest * climbShare), static_cast<float>(cruise < 0 ? 0 : cruise),
          static_cast<float>(rest * (1 - climbShare)), static_cast<float>(approach),
          static_cast<float>(trip)};
}

FuelFigures CalculateFuel(const FlightPlan& plan, const PlanContext& context) {
  if (plan.TotalMinutes == 0) throw std::domain_error("the plan takes no time");
  const FuelSegments segments = ComputeFuelSegments(plan, context);
  for (const float part : {segments.climb, segments.cruise, segments.descent, segments.approach})
    if (!std::isfinite(part)) throw std::domain_error("the aircraft's data give no fuel figures");
  FuelFigures figures;
  figures.ClimbFuel = WholeGallons(segments.climb);
  figures.CruiseFuel = WholeGallons(segments.cruise);
  figures.DescentFuel = WholeGallons(segments.descent);
  figures.ApproachFuel = WholeGallons(segments.approach);
  figures.TripFuel = figures.ClimbFuel + figures.CruiseFuel + figures.DescentFuel + figures.ApproachFuel;
  figures.ContingencyFuel = figures.TripFuel * contingencyShare;
  figures.HoldingFuel = figures.TripFuel * holdingMinutes / plan.TotalMinutes;
  FindAlternate(plan, context.database, figures);
  figures.TotalFuel =
      figures.TripFuel + figures.ContingencyFuel + figures.HoldingFuel + figures.AlternateFuel;
  figures.VfrStops = Stops(figures.TripFuel, context.aircraft);
  figures.IfrStops = Stops(figures.TotalFuel, context.aircraft);
  return figures;
}

double Conv(double gallons, int unit) {
  return gallons * UnitOf(unit).perGallon;
}

std::string_view FuelUnitText(int unit) {
  return UnitOf(unit).text;
}

std::string FuelText(double gallons, int unit) {
  return FormatPicture(Conv(gallons, unit), "###.00") + std::string(FuelUnitText(unit));
}
