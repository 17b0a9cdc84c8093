// The airway search over 50 random airport pairs, against Boost Graph's
// Dijkstra with an early stop on the same graph. Both have to find ways of one
// cost for every pair; a difference ends the run.

// The optimiser's analysis of Boost's growing row table sees a bound that is not there.
#if defined(__GNUC__) && !defined(__clang__)
#pragma GCC diagnostic ignored "-Warray-bounds"
#endif

#include <benchmark/benchmark.h>

#include <boost/graph/compressed_sparse_row_graph.hpp>
#include <boost/graph/dijkstra_shortest_paths.hpp>
#include <chrono>
#include <cstdio>
#include <cstdlib>
#include <random>
#include <vector>

#include "bench/world.h"
#include "flightplan/airway_route.h"
#include "flightplan/airway_search.h"
#include "flightplan/plan_rows.h"
#include "navdata/geodesy.h"

namespace {

using Clock = std::chrono::steady_clock;

class SilentMessages : public MessageBox {
 public:
  void Show(std::string_view, MessageIcon) override {}
  bool AskYesNo(std::string_view, MessageIcon) override { return false; }
};

// What the route builder asks the search for.
struct Task {
  int start = 0;
  Position destination;
  float radius = 0;
};

// Pairs of airports with an entry to and an exit from the network.
std::vector<Task> RandomTasks(const NavDatabase& database, char level) {
  constexpr std::size_t count = 50;
  const AircraftRec aircraft;
  SilentMessages messages;
  const PlanContext context{database, aircraft, messages};
  std::mt19937 random(20251122);
  std::uniform_int_distribution<int> anyAirport(0, database.AirportCount() - 1);
  std::vector<Task> tasks;
  for (int draws = 0; tasks.size() < count && draws < 10000; ++draws) {
    FlightPlan plan;
    const int departure = anyAirport(random);
    SetDepartureAndDestination(plan, context, departure, anyAirport(random));
    float searchRadius = 30;
    const int start = FindEntryFix(plan, context, 0, level, searchRadius);
    const float radius = FindExitRadius(plan, context, 0, level);
    if (start > 0 && radius > 0) tasks.push_back({start, {plan.DestinationLat, plan.DestinationLon}, radius});
  }
  return tasks;
}

struct LinkLength {
  float length = 0;
};
using Graph = boost::compressed_sparse_row_graph<boost::directedS, boost::no_property, LinkLength>;

struct FoundGoal {
  int node;
};

// Stops at the first vertex of the exit circle, which is told to it in
// advance: the test costs one look into a table.
struct StopAtGoal : boost::default_dijkstra_visitor {
  StopAtGoal(const std::vector<char>& goals, int start) : goals(&goals), start(start) {}
  template <class Vertex>
  void examine_vertex(Vertex vertex, const Graph&) const {
    if ((*goals)[vertex] != 0 && static_cast<int>(vertex) != start) throw FoundGoal{static_cast<int>(vertex)};
  }
  const std::vector<char>* goals;
  int start;
};

class BoostSearch {
 public:
  BoostSearch(const NavDatabase& database, char level)
      : graph(BuildGraph(database, level)),
        distances(boost::num_vertices(graph)),
        predecessors(boost::num_vertices(graph)) {}

  // The node found, the negated start node for none.
  int Run(int start, const std::vector<char>& goals) {
    const auto index = boost::get(boost::vertex_index, graph);
    try {
      boost::dijkstra_shortest_paths(
          graph, static_cast<std::size_t>(start),
          boost::weight_map(boost::get(&LinkLength::length, graph))
              .distance_map(boost::make_iterator_property_map(distances.begin(), index))
              .predecessor_map(boost::make_iterator_property_map(predecessors.begin(), index))
              .visitor(StopAtGoal(goals, start)));
    } catch (const FoundGoal& found) {
      return found.node;
    }
    return -start;
  }

  float Cost(int node) const { return distances[static_cast<std::size_t>(node)]; }

 private:
  static Graph BuildGraph(const NavDatabase& database, char level) {
    std::vector<std::pair<std::size_t, std::size_t>> links;
    std::vector<LinkLength> lengths;
    for (std::size_t node = 1; node < database.intersections.size(); ++node) {
      for (const ConnectionRec& link : NetworkLinks(database, static_cast<int>(node), level)) {
        if (!IsNode(database, link.lngNext)) continue;
        links.emplace_back(node, static_cast<std::size_t>(link.lngNext));
        lengths.push_back({link.sngDistance});
      }
    }
    return {boost::edges_are_sorted, links.begin(), links.end(), lengths.begin(),
            database.intersections.size()};
  }

  Graph graph;
  std::vector<float> distances;
  std::vector<std::size_t> predecessors;
};

std::vector<char> GoalsOf(const NavDatabase& database, const Task& task) {
  std::vector<char> goals(database.intersections.size());
  for (std::size_t node = 1; node < goals.size(); ++node) {
    const IntersectionRec& at = database.intersections[node];
    goals[node] =
        GreatCircleDistance(at.sngLat, at.sngLon, task.destination.lat, task.destination.lon) <= task.radius;
  }
  return goals;
}

int RunOwn(AirwaySearch& search, const Task& task, char level) {
  return search.ShortestPathToPosition(task.start, level, task.destination.lat, task.destination.lon,
                                       task.radius);
}

void RequireEqualCost(AirwaySearch& own, int ownEnd, const BoostSearch& other, int otherEnd,
                      const Task& task) {
  const bool bothNone = ownEnd < 0 && otherEnd < 0;
  if (bothNone || (ownEnd > 0 && otherEnd > 0 && own.SearchCost(ownEnd) == other.Cost(otherEnd))) return;
  std::fprintf(stderr, "from node %d: own way ends at %d, the other at %d, at different cost\n", task.start,
               ownEnd, otherEnd);
  std::abort();
}

// ratio: Boost's time / own time; routes: pairs between which there is a way.
void ShortestPathToPosition(benchmark::State& state, char level) {
  const NavDatabase& database = BenchWorld();
  const std::vector<Task> tasks = RandomTasks(database, level);
  std::vector<std::vector<char>> goals;
  for (const Task& task : tasks)
    goals.push_back(GoalsOf(database, task));
  AirwaySearch own(database);
  BoostSearch other(database, level);
  int routes = 0;
  for (std::size_t i = 0; i < tasks.size(); ++i) {
    const int end = RunOwn(own, tasks[i], level);
    RequireEqualCost(own, end, other, other.Run(tasks[i].start, goals[i]), tasks[i]);
    routes += end > 0 ? 1 : 0;
  }
  double ownSeconds = 0;
  double otherSeconds = 0;
  for ([[maybe_unused]] auto iteration : state) {
    const auto ownStart = Clock::now();
    for (const Task& task : tasks)
      benchmark::DoNotOptimize(RunOwn(own, task, level));
    ownSeconds += std::chrono::duration<double>(Clock::now() - ownStart).count();
    state.PauseTiming();
    const auto otherStart = Clock::now();
    for (std::size_t i = 0; i < tasks.size(); ++i)
      benchmark::DoNotOptimize(other.Run(tasks[i].start, goals[i]));
    otherSeconds += std::chrono::duration<double>(Clock::now() - otherStart).count();
    state.ResumeTiming();
  }
  state.counters["ratio"] = otherSeconds / ownSeconds;
  state.counters["pairs"] = static_cast<double>(tasks.size());
  state.counters["routes"] = routes;
}
BENCHMARK_CAPTURE(ShortestPathToPosition, high, 'J')->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(ShortestPathToPosition, low, 'V')->Unit(benchmark::kMillisecond);

}  // namespace
