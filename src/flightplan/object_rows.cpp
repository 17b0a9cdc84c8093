#include "flightplan/object_rows.h"

#include "navdata/nav_database.h"

namespace {

template <class Object>
PlanWaypoint RowOf(const Object& object, std::string_view sym, float frequency, std::int32_t index) {
  PlanWaypoint row;
  row.Sym = sym;
  row.Code = object.strCode.View();
  row.Name = object.strName.View();
  row.Freq = frequency;
  row.Lat = object.sngLat;
  row.Lon = object.sngLon;
  row.MagVar = object.sngMagVar;
  row.DbIndex = index;
  return row;
}

}  // namespace

PlanWaypoint ObjectRow(const IntersectionRec& intersection, std::int32_t index) {
  PlanWaypoint row = RowOf(intersection, "Int", intersection.sngUnused, index);
  const char level = AirwayLevel(intersection);
  row.Level = std::string_view(&level, 1);
  return row;
}

PlanWaypoint ObjectRow(const VorRec& vor, std::int32_t index) {
  return RowOf(vor, "VOR", vor.sngFrequency, index);
}

PlanWaypoint ObjectRow(const NdbRec& ndb, std::int32_t index) {
  return RowOf(ndb, "NDB", ndb.sngFrequency, index);
}

PlanWaypoint ObjectRow(const FixRec& fix, std::int32_t index) {
  return RowOf(fix, "Fix", 0, index);
}

PlanWaypoint ObjectRow(const UserWaypointRec& waypoint, std::int32_t index) {
  return RowOf(waypoint, "Uwp", 0, index);
}
