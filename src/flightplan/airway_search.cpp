#include "flightplan/airway_search.h"

#include <algorithm>
#include <cmath>
#include <limits>
#include <stdexcept>

#include "base/numbers.h"
#include "navdata/geodesy.h"

namespace {

struct Direction {
  double x, y, z;
};

Direction DirectionOf(float lat, float lon) {
  const double phi = DegToRad(lat);
  const double lambda = DegToRad(lon);
  return {std::cos(phi) * std::cos(lambda), std::cos(phi) * std::sin(lambda), std::sin(phi)};
}

}  // namespace

std::int32_t ParseAltitude(std::string_view text) {
  text = Trimmed(text);
  if (text.starts_with("FL")) return RoundToEven(Val(text.substr(2)) * 100.0);
  return ValInt32(text);
}

std::span<const ConnectionRec> NetworkLinks(const NavDatabase& database, int node, char level) {
  if (node < 0 || static_cast<std::size_t>(node) >= database.intersections.size()) return {};
  const IntersectionRec& intersection = database.intersections[static_cast<std::size_t>(node)];
  return level == 'V' ? database.LowAlt(intersection) : database.HighAlt(intersection);
}

bool IsNode(const NavDatabase& database, int node) {
  return node > 0 && static_cast<std::size_t>(node) < database.intersections.size();
}

AirwaySearch::AirwaySearch(const NavDatabase& database)
    : database(database), nodes(database.intersections.size()), directions(database.intersections.size()) {
  for (std::size_t i = 0; i < directions.size(); ++i) {
    const Direction d = DirectionOf(database.intersections[i].sngLat, database.intersections[i].sngLon);
    directions[i] = {static_cast<float>(d.x), static_cast<float>(d.y), static_cast<float>(d.z)};
  }
}

int AirwaySearch::ShortestPathToPosition(int startNode, char level, float destLat, float destLon,
                                         float radius) {
  // The scalar product rules out far nodes cheaply; whatever may lie within the
  // radius is measured. The margin is many times the rounding of the products,
  // and the epsilon that GreatCircleDistance() keeps equal meridians apart by.
  const Direction to = DirectionOf(destLat, destLon);
  const double angle = std::min(DegToRad((radius + 0.1) / 60.0), geodesyPi);
  const double nearest = radius < 0.0f ? 2.0 : std::cos(angle) - 1e-6;
  const auto isGoal = [&](int node) {
    const UnitVector& d = directions[static_cast<std::size_t>(node)];
    if (d.x * to.x + d.y * to.y + d.z * to.z < nearest) return false;
    const IntersectionRec& at = database.intersections[static_cast<std::size_t>(node)];
    return GreatCircleDistance(at.sngLat, at.sngLon, destLat, destLon) <= radius;
  };
  return Search(startNode, level, isGoal);
}

int AirwaySearch::ShortestPathToNode(int startNode, char level, int endNode) {
  return Search(startNode, level, [endNode](int node) { return node == endNode; });
}

template <class IsGoal>
int AirwaySearch::Search(int startNode, char level, const IsGoal& isGoal) {
  if (!IsNode(database, startNode)) throw std::out_of_range("the airway search starts at no node");
  BeginSearch(startNode);
  for (const ConnectionRec& link : NetworkLinks(database, startNode, level))
    Relax(startNode, link, 0.0f);
  for (int iterations = 1; !heap.empty() && iterations <= iterationLimit; ++iterations) {
    const int node = Pop().node;
    NodeState& state = nodes[static_cast<std::size_t>(node)];
    if (IsDone(state)) continue;  // an old entry of a node that was reached by a shorter way since
    state.mark = doneMark;
    if (isGoal(node)) return node;
    for (const ConnectionRec& link : NetworkLinks(database, node, level))
      Relax(node, link, state.cost);
  }
  return -startNode;
}

void AirwaySearch::Relax(int node, const ConnectionRec& link, float costSoFar) {
  if (!IsNode(database, link.lngNext)) return;
  NodeState& target = nodes[static_cast<std::size_t>(link.lngNext)];
  if (IsDone(target)) return;
  const float cost = link.sngDistance + costSoFar;
  if (!(cost < (IsReached(target) ? target.cost : unreachedCost))) return;
  target = {cost, node, &link, openMark};
  Push({cost, link.lngNext});
}

void AirwaySearch::BeginSearch(int startNode) {
  if (openMark >= std::numeric_limits<std::uint32_t>::max() - 3) {
    std::fill(nodes.begin(), nodes.end(), NodeState{});
    openMark = 0;
  }
  openMark += 2;
  doneMark = openMark + 1;
  heap.clear();
  nodes[static_cast<std::size_t>(startNode)] = {0.0f, 0, nullptr, doneMark};
}

// Sifts up until the parent's cost is not greater.
void AirwaySearch::Push(HeapEntry entry) {
  if (heap.size() >= heapLimit) throw std::length_error("the heap of the airway search is full");
  std::size_t place = heap.size();
  heap.push_back(entry);
  while (place > 0) {
    const std::size_t parent = (place - 1) / 2;
    if (!(heap[parent].cost > entry.cost)) break;
    heap[place] = heap[parent];
    place = parent;
  }
  heap[place] = entry;
}

// Moves the last entry to the top and sifts it down towards the cheaper child,
// the left one on a tie.
AirwaySearch::HeapEntry AirwaySearch::Pop() {
  const HeapEntry top = heap.front();
  const HeapEntry last = heap.back();
  heap.pop_back();
  std::size_t place = 0;
  for (std::size_t child = 1; child < heap.size(); child = 2 * place + 1) {
    if (child + 1 < heap.size() && heap[child + 1].cost < heap[child].cost) ++child;
    if (!(heap[child].cost < last.cost)) break;
    heap[place] = heap[child];
    place = child;
  }
  if (!heap.empty()) heap[place] = last;
  return top;
}

std::vector<AirwaySearch::Step> AirwaySearch::PathTo(int node) const {
  std::vector<Step> path;
  while (IsNode(database, node) && IsReached(nodes[static_cast<std::size_t>(node)])) {
    const NodeState& state = nodes[static_cast<std::size_t>(node)];
    Step step{node, {}, 0, 0};
    if (state.link != nullptr) {
      step.SearchAirway = state.link->strAirway;
      step.SearchMinAlt = ParseAltitude(state.link->strMinAlt.View());
      step.SearchMaxAlt = ParseAltitude(state.link->strMaxAlt.View());
    }
    path.push_back(step);
    node = state.previous;
  }
  std::reverse(path.begin(), path.end());
  return path;
}

float AirwaySearch::SearchCost(int node) const {
  if (!IsNode(database, node)) return unreachedCost;
  const NodeState& state = nodes[static_cast<std::size_t>(node)];
  return IsReached(state) ? state.cost : unreachedCost;
}
