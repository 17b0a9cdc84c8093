#include "flightplan/airway_landmarks.h"

#include <algorithm>
#include <functional>
#include <limits>
#include <queue>
#include <utility>

namespace {

constexpr float unreached = std::numeric_limits<float>::infinity();
constexpr float roundingMargin = 0.5F;

// The links of a network, along or against their direction.
class Links {
 public:
  Links(const AirwayGraph& graph, bool reversed) : first(static_cast<std::size_t>(graph.VertexCount()) + 1) {
    const int vertices = graph.VertexCount();
    const auto eachArc = [&](const auto& take) {
      for (int vertex = 0; vertex < vertices; ++vertex) {
        for (std::uint32_t i = graph.FirstArc(vertex); i < graph.FirstArc(vertex + 1); ++i) {
          const AirwayGraph::Arc& arc = graph.ArcAt(i);
          if (reversed) {
            take(arc.target, AirwayGraph::Arc{vertex, arc.length});
          } else {
            take(vertex, arc);
          }
        }
      }
    };
    eachArc([&](int source, const AirwayGraph::Arc&) { ++first[static_cast<std::size_t>(source) + 1]; });
    for (std::size_t i = 1; i < first.size(); ++i)
      first[i] += first[i - 1];
    arcs.resize(first.back());
    std::vector<std::size_t> next(first.begin(), first.end() - 1);
    eachArc([&](int source, const AirwayGraph::Arc& arc) {
      arcs[next[static_cast<std::size_t>(source)]++] = arc;
    });
  }

  std::vector<float> DistancesFrom(int start) const {
    std::vector<float> distances(first.size() - 1, unreached);
    using Entry = std::pair<float, int>;
    std::priority_queue<Entry, std::vector<Entry>, std::greater<>> queue;
    distances[static_cast<std::size_t>(start)] = 0;
    queue.emplace(0.0F, start);
    while (!queue.empty()) {
      const auto [distance, vertex] = queue.top();
      queue.pop();
      const auto at = static_cast<std::size_t>(vertex);
      if (distance > distances[at]) continue;
      for (std::size_t i = first[at]; i < first[at + 1]; ++i) {
        float& known = distances[static_cast<std::size_t>(arcs[i].target)];
        if (!(distance + arcs[i].length < known)) continue;
        known = distance + arcs[i].length;
        queue.emplace(known, arcs[i].target);
      }
    }
    return distances;
  }

 private:
  std::vector<std::size_t> first;
  std::vector<AirwayGraph::Arc> arcs;
};

int BusiestVertex(const AirwayGraph& graph) {
  int busiest = 0;
  std::uint32_t most = 0;
  for (int vertex = 0; vertex < graph.VertexCount(); ++vertex) {
    const std::uint32_t arcs = graph.FirstArc(vertex + 1) - graph.FirstArc(vertex);
    if (arcs > most) most = arcs, busiest = vertex;
  }
  return busiest;
}

// The reached vertex with the largest value.
int Farthest(const std::vector<float>& distances) {
  std::size_t farthest = 0;
  float most = -1;
  for (std::size_t vertex = 0; vertex < distances.size(); ++vertex) {
    if (distances[vertex] < unreached && distances[vertex] > most)
      most = distances[vertex], farthest = vertex;
  }
  return static_cast<int>(farthest);
}

}  // namespace

// Each landmark is the vertex farthest from all before it, among those that
// can be reached from the network's busiest vertex.
AirwayLandmarks::AirwayLandmarks(const AirwayGraph& graph)
    : from(static_cast<std::size_t>(graph.VertexCount())), to(from.size()) {
  if (from.empty()) return;
  const Links forward(graph, false);
  const Links backward(graph, true);
  const std::vector<float> fromMiddle = forward.DistancesFrom(BusiestVertex(graph));
  std::vector<float> nearestLandmark = fromMiddle;
  for (std::size_t landmark = 0; landmark < count; ++landmark) {
    const int vertex = Farthest(nearestLandmark);
    const std::vector<float> away = forward.DistancesFrom(vertex);
    const std::vector<float> back = backward.DistancesFrom(vertex);
    for (std::size_t i = 0; i < from.size(); ++i) {
      from[i][landmark] = away[i];
      to[i][landmark] = back[i];
      if (landmark == 0) nearestLandmark[i] = fromMiddle[i] < unreached ? away[i] : unreached;
      nearestLandmark[i] = std::min(nearestLandmark[i], away[i]);
    }
  }
}

AirwayLandmarks::Goal AirwayLandmarks::GoalOf(std::span<const int> vertices) const {
  Goal goal;
  goal.nearestFrom.fill(unreached);
  goal.farthestTo.fill(-unreached);
  for (const int vertex : vertices) {
    for (std::size_t i = 0; i < count; ++i) {
      const auto at = static_cast<std::size_t>(vertex);
      goal.nearestFrom[i] = std::min(goal.nearestFrom[i], from[at][i]);
      goal.farthestTo[i] = std::max(goal.farthestTo[i], to[at][i]);
    }
  }
  return goal;
}

float AirwayLandmarks::ToGo(int vertex, const Goal& goal) const {
  const auto at = static_cast<std::size_t>(vertex);
  float most = roundingMargin;
  // Where a landmark says nothing the difference is no number, and not greater.
  for (std::size_t i = 0; i < count; ++i) {
    const float behind = goal.nearestFrom[i] - from[at][i];
    const float ahead = to[at][i] - goal.farthestTo[i];
    if (behind > most) most = behind;
    if (ahead > most) most = ahead;
  }
  return most - roundingMargin;
}
