#include "flightplan/nav_log.h"

#include <algorithm>

#include "base/numbers.h"

namespace {

auto PlaceOf(auto& entries, int rowIndex) {
  return std::lower_bound(entries.begin(), entries.end(), rowIndex,
                          [](const NavLogEntry& entry, int row) { return entry.row < row; });
}

bool IsOf(const NavLogEntry& entry, const PlanWaypoint& row) {
  return entry.Code == row.Code && entry.Lat == row.Lat && entry.Lon == row.Lon;
}

}  // namespace

const NavLogEntry* NavLog::At(int rowIndex) const {
  const auto place = PlaceOf(entries, rowIndex);
  return place != entries.end() && place->row == rowIndex ? &*place : nullptr;
}

void FillWPTableWithNavLog(NavLog& log, const FlightPlan& plan, int rowIndex, double altitude,
                           double groundSpeed, double minutes, double fuel) {
  const PlanWaypoint& row = plan.Row(rowIndex);
  if (!log.referenceFuel) log.referenceFuel = fuel;
  const double reference = *log.referenceFuel;
  NavLogEntry entry{rowIndex, row.Code, row.Lat, row.Lon, altitude, groundSpeed, minutes, fuel};
  if (reference > 0) entry.percentUsed = RoundToEven((reference - fuel) * 100 / reference);
  const auto place = PlaceOf(log.entries, rowIndex);
  if (place != log.entries.end() && place->row == rowIndex) {
    *place = entry;
  } else {
    log.entries.insert(place, entry);
  }
}

void KeepWithRows(NavLog& log, const FlightPlan& plan) {
  if (plan.rows.empty()) {
    log = {};
    return;
  }
  std::vector<NavLogEntry> kept;
  auto from = plan.rows.begin();
  for (NavLogEntry& entry : log.entries) {
    const auto found =
        std::find_if(from, plan.rows.end(), [&](const PlanWaypoint& row) { return IsOf(entry, row); });
    if (found == plan.rows.end()) continue;
    entry.row = static_cast<int>(found - plan.rows.begin());
    kept.push_back(entry);
    from = found + 1;
  }
  log.entries = std::move(kept);
}
