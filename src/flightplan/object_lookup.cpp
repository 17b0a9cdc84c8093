#include "flightplan/object_lookup.h"

#include "base/numbers.h"
#include "flightplan/object_rows.h"

namespace {

template <class Row>
std::int32_t RowNear(const PlanWaypoint& waypoint, const IdentIndex& byIdent, const std::vector<Row>& table) {
  for (std::int32_t row = byIdent.First(waypoint.Code.View()); row >= 0; row = byIdent.Next(row)) {
    const Row& object = table[static_cast<std::size_t>(row)];
    if (CutToInt(object.sngLat) == CutToInt(waypoint.Lat) &&
        CutToInt(object.sngLon) == CutToInt(waypoint.Lon))
      return row;
  }
  return -1;
}

bool IsUserFix(const PlanWaypoint& row) {
  return row.Code.Raw().starts_with("Fix") && row.Name.Raw().starts_with("Fix");
}

}  // namespace

bool FindObject(PlanWaypoint& row, const NavDatabase& database) {
  std::int32_t found = row.DbIndex;
  if (row.Sym == "Int") {
    found = RowNear(row, database.intersectionsByIdent, database.intersections);
    if (found >= 0)
      row.Level = ObjectRow(database.intersections[static_cast<std::size_t>(found)], found).Level;
  } else if (row.Sym == "VOR") {
    found = RowNear(row, database.vorsByIdent, database.vors);
  } else if (row.Sym == "NDB") {
    found = RowNear(row, database.ndbsByIdent, database.ndbs);
  } else if (row.Sym == "Fix" && !IsUserFix(row)) {
    found = RowNear(row, database.fixesByIdent, database.fixes);
  } else {
    return true;
  }
  if (found < 0) return false;
  row.DbIndex = found;
  return true;
}
