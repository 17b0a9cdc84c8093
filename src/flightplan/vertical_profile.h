// The flight seen from the side: altitude and time along the route, from the
// departure's elevation up to the cruise level and down to the destination.
// Climb and descent are those of cruise_level.h, the last miles from the final
// fix are flown down the glide path at approach speed. Distances are NM along
// the plan's legs, altitudes feet, times minutes after the departure by the
// model's own rates and speeds.
#pragma once

#include <cstddef>
#include <string>
#include <vector>

#include "flightplan/flight_plan.h"
#include "flightplan/plan_context.h"
#include "navdata/geodesy.h"

struct ProfilePoint {
  double distance = 0;
  double altitude = 0;
  double minutes = 0;
};

struct FlightProfile {
  std::vector<ProfilePoint> points;  // distances ascend; empty: there is nothing to draw
  std::vector<double> rows;          // distance of each of the plan's rows
  std::size_t topOfClimb = 0;        // these are points; the same one where the flight
  std::size_t topOfDescent = 0;      // does not stay level
  double level = 0;                  // that is aimed at
  bool levelReached = false;
  std::string note;  // what the pilot should know about it, UTF-8; empty: nothing

  double Length() const { return rows.empty() ? 0 : rows.back(); }
  const ProfilePoint& TopOfClimb() const { return points[topOfClimb]; }
  const ProfilePoint& TopOfDescent() const { return points[topOfDescent]; }
};

// With a level, TopOfClimb() and TopOfDescent() lie where
// ComputeVerticalProfile() says. A plan too short for its level, or without
// one, has its peak where climb and descent meet. No points for a plan shorter
// than a mile, a level below one of the airports and an aircraft that cannot
// climb or descend; the note says which.
FlightProfile ComputeFlightProfile(const FlightPlan& plan, const PlanContext& context);

// Between the points in equal parts; a distance beyond the ends counts as the
// end. The profile must have points.
ProfilePoint PointAt(const FlightProfile& profile, double distance);

// The row whose leg, into it, holds a distance; the last one beyond the end.
// The plan must have two rows.
int RowAt(const FlightProfile& profile, double distance);

// The place on the route at a distance along the great circles of its legs;
// an end of the plan beyond it.
Position PlaceOnRoute(const FlightPlan& plan, const FlightProfile& profile, double distance);
