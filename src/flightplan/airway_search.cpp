#include "flightplan/airway_search.h"

#include <algorithm>
#include <cmath>
#include <stdexcept>

#include "base/numbers.h"
#include "navdata/geodesy.h"

std::int32_t ParseAltitude(std::string_view text) {
  text = Trimmed(text);
  if (text.starts_with("FL")) return RoundToEven(Val(text.substr(2)) * 100.0);
  return ValInt32(text);
}

// The circle around a position in which a search may end.
class AirwaySearch::Circle {
 public:
  Circle(const NavDatabase& database, const AirwayGraph& graph, const AirwayLandmarks& landmarks, float lat,
         float lon, float radius, std::vector<float>& toGo)
      : database(database),
        graph(graph),
        landmarks(landmarks),
        lat(lat),
        lon(lon),
        radius(radius),
        middle(AirwayGraph::DirectionTo(lat, lon)),
        nearest(static_cast<float>(radius < 0.0f ? 2.0 : std::cos(RadiusWithMargin()) - 1e-6)),
        toGo(toGo) {
    toGo.assign(static_cast<std::size_t>(graph.VertexCount()), -1.0f);
    std::vector<int> inside;
    for (const std::int32_t node : database.intersectionsByPlace.Near({lat, lon}, radius)) {
      const int vertex = graph.VertexOf(node);
      if (vertex >= 0 && Contains(vertex)) inside.push_back(vertex);
    }
    goal = landmarks.GoalOf(inside);
  }

  // The scalar product rules out far vertices cheaply; whatever may lie within
  // the radius is measured. The margins are many times the rounding of the
  // product and the epsilon by which GreatCircleDistance() keeps meridians apart.
  bool Contains(int vertex) const {
    if (CosineTo(vertex) < nearest) return false;
    const IntersectionRec& at = database.intersections[static_cast<std::size_t>(graph.NodeOf(vertex))];
    return GreatCircleDistance(at.sngLat, at.sngLon, lat, lon) <= radius;
  }

  // No way from the vertex into the circle is shorter than this (NM), infinite
  // if there is none. The margin of 2 NM covers the arc cosine of a 32-bit product.
  float ToGo(int vertex) const {
    float& known = toGo[static_cast<std::size_t>(vertex)];
    if (known < 0.0f) {
      const float arc = std::acos(std::clamp(CosineTo(vertex), -1.0f, 1.0f));
      const double distance = RadToDeg(arc) * 60.0 - 2.0 - radius;
      known =
          std::max(static_cast<float>(distance * graph.ShortestLinkRatio()), landmarks.ToGo(vertex, goal));
    }
    return known;
  }

 private:
  double RadiusWithMargin() const { return std::min(DegToRad((radius + 0.1) / 60.0), geodesyPi); }
  float CosineTo(int vertex) const {
    const AirwayGraph::Direction& d = graph.DirectionOf(vertex);
    return d.x * middle.x + d.y * middle.y + d.z * middle.z;
  }

  const NavDatabase& database;
  const AirwayGraph& graph;
  const AirwayLandmarks& landmarks;
  AirwayLandmarks::Goal goal;
  float lat, lon, radius;
  AirwayGraph::Direction middle;
  float nearest;
  std::vector<float>& toGo;
};

int AirwaySearch::ShortestPathToPosition(int startNode, char level, float destLat, float destLon,
                                         float radius) {
  const AirwayGraph& network = UseNetwork(level);
  const AirwayLandmarks& landmarks = level == 'V' ? *lowLandmarks : *highLandmarks;
  const Circle circle(database, network, landmarks, destLat, destLon, radius, toGo);

  // Leans towards the goal by a fifth more than the way to go, and never comes
  // back to a settled vertex: quick, and not always shortest.
  struct Hurry {
    const Circle& circle;
    std::vector<char>& settled;
    bool Settle(int vertex) const {
      settled[static_cast<std::size_t>(vertex)] = 1;
      return circle.Contains(vertex);
    }
    float Key(int vertex, float cost) const { return cost + 1.2f * circle.ToGo(vertex); }
    bool Keep(int vertex, float) const {
      return settled[static_cast<std::size_t>(vertex)] == 0 && std::isfinite(circle.ToGo(vertex));
    }
  };
  settled.assign(static_cast<std::size_t>(network.VertexCount()), 0);
  const int someEnd = Search(startNode, Hurry{circle, settled});
  if (someEnd < 0) return someEnd;

  struct Within {
    const Circle& circle;
    float mostCost;
    bool Settle(int vertex) const { return circle.Contains(vertex); }
    float Key(int, float cost) const { return cost; }
    bool Keep(int vertex, float cost) const { return cost + circle.ToGo(vertex) <= mostCost; }
  };
  // One NM more than enough, for the rounding of the sums.
  return Search(startNode, Within{circle, SearchCost(someEnd) + 1.0f});
}

int AirwaySearch::ShortestPathToNode(int startNode, char level, int endNode) {
  struct Everywhere {
    int end;
    bool Settle(int vertex) const { return vertex == end; }
    float Key(int, float cost) const { return cost; }
    bool Keep(int, float) const { return true; }
  };
  return Search(startNode, Everywhere{UseNetwork(level).VertexOf(endNode)});
}

const AirwayGraph& AirwaySearch::UseNetwork(char level) {
  std::optional<AirwayGraph>& network = level == 'V' ? low : high;
  if (!network) {
    network.emplace(database, level);
    (level == 'V' ? lowLandmarks : highLandmarks).emplace(*network);
  }
  graph = &*network;
  return *graph;
}

template <class Guide>
int AirwaySearch::Search(int startNode, const Guide& guide) {
  if (!IsNode(database, startNode)) throw std::out_of_range("the airway search starts at no node");
  states.assign(static_cast<std::size_t>(graph->VertexCount()), VertexState{});
  heap.clear();
  const int start = graph->VertexOf(startNode);
  if (start < 0) return -startNode;
  states[static_cast<std::size_t>(start)].cost = 0.0f;
  RelaxArcs(start, 0.0f, guide);
  for (int iterations = 1; !heap.empty() && iterations <= iterationLimit; ++iterations) {
    const HeapEntry entry = Pop();
    const float cost = states[static_cast<std::size_t>(entry.vertex)].cost;
    // An old entry of a vertex that a shorter way has reached since.
    if (entry.key != guide.Key(entry.vertex, cost)) continue;
    if (guide.Settle(entry.vertex)) return graph->NodeOf(entry.vertex);
    RelaxArcs(entry.vertex, cost, guide);
  }
  return -startNode;
}

// A settled vertex is never dearer than the one whose arcs are looked at, and
// no length is negative: the comparison leaves it alone.
template <class Guide>
void AirwaySearch::RelaxArcs(int vertex, float costSoFar, const Guide& guide) {
  const std::uint32_t end = graph->FirstArc(vertex + 1);
  for (std::uint32_t i = graph->FirstArc(vertex); i < end; ++i) {
    const AirwayGraph::Arc& arc = graph->ArcAt(i);
    const float cost = arc.length + costSoFar;
    VertexState& target = states[static_cast<std::size_t>(arc.target)];
    if (!(cost < target.cost) || !guide.Keep(arc.target, cost)) continue;
    target = {cost, i};
    Push({guide.Key(arc.target, cost), arc.target});
  }
}

// Sifts up until the parent's key is not greater.
void AirwaySearch::Push(HeapEntry entry) {
  if (heap.size() >= heapLimit) throw std::length_error("the heap of the airway search is full");
  std::size_t place = heap.size();
  heap.push_back(entry);
  while (place > 0) {
    const std::size_t parent = (place - 1) / 2;
    if (!(heap[parent].key > entry.key)) break;
    heap[place] = heap[parent];
    place = parent;
  }
  heap[place] = entry;
}

// Moves the last entry to the top and sifts it down towards the smaller child,
// the left one on a tie.
AirwaySearch::HeapEntry AirwaySearch::Pop() {
  const HeapEntry top = heap.front();
  const HeapEntry last = heap.back();
  heap.pop_back();
  const std::size_t size = heap.size();
  if (size == 0) return top;
  HeapEntry* const entries = heap.data();
  std::size_t place = 0;
  for (std::size_t child = 1; child < size; child = 2 * place + 1) {
    if (child + 1 < size) child += entries[child + 1].key < entries[child].key ? 1 : 0;
    if (!(entries[child].key < last.key)) break;
    entries[place] = entries[child];
    place = child;
  }
  entries[place] = last;
  return top;
}

const AirwaySearch::VertexState* AirwaySearch::StateOf(int node) const {
  const int vertex = graph == nullptr ? -1 : graph->VertexOf(node);
  if (vertex < 0 || static_cast<std::size_t>(vertex) >= states.size()) return nullptr;
  const VertexState& state = states[static_cast<std::size_t>(vertex)];
  return state.cost < unreachedCost ? &state : nullptr;
}

std::vector<AirwaySearch::Step> AirwaySearch::PathTo(int node) const {
  std::vector<Step> path;
  for (const VertexState* state = StateOf(node); state != nullptr; state = StateOf(node)) {
    Step step{node, {}, 0, 0};
    if (state->arc != noArc) {
      const ConnectionRec& link = graph->LinkOf(state->arc);
      step.SearchAirway = link.strAirway;
      step.SearchMinAlt = ParseAltitude(link.strMinAlt.View());
      step.SearchMaxAlt = ParseAltitude(link.strMaxAlt.View());
      node = graph->NodeOf(graph->SourceOf(state->arc));
    }
    path.push_back(step);
    if (state->arc == noArc) break;
  }
  std::reverse(path.begin(), path.end());
  return path;
}

float AirwaySearch::SearchCost(int node) const {
  const VertexState* state = StateOf(node);
  return state == nullptr ? unreachedCost : state->cost;
}
