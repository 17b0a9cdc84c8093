// The flight plan form of the other network's client (.fpl): airports and
// route, every leg by the airway it follows or as "DCT".
#include "flightplan/formats/network_route.h"
#include "flightplan/formats/plain_text.h"
#include "flightplan/formats/plan_writers.h"

std::string WriteIvaoPlan(const PlanExport& plan) {
  const AirportRec* alternate = AlternateOf(plan);
  std::string text;
  AddLine(text, "[FLIGHTPLAN]");
  AddLine(text, "DEPICAO=" + DepartureOf(plan).strCode.Text());
  AddLine(text, "ROUTE=" + NetworkRoute(plan, RouteLegs::named));
  AddLine(text, "DESTICAO=" + DestinationOf(plan).strCode.Text());
  AddLine(text, "ALTICAO=" + (alternate == nullptr ? "" : alternate->strCode.Text()));
  return text;
}
