// Legs and totals of the plan: distance, course and time of each leg from the
// row before, the running ETA, the sums, and what follows from them.
#pragma once

#include <vector>

#include "flightplan/flight_plan.h"
#include "flightplan/plan_context.h"

// The last part of the destination leg is flown at approach speed (NM).
constexpr double approachLegNM = 30.0;

// Minutes for distance NM at a cruise or, up to approachLegNM before the
// destination, approach speed in knots. 0 if the aircraft has no such speed.
double EnrouteLegMinutes(double distance, const AircraftRec& aircraft);
double DestinationLegMinutes(double distance, const AircraftRec& aircraft);

// Fills Dist, Course and EET of a row from the row before it; row 0 has no leg.
void ComputeLeg(FlightPlan& plan, const AircraftRec& aircraft, int rowIndex);
// Fills EET alone, from the row's Dist.
void ComputeLegTime(FlightPlan& plan, const AircraftRec& aircraft, int rowIndex);

// Course of the leg into a row less the variation at the row before, 0 to 360.
float MagneticCourse(const FlightPlan& plan, int rowIndex);

// Elapsed minutes at each row: the running sum of EET, rounded to a whole
// minute (half to even) after every addition. One value a row, 0 at row 0.
std::vector<int> ShowEta(const FlightPlan& plan);

// TotalDistance and TotalMinutes, each rounded half to even after every addition.
void ComputeTotals(FlightPlan& plan);

// The destination's leg, the totals, the cruise level and the direction flag.
// Does nothing with fewer than two rows.
void RecomputePlan(FlightPlan& plan, const PlanContext& context);

// Makes chosen the current aircraft, with its ApproachAltitude, and computes
// the time of every leg and the totals anew. The cruise level stays.
void SelectAircraft(const AircraftRec& chosen, AircraftRec& current, FlightPlan& plan);
