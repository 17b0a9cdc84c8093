// X-Plane 11 and 12: the text plan of version 1100.
//
//   I
//   1100 Version
//   CYCLE 2601
//   ADEP EDDF
//   DEPRWY RW07
//   SID DEMAB5N
//   ADES EDDM
//   NUMENR 3
//   1 EDDF ADEP 364.000000 50.031250 8.562500
//   11 DINKU UL607 25000.000000 49.203125 10.250000     type, ident, airway, feet, position
//   1 EDDM ADES 1487.000000 48.343750 11.781250
//
// A procedure is its name: the simulator has its points, only the one where it
// meets the route is listed.
#include <cstdlib>

#include "base/code_page.h"
#include "base/numbers.h"
#include "flightplan/formats/plan_writers.h"
#include "flightplan/formats/route_points.h"

namespace {

int TypeNumber(PointKind kind) {
  switch (kind) {
    case PointKind::airport:
      return 1;
    case PointKind::ndb:
      return 2;
    case PointKind::vor:
      return 3;
    case PointKind::user:
      return 28;
    default:
      return 11;
  }
}

std::string Signed(double value, const char* picture) {
  const std::string digits = FormatPicture(value, picture);
  return digits.starts_with('-') ? digits : "+" + digits;
}

// One word: a position without a name is called by its degrees.
std::string IdentOf(const PlanWaypoint& row) {
  std::string code = CodeOf(row);
  const bool oneWord = code.find(' ') == std::string::npos;
  if (oneWord && !code.empty() && !IsNamelessPosition(code)) return code;
  return Signed(row.Lat, "00.000") + "_" + Signed(row.Lon, "000.000");
}

bool IsListed(const FlightPlan& plan, int i) {
  const RowKind kind = plan.Row(i).Kind;
  if (kind == RowKind::sid && !plan.SidName.empty()) return plan.Row(i + 1).Kind != RowKind::sid;
  if (kind == RowKind::star && !plan.StarName.empty()) return plan.Row(i - 1).Kind != RowKind::star;
  return true;
}

std::string Line(const PlanWaypoint& row, const std::string& via, double feet) {
  return std::to_string(TypeNumber(KindOf(row))) + " " + IdentOf(row) + " " + via + " " +
         FormatPicture(feet, "0.000000") + " " + FormatPicture(row.Lat, "0.000000") + " " +
         FormatPicture(row.Lon, "0.000000") + "\n";
}

std::string RouteLine(const PlanExport& plan, const PlanWaypoint& row) {
  if (row.Kind == RowKind::departure) return Line(row, "ADEP", DepartureOf(plan).lngElevation);
  if (row.Kind == RowKind::destination) return Line(row, "ADES", DestinationOf(plan).lngElevation);
  const double feet = row.Kind == RowKind::enroute ? CruiseFeet(plan.plan) : 0;
  return Line(row, row.HasAirway() ? AirwayOf(row) : "DRCT", feet);
}

std::string ProcedureLines(const std::string& key, const std::string& procedure) {
  if (procedure.empty()) return {};
  const auto [name, transition] = PartsOf(procedure);
  return key + " " + name + "\n" + (transition.empty() ? "" : key + "TRANS " + transition + "\n");
}

}  // namespace

std::string WriteXPlane11Plan(const PlanExport& plan) {
  const FlightPlan& own = plan.plan;
  std::string text = "I\n1100 Version\nCYCLE " + FourDigitCycle(plan) + "\nADEP " +
                     CodePageToUtf8(DepartureOf(plan).strCode.View()) + "\n";
  if (const std::string runway = StartRunway(own); !runway.empty()) text += "DEPRWY RW" + runway + "\n";
  text += ProcedureLines("SID", own.SidName);
  text += "ADES " + CodePageToUtf8(DestinationOf(plan).strCode.View()) + "\n";
  text += ProcedureLines("STAR", own.StarName);
  int listed = 0;
  std::string rows;
  for (int i = 0; i < own.RowCount(); ++i) {
    if (!IsListed(own, i)) continue;
    rows += RouteLine(plan, own.Row(i));
    ++listed;
  }
  return text + "NUMENR " + std::to_string(listed) + "\n" + rows;
}
