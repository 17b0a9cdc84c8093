// The plan as a document (.xml) that a browser shows through its style sheet
// vlm.xsl: what the flight is, what its airports have, and its rows. Every
// element is written even if there is nothing in it. Positions are degrees,
// courses and runway headings true, lengths and altitudes feet, frequencies
// MHz (NDB: kHz), times hours and minutes.
#include <algorithm>
#include <array>
#include <span>
#include <string_view>

#include "base/code_page.h"
#include "base/numbers.h"
#include "flightplan/formats/export_rows.h"
#include "flightplan/formats/plan_writers.h"
#include "flightplan/formats/xml_style_sheet.h"
#include "flightplan/formats/xml_text.h"
#include "navdata/geodesy.h"

namespace {

constexpr std::string_view latPicture = "#0.000000";
constexpr std::string_view lonPicture = "##0.000000";
constexpr std::string_view megahertzPicture = "000.000";

// "39:49": hours do not wrap at the day.
std::string HoursAndMinutes(double minutes) {
  const std::int32_t whole = std::max(0, CutToInt(minutes));
  const std::int32_t hours = whole / 60;
  return FormatPicture(hours, "00") + ":" + FormatPicture(whole % 60, "00");
}

// Adds elements to one parent, all with the same beginning of their names.
class Elements {
 public:
  explicit Elements(pugi::xml_node parent, std::string prefix = {})
      : parent(parent), prefix(std::move(prefix)) {}

  void Text(std::string_view name, std::string_view text) {
    if (text.empty())
      parent.append_child(FullName(name).c_str());
    else
      AddText(parent, FullName(name).c_str(), text);
  }
  void Number(std::string_view name, double value, std::string_view picture) {
    Text(name, FormatPicture(value, picture));
  }
  Elements Group(std::string_view name, std::string groupPrefix = {}) {
    return Elements(parent.append_child(FullName(name).c_str()), std::move(groupPrefix));
  }

 private:
  std::string FullName(std::string_view name) const { return prefix + std::string(name); }

  pugi::xml_node parent;
  std::string prefix;
};

void AddFuel(Elements info, const PlanExport& plan) {
  Elements fuel = info.Group("fuel");
  const auto amount = [&](std::string_view name, auto FuelFigures::*gallons) {
    if (plan.fuel)
      fuel.Number(name, Conv((*plan.fuel).*gallons, plan.fuelUnit), "#####");
    else
      fuel.Text(name, "");
  };
  fuel.Text("fueltype", Trimmed(FuelUnitText(plan.fuelUnit)));
  amount("totalfuel", &FuelFigures::TotalFuel);
  amount("climbfuel", &FuelFigures::ClimbFuel);
  amount("cruisefuel", &FuelFigures::CruiseFuel);
  amount("descentfuel", &FuelFigures::DescentFuel);
  amount("approachfuel", &FuelFigures::ApproachFuel);
  amount("contingencyfuel", &FuelFigures::ContingencyFuel);
  amount("holdingfuel", &FuelFigures::HoldingFuel);
  amount("alternatefuel", &FuelFigures::AlternateFuel);
}

void AddGeneralInfo(Elements document, const PlanExport& plan) {
  Elements info = document.Group("generalinfo");
  info.Text("title", CodePageToUtf8(DepartureOf(plan).strCode.View()) + " to " +
                         CodePageToUtf8(DestinationOf(plan).strCode.View()));
  info.Text("fptype", plan.plan.PlanType);
  info.Text("routetype", std::to_string(static_cast<int>(plan.plan.RouteType)));
  info.Text("aircraft", plan.aircraft.Name);
  info.Text("cruisingalt", std::to_string(plan.plan.CruiseFL * 100LL));
  info.Number("distance", plan.plan.TotalDistance, "00000");
  info.Text("flighttime", HoursAndMinutes(plan.plan.TotalMinutes));
  info.Text("cruisingspeed", std::to_string(plan.aircraft.CruiseSpeed));
  AddFuel(info, plan);
}

// All frequencies of a kind in one element.
void AddFrequencies(Elements airport, const std::string& prefix, std::span<const FrequencyRec> frequencies) {
  constexpr std::array<std::string_view, 12> names = {"atis",      "multicom", "unicom",   "CTAF",
                                                      "ground",    "tower",    "delivery", "approach",
                                                      "departure", "center",   "FSS",      "AWOS"};
  Elements group = airport.Group("freq", prefix);
  for (std::size_t type = 1; type <= names.size(); ++type) {
    std::string text;
    for (const FrequencyRec& frequency : frequencies) {
      if (frequency.bytType != type) continue;
      text += (text.empty() ? "" : ", ") + FormatPicture(frequency.sngFrequency, megahertzPicture);
    }
    group.Text(names[type - 1], text);
  }
}

void AddIls(Elements airport, const IlsRec& ils) {
  Elements group = airport.Group("ils");
  group.Text("ilsname", CodePageToUtf8(ils.strName.View()));
  group.Text("ilscode", CodePageToUtf8(ils.strCode.View()));
  group.Text("ilsrwyid", CodePageToUtf8(ils.strRwyID.View()));
  group.Number("ilsfreq", ils.sngFrequency, megahertzPicture);
  group.Number("ilsglideangle", ils.sngILSGlideAngle, "0.0");
  group.Text("ilsrwylength", std::to_string(ils.lngRwyLength));
}

void AddRunwayEnd(Elements airport, const RunwayRec& runway, std::string_view id, double heading) {
  if (id.empty()) return;
  Elements group = airport.Group("rwy");
  group.Text("rwyid", CodePageToUtf8(id));
  group.Number("rwyheading", heading, "000");
  group.Text("rwylength", std::to_string(runway.intLength));
  group.Text("rwywidth", std::to_string(runway.intWidth));
}

struct AirportPlace {
  float lat, lon;
  const std::string* start = nullptr;  // the start position; null: not told
};

void AddAirport(Elements airports, const std::string& prefix, const PlanExport& plan,
                const AirportRec& airport, const AirportPlace& place) {
  Elements info = airports.Group(prefix + "info", prefix);
  info.Text("id", CodePageToUtf8(airport.strCode.View()));
  info.Number("lat", place.lat, latPicture);
  info.Number("lon", place.lon, lonPicture);
  info.Number("alt", airport.lngElevation, "000000.00");
  info.Number("magvar", airport.sngMagVar, "##0.0");
  if (place.start != nullptr) info.Text("position", *place.start);
  info.Text("name", CodePageToUtf8(airport.strName.View()));
  info.Text("city", CodePageToUtf8(airport.strCity.View()));
  info.Text("country", CodePageToUtf8(airport.strCountry.View()));
  info.Text("weather", "");
  AddFrequencies(info, prefix, plan.database.Frequencies(airport));
  for (const IlsRec& ils : plan.database.Ils(airport))
    AddIls(info, ils);
  for (const RunwayRec& runway : plan.database.Runways(airport)) {
    AddRunwayEnd(info, runway, runway.strRwyID.View(), runway.sngHeading);
    AddRunwayEnd(info, runway, runway.strRwyIDRecip.View(), NormalizeDeg(runway.sngHeading + 180));
  }
}

void AddAirportInfo(Elements document, const PlanExport& plan) {
  Elements airports = document.Group("airportinfo");
  AddAirport(airports, "departure", plan, DepartureOf(plan),
             {plan.plan.DepartureLat, plan.plan.DepartureLon, &plan.plan.DepartureID});
  AddAirport(airports, "destination", plan, DestinationOf(plan),
             {plan.plan.DestinationLat, plan.plan.DestinationLon});
  if (const AirportRec* alternate = AlternateOf(plan))
    AddAirport(airports, "alternate", plan, *alternate, {alternate->sngLat, alternate->sngLon});
  else
    airports.Group("alternateinfo");
}

std::string_view KindName(RowKind kind) {
  constexpr std::array<std::string_view, 5> names = {"departure", "enroute", "star", "sid", "destination"};
  return names[static_cast<std::size_t>(kind)];
}

// The airway's limits are in feet, empty where they are not known.
void AddWaypoint(Elements waypoints, const PlanWaypoint& row, int number) {
  const auto limit = [&](std::int32_t feet) {
    return row.HasAirway() && feet >= 0 ? std::to_string(feet) : std::string();
  };
  Elements info = waypoints.Group("waypoint");
  info.Text("wpnumber", std::to_string(number));
  info.Text("wpkind", KindName(row.Kind));
  info.Text("wptype", CodePageToUtf8(row.Sym.View()));
  info.Text("wpid", CodePageToUtf8(row.Code.View()));
  info.Text("wpname", CodePageToUtf8(row.Name.View()));
  info.Text("wpairway", row.HasAirway() ? CodePageToUtf8(row.Airway.View()) : std::string());
  info.Text("wpminalt", limit(row.AirwayMinAlt));
  info.Text("wpmaxalt", limit(row.AirwayMaxAlt));
  info.Text("wpfreq", row.Freq > 0 ? FormatPicture(row.Freq, megahertzPicture) : std::string());
  info.Number("wplat", row.Lat, latPicture);
  info.Number("wplon", row.Lon, lonPicture);
  info.Number("wpmagvar", row.MagVar, "##0.0");
  info.Number("wpcourse", row.Course, "000");
  info.Number("wpdistance", row.Dist, "##0.0");
  info.Text("wptime", HoursAndMinutes(row.EET));
}

void AddHead(pugi::xml_document& document) {
  pugi::xml_node declaration = document.append_child(pugi::node_declaration);
  declaration.append_attribute("version") = "1.0";
  declaration.append_attribute("encoding") = "UTF-8";
  pugi::xml_node sheet = document.append_child(pugi::node_pi);
  sheet.set_name("xml-stylesheet");
  sheet.set_value(("type=\"text/xsl\" href=\"" + std::string(xmlStyleSheetName) + "\"").c_str());
}

}  // namespace

std::string WriteXmlPlan(const PlanExport& plan) {
  pugi::xml_document document;
  AddHead(document);
  Elements flightplan(document.append_child("flightplan"));
  flightplan.Text("descr", "Flight plan created by Velmora");
  AddGeneralInfo(flightplan, plan);
  AddAirportInfo(flightplan, plan);
  Elements waypoints = flightplan.Group("waypointinfo");
  int number = 0;
  for (const PlanWaypoint* row : RowsWithAirports(plan))
    AddWaypoint(waypoints, *row, number++);
  return XmlText(document);
}
