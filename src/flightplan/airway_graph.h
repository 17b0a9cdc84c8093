// One airway network in the form that a search runs through: its own vertex
// numbers, given along a curve over the map so that neighbours lie close
// together in memory, and the links of a vertex one behind the other in the
// order of their table. Built from the intersection table, then only read.
#pragma once

#include <cstdint>
#include <span>
#include <string_view>
#include <vector>

#include "navdata/nav_database.h"

// True for a row number that a link may lead to: 1 up, 0 means none.
bool IsNode(const NavDatabase& database, int node);

// True for a node whose level is the network's ('V' or 'J') or both.
bool IsOnNetwork(const NavDatabase& database, int node, char level);

// The links of a node on network 'V' (low) or any other (high); none for a row
// outside the table.
std::span<const ConnectionRec> NetworkLinks(const NavDatabase& database, int node, char level);

class AirwayGraph {
 public:
  struct Arc {
    std::int32_t target;  // vertex
    float length;         // NM
  };

  // Links to no node, and links whose length is negative or no number, are
  // left out. The database must outlive the graph.
  AirwayGraph(const NavDatabase& database, char level);

  int VertexCount() const { return static_cast<int>(nodes.size()); }

  // The vertex of a row of the intersection table, -1 if the network does not
  // touch it.
  int VertexOf(int node) const;
  int NodeOf(int vertex) const { return nodes[static_cast<std::size_t>(vertex)]; }

  // Arcs are numbered through the whole graph; a vertex has those from
  // FirstArc(vertex) up to FirstArc(vertex + 1).
  std::uint32_t FirstArc(int vertex) const { return firstArc[static_cast<std::size_t>(vertex)]; }
  const Arc& ArcAt(std::uint32_t arc) const { return arcs[arc]; }
  int SourceOf(std::uint32_t arc) const;
  const ConnectionRec& LinkOf(std::uint32_t arc) const { return *links[arc]; }

  // Unit vector of a vertex from the middle of the earth.
  struct Direction {
    float x, y, z;
  };
  const Direction& DirectionOf(int vertex) const { return directions[static_cast<std::size_t>(vertex)]; }
  static Direction DirectionTo(float lat, float lon);

  // How much shorter than the great circle between its ends a link is at most,
  // 0 to 1: a way between two points is never shorter than this part of their
  // great circle distance.
  double ShortestLinkRatio() const { return shortestLinkRatio; }

 private:
  void NumberVertices(const NavDatabase& database, char level);
  void AddArcs(const NavDatabase& database, char level);
  void NoteLength(const IntersectionRec& from, const IntersectionRec& to, float length);

  std::vector<std::int32_t> nodes;     // by vertex
  std::vector<std::int32_t> vertices;  // by node, -1: none
  std::vector<std::uint32_t> firstArc;
  std::vector<Arc> arcs;
  std::vector<const ConnectionRec*> links;  // by arc
  std::vector<Direction> directions;
  double shortestLinkRatio = 1.0;
};
