// The flight plan form of the network clients (.sfp): what the pilot files.
// SquawkBox and FSInn take the same file, each from its own folder.
#include "base/numbers.h"
#include "flightplan/formats/network_route.h"
#include "flightplan/formats/plain_text.h"
#include "flightplan/formats/plan_writers.h"

namespace {

// How long the fuel lasts at the trip's mean rate, whole minutes; 0: unknown.
std::int32_t FuelMinutes(const PlanExport& plan) {
  if (!plan.fuel || plan.fuel->TripFuel <= 0) return 0;
  return FloorToInt(plan.plan.TotalMinutes * plan.fuel->TotalFuel / plan.fuel->TripFuel);
}

void AddTime(std::string& text, const std::string& name, std::int32_t minutes) {
  const std::int32_t hours = minutes / 60;
  AddLine(text, name + "Hours=" + FormatPicture(hours, "00"));
  AddLine(text, name + "Minutes=" + FormatPicture(minutes % 60, "00"));
}

}  // namespace

std::string WriteSquawkBoxPlan(const PlanExport& plan) {
  const AirportRec* alternate = AlternateOf(plan);
  std::string text;
  AddLine(text, "[SBFlightPlan]");
  AddLine(text, plan.plan.PlanType == "IFR" ? "Type=0" : "Type=1");
  AddLine(text, "Departure=" + DepartureOf(plan).strCode.Text());
  AddLine(text, "Arrival=" + DestinationOf(plan).strCode.Text());
  AddLine(text, "Alternate=" + (alternate == nullptr ? "0" : alternate->strCode.Text()));
  AddTime(text, "Flight", plan.plan.TotalMinutes);
  AddTime(text, "Fuel", FuelMinutes(plan));
  AddLine(text, "Airspeed=" + std::to_string(plan.aircraft.CruiseSpeed));
  AddLine(text, "Altitude=" + std::to_string(plan.plan.CruiseFL * 100LL));
  AddLine(text, "Route=" + NetworkRoute(plan, RouteLegs::unnamed));
  AddLine(text, "Remarks=");
  AddLine(text, "Heavy=0");
  AddLine(text, "Suffix=");
  AddLine(text, "Voice=0");
  return text;
}
