// What is known of an airway network before any search: the distances from and
// to a few of its vertices at the edges, the landmarks. By the triangle
// inequality they bound from below how far it is from any vertex to a goal,
// along the links and not as the crow flies (A. Goldberg, C. Harrelson,
// Computing the shortest path: A* search meets graph theory, 2005).
#pragma once

#include <array>
#include <span>
#include <vector>

#include "flightplan/airway_graph.h"

class AirwayLandmarks {
 public:
  static constexpr std::size_t count = 6;

  explicit AirwayLandmarks(const AirwayGraph& graph);

  // A set of vertices, seen from the landmarks (NM): its nearest vertex on the
  // way from each, its farthest on the way to each. Infinite: not to be reached.
  struct Goal {
    std::array<float, count> nearestFrom;
    std::array<float, count> farthestTo;
  };
  Goal GoalOf(std::span<const int> vertices) const;

  // No way over the links from the vertex to any vertex of the goal is shorter
  // (NM, 0 or more); infinite if there is none. Half a mile is taken off for the
  // rounding of sums.
  float ToGo(int vertex, const Goal& goal) const;

 private:
  std::vector<std::array<float, count>> from;  // by vertex
  std::vector<std::array<float, count>> to;
};
