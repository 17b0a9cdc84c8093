// GPX 1.1: the plan as one route. Heights are metres: the airports' elevations,
// and the cruise altitude at the points between them.
#include "base/code_page.h"
#include "base/numbers.h"
#include "flightplan/formats/plan_time.h"
#include "flightplan/formats/plan_writers.h"
#include "flightplan/formats/route_points.h"
#include "flightplan/formats/xml_text.h"

namespace {

double HeightOf(const PlanExport& plan, const PlanWaypoint& row) {
  if (row.Kind == RowKind::departure) return DepartureOf(plan).lngElevation;
  if (row.Kind == RowKind::destination) return DestinationOf(plan).lngElevation;
  return CruiseFeet(plan.plan);
}

void AddPoint(pugi::xml_node route, const PlanExport& plan, const PlanWaypoint& row) {
  pugi::xml_node point = route.append_child("rtept");
  point.append_attribute("lat").set_value(FormatPicture(row.Lat, "0.000000").c_str());
  point.append_attribute("lon").set_value(FormatPicture(row.Lon, "0.000000").c_str());
  AddText(point, "ele", FormatPicture(HeightOf(plan, row) * metresPerFoot, "0.0"));
  AddText(point, "name", CodeOf(row));
  AddText(point, "desc", CodePageToUtf8(row.Name.View()));
  AddText(point, "type", KindName(KindOf(row)));
}

}  // namespace

std::string WriteGpxPlan(const PlanExport& plan) {
  pugi::xml_document document;
  AddXmlDeclaration(document);
  pugi::xml_node root = document.append_child("gpx");
  root.append_attribute("version").set_value("1.1");
  root.append_attribute("creator").set_value("Velmora");
  root.append_attribute("xmlns").set_value("http://www.topografix.com/GPX/1/1");
  AddText(root.append_child("metadata"), "time", TimeText(plan.now));
  pugi::xml_node route = root.append_child("rte");
  AddText(route, "name",
          CodePageToUtf8(DepartureOf(plan).strCode.View()) + " to " +
              CodePageToUtf8(DestinationOf(plan).strCode.View()));
  for (const PlanWaypoint& row : plan.plan.rows)
    AddPoint(route, plan, row);
  return XmlText(document);
}
