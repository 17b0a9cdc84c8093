// The fuel plan: how much each part of the flight burns, what is added to it,
// and how many stops that takes. It follows from the current aircraft alone;
// the figures are for simulators.
#pragma once

#include <cstdint>
#include <string>

#include "flightplan/flight_plan.h"
#include "flightplan/plan_context.h"

// All in kg; climb and descent share what trip, cruise and approach leave.
struct FuelSegments {
  float climb = 0;
  float cruise = 0;
  float descent = 0;
  float approach = 0;
  float trip = 0;
};

// Burn per hour is MaxFuel over the endurance of MaxRange at cruise speed; the
// trip's share of it grows with the aircraft's weight. An aircraft without
// cruise speed, range or weight, and a plan without distance, give NaN.
FuelSegments ComputeFuelSegments(const FlightPlan& plan, const PlanContext& context);

// Whole US gallons.
struct FuelFigures {
  std::int32_t ClimbFuel = 0;
  std::int32_t CruiseFuel = 0;
  std::int32_t DescentFuel = 0;
  std::int32_t ApproachFuel = 0;
  std::int32_t TripFuel = 0;   // sum of the four
  double ContingencyFuel = 0;  // a tenth of the trip
  double HoldingFuel = 0;      // 30 minutes at the trip's mean rate
  double AlternateFuel = 0;    // by distance; 0 without an alternate
  double TotalFuel = 0;
  bool hasAlternate = false;
  std::string alternateText;     // name and code, UTF-8
  double alternateDistance = 0;  // NM from the destination
  double alternateCourse = 0;    // true, from the destination
  std::int32_t VfrStops = 0;     // fuel stops for the trip alone
  std::int32_t IfrStops = 0;     // for everything
};

// Throws std::domain_error if the plan takes no time or the aircraft's data give no figure.
FuelFigures CalculateFuel(const FlightPlan& plan, const PlanContext& context);

// Units of the setting FUEL: 0 gallons, 1 pounds, 2 kilograms, 3 litres. Others count as gallons.
double Conv(double gallons, int unit);
// " Gal", " lbs", " kg" or " lit".
std::string_view FuelUnitText(int unit);
// In the unit with picture "###.00" and the unit's text behind.
std::string FuelText(double gallons, int unit);
