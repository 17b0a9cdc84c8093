// Garmin flight plan, version 1: a table of the points and a route through it.
// A point is known by its identifier, kind and country: where the plan has two
// of one name, the second goes as a point of the user's with a number behind.
#include <algorithm>
#include <vector>

#include "base/code_page.h"
#include "base/numbers.h"
#include "flightplan/formats/plan_time.h"
#include "flightplan/formats/plan_writers.h"
#include "flightplan/formats/route_points.h"
#include "flightplan/formats/xml_text.h"

namespace {

struct GarminPoint {
  std::string identifier;
  std::string type;
  std::string country;
  Position place;
  std::string comment;

  bool IsSame(const GarminPoint& other) const { return IsNamed(other) && place == other.place; }
  bool IsNamed(const GarminPoint& other) const {
    return identifier == other.identifier && type == other.type && country == other.country;
  }
};

const char* TypeName(PointKind kind) {
  switch (kind) {
    case PointKind::airport:
      return "AIRPORT";
    case PointKind::vor:
      return "VOR";
    case PointKind::ndb:
      return "NDB";
    case PointKind::user:
      return "USER WAYPOINT";
    default:
      return "INT";
  }
}

// Capitals and digits only, at most twelve.
std::string PlainIdentifier(std::string_view code) {
  constexpr std::size_t longest = 12;
  std::string plain;
  for (const char c : AsciiUpper(code))
    if ((c >= '0' && c <= '9') || (c >= 'A' && c <= 'Z')) plain += c;
  return plain.empty() ? "WP" : plain.substr(0, longest);
}

GarminPoint PointOf(const PlanWaypoint& row, const NavDatabase& database) {
  return {PlainIdentifier(row.Code.View()),
          TypeName(KindOf(row)),
          RegionOf(row, database),
          {row.Lat, row.Lon},
          CodePageToUtf8(row.Name.View())};
}

// The point's place in the table; it is added if it is not there.
std::size_t TakePoint(std::vector<GarminPoint>& table, GarminPoint point) {
  const std::string name = point.identifier;
  for (int number = 2;; ++number) {
    const auto same =
        std::find_if(table.begin(), table.end(), [&](const auto& p) { return p.IsSame(point); });
    if (same != table.end()) return static_cast<std::size_t>(same - table.begin());
    if (std::none_of(table.begin(), table.end(), [&](const auto& p) { return p.IsNamed(point); })) break;
    point.identifier = name + std::to_string(number);
    point.type = TypeName(PointKind::user);
    point.country.clear();
  }
  table.push_back(std::move(point));
  return table.size() - 1;
}

void AddTableEntry(pugi::xml_node parent, const GarminPoint& point) {
  pugi::xml_node node = parent.append_child("waypoint");
  AddText(node, "identifier", point.identifier);
  AddText(node, "type", point.type);
  AddText(node, "country-code", point.country);
  AddText(node, "lat", FormatPicture(point.place.lat, "0.000000"));
  AddText(node, "lon", FormatPicture(point.place.lon, "0.000000"));
  AddText(node, "comment", point.comment);
}

void AddRoutePoint(pugi::xml_node route, const GarminPoint& point) {
  pugi::xml_node node = route.append_child("route-point");
  AddText(node, "waypoint-identifier", point.identifier);
  AddText(node, "waypoint-type", point.type);
  AddText(node, "waypoint-country-code", point.country);
}

}  // namespace

std::string WriteGarminPlan(const PlanExport& plan) {
  std::vector<GarminPoint> table;
  std::vector<std::size_t> way;
  for (const PlanWaypoint& row : plan.plan.rows)
    way.push_back(TakePoint(table, PointOf(row, plan.database)));
  pugi::xml_document document;
  AddXmlDeclaration(document);
  pugi::xml_node root = document.append_child("flight-plan");
  root.append_attribute("xmlns").set_value("http://www8.garmin.com/xmlschemas/FlightPlan/v1");
  AddText(root, "created", TimeText(plan.now));
  pugi::xml_node points = root.append_child("waypoint-table");
  for (const GarminPoint& point : table)
    AddTableEntry(points, point);
  pugi::xml_node route = root.append_child("route");
  AddText(route, "route-name",
          PlainIdentifier(DepartureOf(plan).strCode.View()) + "/" +
              PlainIdentifier(DestinationOf(plan).strCode.View()));
  AddText(route, "flight-plan-index", "1");
  for (const std::size_t at : way)
    AddRoutePoint(route, table[at]);
  return XmlText(document);
}
