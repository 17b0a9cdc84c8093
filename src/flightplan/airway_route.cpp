#include "flightplan/airway_route.h"

#include <algorithm>
#include <cmath>
#include <optional>
#include <string>
#include <utility>

#include "base/code_page.h"
#include "flightplan/object_rows.h"
#include "flightplan/plan_legs.h"
#include "flightplan/plan_rows.h"
#include "flightplan/route_report.h"
#include "navdata/geodesy.h"

namespace {

constexpr float firstSearchRadius = 30;
constexpr float searchRadiusStep = 20;
constexpr float lastSearchRadius = 300;
constexpr float firstExitRadius = 35;
constexpr float exitRadiusStep = 25;
constexpr float lastExitRadius = 500;
constexpr float nearestExit = 5;
constexpr float samePlaceDistance = 1;
constexpr float entrySector = 60;  // degrees to either side

const IntersectionRec& Node(const NavDatabase& database, int node) {
  return database.intersections[static_cast<std::size_t>(node)];
}

float DistanceToNode(const PlanWaypoint& row, const IntersectionRec& node) {
  return GreatCircleDistance(row.Lat, row.Lon, node.sngLat, node.sngLon);
}

// The last node of the row's name at the row's place, -1 if none.
int NodeAtVor(const PlanWaypoint& row, const NavDatabase& database, char level) {
  int found = -1;
  for (const int node : database.intersectionsByIdent.All(row.Code.View())) {
    if (IsOnNetwork(database, node, level) && DistanceToNode(row, Node(database, node)) < samePlaceDistance)
      found = node;
  }
  return found;
}

bool HasLinkTowards(const NavDatabase& database, int node, char level, float course) {
  const IntersectionRec& from = Node(database, node);
  for (const ConnectionRec& link : NetworkLinks(database, node, level)) {
    if (!IsNode(database, link.lngNext)) continue;
    const IntersectionRec& to = Node(database, link.lngNext);
    const float linkCourse = GreatCircleCourse(from.sngLat, from.sngLon, to.sngLat, to.sngLon);
    if (CourseDifference(linkCourse, course) <= entrySector) return true;
  }
  return false;
}

// The best entry closer than radius, the first of equals; -1 if none.
int EntryWithin(const PlanWaypoint& row, const NavDatabase& database, char level, float course,
                float radius) {
  int best = -1;
  float bestDifference = 360;
  for (const int node : database.intersectionsByPlace.Near({row.Lat, row.Lon}, radius)) {
    if (!IsOnNetwork(database, node, level)) continue;
    const IntersectionRec& at = Node(database, node);
    if (!(DistanceToNode(row, at) < radius)) continue;
    const float difference =
        CourseDifference(GreatCircleCourse(row.Lat, row.Lon, at.sngLat, at.sngLon), course);
    if (difference < bestDifference && HasLinkTowards(database, node, level, course)) {
      best = node;
      bestDifference = difference;
    }
  }
  return best;
}

bool HasExitWithin(const PlanWaypoint& row, const NavDatabase& database, char level, float radius) {
  for (const int node : database.intersectionsByPlace.Near({row.Lat, row.Lon}, radius)) {
    if (!IsOnNetwork(database, node, level)) continue;
    const float distance = DistanceToNode(row, Node(database, node));
    if (distance >= nearestExit && distance < radius) return true;
  }
  return false;
}

PlanWaypoint RouteRow(const AirwaySearch::Step& step, const NavDatabase& database) {
  const IntersectionRec& node = Node(database, step.node);
  PlanWaypoint row = ObjectRow(node, step.node);
  row.Name = node.strCode.View();
  row.Airway = step.SearchAirway.View();
  row.AirwayMinAlt = step.SearchMinAlt;
  row.AirwayMaxAlt = step.SearchMaxAlt;
  return row;
}

struct AltitudeWarning {
  std::string airway;
  std::int32_t feet = 0;
};

// One run of the generator. It works on a copy of the plan: the rows that the
// route takes the place of go before the search is known to succeed.
class RouteRun {
 public:
  RouteRun(const FlightPlan& plan, const PlanContext& context, AirwaySearch& search, char level,
           int insertionRow)
      : plan(plan),
        draft(plan),
        context(context),
        search(search),
        level(level),
        firstRow(insertionRow),
        insertionRow(insertionRow) {}

  bool Run() {
    for (;;) {
      const int entry = FindEntryFix(draft, context, insertionRow, level, SearchRadius);
      if (entry < 0) return false;
      // The row that the route leads to is the same in every try, and so is its circle.
      if (tries.empty()) exitRadius = FindExitRadius(draft, context, insertionRow, level);
      if (exitRadius < 0) return false;
      GiveWayTo(entry);
      if (const int end = EndOfRoute(entry); end >= 0) {
        InsertRoute(search.PathTo(end));
        return true;
      }
      if (SearchRadius > lastSearchRadius) {
        ReportNoWay(context, plan, firstRow, level, tries, exitRadius);
        TellNoRoute(entry);
        return false;
      }
      SearchRadius += searchRadiusStep;
    }
  }

  FlightPlan& Draft() { return draft; }
  int InsertionRow() const { return insertionRow; }
  const std::optional<AltitudeWarning>& Warning() const { return warning; }

 private:
  // An entry from which there was no way has none in a later try either.
  int EndOfRoute(int entry) {
    const auto isThis = [entry](const AirwayTry& before) { return before.entry == entry; };
    const bool failed = std::any_of(tries.begin(), tries.end(), isThis);
    tries.push_back({entry, SearchRadius});
    if (failed) return -entry;
    const PlanWaypoint& destination = draft.Row(insertionRow + 1);
    return search.ShortestPathToPosition(entry, level, destination.Lat, destination.Lon, exitRadius);
  }

  // A row that is the entry fix itself comes back with the route.
  void GiveWayTo(int entry) {
    skipFirst = false;
    const PlanWaypoint& row = draft.Row(insertionRow);
    if (row.DbIndex == entry && row.Sym == "Int") DeleteInsertionRow();
    const PlanWaypoint& before = draft.Row(insertionRow);
    const IntersectionRec& node = Node(context.database, entry);
    if (before.Code.View() != node.strCode.View() || !(DistanceToNode(before, node) < samePlaceDistance))
      return;
    if (before.Kind == RowKind::enroute) {
      DeleteInsertionRow();
    } else if (before.Kind == RowKind::sid) {
      skipFirst = true;
    }
  }

  void DeleteInsertionRow() {
    DeleteWaypoint(draft, context, insertionRow, false);
    --insertionRow;
  }

  void InsertRoute(const std::vector<AirwaySearch::Step>& path) {
    for (std::size_t i = skipFirst ? 1 : 0; i < path.size(); ++i) {
      if (!warning && context.aircraft.CruiseFlightLevel * 100LL < path[i].SearchMinAlt) {
        warning = AltitudeWarning{path[i].SearchAirway.Text(), path[i].SearchMinAlt};
      }
      InsertWaypoint(draft, context, insertionRow, RouteRow(path[i], context.database), false);
    }
  }

  void TellNoRoute(int startNode) const {
    const std::string id = CodePageToUtf8(Node(context.database, startNode).strCode.View());
    context.messages.Show(
        "No airway routing possible from " + id + "!!\nChoose different airway intersection manually!",
        MessageIcon::exclamation);
  }

  const FlightPlan& plan;
  FlightPlan draft;
  const PlanContext& context;
  AirwaySearch& search;
  char level;
  int firstRow;
  int insertionRow;
  std::vector<AirwayTry> tries;
  float exitRadius = -1;
  float SearchRadius = firstSearchRadius;
  bool skipFirst = false;
  std::optional<AltitudeWarning> warning;
};

}  // namespace

int FindEntryFix(const FlightPlan& plan, const PlanContext& context, int insertionRow, char level,
                 float& SearchRadius) {
  const PlanWaypoint& row = plan.Row(insertionRow);
  const NavDatabase& database = context.database;
  if (row.Sym == "VOR") {
    const int node = NodeAtVor(row, database, level);
    if (node >= 0) return node;
  }
  const bool rowOnNetwork = row.Level == "X" || row.Level.Raw().front() == level;
  if (row.Sym == "Int" && IsNode(database, row.DbIndex) && rowOnNetwork) return row.DbIndex;
  const PlanWaypoint& next = plan.Row(insertionRow + 1);
  const float course = GreatCircleCourse(row.Lat, row.Lon, next.Lat, next.Lon);
  do {
    const int node = EntryWithin(row, database, level, course, SearchRadius);
    if (node >= 0) return node;
    SearchRadius += searchRadiusStep;
  } while (SearchRadius <= lastSearchRadius);
  ReportNoEntry(context, plan, insertionRow, level, SearchRadius - searchRadiusStep, entrySector);
  context.messages.Show("No fix found within 300nm of insertion waypoint!", MessageIcon::exclamation);
  return -1;
}

float FindExitRadius(const FlightPlan& plan, const PlanContext& context, int insertionRow, char level) {
  const PlanWaypoint& destination = plan.Row(insertionRow + 1);
  float radius = firstExitRadius;
  for (; radius < lastExitRadius; radius += exitRadiusStep) {
    if (HasExitWithin(destination, context.database, level, radius)) return radius;
  }
  ReportNoExit(context, plan, insertionRow, level, nearestExit, radius - exitRadiusStep);
  context.messages.Show("No fix found within 500nm of destination waypoint!", MessageIcon::exclamation);
  return -1;
}

bool CreateAirwayRoute(FlightPlan& plan, const PlanContext& context, AirwaySearch& search, char level,
                       int& insertionRow) {
  plan.RouteMethod = level == 'V' ? RouteGenerator::lowAltitude : RouteGenerator::highAltitude;
  RouteRun run(plan, context, search, level, insertionRow);
  if (!run.Run()) return false;
  plan = std::move(run.Draft());
  insertionRow = run.InsertionRow();
  plan.RouteType = RouteKind::navaid;
  RebuildTable(plan, context);
  RecomputePlan(plan, context);
  if (const auto& warning = run.Warning()) {
    context.messages.Show("\nILLEGAL FLIGHT PLAN FOR CURRENT AIRCRAFT!    \n\n" +
                              std::to_string(warning->feet) + " minimal altitude required on airway " +
                              CodePageToUtf8(warning->airway) + "!    ",
                          MessageIcon::exclamation);
  }
  return true;
}
