// Cuts outlines to a rectangle, so that a continent drawn at a close range
// costs the drawing surface no more than what can be seen of it.
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

// True if the line between two points may touch the rectangle: both ends lie
// not beyond the same edge.
bool MayTouch(SurfacePoint a, SurfacePoint b, const ClipRect& rect);
