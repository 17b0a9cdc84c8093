#include "flightplan/route_report.h"

#include <algorithm>
#include <limits>
#include <unordered_set>
#include <utility>

#include "base/code_page.h"
#include "base/numbers.h"
#include "flightplan/airway_graph.h"
#include "navdata/geodesy.h"

namespace {

std::string Whole(double value) {
  return FormatPicture(value, "##0");
}

std::string Counted(std::size_t count, const std::string& one, const std::string& many) {
  return count == 1 ? "1 " + one : std::to_string(count) + ' ' + many;
}

std::string NameOf(const PlanWaypoint& row) {
  return CodePageToUtf8(row.Code.View());
}

std::string NetworkName(char level) {
  return level == 'V' ? "low network" : "high network";
}

std::string AirwayTitle(const FlightPlan& plan, int insertionRow, char level) {
  return LegTitle(plan, insertionRow, level == 'V' ? "Low altitude route" : "High altitude route");
}

// One network of the database, seen node by node.
class Network {
 public:
  Network(const NavDatabase& database, char level) : database(database), level(level) {}

  std::string Code(int node) const { return CodePageToUtf8(At(node).strCode.View()); }
  float Distance(int node, const PlanWaypoint& row) const {
    return GreatCircleDistance(row.Lat, row.Lon, At(node).sngLat, At(node).sngLon);
  }
  bool Has(int node) const { return IsOnNetwork(database, node, level); }

  // Calls visit with every node of the network and its distance from the row.
  template <class Visit>
  void Each(const PlanWaypoint& row, const Visit& visit) const {
    for (int node = 1; IsNode(database, node); ++node)
      if (Has(node)) visit(node, Distance(node, row));
  }

  // "the nearest is ABC, 512 NM away", of the nodes for which accept is true.
  template <class Accept>
  std::string Nearest(const PlanWaypoint& row, const Accept& accept) const {
    int nearest = -1;
    float best = std::numeric_limits<float>::infinity();
    Each(row, [&](int node, float distance) {
      if (distance < best && accept(node)) nearest = node, best = distance;
    });
    return nearest < 0 ? "there is none at all"
                       : "the nearest is " + Code(nearest) + ", " + Whole(best) + " NM from it";
  }

  // Every node to which links lead from start, itself among them.
  std::unordered_set<int> ReachedFrom(int start) const {
    std::unordered_set<int> reached = {start};
    std::vector<int> open = {start};
    while (!open.empty()) {
      const int node = open.back();
      open.pop_back();
      for (const ConnectionRec& link : NetworkLinks(database, node, level))
        if (IsNode(database, link.lngNext) && reached.insert(link.lngNext).second)
          open.push_back(link.lngNext);
    }
    return reached;
  }

  // How many of the nodes have a link that comes from another node than these.
  std::size_t EnteredFromOutside(const std::unordered_set<int>& nodes) const {
    std::unordered_set<int> entered;
    for (int node = 1; IsNode(database, node); ++node) {
      if (nodes.contains(node)) continue;
      for (const ConnectionRec& link : NetworkLinks(database, node, level))
        if (nodes.contains(link.lngNext)) entered.insert(link.lngNext);
    }
    return entered.size();
  }

 private:
  const IntersectionRec& At(int node) const { return database.intersections[static_cast<std::size_t>(node)]; }

  const NavDatabase& database;
  const char level;
};

// Both ends of an airway as it leaves a node, with the number of links to each.
std::string EndsOfAirway(const NavDatabase& database, const std::string& airway, int fromNode, char level) {
  const Network network(database, level);
  std::string text;
  int directions = 0;
  for (const ConnectionRec& first : NetworkLinks(database, fromNode, level)) {
    if (first.strAirway != airway || !IsNode(database, first.lngNext) || ++directions > 2) continue;
    std::unordered_set<int> seen = {fromNode};
    int end = fromNode;
    for (const ConnectionRec* link = &first; link != nullptr;) {
      end = link->lngNext;
      seen.insert(end);
      link = nullptr;
      for (const ConnectionRec& next : NetworkLinks(database, end, level)) {
        if (next.strAirway != airway || !IsNode(database, next.lngNext) || seen.contains(next.lngNext))
          continue;
        link = &next;
        break;
      }
    }
    text += (text.empty() ? "" : " and ") + network.Code(end) + " (" +
            Counted(seen.size() - 1, "leg", "legs") + ')';
  }
  return text;
}

bool IsAirwayName(const NavDatabase& database, const std::string& word) {
  const auto bears = [&](const ConnectionRec& link) { return link.strAirway == word; };
  return std::any_of(database.lowConnections.begin(), database.lowConnections.end(), bears) ||
         std::any_of(database.highConnections.begin(), database.highConnections.end(), bears);
}

}  // namespace

void Report(const PlanContext& context, std::string line) {
  if (context.report != nullptr) context.report->lines.push_back(std::move(line));
}

std::string LegTitle(const FlightPlan& plan, int insertionRow, std::string_view builder) {
  return std::string(builder) + ' ' + NameOf(plan.Row(insertionRow)) + " to " +
         NameOf(plan.Row(insertionRow + 1)) + ": ";
}

void ReportNoEntry(const PlanContext& context, const FlightPlan& plan, int insertionRow, char level,
                   float radius, float sector) {
  if (context.report == nullptr) return;
  const PlanWaypoint& row = plan.Row(insertionRow);
  const PlanWaypoint& next = plan.Row(insertionRow + 1);
  const Network network(context.database, level);
  std::size_t within = 0;
  network.Each(row, [&](int, float distance) { within += distance < radius ? 1 : 0; });
  std::string line = AirwayTitle(plan, insertionRow, level);
  if (row.Sym == "VOR")
    line +=
        "no fix of the " + NetworkName(level) + " bears the name of VOR " + NameOf(row) + " at its place; ";
  const std::string where = "within " + Whole(radius) + " NM of " + NameOf(row);
  if (within == 0) {
    line += "no fix of the " + NetworkName(level) + ' ' + where + "; " +
            network.Nearest(row, [](int) { return true; });
  } else {
    const float course = GreatCircleCourse(row.Lat, row.Lon, next.Lat, next.Lon);
    line += Counted(within, "fix", "fixes") + " of the " + NetworkName(level) + ' ' + where +
            ", none of which has a link within " + Whole(sector) + "° of the course " +
            FormatPicture(course, "000") + "°";
  }
  Report(context, std::move(line));
}

void ReportNoExit(const PlanContext& context, const FlightPlan& plan, int insertionRow, char level,
                  float nearest, float radius) {
  if (context.report == nullptr) return;
  const PlanWaypoint& destination = plan.Row(insertionRow + 1);
  const Network network(context.database, level);
  const auto farEnough = [&](int node) { return network.Distance(node, destination) >= nearest; };
  Report(context, AirwayTitle(plan, insertionRow, level) + "no fix of the " + NetworkName(level) +
                      " between " + Whole(nearest) + " and " + Whole(radius) + " NM of " +
                      NameOf(destination) + "; " + network.Nearest(destination, farEnough));
}

void ReportNoWay(const PlanContext& context, const FlightPlan& plan, int insertionRow, char level,
                 const std::vector<AirwayTry>& tries, float exitRadius) {
  if (context.report == nullptr || tries.empty()) return;
  const PlanWaypoint& row = plan.Row(insertionRow);
  const PlanWaypoint& destination = plan.Row(insertionRow + 1);
  const Network network(context.database, level);
  const std::string title = AirwayTitle(plan, insertionRow, level);
  const std::string circle = "within " + Whole(exitRadius) + " NM of " + NameOf(destination);
  std::unordered_set<int> told;
  for (const AirwayTry& attempt : tries) {
    if (!told.insert(attempt.entry).second) continue;
    const auto reached = network.ReachedFrom(attempt.entry);
    const auto isReached = [&](int node) { return reached.contains(node); };
    Report(context, title + "the search from " + network.Code(attempt.entry) + " (found within " +
                        Whole(attempt.radius) + " NM of " + NameOf(row) + ") reaches " +
                        Counted(reached.size(), "fix", "fixes") + " of the " + NetworkName(level) +
                        ", none " + circle + ", and the network ends there; " +
                        network.Nearest(destination, isReached));
  }
  std::unordered_set<int> inCircle;
  network.Each(destination, [&](int node, float distance) {
    if (distance <= exitRadius) inCircle.insert(node);
  });
  Report(context, title + Counted(inCircle.size(), "fix lies ", "fixes lie ") + circle +
                      ", links from outside lead to " + std::to_string(network.EnteredFromOutside(inCircle)) +
                      " of them");
  Report(context, title + "given up after " + Counted(tries.size(), "try", "tries") +
                      ", the radius for an entry grown from " + Whole(tries.front().radius) + " to " +
                      Whole(tries.back().radius) + " NM");
}

void ReportPassedOver(const PlanContext& context, const std::string& word, std::size_t number) {
  if (context.report == nullptr) return;
  const std::string reason =
      IsAirwayName(context.database, word)
          ? "is an airway, but the word in front of it is no intersection that it leaves"
          : "names nothing in the database";
  Report(context, "Route string: word " + std::to_string(number) + " '" + CodePageToUtf8(word) + "' " +
                      reason + ", passed over");
}

void ReportNotOnAirway(const PlanContext& context, const PlanWaypoint& row, const std::string& airway,
                       int fromNode, int toNode) {
  if (context.report == nullptr) return;
  const Network anyLevel(context.database, 'V');
  std::string line = "Route string: " + NameOf(row) + " is not on airway " + airway;
  if (toNode < 0) line += ", there is no intersection at its place";
  for (const char level : {'V', 'J'}) {
    const std::string ends = EndsOfAirway(context.database, airway, fromNode, level);
    if (ends.empty()) continue;
    line += "; on the " + NetworkName(level) + " it leads from " + anyLevel.Code(fromNode) + " to " + ends;
  }
  Report(context, std::move(line));
}
