// The plan of X-Plane up to version 10 (.fms, version 3 of the file): the
// number of rows, then each with its kind (1 airport, 2 NDB, 3 VOR, 11 any
// other), ident, altitude (none ordered) and position. The simulator tells the
// fields apart by their blanks: an ident of the pilot's own has "_" for its.
//
//   3 FFM 0 50.046875 8.640625
#include <algorithm>

#include "base/numbers.h"
#include "flightplan/formats/export_rows.h"
#include "flightplan/formats/plain_text.h"
#include "flightplan/formats/plan_writers.h"
#include "flightplan/formats/route_points.h"

namespace {

std::string_view KindNumber(const PlanWaypoint& row) {
  if (IsAirportRow(row)) return "1 ";
  if (row.Sym == "VOR") return "3 ";
  return row.Sym == "NDB" ? "2 " : "11 ";
}

std::string OneWord(std::string word) {
  std::replace(word.begin(), word.end(), ' ', '_');
  return word;
}

}  // namespace

std::string WriteXPlane3Plan(const PlanExport& plan) {
  const std::vector<const PlanWaypoint*> rows = RowsWithAirports(plan);
  std::string text;
  AddLine(text, "I");
  AddLine(text, "3 version");
  AddLine(text, "0");
  AddLine(text, std::to_string(rows.size()));
  for (const PlanWaypoint* row : rows) {
    std::string line(KindNumber(*row));
    line += OneWord(row->Code.Text()) + " 0 ";
    line += FormatPicture(row->Lat, "#0.000000") + " " + FormatPicture(row->Lon, "##0.000000");
    AddLine(text, line);
  }
  return text;
}
