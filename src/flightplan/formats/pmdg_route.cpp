// The route of the PMDG airliners (.rte), one value a line: a line of the
// writer's own, the number of rows, then for every row a block that ends with
// an empty line. An airport's block has its elevation, and of the runway only
// that none is chosen; every other row is reached directly, so that the route
// does not hang on the airliner's own edition of the airways.
//
//   EDDF                          FFM
//   1                             5
//   DIRECT                        DIRECT
//   1 N 50.0313 E 8.5625 364      1 N 50.0469 E 8.6406 0
//   -----                         0
//   1 (departure) or 0            0
//   0                             0
//
//   1
//   364
//   -
//   -1000000
//   -1000000
#include <cmath>

#include "base/fixed_text.h"
#include "base/numbers.h"
#include "flightplan/formats/export_rows.h"
#include "flightplan/formats/plain_text.h"
#include "flightplan/formats/plan_writers.h"

namespace {

std::string PlaceLine(const PlanWaypoint& row, std::int32_t elevation) {
  return (row.Lat < 0 ? "1 S " : "1 N ") + FormatPicture(std::fabs(row.Lat), "#0.0000") +
         (row.Lon < 0 ? " W " : " E ") + FormatPicture(std::fabs(row.Lon), "##0.0000") + " " +
         std::to_string(elevation);
}

void AddLines(std::string& text, std::initializer_list<std::string_view> lines) {
  for (const std::string_view line : lines)
    AddLine(text, line);
}

void AddAirport(std::string& text, const PlanWaypoint& row, const AirportRec& airport) {
  const bool departure = row.Kind == RowKind::departure;
  AddLines(text, {airport.strCode.View(), "1", departure ? "DIRECT" : "-",
                  PlaceLine(row, airport.lngElevation), "-----", departure ? "1" : "0", "0", "", "1",
                  std::to_string(airport.lngElevation), "-", "-1000000", "-1000000", ""});
}

// The airliner's idents are capitals without blanks: "FIX01".
std::string Ident(const PlanWaypoint& row) {
  std::string ident;
  for (const char c : row.Code.View())
    if (c != ' ') ident += AsciiUpper(c);
  return ident;
}

}  // namespace

std::string WritePmdgRoute(const PlanExport& plan) {
  const std::vector<const PlanWaypoint*> rows = RowsBetween(plan);
  std::string text;
  AddLines(text, {"Generated and exported by Velmora \xb7 Version 8.6 \xb7 Build:010810", "",
                  std::to_string(rows.size() + 2), ""});
  AddAirport(text, plan.plan.rows.front(), DepartureOf(plan));
  for (const PlanWaypoint* row : rows)
    AddLines(text, {Ident(*row), "5", "DIRECT", PlaceLine(*row, 0), "0", "0", "0", ""});
  AddAirport(text, plan.plan.rows.back(), DestinationOf(plan));
  return text;
}
