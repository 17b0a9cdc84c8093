#include "flightplan/vertical_profile.h"

#include <algorithm>
#include <cmath>

#include "base/numbers.h"
#include "flightplan/cruise_level.h"
#include "flightplan/plan_layers.h"
#include "map/geo_line.h"

namespace {

constexpr double shortestPlan = 1.0;
constexpr int stepsOfSlope = 24;
constexpr int halvings = 60;

// How far, and how long, it takes to reach an altitude from the departure, and
// to come down from it to the destination.
class Slopes {
 public:
  Slopes(const FlightPlan& plan, const PlanContext& context)
      : departure(DepartureElevation(plan, context.database)),
        destination(DestinationElevation(plan, context.database)),
        finalDistance(std::max(0.0, context.FAFDIST)),
        finalFix(std::max(destination, ComputeVerticalProfile(plan, context).FinalFixAltitude)),
        aircraft(context.aircraft) {}

  double Lowest() const { return std::max(departure, destination); }

  // False if a slope up to this altitude has no length.
  bool CanFlyTo(double altitude) const {
    const bool rates = aircraft.ClimbRate > 0 && aircraft.DescentRate > 0;
    // The slope is steepest at its foot, where the true speed is least.
    return rates && std::isfinite(ClimbDistance(departure + 1, departure, aircraft)) &&
           std::isfinite(DescentDistance(finalFix + 1, finalFix, aircraft)) &&
           std::isfinite(ClimbTo(altitude)) && std::isfinite(DescentFrom(altitude));
  }

  double ClimbTo(double altitude) const {
    return altitude > departure ? ClimbDistance(altitude, departure, aircraft) : 0;
  }
  double ClimbMinutes(double altitude) const {
    return std::max(0.0, altitude - departure) / aircraft.ClimbRate;
  }

  // To the destination; below the final fix along the glide path.
  double DescentFrom(double altitude) const {
    if (altitude > finalFix) return finalDistance + DescentDistance(altitude, finalFix, aircraft);
    return altitude > destination ? (altitude - destination) / (finalFix - destination) * finalDistance : 0;
  }
  double DescentMinutes(double altitude) const {
    const double glide = altitude > finalFix ? finalDistance : DescentFrom(altitude);
    const double descent = altitude > finalFix ? (altitude - finalFix) / aircraft.DescentRate : 0;
    return descent + MinutesAt(glide, aircraft.ApproachSpeed);
  }
  double CruiseMinutes(double distance) const { return MinutesAt(distance, aircraft.CruiseSpeed); }

  // The altitude, no higher than level, from which climb and descent fill length.
  double Peak(double level, double length) const {
    double low = Lowest();
    double high = level;
    for (int i = 0; i < halvings; ++i) {
      const double middle = (low + high) / 2;
      (ClimbTo(middle) + DescentFrom(middle) <= length ? low : high) = middle;
    }
    return low;
  }

  const double departure;
  const double destination;
  const double finalDistance;
  const double finalFix;

 private:
  static double MinutesAt(double distance, double knots) { return knots > 0 ? distance / knots * 60 : 0; }

  const AircraftRec& aircraft;
};

void AddClimb(const Slopes& slopes, double top, double end, FlightProfile& profile) {
  profile.points.push_back({0, slopes.departure, 0});
  const double whole = slopes.ClimbTo(top);
  if (whole <= 0) return;
  for (int step = 1; step <= stepsOfSlope; ++step) {
    const double altitude = slopes.departure + (top - slopes.departure) * step / stepsOfSlope;
    profile.points.push_back(
        {slopes.ClimbTo(altitude) * end / whole, altitude, slopes.ClimbMinutes(altitude)});
  }
}

// From the last point on, which is level with top.
void AddDescent(const Slopes& slopes, double top, FlightProfile& profile) {
  const double length = profile.Length();
  const double landing = profile.points.back().minutes + slopes.DescentMinutes(top);
  const auto add = [&](double altitude) {
    profile.points.push_back({std::max(profile.points.back().distance, length - slopes.DescentFrom(altitude)),
                              altitude, landing - slopes.DescentMinutes(altitude)});
  };
  if (top > slopes.finalFix) {
    for (int step = 1; step <= stepsOfSlope; ++step)
      add(top - (top - slopes.finalFix) * step / stepsOfSlope);
  }
  add(slopes.destination);
}

std::string ShortNote(const FlightPlan& plan, double top) {
  const std::string level = plan.CruiseFL > 0 ? "Too short for FL " + FormatPicture(plan.CruiseFL, "000")
                                              : "Too short for a cruise level";
  return level + ": down again from " + FormatPicture(std::floor(top / 100) * 100, "###0") + " ft";
}

// What keeps the profile from being drawn; empty: nothing.
std::string Obstacle(const Slopes& slopes, const FlightProfile& profile) {
  if (profile.Length() < shortestPlan) return "The plan has no length";
  if (profile.level <= slopes.Lowest()) return "The cruise level lies below the airports";
  if (!slopes.CanFlyTo(profile.level)) return "The aircraft's climb or descent gives no path";
  return {};
}

}  // namespace

FlightProfile ComputeFlightProfile(const FlightPlan& plan, const PlanContext& context) {
  FlightProfile profile;
  if (plan.RowCount() < 2) return profile;
  double distance = 0;
  for (const PlanWaypoint& row : plan.rows)
    profile.rows.push_back(distance += row.Dist);
  // Where no level fits, the aircraft climbs for its own until it must come down.
  profile.level = (plan.CruiseFL > 0 ? plan.CruiseFL : context.aircraft.CruiseFlightLevel) * 100.0;
  const Slopes slopes(plan, context);
  profile.note = Obstacle(slopes, profile);
  if (!profile.note.empty()) return profile;

  const double length = profile.Length();
  const bool fits = slopes.ClimbTo(profile.level) + slopes.DescentFrom(profile.level) <= length;
  profile.levelReached = fits;
  const double top = fits ? profile.level : slopes.Peak(profile.level, length);
  if (!fits) profile.note = ShortNote(plan, top);
  if (fits && plan.CruiseFL <= 0) profile.note = "No cruise level: the aircraft's own is drawn";
  AddClimb(slopes, top, std::min(slopes.ClimbTo(top), length), profile);
  profile.topOfClimb = profile.topOfDescent = profile.points.size() - 1;
  const ProfilePoint climbed = profile.points.back();
  const double cruise = length - slopes.DescentFrom(top) - climbed.distance;
  if (fits && cruise > 0) {
    profile.points.push_back(
        {climbed.distance + cruise, top, climbed.minutes + slopes.CruiseMinutes(cruise)});
    profile.topOfDescent = profile.points.size() - 1;
  }
  AddDescent(slopes, top, profile);
  return profile;
}

ProfilePoint PointAt(const FlightProfile& profile, double distance) {
  const auto& points = profile.points;
  if (!(distance > points.front().distance)) return points.front();
  const auto next =
      std::lower_bound(points.begin(), points.end(), distance,
                       [](const ProfilePoint& point, double value) { return point.distance < value; });
  if (next == points.end()) return points.back();
  const ProfilePoint& from = *(next - 1);
  const double step = next->distance - from.distance;
  const double part = step > 0 ? (distance - from.distance) / step : 1;
  return {distance, std::lerp(from.altitude, next->altitude, part),
          std::lerp(from.minutes, next->minutes, part)};
}

int RowAt(const FlightProfile& profile, double distance) {
  const auto row = std::lower_bound(profile.rows.begin() + 1, profile.rows.end() - 1, distance);
  return static_cast<int>(row - profile.rows.begin());
}

Position PlaceOnRoute(const FlightPlan& plan, const FlightProfile& profile, double distance) {
  const int row = RowAt(profile, distance);
  const auto index = static_cast<std::size_t>(row);
  const double leg = profile.rows[index] - profile.rows[index - 1];
  const double part = leg > 0 ? (distance - profile.rows[index - 1]) / leg : 0;
  const Position from = PlaceOf(plan.Row(row - 1));
  const Position to = PlaceOf(plan.Row(row));
  if (!(part > 0)) return from;
  return part >= 1 ? to : GreatCircleArc(from, to).At(part);
}
