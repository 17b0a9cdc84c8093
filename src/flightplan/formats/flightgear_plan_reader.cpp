// FlightGear: the route manager's property list.
#include <algorithm>

#include "flightplan/formats/foreign_readers.h"
#include "flightplan/formats/foreign_text.h"

namespace {

std::string Text(pugi::xml_node node, const char* name) {
  return std::string(Stripped(node.child_value(name)));
}

bool IsSet(pugi::xml_node node, const char* name) {
  const std::string value = Text(node, name);
  return value == "true" || value == "1";
}

std::string Procedure(pugi::xml_node airport, const char* name) {
  const std::string procedure = Text(airport, name);
  const std::string transition = Text(airport, "transition");
  return procedure.empty() || transition.empty() ? procedure : procedure + "." + transition;
}

ForeignPoint PointOf(pugi::xml_node waypoint, const ForeignPlan& plan) {
  const std::string type = Text(waypoint, "type");
  ForeignPoint point;
  point.code = Text(waypoint, "ident");
  point.place = PlaceOf(NumberOf(Text(waypoint, "lat")), NumberOf(Text(waypoint, "lon")));
  point.airway = Text(waypoint, "airway");
  if (type == "basic") point.kind = PointKind::user;
  if (type == "runway") {
    point.kind = PointKind::airport;
    const std::string airport = Text(waypoint, "icao");
    const bool arrives = IsSet(waypoint, "arrival") || IsSet(waypoint, "approach");
    point.code = !airport.empty() ? airport : arrives ? plan.destination.code : plan.departure.code;
  }
  if (IsSet(waypoint, "departure")) point.part = RowKind::sid;
  if (IsSet(waypoint, "arrival")) point.part = RowKind::star;
  return point;
}

double CruiseOf(pugi::xml_node cruise) {
  const double feet = NumberOf(Text(cruise, "altitude-ft")).value_or(0);
  return feet > 0 ? feet : NumberOf(Text(cruise, "flight-level")).value_or(0) * 100;
}

}  // namespace

ForeignPlan ReadFlightGearPlan(pugi::xml_node root) {
  const pugi::xml_node departure = root.child("departure");
  const pugi::xml_node destination = root.child("destination");
  ForeignPlan plan;
  plan.format = "FlightGear plan";
  plan.departure.code = Text(departure, "airport");
  plan.destination.code = Text(destination, "airport");
  plan.alternate.code = Text(root.child("alternate"), "airport");
  plan.start = Text(departure, "runway");
  plan.sid = Procedure(departure, "sid");
  plan.star = Procedure(destination, "star");
  if (Text(root, "flight-rules") == "V") plan.planType = "VFR";
  if (const std::string runway = Text(destination, "runway"); !runway.empty())
    plan.problems.Add("the landing runway " + runway + " is not taken");
  if (const std::string approach = Text(destination, "approach"); !approach.empty())
    plan.problems.Add("the approach " + approach + " is not taken");
  double highest = 0;
  for (const pugi::xml_node waypoint : root.child("route").children("wp")) {
    plan.points.push_back(PointOf(waypoint, plan));
    highest = std::max(highest, NumberOf(Text(waypoint, "altitude-ft")).value_or(0));
  }
  const double cruise = CruiseOf(root.child("cruise"));
  plan.cruiseFeet = cruise > 0 ? cruise : highest;
  return plan;
}
