// The route file of the network client (.sbp), one row a line:
//
//   EDDF:EDDM:
//   V:FFM:7000:50.046875:8.640625:0:0:0:
//   I:DEMAB:7000:49.593750:9.500000:0:0:0:
//
// Kind of object, ident, cruise altitude in feet, position; three fields of
// the client's own. Fixes are intersections ("I") to it.
#include "base/numbers.h"
#include "flightplan/formats/export_rows.h"
#include "flightplan/formats/plain_text.h"
#include "flightplan/formats/plan_writers.h"

namespace {

char KindLetter(const PlanWaypoint& row) {
  const std::string_view sym = row.Sym.View();
  return sym.empty() || sym.front() == 'F' ? 'I' : sym.front();
}

}  // namespace

std::string WriteSquawkBoxRoute(const PlanExport& plan) {
  std::string text;
  AddLine(text, DepartureOf(plan).strCode.Text() + ":" + DestinationOf(plan).strCode.Text() + ":");
  const std::string altitude = FormatPicture(plan.plan.CruiseFL * 100.0, "#####");
  for (const PlanWaypoint* row : RowsBetween(plan)) {
    AddLine(text, KindLetter(*row) + (":" + WithBlanksFor(':', row->Code.View())) + ":" + altitude + ":" +
                      FormatPicture(row->Lat, "##.000000") + ":" + FormatPicture(row->Lon, "###.000000") +
                      ":0:0:0:");
  }
  return text;
}
