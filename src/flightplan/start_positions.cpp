#include "flightplan/start_positions.h"

#include <limits>

#include "base/code_page.h"
#include "base/fixed_text.h"
#include "base/numbers.h"
#include "flightplan/plan_legs.h"
#include "navdata/geodesy.h"
#include "navdata/lookup_names.h"

namespace {

// The threshold at which a take-off along heading begins.
Position Threshold(const RunwayRec& runway, float heading) {
  const double half = FeetToNM(runway.intLength) / 2.0;
  return FlatOffset(runway.sngLat, runway.sngLon, heading, static_cast<float>(half));
}

StartPosition RunwayStart(const RunwayRec& runway, std::string_view ident, float heading, int num) {
  StartPosition start;
  start.type = "Rwy";
  start.num = static_cast<std::int16_t>(num);
  start.id = CodePageToUtf8(ident);
  start.text = start.id + "  (" + FormatPicture(runway.intLength, "00000") + "ft)";
  start.place = Threshold(runway, heading);
  start.heading = heading;
  return start;
}

StartPosition GateStart(const ParkingRec& parking, int num) {
  StartPosition start;
  start.type = "Gate";
  start.num = static_cast<std::int16_t>(num);
  start.id = std::string(strGateName(parking.lngName)) + " " + std::to_string(parking.lngNumber);
  start.text = start.id;
  start.place = {parking.sngLat, parking.sngLon};
  return start;
}

void AddRunways(std::vector<StartPosition>& starts, std::span<const RunwayRec> runways) {
  const int count = static_cast<int>(runways.size());
  for (int i = 0; i < count; ++i) {
    const RunwayRec& runway = runways[static_cast<std::size_t>(i)];
    const std::string_view ident = runway.strRwyID.View();
    const std::string_view reverse = runway.strRwyIDRecip.View();
    starts.push_back(RunwayStart(runway, ident, runway.sngHeading, i + 1));
    // A helipad has but one end.
    if (reverse.empty() || reverse == ident) continue;
    const auto heading = static_cast<float>(NormalizeDeg(runway.sngHeading + 180.0));
    starts.push_back(RunwayStart(runway, reverse, heading, count + i + 1));
  }
}

std::string_view BeforeBracket(std::string_view text) {
  return Trimmed(text.substr(0, text.find('(')));
}

}  // namespace

std::vector<StartPosition> StartPositions(const NavDatabase& database, std::int32_t airportRow) {
  std::vector<StartPosition> starts;
  if (airportRow < 0 || static_cast<std::size_t>(airportRow) >= database.airports.size()) return starts;
  const AirportRec& airport = database.airports[static_cast<std::size_t>(airportRow)];
  // A number that DepartureNum cannot hold names nothing.
  constexpr std::size_t mostNumbers = std::numeric_limits<std::int16_t>::max() / 2;
  const auto runways = database.Runways(airport);
  AddRunways(starts, runways.first(std::min(runways.size(), mostNumbers)));
  const auto parkings = database.Parkings(airport);
  for (std::size_t i = 0; i < std::min(parkings.size(), mostNumbers); ++i)
    starts.push_back(GateStart(parkings[i], firstGateNum + static_cast<int>(i)));
  return starts;
}

int FindStart(const std::vector<StartPosition>& starts, const FlightPlan& plan) {
  const std::string_view id = Trimmed(plan.DepartureID);
  if (id.empty()) return -1;
  int found = -1;
  for (std::size_t i = 0; i < starts.size(); ++i) {
    if (!EqualNoCase(BeforeBracket(starts[i].text), id)) continue;
    if (starts[i].num == plan.DepartureNum) return static_cast<int>(i);
    if (found < 0) found = static_cast<int>(i);
  }
  if (found >= 0) return found;
  const bool noRunways = !starts.empty() && !starts.front().IsRunway();
  return plan.DepartureType == "Gate" && noRunways ? 0 : -1;
}

void SetStartPosition(FlightPlan& plan, const PlanContext& context, const StartPosition* start) {
  const AirportRec& airport = context.database.airports.at(static_cast<std::size_t>(plan.DepartureIndex));
  PlanWaypoint& first = plan.Row(0);
  StartPosition ownPosition;
  ownPosition.place = {airport.sngLat, airport.sngLon};
  const StartPosition& chosen = start != nullptr ? *start : ownPosition;
  plan.DepartureType = chosen.type;
  plan.DepartureNum = chosen.num;
  plan.DepartureID = chosen.id;
  plan.DepartureHeading = chosen.heading;
  plan.DepartureLat = first.Lat = chosen.place.lat;
  plan.DepartureLon = first.Lon = chosen.place.lon;
  const std::int32_t level = plan.CruiseFL;
  const bool westbound = plan.Westbound;
  if (plan.RowCount() > 1) ComputeLeg(plan, context.aircraft, 1);
  RecomputePlan(plan, context);
  if (plan.Westbound == westbound) plan.CruiseFL = level;
}
