// The plan of the iFly 747-400 (.fltplan): both airports, then one row a line
// with its number, "-1", how it is reached, the kind of object (2 NDB, 3 VOR,
// 4 any other), ident, signed position, and a tail that orders nothing:
//
//   EDDF,
//   EDDM,
//   1,-1,DIRECT,3,FFM,+50.046875,+008.640625,-1000,-1,-1,17,0, ... ,0,
#include "base/numbers.h"
#include "flightplan/formats/export_rows.h"
#include "flightplan/formats/plain_text.h"
#include "flightplan/formats/plan_writers.h"

namespace {

constexpr std::string_view tail =
    "-1000,-1,-1,17,0,-1000,-1,-1,17,0,-1000,-1,-1,17,0,-1000,-1,-1,17,0,-1000,-1000,0,";

std::string_view KindNumber(const PlanWaypoint& row) {
  if (row.Sym == "NDB") return "2,";
  return row.Sym == "VOR" ? "3," : "4,";
}

std::string Signed(double degrees, std::string_view picture) {
  const std::string digits = FormatPicture(degrees, picture);
  return (digits.starts_with('-') ? "" : "+") + digits + ",";
}

}  // namespace

std::string WriteIFlyPlan(const PlanExport& plan) {
  std::string text;
  AddLine(text, DepartureOf(plan).strCode.Text() + ",");
  AddLine(text, DestinationOf(plan).strCode.Text() + ",");
  int number = 0;
  for (const PlanWaypoint* row : RowsBetween(plan)) {
    std::string line = std::to_string(++number) + ",-1,DIRECT,";
    line += KindNumber(*row);
    line += WithBlanksFor(',', row->Code.View()) + ",";
    line += Signed(row->Lat, "00.000000") + Signed(row->Lon, "000.000000");
    line += tail;
    AddLine(text, line);
  }
  return text;
}
