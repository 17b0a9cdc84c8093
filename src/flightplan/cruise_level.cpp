#include "flightplan/cruise_level.h"

#include <algorithm>
#include <cmath>
#include <limits>

#include "base/numbers.h"
#include "navdata/geodesy.h"

namespace {

constexpr double feetPerNMInClimb = 6076.115;
constexpr double approachDistance = 11.0;
constexpr double defaultGlideAngle = 3.0;
constexpr std::int32_t levelStep = 20;
constexpr std::int32_t lowestLevel = 20;
constexpr std::int32_t highestLevel = 600;
constexpr std::int32_t lowestCruiseHeight = 2000;  // above the departure

double SlopeDistance(double to, double from, double speed, double rate) {
  if (rate == 0.0) return std::numeric_limits<double>::quiet_NaN();
  const double trueSpeed = speed * ((to + from) / 120000.0 + 1.0);
  const double minutes = (to - from) / rate;
  const double slant = trueSpeed * minutes / 60.0;
  const double height = (to - from) / feetPerNMInClimb;
  return std::sqrt(slant * slant - height * height);
}

std::int16_t SlopeTime(double to, double from, double rate) {
  if (rate == 0.0) return 0;
  return static_cast<std::int16_t>(std::clamp(RoundToEven((to - from) / rate), -32768, 32767));
}

std::int32_t Elevation(const NavDatabase& database, std::int32_t airportRow) {
  if (airportRow < 0 || static_cast<std::size_t>(airportRow) >= database.airports.size()) return 0;
  return database.airports[static_cast<std::size_t>(airportRow)].lngElevation;
}

// Climb and descent together; the comparison with NaN is false for the callers.
double ClimbAndDescent(double feet, const FlightPlan& plan, const PlanContext& context) {
  return ClimbDistance(feet, DepartureElevation(plan, context.database), context.aircraft) +
         DescentDistance(feet, DestinationElevation(plan, context.database), context.aircraft);
}

}  // namespace

double ClimbDistance(double toFeet, double fromFeet, const AircraftRec& aircraft) {
  return SlopeDistance(toFeet, fromFeet, aircraft.ClimbSpeed, aircraft.ClimbRate);
}

double DescentDistance(double toFeet, double fromFeet, const AircraftRec& aircraft) {
  return SlopeDistance(toFeet, fromFeet, aircraft.DescentSpeed, aircraft.DescentRate);
}

std::int16_t ClimbTime(double toFeet, double fromFeet, const AircraftRec& aircraft) {
  return SlopeTime(toFeet, fromFeet, aircraft.ClimbRate);
}

std::int16_t DescentTime(double toFeet, double fromFeet, const AircraftRec& aircraft) {
  return SlopeTime(toFeet, fromFeet, aircraft.DescentRate);
}

std::int32_t DepartureElevation(const FlightPlan& plan, const NavDatabase& database) {
  return Elevation(database, plan.DepartureIndex);
}

std::int32_t DestinationElevation(const FlightPlan& plan, const NavDatabase& database) {
  return Elevation(database, plan.DestinationIndex);
}

std::int32_t ProposeAltitude(const FlightPlan& plan, const PlanContext& context) {
  // No aircraft file may send the walk through millions of steps.
  const std::int32_t top = std::clamp(context.aircraft.CruiseFlightLevel, 0, 10000) * 100;
  const std::int32_t lowest = DepartureElevation(plan, context.database) + lowestCruiseHeight;
  for (std::int32_t feet = top; feet >= lowest && feet > 0; feet -= 1000) {
    if (ClimbAndDescent(feet, plan, context) + approachDistance < plan.TotalDistance) return feet;
  }
  return 0;
}

CruiseLevel SemicircularLevel(double course, std::int32_t feet) {
  const bool westbound = course >= 180.0;
  const bool evenThousands = feet / 1000 % 2 == 0;
  const bool stays = evenThousands == westbound;
  return {stays ? feet / 100 : (feet - 1000) / 100, westbound};
}

void LowerCruiseLevel(FlightPlan& plan) {
  if (plan.CanSave) plan.CruiseFL = std::max(lowestLevel, plan.CruiseFL - levelStep);
}

void RaiseCruiseLevel(FlightPlan& plan, const PlanContext& context) {
  if (!plan.CanSave) return;
  const std::int32_t level = plan.CruiseFL + levelStep;
  if (level > context.aircraft.Ceiling || level > highestLevel) return;
  if (ClimbAndDescent(level * 100.0, plan, context) >= plan.TotalDistance) return;
  plan.CruiseFL = level;
}

VerticalProfile ComputeVerticalProfile(const FlightPlan& plan, const PlanContext& context) {
  const double cruise = plan.CruiseFL * 100.0;
  const double departure = DepartureElevation(plan, context.database);
  const double glideAngle = plan.GlideAngle > 0 ? plan.GlideAngle : defaultGlideAngle;
  VerticalProfile profile;
  profile.FinalFixAltitude = DestinationElevation(plan, context.database) +
                             std::tan(DegToRad(glideAngle)) * context.FAFDIST * feetPerNMInClimb;
  if (cruise > departure) profile.TopOfClimb = ClimbDistance(cruise, departure, context.aircraft);
  if (cruise > profile.FinalFixAltitude) {
    profile.TopOfDescent = DescentDistance(cruise, profile.FinalFixAltitude, context.aircraft);
  }
  return profile;
}
