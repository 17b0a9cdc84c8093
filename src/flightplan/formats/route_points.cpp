#include "flightplan/formats/route_points.h"

#include <algorithm>

#include "base/code_page.h"
#include "base/numbers.h"

namespace {

struct NamedKind {
  PointKind kind;
  const char* name;
};
constexpr NamedKind namedKinds[] = {{PointKind::airport, "Airport"},
                                    {PointKind::vor, "VOR"},
                                    {PointKind::ndb, "NDB"},
                                    {PointKind::intersection, "Intersection"},
                                    {PointKind::user, "User"}};

bool IsDigit(char c) {
  return c >= '0' && c <= '9';
}

// A cycle lasts 28 days; the first of 2020 began on January 2nd.
std::string CycleOfDay(std::chrono::sys_days day) {
  using namespace std::chrono;
  constexpr sys_days firstOf2020 = sys_days{year{2020} / 1 / 2};
  constexpr int cycleDays = 28;
  const int sinceFirst = std::max(0, static_cast<int>((day - firstOf2020).count()));
  const sys_days begin = firstOf2020 + days{sinceFirst / cycleDays * cycleDays};
  const year_month_day date{begin};
  const int dayOfYear = static_cast<int>((begin - sys_days{date.year() / 1 / 1}).count());
  const int number = dayOfYear / cycleDays + 1;
  return FormatPicture(static_cast<int>(date.year()) % 100, "00") + FormatPicture(number, "00");
}

}  // namespace

const char* KindName(PointKind kind) {
  for (const NamedKind& named : namedKinds)
    if (named.kind == kind) return named.name;
  return "";
}

PointKind KindNamed(std::string_view name) {
  for (const NamedKind& named : namedKinds)
    if (EqualNoCase(name, named.name)) return named.kind;
  return PointKind::unknown;
}

bool IsNamelessPosition(std::string_view code) {
  if (code.size() < 4 || !EqualNoCase(code.substr(0, 3), "Fix")) return false;
  const std::string_view number = Trimmed(code.substr(code[3] == '_' ? 4 : 3));
  return !number.empty() && std::all_of(number.begin(), number.end(), IsDigit);
}

bool IsUserPosition(const PlanWaypoint& row) {
  const std::string_view code = row.Code.View();
  return row.Sym == "Uwp" || (code.starts_with("Fix ") && IsNamelessPosition(code));
}

bool IsAirportRow(const PlanWaypoint& row) {
  return row.Kind == RowKind::departure || row.Kind == RowKind::destination;
}

PointKind KindOf(const PlanWaypoint& row) {
  if (IsAirportRow(row)) return PointKind::airport;
  if (row.Sym == "VOR") return PointKind::vor;
  if (row.Sym == "NDB") return PointKind::ndb;
  return IsUserPosition(row) ? PointKind::user : PointKind::intersection;
}

std::string CodeOf(const PlanWaypoint& row) {
  return CodePageToUtf8(row.Code.View());
}

std::string AirwayOf(const PlanWaypoint& row) {
  return row.HasAirway() ? CodePageToUtf8(row.Airway.View()) : std::string();
}

std::string RegionOf(const PlanWaypoint& row, const NavDatabase& database) {
  const auto at = static_cast<std::size_t>(row.DbIndex);
  if (row.Sym != "Int" || row.DbIndex < 0 || at >= database.intersections.size()) return {};
  return CodePageToUtf8(database.intersections[at].strRegion.View());
}

std::string StartRunway(const FlightPlan& plan) {
  if (plan.DepartureType == "Gate" || plan.DepartureID.empty() || !IsDigit(plan.DepartureID.front()))
    return {};
  const bool oneDigit = plan.DepartureID.size() < 2 || !IsDigit(plan.DepartureID[1]);
  return (oneDigit ? "0" : "") + AsciiUpper(plan.DepartureID);
}

ProcedureName PartsOf(std::string_view procedure) {
  const std::size_t dot = procedure.find('.');
  if (dot == std::string_view::npos) return {std::string(procedure), {}};
  return {std::string(procedure.substr(0, dot)), std::string(procedure.substr(dot + 1))};
}

int CruiseFeet(const FlightPlan& plan) {
  return plan.CruiseFL * 100;
}

std::string FourDigitCycle(const PlanExport& plan) {
  if (!plan.airacCycle.empty()) return plan.airacCycle;
  return CycleOfDay(std::chrono::floor<std::chrono::days>(plan.now));
}
