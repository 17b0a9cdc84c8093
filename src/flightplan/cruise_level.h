// The vertical side of the plan: the climb and descent model, the level that
// is proposed, the semicircular rule, top of climb and top of descent.
// Altitudes are feet, levels hundreds of feet, distances NM.
#pragma once

#include <cstdint>

#include "flightplan/flight_plan.h"
#include "flightplan/plan_context.h"

// Distance over ground between two altitudes. The true speed grows by 1/120000
// for each foot of the two altitudes' sum; one NM is 6076.115 ft here. NaN if
// the aircraft has no rate or its path would be steeper than vertical.
double ClimbDistance(double toFeet, double fromFeet, const AircraftRec& aircraft);
double DescentDistance(double toFeet, double fromFeet, const AircraftRec& aircraft);

// Minutes between two altitudes, rounded half to even; 0 without a rate.
std::int16_t ClimbTime(double toFeet, double fromFeet, const AircraftRec& aircraft);
std::int16_t DescentTime(double toFeet, double fromFeet, const AircraftRec& aircraft);

// Elevation of the plan's airports; 0 while they are not chosen.
std::int32_t DepartureElevation(const FlightPlan& plan, const NavDatabase& database);
std::int32_t DestinationElevation(const FlightPlan& plan, const NavDatabase& database);

// The highest altitude in feet, down from the aircraft's cruise level in steps
// of 1000, at which climb, descent and 11 NM of approach are shorter than the
// plan. 0 if there is none at least 2000 ft above the departure.
std::int32_t ProposeAltitude(const FlightPlan& plan, const PlanContext& context);

struct CruiseLevel {
  std::int32_t CruiseFL = 0;
  bool Westbound = false;
};

// Odd thousands for courses below 180, even ones from 180 up, never higher
// than feet.
CruiseLevel SemicircularLevel(double course, std::int32_t feet);

// The level buttons: 20 down but never below 20; 20 up unless that passes the
// ceiling or 600, or climb and descent would fill the whole plan. They do
// nothing while the plan cannot be saved.
void LowerCruiseLevel(FlightPlan& plan);
void RaiseCruiseLevel(FlightPlan& plan, const PlanContext& context);

struct VerticalProfile {
  double TopOfClimb = 0;        // NM after the departure
  double TopOfDescent = 0;      // NM before the final fix
  double FinalFixAltitude = 0;  // feet
};

// Not rounded. The two distances are 0 while the level lies below the field
// they are measured from, and NaN as ClimbDistance().
VerticalProfile ComputeVerticalProfile(const FlightPlan& plan, const PlanContext& context);
