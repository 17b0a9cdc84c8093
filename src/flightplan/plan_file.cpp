#include "flightplan/plan_file.h"

#include <stdexcept>
#include <string_view>

#include "base/code_page.h"
#include "base/numbers.h"
#include "flightplan/waypoint_line.h"
#include "navdata/geodesy.h"

namespace {

constexpr std::string_view lineEnd = "\r\n";

const AirportRec& Airport(const NavDatabase& database, std::int32_t row) {
  if (row < 0 || static_cast<std::size_t>(row) >= database.airports.size()) {
    throw std::logic_error("the flight plan has no departure or destination");
  }
  return database.airports[static_cast<std::size_t>(row)];
}

std::string SignedAltitude(double feet) {
  const std::string digits = FormatPicture(feet, "000000.00");
  return digits.starts_with('-') ? digits : "+" + digits;
}

class PlanWriter {
 public:
  PlanWriter(const FlightPlan& plan, const NavDatabase& database)
      : plan(plan),
        departure(Airport(database, plan.DepartureIndex)),
        destination(Airport(database, plan.DestinationIndex)),
        alternate(plan.AlternateIndex >= 0 ? &Airport(database, plan.AlternateIndex) : nullptr) {}

  void WriteSimulatorPart() {
    const std::string from = departure.strCode.Text();
    const std::string to = destination.strCode.Text();
    Line("[Flightplan]");
    Line("AppVersion=9.1.40901");
    Line("title=" + from + " to " + to);
    Line("description=" + from + ", " + to);
    Line("type=" + plan.PlanType);
    Line("routetype=" + std::to_string(static_cast<int>(plan.RouteType)));
    Line("cruising_altitude=" + std::to_string(plan.CruiseFL * 100LL));
    Line("departure_id=" + from + ", " + FormatPlanLat(plan.DepartureLat) + FormatPlanLon(plan.DepartureLon) +
         SignedAltitude(departure.lngElevation));
    Line("departure_position=" + AsciiUpper(Utf8ToCodePage(plan.DepartureID)));
    Line("destination_id=" + to + ", " + FormatPlanLat(plan.DestinationLat) +
         FormatPlanLon(plan.DestinationLon) + SignedAltitude(destination.lngElevation));
    Line("departure_name=" + departure.strName.Text());
    Line("destination_name=" + destination.strName.Text());
    if (alternate != nullptr) Line("alternate_name=" + alternate->strName.Text());
    for (int i = 0; i < plan.RowCount(); ++i)
      Line("waypoint." + std::to_string(i) + Waypoint(plan.Row(i)));
  }

  void WriteNativePart() {
    Line("");
    Line("[VLM]");
    Line("DepartAPCode=" + std::string(departure.strCode.Raw()));
    Line("DepartNum=" + std::to_string(plan.DepartureNum));
    Line("DepartID=" + Utf8ToCodePage(plan.DepartureID));
    Line("DepartType=" + (plan.DepartureType.empty() ? "Rwy" : plan.DepartureType));
    Line("DestAPCode=" + std::string(destination.strCode.Raw()));
    Line("RouteType=" + std::to_string(static_cast<int>(plan.RouteType)));
    Line("SID=" + Utf8ToCodePage(plan.SidName));
    Line("STAR=" + Utf8ToCodePage(plan.StarName));
    for (int i = 1; i < plan.DestinationRow(); ++i)
      Line("WP=" + std::to_string(i) + "," + WaypointFields(plan.Row(i)));
  }

  std::string TakeText() { return std::move(text); }

 private:
  void Line(std::string_view line) {
    text += line;
    text += lineEnd;
  }

  std::string Waypoint(const PlanWaypoint& row) const {
    const std::string code = row.Code.Text();
    const std::string place = FormatPlanLat(row.Lat) + FormatPlanLon(row.Lon);
    if (row.Kind == RowKind::departure || row.Kind == RowKind::destination) {
      const AirportRec& airport = row.Kind == RowKind::departure ? departure : destination;
      return "=, " + code + ", , " + code + ", A, " + place + SignedAltitude(airport.lngElevation) + ",";
    }
    const std::string behind = place + "+000000.00,";
    if (row.Sym == "NDB") return "=KK, " + code + ",  , " + code + ", N, " + behind;
    if (row.Sym == "VOR") return "=KK, " + code + ", , " + code + ", V, " + behind;
    return "=KK, " + code + ", , " + code + ",  I, " + behind;
  }

  const FlightPlan& plan;
  const AirportRec& departure;
  const AirportRec& destination;
  const AirportRec* alternate;
  std::string text;
};

}  // namespace

std::string WritePlan(const FlightPlan& plan, const NavDatabase& database, PlanFormat format) {
  PlanWriter writer(plan, database);
  writer.WriteSimulatorPart();
  if (format == PlanFormat::FS) writer.WriteNativePart();
  return writer.TakeText();
}
