// Garmin: a table of points and the route through it, by identifier and kind.
#include <map>
#include <tuple>

#include "flightplan/formats/foreign_readers.h"
#include "flightplan/formats/foreign_text.h"

namespace {

using PointKey = std::tuple<std::string, std::string, std::string>;  // identifier, type, country

std::string Text(pugi::xml_node node, const char* name) {
  return std::string(Stripped(node.child_value(name)));
}

PointKind KindOfType(const std::string& type) {
  if (type == "AIRPORT") return PointKind::airport;
  if (type == "VOR") return PointKind::vor;
  if (type == "NDB") return PointKind::ndb;
  return type == "USER WAYPOINT" ? PointKind::user : PointKind::intersection;
}

std::map<PointKey, ForeignPoint> ReadTable(pugi::xml_node table) {
  std::map<PointKey, ForeignPoint> points;
  for (const pugi::xml_node node : table.children("waypoint")) {
    const PointKey key{Text(node, "identifier"), Text(node, "type"), Text(node, "country-code")};
    ForeignPoint point;
    point.code = std::get<0>(key);
    point.kind = KindOfType(std::get<1>(key));
    point.region = std::get<2>(key);
    point.name = Text(node, "comment");
    point.place = PlaceOf(NumberOf(Text(node, "lat")), NumberOf(Text(node, "lon")));
    points.emplace(key, std::move(point));
  }
  return points;
}

}  // namespace

ForeignPlan ReadGarminPlan(pugi::xml_node root) {
  ForeignPlan plan;
  plan.format = "Garmin plan";
  const std::map<PointKey, ForeignPoint> table = ReadTable(root.child("waypoint-table"));
  const pugi::xml_node route = root.child("route");
  for (const pugi::xml_node node : route.children("route-point")) {
    const PointKey key{Text(node, "waypoint-identifier"), Text(node, "waypoint-type"),
                       Text(node, "waypoint-country-code")};
    const auto at = table.find(key);
    if (at != table.end()) {
      plan.points.push_back(at->second);
    } else {
      plan.problems.Add(std::get<0>(key) + " is not in the file's table of points; it is left out");
    }
  }
  if (route.next_sibling("route")) plan.problems.Add("the file has more than one route; the first is taken");
  return plan;
}
