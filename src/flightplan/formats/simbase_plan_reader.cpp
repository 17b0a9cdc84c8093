// FSX, Prepar3D, MSFS 2020 and 2024: the XML plan (simbase_xml.h). The last of
// them gives no positions: its points are known by ident and region alone.
#include "base/fixed_text.h"
#include "flightplan/formats/foreign_readers.h"
#include "flightplan/formats/foreign_text.h"

namespace {

std::string Text(pugi::xml_node node, const char* name) {
  return std::string(Stripped(node.child_value(name)));
}

std::optional<Position> PlaceOfText(const std::string& text) {
  const auto fields = Parts(text, ',');
  if (fields.size() < 2) return std::nullopt;
  return PlaceOf(AngleOf(fields[0]), AngleOf(fields[1]));
}

std::string RunwayOf(pugi::xml_node node) {
  std::string runway = Text(node, "RunwayNumberFP");
  if (runway.empty()) return {};
  if (runway.size() == 1) runway.insert(0, "0");
  const std::string side = Text(node, "RunwayDesignatorFP");
  const bool hasSide = side == "LEFT" || side == "RIGHT" || side == "CENTER";
  return hasSide ? runway + side.substr(0, 1) : runway;
}

std::optional<RouteKind> RouteKindOf(const std::string& name) {
  if (name == "Direct") return RouteKind::direct;
  if (name == "VOR") return RouteKind::navaid;
  if (name == "LowAlt") return RouteKind::lowAltitude;
  if (name == "HighAlt") return RouteKind::highAltitude;
  return std::nullopt;
}

ForeignPoint PointOf(pugi::xml_node waypoint) {
  const pugi::xml_node icao = waypoint.child("ICAO");
  ForeignPoint point;
  point.code = Text(icao, "ICAOIdent");
  if (point.code.empty()) point.code = Stripped(waypoint.attribute("id").value());
  point.region = Text(icao, "ICAORegion");
  point.kind = KindNamed(Text(waypoint, "ATCWaypointType"));
  point.place = PlaceOfText(Text(waypoint, "WorldPosition"));
  point.airway = Text(waypoint, "ATCAirway");
  if (waypoint.child("DepartureFP")) point.part = RowKind::sid;
  if (waypoint.child("ArrivalFP")) point.part = RowKind::star;
  return point;
}

void TellApproach(ForeignPlan& plan, pugi::xml_node node) {
  if (const std::string approach = Text(node, "ApproachTypeFP"); !approach.empty())
    plan.problems.Add("the approach " + approach + " " + RunwayOf(node) + " is not taken");
}

void TakeDetails(ForeignPlan& plan, pugi::xml_node flight) {
  const pugi::xml_node departure = flight.child("DepartureDetails");
  if (plan.start.empty()) plan.start = RunwayOf(departure);
  if (plan.sid.empty()) plan.sid = Text(departure, "DepartureFP");
  const pugi::xml_node arrival = flight.child("ArrivalDetails");
  if (plan.star.empty()) plan.star = Text(arrival, "ArrivalFP");
  const pugi::xml_node approach = flight.child("ApproachDetails");
  TellApproach(plan, approach);
  if (approach.child("ApproachVisualPattern")) plan.problems.Add("the visual approach is not taken");
}

void TakeWaypoint(ForeignPlan& plan, pugi::xml_node waypoint) {
  plan.points.push_back(PointOf(waypoint));
  if (plan.sid.empty()) plan.sid = Text(waypoint, "DepartureFP");
  if (plan.star.empty()) plan.star = Text(waypoint, "ArrivalFP");
  if (plan.start.empty() && plan.points.size() == 1) plan.start = RunwayOf(waypoint);
  TellApproach(plan, waypoint);
}

}  // namespace

ForeignPlan ReadSimBasePlan(pugi::xml_node root) {
  const pugi::xml_node flight = root.child("FlightPlan.FlightPlan");
  ForeignPlan plan;
  plan.format = "FSX or MSFS plan";
  plan.planType = Text(flight, "FPType");
  plan.routeType = RouteKindOf(Text(flight, "RouteType"));
  plan.cruiseFeet = NumberOf(Text(flight, "CruisingAlt")).value_or(0);
  plan.departure = {Text(flight, "DepartureID"), {}, PlaceOfText(Text(flight, "DepartureLLA"))};
  plan.destination = {Text(flight, "DestinationID"), {}, PlaceOfText(Text(flight, "DestinationLLA"))};
  plan.start = Text(flight, "DeparturePosition");
  for (const pugi::xml_node waypoint : flight.children("ATCWaypoint"))
    TakeWaypoint(plan, waypoint);
  TakeDetails(plan, flight);
  return plan;
}
