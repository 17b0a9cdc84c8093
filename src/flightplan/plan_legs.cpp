#include "flightplan/plan_legs.h"

#include "base/numbers.h"
#include "flightplan/cruise_level.h"
#include "navdata/geodesy.h"

namespace {

double MinutesAt(double distance, std::int32_t knots) {
  return knots > 0 ? distance / knots * 60.0 : 0.0;
}

}  // namespace

double EnrouteLegMinutes(double distance, const AircraftRec& aircraft) {
  return MinutesAt(distance, aircraft.CruiseSpeed);
}

double DestinationLegMinutes(double distance, const AircraftRec& aircraft) {
  if (distance <= approachLegNM) return MinutesAt(distance, aircraft.ApproachSpeed);
  return MinutesAt(distance - approachLegNM, aircraft.CruiseSpeed) +
         MinutesAt(approachLegNM, aircraft.ApproachSpeed);
}

void ComputeLeg(FlightPlan& plan, const AircraftRec& aircraft, int rowIndex) {
  PlanWaypoint& row = plan.Row(rowIndex);
  if (rowIndex == 0) {
    row.Dist = row.Course = row.EET = 0;
    return;
  }
  const PlanWaypoint& from = plan.Row(rowIndex - 1);
  row.Dist = GreatCircleDistance(from.Lat, from.Lon, row.Lat, row.Lon);
  row.Course = GreatCircleCourse(from.Lat, from.Lon, row.Lat, row.Lon);
  ComputeLegTime(plan, aircraft, rowIndex);
}

void ComputeLegTime(FlightPlan& plan, const AircraftRec& aircraft, int rowIndex) {
  PlanWaypoint& row = plan.Row(rowIndex);
  const double minutes = row.Kind == RowKind::destination ? DestinationLegMinutes(row.Dist, aircraft)
                                                          : EnrouteLegMinutes(row.Dist, aircraft);
  row.EET = static_cast<float>(minutes);
}

float MagneticCourse(const FlightPlan& plan, int rowIndex) {
  const float variation = rowIndex > 0 ? plan.Row(rowIndex - 1).MagVar : 0.0f;
  return static_cast<float>(NormalizeDeg(plan.Row(rowIndex).Course - variation));
}

std::vector<int> ShowEta(const FlightPlan& plan) {
  std::vector<int> eta;
  eta.reserve(plan.rows.size());
  int elapsed = 0;
  for (const PlanWaypoint& row : plan.rows) {
    if (!eta.empty()) elapsed = RoundToEven(elapsed + static_cast<double>(row.EET));
    eta.push_back(elapsed);
  }
  return eta;
}

void ComputeTotals(FlightPlan& plan) {
  plan.TotalDistance = 0;
  plan.TotalMinutes = 0;
  for (const PlanWaypoint& row : plan.rows) {
    plan.TotalMinutes = RoundToEven(plan.TotalMinutes + static_cast<double>(row.EET));
    plan.TotalDistance = RoundToEven(plan.TotalDistance + static_cast<double>(row.Dist));
  }
}

void RecomputePlan(FlightPlan& plan, const PlanContext& context) {
  if (plan.RowCount() < 2) return;
  ComputeLeg(plan, context.aircraft, plan.DestinationRow());
  ComputeTotals(plan);
  const double course =
      GreatCircleCourse(plan.DepartureLat, plan.DepartureLon, plan.DestinationLat, plan.DestinationLon);
  const std::int32_t feet = ProposeAltitude(plan, context);
  const CruiseLevel level = SemicircularLevel(course, feet);
  plan.CruiseFL = feet > 0 ? level.CruiseFL : 0;
  plan.Westbound = level.Westbound;
}

void SelectAircraft(const AircraftRec& chosen, AircraftRec& current, FlightPlan& plan) {
  current = chosen;
  current.ApproachAltitude = ApproachAltitude(chosen.ApproachSpeed);
  for (int i = 1; i < plan.RowCount(); ++i)
    ComputeLegTime(plan, current, i);
  ComputeTotals(plan);
}
