#include "flightplan/plan_drag.h"

#include <cmath>
#include <limits>
#include <stdexcept>

#include "base/code_page.h"
#include "base/numbers.h"
#include "flightplan/object_rows.h"
#include "flightplan/plan_layers.h"
#include "flightplan/plan_rows.h"
#include "flightplan/waypoint_search.h"
#include "map/geo_line.h"
#include "map/hover_sources.h"
#include "map/style_keeper.h"
#include "map/waypoint_layer.h"

namespace {

constexpr std::int16_t farthestNavaids = 2000;  // NM of range at which they are found
constexpr std::int16_t farthestFixes = 150;
constexpr float targetRing = 70;  // units

double DistanceOnPage(const Projection& projection, Position place, double x, double y) {
  return std::hypot(projection.LonToX(place.lon) - x, projection.LatToY(place.lat) - y);
}

double DistanceToLeg(const FlightPlan& plan, const Projection& projection, int row, SurfacePoint point) {
  std::vector<SurfaceLine> lines;
  AppendLegLines(projection, PlaceOf(plan.Row(row - 1)), PlaceOf(plan.Row(row)), lines);
  double nearest = std::numeric_limits<double>::infinity();
  for (const SurfaceLine& line : lines)
    nearest = std::min(nearest, DistanceToLine(line, point.x, point.y));
  return nearest;
}

// The kind of procedure that a leg belongs to; enroute: none.
RowKind ProcedureOfLeg(const FlightPlan& plan, int row) {
  if (plan.Row(row).Kind == RowKind::sid) return RowKind::sid;
  return plan.Row(row - 1).Kind == RowKind::star ? RowKind::star : RowKind::enroute;
}

bool IsMovable(const FlightPlan& plan, const PlanHit& hit) {
  if (plan.MissingWaypoints) return false;
  return hit.part == PlanPart::waypoint ? plan.Row(hit.row).Kind == RowKind::enroute
                                        : ProcedureOfLeg(plan, hit.row) == RowKind::enroute;
}

// Keeps the nearest of the rows that are handed in; the first of equals.
class NearestRow {
 public:
  explicit NearestRow(const HoverQuestion& question, std::int32_t radius)
      : question(question), radius(radius) {}

  template <class Rows, class Shown>
  void Search(const PlaceIndex& index, const Rows& rows, Shown&& shown) {
    VisitNear(question, index, rows, radius, [&](std::int32_t row, const auto& object) {
      if (!shown(object)) return;
      const double distance =
          DistanceOnPage(question.projection, {object.sngLat, object.sngLon}, question.x, question.y);
      if (distance >= least) return;
      least = distance;
      found = ObjectRow(object, row);
    });
  }

  std::optional<PlanWaypoint> found;

 private:
  const HoverQuestion& question;
  std::int32_t radius;
  double least = std::numeric_limits<double>::infinity();
};

}  // namespace

PlanHit PlanUnder(const FlightPlan& plan, const Projection& projection, SurfacePoint point, double radius) {
  PlanHit hit;
  double least = radius;
  for (int row = 0; row < plan.RowCount(); ++row) {
    const double distance = DistanceOnPage(projection, PlaceOf(plan.Row(row)), point.x, point.y);
    if (!(distance < least)) continue;
    least = distance;
    hit = {PlanPart::waypoint, row};
  }
  for (int row = 1; row < plan.RowCount() && hit.part != PlanPart::waypoint; ++row) {
    const double distance = DistanceToLeg(plan, projection, row, point);
    if (!(distance < least)) continue;
    least = distance;
    hit = {PlanPart::leg, row};
  }
  hit.movable = hit.part != PlanPart::none && IsMovable(plan, hit);
  return hit;
}

std::string WhyFixed(const FlightPlan& plan, const PlanHit& hit) {
  if (hit.movable || hit.part == PlanPart::none) return {};
  if (plan.MissingWaypoints) return "A plan with missing waypoints cannot be changed";
  const RowKind kind =
      hit.part == PlanPart::waypoint ? plan.Row(hit.row).Kind : ProcedureOfLeg(plan, hit.row);
  if (kind == RowKind::sid) return "Part of the SID: it changes only with the whole procedure";
  if (kind == RowKind::star) return "Part of the STAR: it changes only with the whole procedure";
  return kind == RowKind::departure ? "The departure is chosen with Airports"
                                    : "The destination is chosen with Airports";
}

std::optional<PlanWaypoint> ShownWaypointAt(const HoverQuestion& question, std::int32_t radius) {
  const NavDatabase& database = question.database;
  const MapSwitches& on = question.switches;
  const auto always = [](const auto&) { return true; };
  NearestRow nearest(question, radius);
  const bool navaids = question.RangeNM() <= farthestNavaids;
  const bool fixes = question.RangeNM() <= farthestFixes;
  if (on.mnuVOR && navaids) nearest.Search(database.vorsByPlace, database.vors, always);
  if (on.mnuNDB && navaids) nearest.Search(database.ndbsByPlace, database.ndbs, always);
  nearest.Search(database.intersectionsByPlace, database.intersections,
                 [&](const IntersectionRec& row) { return !row.strCode.Empty() && IsShown(row, on); });
  if (on.mnuGPSFix && fixes) nearest.Search(database.fixesByPlace, database.fixes, always);
  if (on.mnuUserWP && fixes) nearest.Search(database.userWaypointsByPlace, database.userWaypoints, always);
  return nearest.found;
}

PlanWaypoint ManualRow(const NavDatabase& database, Position place) {
  PlanWaypoint row = UserPositionRow(FlightPlan(), database, place);
  row.Code = std::string_view("#");
  return row;
}

std::string TargetText(const PlanWaypoint& row) {
  std::string name = CodePageToUtf8(row.Name.View());
  if (row.Sym == "Uwp" && row.DbIndex < 0) return name;
  std::string text = row.Sym == "Uwp" ? "" : CodePageToUtf8(row.Sym.View()) + " ";
  text += CodePageToUtf8(row.Code.View());
  if (!name.empty() && row.Name.View() != row.Code.View()) text += " " + name;
  if (row.Freq > 0) text += " " + FormatPicture(row.Freq, "##0.00");
  return text;
}

bool MovePlanWaypoint(FlightPlan& plan, const PlanContext& context, int row, const PlanWaypoint& target) {
  const PlanWaypoint& present = plan.Row(row);
  if (present.Code == target.Code && PlaceOf(present) == PlaceOf(target)) return false;
  if (row < 1 || row >= plan.DestinationRow()) throw std::out_of_range("only rows between the airports move");
  DeleteWaypoint(plan, context, row, false);
  InsertIntoLeg(plan, context, row, target);
  return true;
}

void InsertIntoLeg(FlightPlan& plan, const PlanContext& context, int row, const PlanWaypoint& target) {
  const PlanWaypoint parted = plan.Row(row);
  plan.Row(row).ClearAirway();
  int after = row - 1;
  try {
    InsertWaypoint(plan, context, after, target, true);
  } catch (...) {
    plan.Row(row) = parted;
    throw;
  }
}

void DrawTargetRing(Position target, const MapView& view, const ColorSettings& colors, DrawSurface& surface) {
  const StyleKeeper keeper(surface);
  surface.ResetStyle();
  surface.DrawWidth = 2;
  surface.Circle(static_cast<float>(view.LonToX(target.lon)), static_cast<float>(view.LatToY(target.lat)),
                 targetRing, colors.HILITE);
}

void DrawPlanDrag(const PlanDrag& drag, const FlightPlan& plan, const MapView& view,
                  const ColorSettings& colors, DrawSurface& surface) {
  if (!drag.moving || drag.hit.row >= plan.RowCount()) return;
  const StyleKeeper keeper(surface);
  surface.ResetStyle();
  const Projection projection = view.CurrentProjection();
  const Position target = PlaceOf(drag.target);
  const int next = drag.hit.part == PlanPart::waypoint ? drag.hit.row + 1 : drag.hit.row;
  std::vector<SurfaceLine> lines;
  AppendLegLines(projection, PlaceOf(plan.Row(drag.hit.row - 1)), target, lines);
  AppendLegLines(projection, target, PlaceOf(plan.Row(next)), lines);
  surface.DrawWidth = 2;
  surface.Lines(lines, colors.HILITE);
  DrawTargetRing(target, view, colors, surface);
}
