#include "map/shape_clip.h"

#include <algorithm>

namespace {

SurfacePoint AtX(SurfacePoint a, SurfacePoint b, float x) {
  return {x, a.y + (b.y - a.y) * (x - a.x) / (b.x - a.x)};
}

SurfacePoint AtY(SurfacePoint a, SurfacePoint b, float y) {
  return {a.x + (b.x - a.x) * (y - a.y) / (b.y - a.y), y};
}

// One edge of the rectangle: Sutherland and Hodgman's step.
template <class Inside, class Crossing>
void ClipEdge(std::span<const SurfacePoint> shape, std::vector<SurfacePoint>& clipped, const Inside& inside,
              const Crossing& crossing) {
  clipped.clear();
  if (shape.empty()) return;
  SurfacePoint before = shape.back();
  for (const SurfacePoint point : shape) {
    if (inside(point) != inside(before)) clipped.push_back(crossing(before, point));
    if (inside(point)) clipped.push_back(point);
    before = point;
  }
}

}  // namespace

std::vector<SurfacePoint> ClipPolygon(std::span<const SurfacePoint> shape, const ClipRect& rect) {
  std::vector<SurfacePoint> a;
  std::vector<SurfacePoint> b;
  ClipEdge(
      shape, a, [&](SurfacePoint p) { return p.x >= rect.left; },
      [&](SurfacePoint p, SurfacePoint q) { return AtX(p, q, rect.left); });
  ClipEdge(
      a, b, [&](SurfacePoint p) { return p.x <= rect.right; },
      [&](SurfacePoint p, SurfacePoint q) { return AtX(p, q, rect.right); });
  ClipEdge(
      b, a, [&](SurfacePoint p) { return p.y >= rect.top; },
      [&](SurfacePoint p, SurfacePoint q) { return AtY(p, q, rect.top); });
  ClipEdge(
      a, b, [&](SurfacePoint p) { return p.y <= rect.bottom; },
      [&](SurfacePoint p, SurfacePoint q) { return AtY(p, q, rect.bottom); });
  return b;
}

bool MayTouch(SurfacePoint a, SurfacePoint b, const ClipRect& rect) {
  return std::max(a.x, b.x) >= rect.left && std::min(a.x, b.x) <= rect.right &&
         std::max(a.y, b.y) >= rect.top && std::min(a.y, b.y) <= rect.bottom;
}
