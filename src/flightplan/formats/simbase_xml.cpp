#include "flightplan/formats/simbase_xml.h"

#include <cmath>

#include "base/code_page.h"
#include "base/numbers.h"
#include "flightplan/formats/route_points.h"
#include "flightplan/formats/xml_text.h"

namespace {

// Degrees, minutes and seconds, rounded once to a hundredth of a second.
std::string Angle(double degrees, char positive, char negative) {
  const long long hundredths = std::llround(std::abs(degrees) * 360000);
  return (degrees < 0 ? negative : positive) + std::to_string(hundredths / 360000) + "\xc2\xb0 " +
         std::to_string(hundredths / 6000 % 60) + "' " +
         FormatPicture(static_cast<double>(hundredths % 6000) / 100, "0.00") + "\"";
}

// Direct plans name no type.
const char* RouteTypeName(RouteKind kind) {
  switch (kind) {
    case RouteKind::navaid:
      return "VOR";
    case RouteKind::lowAltitude:
      return "LowAlt";
    case RouteKind::highAltitude:
      return "HighAlt";
    default:
      return "";
  }
}

void AddRunway(pugi::xml_node waypoint, const std::string& runway) {
  if (runway.empty()) return;
  AddText(waypoint, "RunwayNumberFP", runway.substr(0, 2));
  const char side = runway.size() > 2 ? runway[2] : ' ';
  if (side == 'L') AddText(waypoint, "RunwayDesignatorFP", "LEFT");
  if (side == 'C') AddText(waypoint, "RunwayDesignatorFP", "CENTER");
  if (side == 'R') AddText(waypoint, "RunwayDesignatorFP", "RIGHT");
}

void AddProcedure(pugi::xml_node waypoint, const FlightPlan& plan, const PlanWaypoint& row) {
  const std::string runway = StartRunway(plan);
  if (row.Kind == RowKind::sid && !plan.SidName.empty()) {
    AddText(waypoint, "DepartureFP", PartsOf(plan.SidName).name);
    AddRunway(waypoint, runway);
  } else if (row.Kind == RowKind::star && !plan.StarName.empty()) {
    AddText(waypoint, "ArrivalFP", PartsOf(plan.StarName).name);
  } else if (row.Kind == RowKind::departure) {
    AddRunway(waypoint, runway);
  }
}

double ElevationOf(const PlanExport& plan, const PlanWaypoint& row) {
  if (row.Kind == RowKind::departure) return DepartureOf(plan).lngElevation;
  if (row.Kind == RowKind::destination) return DestinationOf(plan).lngElevation;
  return 0;
}

void AddWaypoint(pugi::xml_node parent, const PlanExport& plan, const PlanWaypoint& row,
                 const SimBaseFlavour& flavour) {
  const std::string code = CodeOf(row);
  const PointKind kind = KindOf(row);
  pugi::xml_node waypoint = parent.append_child("ATCWaypoint");
  waypoint.append_attribute("id").set_value(code.c_str());
  AddText(waypoint, "ATCWaypointType", KindName(kind));
  AddText(waypoint, "WorldPosition", SimBasePosition(row.Lat, row.Lon, ElevationOf(plan, row)));
  if (row.HasAirway()) AddText(waypoint, "ATCAirway", AirwayOf(row));
  if (flavour.procedures) AddProcedure(waypoint, plan.plan, row);
  if (kind == PointKind::user) return;
  pugi::xml_node icao = waypoint.append_child("ICAO");
  const std::string region = RegionOf(row, plan.database);
  if (!region.empty()) AddText(icao, "ICAORegion", region);
  AddText(icao, "ICAOIdent", code);
}

void AddHeader(pugi::xml_node node, const PlanExport& plan, const SimBaseFlavour& flavour) {
  const FlightPlan& own = plan.plan;
  const AirportRec& from = DepartureOf(plan);
  const AirportRec& to = DestinationOf(plan);
  const std::string fromCode = CodePageToUtf8(from.strCode.View());
  const std::string toCode = CodePageToUtf8(to.strCode.View());
  AddText(node, "Title", fromCode + " to " + toCode);
  AddText(node, "FPType", own.PlanType);
  if (const char* type = RouteTypeName(own.RouteType); *type != '\0') AddText(node, "RouteType", type);
  AddText(node, "CruisingAlt", FormatPicture(CruiseFeet(own), flavour.cruisePicture));
  AddText(node, "DepartureID", fromCode);
  AddText(node, "DepartureLLA", SimBasePosition(own.DepartureLat, own.DepartureLon, from.lngElevation));
  AddText(node, "DestinationID", toCode);
  AddText(node, "DestinationLLA", SimBasePosition(own.DestinationLat, own.DestinationLon, to.lngElevation));
  AddText(node, "Descr", fromCode + ", " + toCode);
  if (!own.DepartureID.empty()) AddText(node, "DeparturePosition", own.DepartureID);
  AddText(node, "DepartureName", CodePageToUtf8(from.strName.View()));
  AddText(node, "DestinationName", CodePageToUtf8(to.strName.View()));
  pugi::xml_node version = node.append_child("AppVersion");
  AddText(version, "AppVersionMajor", std::to_string(flavour.versionMajor));
  AddText(version, "AppVersionBuild", std::to_string(flavour.versionBuild));
}

}  // namespace

std::string SimBasePosition(double lat, double lon, double feet) {
  return Angle(lat, 'N', 'S') + "," + Angle(lon, 'E', 'W') + "," + (feet < 0 ? "" : "+") +
         FormatPicture(feet, "000000.00");
}

std::string SimBaseText(const PlanExport& plan, const SimBaseFlavour& flavour) {
  pugi::xml_document document;
  AddXmlDeclaration(document);
  pugi::xml_node root = document.append_child("SimBase.Document");
  root.append_attribute("Type").set_value("AceXML");
  root.append_attribute("version").set_value("1,0");
  AddText(root, "Descr", "AceXML Document");
  pugi::xml_node flight = root.append_child("FlightPlan.FlightPlan");
  AddHeader(flight, plan, flavour);
  for (const PlanWaypoint& row : plan.plan.rows)
    AddWaypoint(flight, plan, row, flavour);
  return XmlText(document);
}
