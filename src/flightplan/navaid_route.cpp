#include "flightplan/navaid_route.h"

#include <algorithm>
#include <cmath>
#include <optional>
#include <stdexcept>

#include "base/code_page.h"
#include "base/numbers.h"
#include "flightplan/object_rows.h"
#include "flightplan/plan_legs.h"
#include "flightplan/plan_rows.h"
#include "flightplan/route_report.h"
#include "navdata/geodesy.h"

namespace {

constexpr std::string_view noKindText =
    "You need to have at least one of these buttons selected:\n          VOR, NDB, Intersection";
constexpr std::string_view tooFewText = "Insufficient number of navaids to create flightplan!";
constexpr std::size_t mostCandidates = 100;
constexpr float nearestCandidate = 5;
constexpr int smallGrowth = 15;
constexpr int largeGrowth = 50;
constexpr double longCrossing = 2000;
constexpr double alignedNearest = 30;
constexpr double alignedFarthest = 150;
constexpr std::int32_t cursorOverlap = 100;  // rows; the search radius moves the position back
constexpr std::size_t locatorLength = 2;     // letters of an NDB that is only a locator

class NavaidRun {
 public:
  NavaidRun(FlightPlan& plan, const PlanContext& context, const NavaidKinds& kinds,
            const NavaidSector& sector, int& insertionRow)
      : plan(plan),
        context(context),
        kinds(kinds),
        sector(sector),
        insertionRow(insertionRow),
        firstRow(insertionRow),
        title(LegTitle(plan, insertionRow, "Navaid route")),
        current(PlaceOf(plan.Row(insertionRow))),
        target(PlaceOf(plan.Row(insertionRow + 1))),
        directCourse(Course(current, target)),
        directDistance(Distance(current, target)),
        bestDistance(std::floor(directDistance)),
        radius(sector.SectorLength),
        intersectionCursor(RunsDown() ? context.database.lngIntersections : 0) {}

  // False if the pilot was told that there are too few navaids.
  bool Run() {
    for (;;) {
      CollectCandidates();
      if (candidates.empty()) {
        radius += sector.GreatCircle ? largeGrowth : smallGrowth;
      } else {
        const PlanWaypoint pick = Pick();
        if (pick.Lat == target.lat && pick.Lon == target.lon) return true;
        Take(pick);
      }
      candidates.clear();
      if (directDistance < static_cast<float>(radius) && directDistance > longCrossing) {
        TellReport("nothing to choose from up to " + std::to_string(radius) + " NM of " + CurrentName() +
                   " within " + std::to_string(sector.SectorWidth) + "° of the course " +
                   FormatPicture(directCourse, "000") + "°");
        context.messages.Show(tooFewText, MessageIcon::exclamation);
        return false;
      }
      const float left = Distance(current, target);
      if (std::floor(left) > bestDistance) {
        TellReport("ended at " + CurrentName() + ", which is farther from the goal (" +
                   FormatPicture(left, "##0") + " NM) than the point before it");
        return true;
      }
      bestDistance = std::floor(left);
      if (left < static_cast<float>(radius)) {
        if (insertionRow == firstRow)
          TellReport("none taken, the goal lies within the radius of " + std::to_string(radius) + " NM");
        return true;
      }
    }
  }

 private:
  static Position PlaceOf(const PlanWaypoint& row) { return {row.Lat, row.Lon}; }
  static float Distance(Position a, Position b) { return GreatCircleDistance(a.lat, a.lon, b.lat, b.lon); }
  static float Course(Position a, Position b) { return GreatCircleCourse(a.lat, a.lon, b.lat, b.lon); }

  std::string CurrentName() const { return CodePageToUtf8(plan.Row(insertionRow).Code.View()); }

  void TellReport(const std::string& text) const {
    if (context.report != nullptr) Report(context, title + text);
  }

  bool RunsDown() const { return directCourse > 90 && directCourse < 270; }

  void CollectCandidates() {
    const NavDatabase& database = context.database;
    if (kinds.vor) {
      for (const std::int32_t row : database.vorsByPlace.Near(current, radius))
        Try(database.vors[static_cast<std::size_t>(row)], row);
    }
    if (kinds.ndb) {
      for (const std::int32_t row : database.ndbsByPlace.Near(current, radius)) {
        const NdbRec& ndb = database.ndbs[static_cast<std::size_t>(row)];
        if (ndb.strCode.View().size() > locatorLength) Try(ndb, row);
      }
    }
    if (kinds.intersection) TryFirstIntersection();
  }

  // The first row from the cursor on, in the direction of the walk, that lies in the sector.
  void TryFirstIntersection() {
    const NavDatabase& database = context.database;
    const auto near = database.intersectionsByPlace.Near(current, radius);
    const bool down = RunsDown();
    const std::int32_t start = down ? std::min(intersectionCursor + cursorOverlap, database.lngIntersections)
                                    : std::max(intersectionCursor - cursorOverlap, 0);
    const auto tryRow = [&](std::int32_t row) {
      if (down ? row > start : row < start) return false;
      return Try(database.intersections[static_cast<std::size_t>(row)], row);
    };
    const auto found =
        down ? FindRow(near.rbegin(), near.rend(), tryRow) : FindRow(near.begin(), near.end(), tryRow);
    if (found) intersectionCursor = *found;
  }

  template <class Iterator, class Test>
  static std::optional<std::int32_t> FindRow(Iterator from, Iterator to, const Test& test) {
    const auto found = std::find_if(from, to, test);
    return found == to ? std::nullopt : std::optional(*found);
  }

  template <class Row>
  bool Try(const Row& row, std::int32_t index) {
    if (row.sngLat == current.lat || row.sngLon == current.lon) return false;
    const Position place{row.sngLat, row.sngLon};
    const float distance = Distance(current, place);
    if (!(distance > nearestCandidate && distance < static_cast<float>(radius))) return false;
    const float course = Course(current, place);
    if (CourseDifference(course, directCourse) > static_cast<float>(sector.SectorWidth)) return false;
    if (candidates.size() >= mostCandidates) throw std::length_error("too many navaids in one sector");
    PlanWaypoint candidate = ObjectRow(row, index);
    candidate.Dist = distance;
    candidate.Course = course;
    candidate.EET = static_cast<float>(EnrouteLegMinutes(distance, context.aircraft));
    if (candidate.Sym == "Int") {
      // Of no network and no frequency: the chain is flown direct.
      candidate.Freq = 0;
      candidate.Level = std::string_view();
    }
    candidates.push_back(candidate);
    return true;
  }

  // The last candidate at least as far as the first one, unless the one best
  // aligned with the direct course lies at a handy distance.
  const PlanWaypoint& Pick() const {
    const PlanWaypoint* far = &candidates.front();
    const PlanWaypoint* aligned = &candidates.front();
    float best = CourseDifference(aligned->Course, directCourse);
    for (const PlanWaypoint& candidate : candidates) {
      if (candidate.Dist >= candidates.front().Dist) far = &candidate;
      const float difference = CourseDifference(candidate.Course, directCourse);
      if (difference > best) continue;
      best = difference;
      aligned = &candidate;
    }
    return aligned->Dist < alignedFarthest && aligned->Dist > alignedNearest ? *aligned : *far;
  }

  void Take(const PlanWaypoint& pick) {
    InsertWaypoint(plan, context, insertionRow, pick, false);
    current = PlaceOf(pick);
    directCourse = Course(current, target);
    radius = sector.SectorLength;
  }

  FlightPlan& plan;
  const PlanContext& context;
  const NavaidKinds kinds;
  const NavaidSector sector;
  int& insertionRow;
  const int firstRow;
  const std::string title;  // of the report
  Position current;
  const Position target;
  float directCourse;
  const float directDistance;
  float bestDistance;
  int radius;
  std::int32_t intersectionCursor;
  std::vector<PlanWaypoint> candidates;
};

}  // namespace

bool CreateNavaidRoute(FlightPlan& plan, const PlanContext& context, const NavaidKinds& kinds,
                       const NavaidSector& sector, int& insertionRow) {
  if (!kinds.vor && !kinds.ndb && !kinds.intersection) {
    context.messages.Show(noKindText, MessageIcon::exclamation);
    return false;
  }
  plan.RouteMethod = RouteGenerator::navaid;
  if (!NavaidRun(plan, context, kinds, sector, insertionRow).Run()) return false;
  plan.RouteType = RouteKind::navaid;
  RebuildTable(plan, context);
  RecomputePlan(plan, context);
  return true;
}
