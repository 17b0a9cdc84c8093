// FlightGear: the route manager's property list, version 2. All of the plan
// finds its place in it.
#include "base/code_page.h"
#include "base/numbers.h"
#include "flightplan/formats/plan_writers.h"
#include "flightplan/formats/route_points.h"
#include "flightplan/formats/xml_text.h"

namespace {

void Add(pugi::xml_node parent, const char* name, const char* type, const std::string& text) {
  AddText(parent, name, text).append_attribute("type").set_value(type);
}

// How the route manager tells the networks of an airway apart.
const char* NetworkNumber(const PlanWaypoint& row) {
  constexpr int highFrom = 18000;
  if (row.Level == "V") return "1";
  return row.Level == "J" || row.AirwayMinAlt >= highFrom ? "2" : "1";
}

void AddKind(pugi::xml_node point, const PlanWaypoint& row) {
  if (row.Kind == RowKind::departure || row.Kind == RowKind::sid) Add(point, "departure", "bool", "true");
  if (row.Kind == RowKind::destination || row.Kind == RowKind::star) Add(point, "arrival", "bool", "true");
}

void AddPoint(pugi::xml_node route, const PlanExport& plan, const PlanWaypoint& row, int number) {
  pugi::xml_node point = route.append_child("wp");
  point.append_attribute("n").set_value(number);
  const std::string runway = row.Kind == RowKind::departure ? StartRunway(plan.plan) : std::string();
  const char* type = !runway.empty() ? "runway" : KindOf(row) == PointKind::user ? "basic" : "navaid";
  Add(point, "type", "string", type);
  AddKind(point, row);
  if (row.HasAirway()) {
    Add(point, "airway", "string", AirwayOf(row));
    Add(point, "network", "int", NetworkNumber(row));
  }
  Add(point, "ident", "string", runway.empty() ? CodeOf(row) : runway);
  if (!runway.empty()) Add(point, "icao", "string", CodeOf(row));
  Add(point, "lon", "double", FormatPicture(row.Lon, "0.000000"));
  Add(point, "lat", "double", FormatPicture(row.Lat, "0.000000"));
}

pugi::xml_node AddAirport(pugi::xml_node root, const char* name, const AirportRec& airport) {
  pugi::xml_node node = root.append_child(name);
  Add(node, "airport", "string", CodePageToUtf8(airport.strCode.View()));
  return node;
}

void AddProcedure(pugi::xml_node airport, const char* key, const std::string& procedure) {
  if (procedure.empty()) return;
  const auto [name, transition] = PartsOf(procedure);
  Add(airport, key, "string", name);
  if (!transition.empty()) Add(airport, "transition", "string", transition);
}

}  // namespace

std::string WriteFlightGearPlan(const PlanExport& plan) {
  const FlightPlan& own = plan.plan;
  pugi::xml_document document;
  AddXmlDeclaration(document);
  pugi::xml_node root = document.append_child("PropertyList");
  Add(root, "version", "int", "2");
  Add(root, "flight-rules", "string", own.PlanType == "VFR" ? "V" : "I");
  Add(root, "estimated-duration-minutes", "int", std::to_string(own.TotalMinutes));
  pugi::xml_node departure = AddAirport(root, "departure", DepartureOf(plan));
  if (const std::string runway = StartRunway(own); !runway.empty())
    Add(departure, "runway", "string", runway);
  AddProcedure(departure, "sid", own.SidName);
  pugi::xml_node destination = AddAirport(root, "destination", DestinationOf(plan));
  AddProcedure(destination, "star", own.StarName);
  if (const AirportRec* alternate = AlternateOf(plan)) AddAirport(root, "alternate", *alternate);
  pugi::xml_node cruise = root.append_child("cruise");
  Add(cruise, "altitude-ft", "int", std::to_string(CruiseFeet(own)));
  pugi::xml_node route = root.append_child("route");
  for (int i = 0; i < own.RowCount(); ++i)
    AddPoint(route, plan, own.Row(i), i);
  return XmlText(document);
}
