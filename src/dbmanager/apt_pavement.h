// The outlines and painted lines of apt.dat: a header row, then nodes with
// straight or Bezier sides, several rings one behind the other.
#pragma once

#include <vector>

#include "dbmanager/apt_dat.h"

class PavementReader {
 public:
  // A new outline (row 110), painted line (row 120) or boundary (row 130).
  void BeginPavement() { Begin(Shape::pavement); }
  void BeginLine() { Begin(Shape::line); }
  void BeginBoundary() { Begin(Shape::boundary); }
  // Rows of other kinds end what is open.
  void End() { Begin(Shape::none); }

  // A node, rows 111 to 116; row is its number. Finished rings and lines go to
  // airport. The reason if the row cannot be used, else null.
  const char* ReadNode(int row, const LineFields& fields, SourceAirport& airport);

 private:
  enum class Shape { none, pavement, line, boundary };
  struct Node {
    SourcePosition position;
    std::optional<SourcePosition> control;  // of the side that leaves the node
    bool taxiCentreline = false;
  };

  void Begin(Shape newShape);
  void Finish(bool closed, SourceAirport& airport);
  void FinishLine(bool closed, SourceAirport& airport) const;

  Shape shape = Shape::none;
  bool firstRing = true;
  std::vector<Node> nodes;
};
