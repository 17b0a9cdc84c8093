// Shortest connections over the airway network: Dijkstra's algorithm with a
// binary heap over the intersection table. Nodes are its row numbers (1 up; 0
// means none), cost is the sum of link lengths in NM, added up in 32-bit
// floats. Network 'V' walks the low-altitude links, any other the high ones.
// One object serves any number of searches and keeps its memory between them.
//
// A search towards a position runs twice. The first run hurries towards the
// goal (A*, P. Hart, N. Nilsson, B. Raphael, 1968, with weighted distances) and
// gives a cost that the way need not exceed; the second is Dijkstra's, and
// passes over every vertex from which the goal cannot be reached at that cost. Those are on no shortest
// way, so the result is that of the whole search.
#pragma once

#include <cstdint>
#include <optional>
#include <string_view>
#include <vector>

#include "flightplan/airway_graph.h"
#include "flightplan/airway_landmarks.h"
#include "navdata/nav_database.h"

// An altitude text of a link in feet: "FL" and hundreds of feet, else feet.
// 0 if it holds no number.
std::int32_t ParseAltitude(std::string_view text);

class AirwaySearch {
 public:
  // Entries that the heap holds at most; one more throws std::length_error.
  static constexpr int heapLimit = 23000;
  // Heap entries that a search takes at most.
  static constexpr int iterationLimit = 100000;

  // One node of the way found, with the link by which it was reached (empty
  // and 0 at the start node).
  struct Step {
    int node = 0;
    FixedText<8> SearchAirway;
    std::int32_t SearchMinAlt = 0;  // feet
    std::int32_t SearchMaxAlt = 0;
  };

  // The database must have its indexes, outlive the search and stay as it is
  // from the first search on: each network is laid out when it is first asked for.
  explicit AirwaySearch(const NavDatabase& database) : database(database) {}

  // The first settled node at most radius NM from the position; the start node
  // itself is not tested. The negated start node if the heap runs empty or
  // after iterationLimit entries. Throws std::out_of_range if the start is no
  // node.
  int ShortestPathToPosition(int startNode, char level, float destLat, float destLon, float radius);

  // The same search with a node as its goal.
  int ShortestPathToNode(int startNode, char level, int endNode);

  // Of the last search: the way to a settled node from the start, and its cost
  // in NM. A node that was not reached gives an empty way and unreachedCost.
  std::vector<Step> PathTo(int node) const;
  float SearchCost(int node) const;

  static constexpr float unreachedCost = 2147483648.0f;

 private:
  static constexpr std::uint32_t noArc = 0xFFFFFFFFu;

  // What a search knows of a vertex.
  struct VertexState {
    float cost = unreachedCost;
    std::uint32_t arc = noArc;  // by which it was reached
  };

  struct HeapEntry {
    float key;
    std::int32_t vertex;
  };

  class Circle;

  // Guide takes each vertex as it is settled and says whether the search ends
  // there (Settle), in which order they come (Key) and which ways it need not
  // follow (Keep).
  template <class Guide>
  int Search(int startNode, const Guide& guide);
  template <class Guide>
  void RelaxArcs(int vertex, float costSoFar, const Guide& guide);
  const AirwayGraph& UseNetwork(char level);
  void Push(HeapEntry entry);
  HeapEntry Pop();
  const VertexState* StateOf(int node) const;

  const NavDatabase& database;
  std::optional<AirwayGraph> low, high;
  std::optional<AirwayLandmarks> lowLandmarks, highLandmarks;
  const AirwayGraph* graph = nullptr;  // of the last search
  std::vector<VertexState> states;
  std::vector<HeapEntry> heap;  // entry 0 is the top
  std::vector<float> toGo;      // by vertex, NM, -1: not yet known
  std::vector<char> settled;    // by vertex, of the first run
};
