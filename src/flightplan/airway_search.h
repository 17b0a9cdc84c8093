// Shortest connections over the airway network: Dijkstra's algorithm with a
// binary heap over the intersection table. Nodes are its row numbers (1 up; 0
// means none), cost is the sum of link lengths in NM, added up in 32-bit
// floats. Network 'V' walks the low-altitude links, any other the high ones.
// One object serves any number of searches and keeps its memory between them.
#pragma once

#include <array>
#include <cstdint>
#include <string_view>
#include <vector>

#include "navdata/nav_database.h"

// An altitude text of a link in feet: "FL" and hundreds of feet, else feet.
// 0 if it holds no number.
std::int32_t ParseAltitude(std::string_view text);

// The links of a node on a network; none for a row outside the table.
std::span<const ConnectionRec> NetworkLinks(const NavDatabase& database, int node, char level);

// True for a row number that a link may lead to.
bool IsNode(const NavDatabase& database, int node);

class AirwaySearch {
 public:
  // Entries that the heap holds at most; one more throws std::length_error.
  static constexpr int heapLimit = 23000;
  static constexpr int iterationLimit = 100000;

  // One node of the way found, with the link by which it was reached (empty
  // and 0 at the start node).
  struct Step {
    int node = 0;
    FixedText<8> SearchAirway;
    std::int32_t SearchMinAlt = 0;  // feet
    std::int32_t SearchMaxAlt = 0;
  };

  // The database must outlive the search and keep its intersections.
  explicit AirwaySearch(const NavDatabase& database);

  // The first settled node at most radius NM from the position; the start node
  // itself is not tested. The negated start node if the heap runs empty or
  // after iterationLimit settled entries. Throws std::out_of_range if the
  // start is no node.
  int ShortestPathToPosition(int startNode, char level, float destLat, float destLon, float radius);

  // The same search with a node as its goal.
  int ShortestPathToNode(int startNode, char level, int endNode);

  // Of the last search: the way to a settled node from the start, and its cost
  // in NM. A node that was not reached gives an empty way and the value that
  // stands for "no way yet".
  std::vector<Step> PathTo(int node) const;
  float SearchCost(int node) const;

 private:
  static constexpr float unreachedCost = 2147483648.0f;

  // What a search knows of a node. It counts only if mark belongs to the
  // search that runs: a new search costs no reset of the table.
  struct NodeState {
    float cost = unreachedCost;
    std::int32_t previous = 0;
    const ConnectionRec* link = nullptr;
    std::uint32_t mark = 0;
  };

  struct HeapEntry {
    float cost;
    std::int32_t node;
  };

  struct UnitVector {
    float x = 0, y = 0, z = 0;
  };

  template <class IsGoal>
  int Search(int startNode, char level, const IsGoal& isGoal);
  void Relax(int node, const ConnectionRec& link, float costSoFar);
  void BeginSearch(int startNode);
  void Push(HeapEntry entry);
  HeapEntry Pop();
  bool IsDone(const NodeState& state) const { return state.mark == doneMark; }
  bool IsReached(const NodeState& state) const { return state.mark == doneMark || state.mark == openMark; }

  const NavDatabase& database;
  std::vector<NodeState> nodes;
  std::vector<UnitVector> directions;
  std::vector<HeapEntry> heap;  // entry 0 is the top
  std::uint32_t openMark = 0;   // even and odd number of the running search
  std::uint32_t doneMark = 0;
};
