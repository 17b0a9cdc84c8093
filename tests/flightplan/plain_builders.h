// The route builders and the route string as plainly as they can be put: every
// lookup is a walk over the whole table, every search looks at every node. Slow
// and easy to trust; the tests and the benchmarks hold the builders against
// them. Messages are left out.
#pragma once

#include <cmath>
#include <string>
#include <vector>

#include "flightplan/airway_graph.h"
#include "flightplan/airway_search.h"
#include "flightplan/navaid_route.h"
#include "flightplan/object_rows.h"
#include "flightplan/plan_legs.h"
#include "flightplan/plan_rows.h"
#include "flightplan/route_parser.h"
#include "flightplan/route_string.h"
#include "navdata/geodesy.h"

template <class From, class To>
float PlainDistance(const From& from, const To& to) {
  return GreatCircleDistance(from.Lat, from.Lon, to.sngLat, to.sngLon);
}

class PlainAirwayBuilder {
 public:
  PlainAirwayBuilder(FlightPlan& plan, const PlanContext& context, char level)
      : plan(plan), context(context), nodes(context.database.intersections), level(level) {}

  bool Run(int row) {
    for (float searchRadius = 30;; searchRadius += 20) {
      const int entry = Entry(plan.Row(row), plan.Row(row + 1), searchRadius);
      const float exitRadius = entry < 0 ? -1 : ExitRadius(plan.Row(row + 1));
      if (exitRadius < 0) return false;
      const int end = Search(entry, plan.Row(row + 1), exitRadius);
      if (end >= 0) return Insert(row, end);
      if (searchRadius > 300) return false;
    }
  }

 private:
  const IntersectionRec& At(int node) const { return nodes[static_cast<std::size_t>(node)]; }
  bool OnNetwork(int node) const { return AirwayLevel(At(node)) == 'X' || AirwayLevel(At(node)) == level; }
  int Last() const { return static_cast<int>(nodes.size()) - 1; }

  bool LeadsAlong(int node, float course) const {
    for (const ConnectionRec& link : NetworkLinks(context.database, node, level)) {
      if (!IsNode(context.database, link.lngNext)) continue;
      const IntersectionRec& to = At(link.lngNext);
      const float linkCourse = GreatCircleCourse(At(node).sngLat, At(node).sngLon, to.sngLat, to.sngLon);
      if (CourseDifference(linkCourse, course) <= 60) return true;
    }
    return false;
  }

  int Entry(const PlanWaypoint& row, const PlanWaypoint& next, float& radius) const {
    const float course = GreatCircleCourse(row.Lat, row.Lon, next.Lat, next.Lon);
    do {
      int best = -1;
      float least = 360;
      for (int node = 1; node <= Last(); ++node) {
        if (!OnNetwork(node) || !(PlainDistance(row, At(node)) < radius) || !LeadsAlong(node, course))
          continue;
        const float aside =
            CourseDifference(GreatCircleCourse(row.Lat, row.Lon, At(node).sngLat, At(node).sngLon), course);
        if (aside < least) least = aside, best = node;
      }
      if (best >= 0) return best;
      radius += 20;
    } while (radius <= 300);
    return -1;
  }

  float ExitRadius(const PlanWaypoint& goal) const {
    for (float radius = 35; radius < 500; radius += 25) {
      for (int node = 1; node <= Last(); ++node) {
        const float distance = PlainDistance(goal, At(node));
        if (OnNetwork(node) && distance >= 5 && distance < radius) return radius;
      }
    }
    return -1;
  }

  // Dijkstra with a heap of node numbers.
  int Search(int start, const PlanWaypoint& goal, float radius) {
    search.assign(nodes.size(), {});
    heap.assign(1, 0);
    search[static_cast<std::size_t>(start)].cost = 0;
    search[static_cast<std::size_t>(start)].done = true;
    for (int at = start, iterations = 0;; ++iterations) {
      Relax(at);
      if (heap.size() == 1 || iterations > 100000) return -start;
      at = Pop();
      search[static_cast<std::size_t>(at)].done = true;
      if (PlainDistance(goal, At(at)) <= radius) return at;
    }
  }

  void Relax(int at) {
    for (const ConnectionRec& link : NetworkLinks(context.database, at, level)) {
      if (!IsNode(context.database, link.lngNext)) continue;
      Reached& to = search[static_cast<std::size_t>(link.lngNext)];
      const float cost = link.sngDistance + search[static_cast<std::size_t>(at)].cost;
      if (to.done || !(cost < to.cost)) continue;
      to = {cost, at, &link, false};
      Push(link.lngNext);
    }
  }

  float Cost(std::size_t place) const { return search[static_cast<std::size_t>(heap[place])].cost; }

  void Push(int node) {
    heap.push_back(node);
    for (std::size_t i = heap.size() - 1; i > 1 && Cost(i / 2) > Cost(i); i /= 2)
      std::swap(heap[i], heap[i / 2]);
  }

  int Pop() {
    const int top = heap[1];
    heap[1] = heap.back();
    heap.pop_back();
    for (std::size_t i = 1; 2 * i < heap.size();) {
      std::size_t child = 2 * i;
      if (child + 1 < heap.size() && Cost(child + 1) < Cost(child)) ++child;
      if (!(Cost(child) < Cost(i))) break;
      std::swap(heap[i], heap[child]);
      i = child;
    }
    return top;
  }

  bool Insert(int row, int end) {
    std::vector<int> chain;
    for (int node = end; node != 0; node = search[static_cast<std::size_t>(node)].previous)
      chain.insert(chain.begin(), node);
    for (const int node : chain) {
      PlanWaypoint waypoint = ObjectRow(At(node), node);
      waypoint.Name = At(node).strCode.View();
      const ConnectionRec* by = search[static_cast<std::size_t>(node)].by;
      waypoint.Airway = by == nullptr ? std::string_view() : by->strAirway.View();
      waypoint.AirwayMinAlt = by == nullptr ? 0 : ParseAltitude(by->strMinAlt.View());
      waypoint.AirwayMaxAlt = by == nullptr ? 0 : ParseAltitude(by->strMaxAlt.View());
      InsertWaypoint(plan, context, row, waypoint, false);
    }
    RebuildTable(plan, context);
    RecomputePlan(plan, context);
    return true;
  }

  struct Reached {
    float cost = AirwaySearch::unreachedCost;
    int previous = 0;
    const ConnectionRec* by = nullptr;
    bool done = false;
  };

  FlightPlan& plan;
  const PlanContext& context;
  const std::vector<IntersectionRec>& nodes;
  const char level;
  std::vector<Reached> search;
  std::vector<int> heap;  // from 1 on
};

// The chain over navaids behind row 0.
class PlainNavaidBuilder {
 public:
  PlainNavaidBuilder(FlightPlan& plan, const PlanContext& context, const NavaidKinds& kinds,
                     const NavaidSector& sector)
      : plan(plan), context(context), kinds(kinds), sector(sector), target(plan.Row(1)) {}

  bool Run() {
    const NavDatabase& database = context.database;
    at = plan.Row(0);
    course = GreatCircleCourse(at.Lat, at.Lon, target.Lat, target.Lon);
    const float direct = GreatCircleDistance(at.Lat, at.Lon, target.Lat, target.Lon);
    float best = std::floor(direct);
    cursor = course > 90 && course < 270 ? static_cast<int>(database.intersections.size()) - 1 : 0;
    radius = sector.SectorLength;
    for (int row = 0;;) {
      Collect();
      if (candidates.empty()) {
        radius += sector.GreatCircle ? 50 : 15;
      } else {
        const PlanWaypoint pick = candidates[Pick()];
        if (pick.Lat == target.Lat && pick.Lon == target.Lon) break;
        InsertWaypoint(plan, context, row, pick, false);
        at = pick;
        course = GreatCircleCourse(at.Lat, at.Lon, target.Lat, target.Lon);
        radius = sector.SectorLength;
      }
      if (direct < static_cast<float>(radius) && direct > 2000) return false;
      const float left = GreatCircleDistance(at.Lat, at.Lon, target.Lat, target.Lon);
      if (std::floor(left) > best || left < static_cast<float>(radius)) break;
      best = std::floor(left);
    }
    RebuildTable(plan, context);
    RecomputePlan(plan, context);
    return true;
  }

 private:
  void Collect() {
    const NavDatabase& database = context.database;
    candidates.clear();
    for (std::size_t i = 0; kinds.vor && i < database.vors.size(); ++i)
      Try(database.vors[i], i);
    for (std::size_t i = 0; kinds.ndb && i < database.ndbs.size(); ++i)
      if (database.ndbs[i].strCode.View().size() > 2) Try(database.ndbs[i], i);
    if (!kinds.intersection) return;
    const int last = static_cast<int>(database.intersections.size()) - 1;
    const bool down = course > 90 && course < 270;
    int i = down ? std::min(cursor + 100, last) : std::max(cursor - 100, 0);
    for (; i >= 0 && i <= last; i += down ? -1 : 1) {
      const auto index = static_cast<std::size_t>(i);
      if (!Try(database.intersections[index], index)) continue;
      cursor = i;
      return;
    }
  }

  template <class Object>
  bool Try(const Object& object, std::size_t index) {
    if (object.sngLat == at.Lat || object.sngLon == at.Lon) return false;
    const float distance = PlainDistance(at, object);
    if (!(distance > 5 && distance < static_cast<float>(radius))) return false;
    const float towards = GreatCircleCourse(at.Lat, at.Lon, object.sngLat, object.sngLon);
    if (CourseDifference(towards, course) > static_cast<float>(sector.SectorWidth)) return false;
    PlanWaypoint row = ObjectRow(object, static_cast<std::int32_t>(index));
    row.Dist = distance;
    row.Course = towards;
    if (row.Sym == "Int") row.Freq = 0, row.Level = std::string_view();
    candidates.push_back(row);
    return true;
  }

  std::size_t Pick() const {
    std::size_t pick = 0, aligned = 0;
    for (std::size_t i = 0; i < candidates.size(); ++i) {
      if (!(candidates[i].Dist < candidates[0].Dist)) pick = i;
      if (Aside(i) <= Aside(aligned)) aligned = i;
    }
    return candidates[aligned].Dist < 150 && candidates[aligned].Dist > 30 ? aligned : pick;
  }
  float Aside(std::size_t i) const { return CourseDifference(candidates[i].Course, course); }

  FlightPlan& plan;
  const PlanContext& context;
  const NavaidKinds kinds;
  const NavaidSector sector;
  const PlanWaypoint target;
  PlanWaypoint at;
  float course = 0;
  int radius = 0;
  int cursor = 0;
  std::vector<PlanWaypoint> candidates;
};

// The route string. Airways are followed by ExpandAirway() itself.
class PlainRouteReader {
 public:
  PlainRouteReader(FlightPlan& plan, const PlanContext& context) : plan(plan), context(context) {}

  bool Run(const std::string& text) {
    const std::string plain = PlainRouteText(text);
    std::vector<std::string> words(1);
    for (const char c : plain) {
      if (c != ' ') words.back() += c;
      if (c == ' ' && !words.back().empty()) words.emplace_back();
    }
    ClearFlightPlan(plan);
    const int departure = Airport(words.front()), destination = Airport(words.back());
    if (departure < 0 || destination < 0) return false;
    SetDepartureAndDestination(plan, context, departure, destination);
    for (std::size_t i = 1; i + 1 < words.size(); ++i)
      if (Take(words[i], i + 2 < words.size() ? words[i + 1] : std::string())) ++i;
    RebuildTable(plan, context);
    const bool joined = Join();
    for (PlanWaypoint& row : plan.rows) {
      if (row.AirwayLink != 0) row.ClearAirway();
      row.AirwayLink = 0;
    }
    RebuildTable(plan, context);
    RecomputePlan(plan, context);
    return joined;
  }

 private:
  int Airport(const std::string& code) const {
    int found = -1;
    for (int row = 0; row < context.database.AirportCount(); ++row)
      if (context.database.airports[static_cast<std::size_t>(row)].strCode == code) found = row;
    return found;
  }

  // True if the word behind it is the airway that leaves it.
  bool Take(const std::string& word, const std::string& next) {
    const NavDatabase& database = context.database;
    nearest = AirwaySearch::unreachedCost;
    Consider(database.intersections, word);
    Consider(database.vors, word);
    Consider(database.ndbs, word);
    Consider(database.fixes, word);
    if (!(nearest < AirwaySearch::unreachedCost)) return false;
    if (best.Sym == "Int" && !next.empty()) {
      for (const char level : {'J', 'V'})
        for (const ConnectionRec& link : NetworkLinks(database, best.DbIndex, level))
          if (link.strAirway == next) best.AirwayLink = level == 'V' ? 1 : 2;
      if (best.AirwayLink != 0) best.Airway = next;
    }
    InsertWaypoint(plan, context, insertionRow, best, false);
    return best.AirwayLink != 0;
  }

  template <class Table>
  void Consider(const Table& table, const std::string& word) {
    const PlanWaypoint& from = plan.Row(insertionRow);
    for (std::size_t i = 0; i < table.size(); ++i) {
      if (table[i].strCode != word || !(PlainDistance(from, table[i]) < nearest)) continue;
      nearest = PlainDistance(from, table[i]);
      best = ObjectRow(table[i], static_cast<std::int32_t>(i));
    }
  }

  int NodeOf(const PlanWaypoint& row) const {
    if (row.Sym == "Int") return row.DbIndex;
    const auto& nodes = context.database.intersections;
    for (std::size_t i = 0; i < nodes.size(); ++i)
      if (nodes[i].strCode.View() == row.Code.View() && PlainDistance(row, nodes[i]) < 1)
        return static_cast<int>(i);
    return -1;
  }

  bool Join() {
    std::string carried;
    for (int i = 1; i < plan.DestinationRow(); ++i) {
      const int network = plan.Row(i).AirwayLink;
      if (network == 0) continue;
      const std::string airway = carried.empty() ? plan.Row(i).Airway.Text() : carried;
      if (carried.empty()) plan.Row(i).ClearAirway();
      plan.Row(i).AirwayLink = 0;
      const PlanWaypoint next = plan.Row(i + 1);
      carried = next.AirwayLink != 0 ? next.Airway.Text() : std::string();
      const int from = plan.Row(i).DbIndex;
      const int to = i + 1 < plan.DestinationRow() ? NodeOf(next) : -1;
      if (to < 0 || (!ExpandAirway(plan, context, from, to, airway, network, i) &&
                     !ExpandAirway(plan, context, from, to, airway, 3 - network, i)))
        return false;
    }
    return true;
  }

  FlightPlan& plan;
  const PlanContext& context;
  int insertionRow = 0;
  float nearest = 0;
  PlanWaypoint best;
};
