// Cuts shapes and lines to a rectangle, so that a continent or a long leg drawn
// at a close range costs the drawing surface no more than what can be seen of it.
#pragma once

#include <span>
#include <vector>

#include "platform/draw_surface.h"

struct ClipRect {
  float left;
  float top;
  float right;
  float bottom;

  bool Contains(SurfacePoint p) const { return p.x >= left && p.x <= right && p.y >= top && p.y <= bottom; }
};

// The part of a closed shape within the rectangle (one polygon; where the shape
// leaves and comes back it runs along the edge). Empty if nothing is left.
std::vector<SurfacePoint> ClipPolygon(std::span<const SurfacePoint> shape, const ClipRect& rect);

// Leaves out the points that lie nearer than distance, in x and in y, to the
// one kept before; the first and the last stay.
void ThinOut(std::vector<SurfacePoint>& line, float distance);

// Cuts the line from a to b to its part within the rectangle; false, and both
// as they were, if there is none. A line that only touches an edge has a part.
bool ClipLine(SurfacePoint& a, SurfacePoint& b, const ClipRect& rect);

// Takes an open line point by point and keeps its parts within a rectangle.
class LineClipper {
 public:
  explicit LineClipper(const ClipRect& rect) : rect(rect) {}

  // Ends the line: the next point begins another.
  void Break();
  void Add(SurfacePoint point);
  // A point was added since the last Break().
  bool Begun() const { return hasLast; }

  // The parts, each of two points or more, after a last Break().
  const std::vector<std::vector<SurfacePoint>>& Runs() const { return runs; }

 private:
  void AddToRun(SurfacePoint from, SurfacePoint to);
  void FinishRun();

  ClipRect rect;
  bool hasLast = false;
  SurfacePoint last;
  std::vector<SurfacePoint> run;
  std::vector<std::vector<SurfacePoint>> runs;
};
