// The company route of the Level-D 767 (.rte), one row a line: "H" for an
// airport or "W" for a waypoint, ident, latitude, longitude, the airway on
// which it is reached (empty: direct), then an altitude and a speed that are
// never ordered:
//
//   H,EDDF,50.031250,8.562500,,0,0.000000,
//   W,DINKU,49.203125,10.250000,UL607,0,0.000000,
#include "base/numbers.h"
#include "flightplan/formats/export_rows.h"
#include "flightplan/formats/plain_text.h"
#include "flightplan/formats/plan_writers.h"
#include "flightplan/formats/route_points.h"

std::string WriteLevelDRoute(const PlanExport& plan) {
  std::string text;
  for (const PlanWaypoint* row : RowsWithAirports(plan)) {
    const std::string airway = row->HasAirway() ? WithBlanksFor(',', row->Airway.View()) : "";
    AddLine(text, (IsAirportRow(*row) ? "H," : "W,") + WithBlanksFor(',', row->Code.View()) + "," +
                      FormatPicture(row->Lat, "#0.000000") + "," + FormatPicture(row->Lon, "##0.000000") +
                      "," + airway + ",0,0.000000,");
  }
  return text;
}
