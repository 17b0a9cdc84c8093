#include "flightplan/waypoint_search.h"

#include <algorithm>
#include <array>
#include <set>
#include <string>
#include <tuple>

#include "base/code_page.h"
#include "base/numbers.h"
#include "flightplan/object_rows.h"
#include "flightplan/plan_rows.h"
#include "navdata/geodesy.h"
#include "navdata/position_text.h"

namespace {

constexpr float sameObjectDistance = 0.5F;  // NM

enum class Table { intersections, vors, ndbs, fixes, userWaypoints };

struct Hit {
  bool exact = false;
  float distance = 0;
  Table table = Table::intersections;
  std::int32_t row = 0;

  auto Order() const { return std::tuple(!exact, distance, table, row); }
};

std::string Ident(std::string_view typed) {
  return AsciiUpper(Trimmed(Utf8ToCodePage(typed)));
}

bool BeginsWith(std::string_view code, std::string_view ident) {
  return code.size() >= ident.size() && EqualNoCase(code.substr(0, ident.size()), ident);
}

// Null while there is no plan.
const PlanWaypoint* RowBefore(const FlightPlan& plan) {
  return plan.RowCount() < 2 ? nullptr : &plan.Row(InsertionRow(plan));
}

class Collector {
 public:
  Collector(std::string ident, const PlanWaypoint* from) : ident(std::move(ident)), from(from) {}

  template <class Row>
  void Walk(const std::vector<Row>& rows, Table table, std::size_t count) {
    for (std::size_t i = 0; i < std::min(count, rows.size()); ++i) {
      const Row& row = rows[i];
      const std::string_view code = row.strCode.View();
      if (!BeginsWith(code, ident)) continue;
      const float distance =
          from != nullptr ? GreatCircleDistance(from->Lat, from->Lon, row.sngLat, row.sngLon) : 0.0F;
      hits.push_back({code.size() == ident.size(), distance, table, static_cast<std::int32_t>(i)});
    }
  }

  std::vector<Hit> Best(std::size_t most) {
    const std::size_t listed = std::min(most, hits.size());
    std::partial_sort(hits.begin(), hits.begin() + static_cast<std::ptrdiff_t>(listed), hits.end(),
                      [](const Hit& a, const Hit& b) { return a.Order() < b.Order(); });
    hits.resize(listed);
    return std::move(hits);
  }

 private:
  std::string ident;
  const PlanWaypoint* from;
  std::vector<Hit> hits;
};

PlanWaypoint RowOf(const NavDatabase& database, Table table, std::int32_t index) {
  const auto at = static_cast<std::size_t>(index);
  switch (table) {
    case Table::intersections:
      return ObjectRow(database.intersections[at], index);
    case Table::vors:
      return ObjectRow(database.vors[at], index);
    case Table::ndbs:
      return ObjectRow(database.ndbs[at], index);
    case Table::fixes:
      return ObjectRow(database.fixes[at], index);
    case Table::userWaypoints:
      break;
  }
  return ObjectRow(database.userWaypoints[at], index);
}

FoundWaypoint Found(const PlanWaypoint& row, const PlanWaypoint* from) {
  FoundWaypoint found;
  found.row = row;
  if (from == nullptr) return found;
  found.distance = GreatCircleDistance(from->Lat, from->Lon, row.Lat, row.Lon);
  found.course = GreatCircleCourse(from->Lat, from->Lon, row.Lat, row.Lon);
  found.magneticCourse = static_cast<float>(NormalizeDeg(found.course - from->MagVar));
  return found;
}

bool IsSameObject(const PlanWaypoint& fix, const PlanWaypoint& other) {
  return fix.Sym == "Fix" && other.Sym == "Int" && fix.Code == other.Code &&
         GreatCircleDistance(fix.Lat, fix.Lon, other.Lat, other.Lon) <= sameObjectDistance;
}

// True if a row between the airports is the same waypoint: the table would join the two.
bool IsThere(const FlightPlan& plan, int rowIndex, const PlanWaypoint& waypoint) {
  return rowIndex >= 1 && rowIndex < plan.DestinationRow() && AreDoubled(plan.Row(rowIndex), waypoint);
}

}  // namespace

std::vector<FoundWaypoint> FindWaypoints(const FlightPlan& plan, const NavDatabase& database,
                                         std::string_view typed, std::size_t most) {
  std::vector<FoundWaypoint> found;
  const std::string ident = Ident(typed);
  if (ident.empty()) return found;
  const PlanWaypoint* from = RowBefore(plan);
  if (const auto place = PositionFromText(typed))
    found.push_back(Found(UserPositionRow(plan, database, *place), from));
  Collector collector(ident, from);
  collector.Walk(database.intersections, Table::intersections,
                 static_cast<std::size_t>(database.lngIntersections) + 1);
  collector.Walk(database.vors, Table::vors, database.vors.size());
  collector.Walk(database.ndbs, Table::ndbs, database.ndbs.size());
  collector.Walk(database.fixes, Table::fixes, database.fixes.size());
  collector.Walk(database.userWaypoints, Table::userWaypoints, database.userWaypoints.size());
  for (const Hit& hit : collector.Best(most)) {
    const PlanWaypoint row = RowOf(database, hit.table, hit.row);
    const bool listed = std::any_of(found.begin(), found.end(),
                                    [&](const FoundWaypoint& other) { return IsSameObject(row, other.row); });
    if (!listed) found.push_back(Found(row, from));
  }
  return found;
}

PlanWaypoint UserPositionRow(const FlightPlan& plan, const NavDatabase& database, Position place) {
  constexpr int coordinateStyle = 1;  // degrees and decimal minutes
  std::set<std::string> taken;
  for (const PlanWaypoint& row : plan.rows)
    taken.insert(row.Code.Text());
  PlanWaypoint row;
  row.Sym = std::string_view("Uwp");
  row.Code = std::string_view("WP");
  for (int number = 1; number <= 99; ++number) {
    const std::string code = "WP" + FormatPicture(number, "00");
    if (taken.contains(code)) continue;
    row.Code = code;
    break;
  }
  row.Name =
      Utf8ToCodePage(FormatLat(place.lat, coordinateStyle) + " " + FormatLon(place.lon, coordinateStyle));
  row.Lat = place.lat;
  row.Lon = place.lon;
  row.MagVar = database.magneticVariation.MagVarLookup(place.lat, place.lon);
  return row;
}

int InsertionRow(const FlightPlan& plan) {
  int row = std::clamp<int>(plan.SelectedRow, 0, std::max(0, plan.DestinationRow() - 1));
  while (row > 0 && plan.Row(row).Kind == RowKind::star)
    --row;
  while (row + 1 < plan.DestinationRow() && plan.Row(row + 1).Kind == RowKind::sid)
    ++row;
  return row;
}

bool InsertAfterSelection(FlightPlan& plan, const PlanContext& context, const PlanWaypoint& row) {
  if (plan.RowCount() < 2) {
    context.messages.Show(selectAirportsFirstText, MessageIcon::exclamation);
    return false;
  }
  int at = InsertionRow(plan);
  for (const int neighbour : {at, at + 1}) {
    if (!IsThere(plan, neighbour, row)) continue;
    plan.SelectedRow = static_cast<std::int16_t>(neighbour);
    return false;
  }
  InsertWaypoint(plan, context, at, row, true);
  plan.Row(at + 1).ClearAirway();
  return true;
}
