#include "map/shape_clip.h"

#include <algorithm>
#include <cmath>

namespace {

// Ends may lie millions of units off the page: the working is in double.
float Between(float a, float b, float part, float whole) {
  return static_cast<float>(a + (static_cast<double>(b) - a) * part / whole);
}

SurfacePoint AtX(SurfacePoint a, SurfacePoint b, float x) {
  return {x, Between(a.y, b.y, x - a.x, b.x - a.x)};
}

SurfacePoint AtY(SurfacePoint a, SurfacePoint b, float y) {
  return {Between(a.x, b.x, y - a.y, b.y - a.y), y};
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

void ThinOut(std::vector<SurfacePoint>& line, float distance) {
  if (line.size() < 3) return;
  std::size_t kept = 1;
  for (std::size_t i = 1; i < line.size(); ++i) {
    const bool near = std::abs(line[i].x - line[kept - 1].x) < distance &&
                      std::abs(line[i].y - line[kept - 1].y) < distance;
    if (!near || i + 1 == line.size()) line[kept++] = line[i];
  }
  line.resize(kept);
}

bool ClipLine(SurfacePoint& a, SurfacePoint& b, const ClipRect& rect) {
  double enter = 0;
  double leave = 1;
  const double x = static_cast<double>(b.x) - a.x;
  const double y = static_cast<double>(b.y) - a.y;
  // Liang and Barsky: room is what is left to an edge, pace how fast the line goes towards it.
  const auto cut = [&](double pace, double room) {
    if (pace == 0) return room >= 0;
    const double at = room / pace;
    if (pace < 0) enter = std::max(enter, at);
    if (pace > 0) leave = std::min(leave, at);
    return enter <= leave;
  };
  const bool touches =
      cut(-x, static_cast<double>(a.x) - rect.left) && cut(x, static_cast<double>(rect.right) - a.x) &&
      cut(-y, static_cast<double>(a.y) - rect.top) && cut(y, static_cast<double>(rect.bottom) - a.y);
  if (!touches) return false;
  const SurfacePoint start = a;
  const auto at = [&](double part) {
    return SurfacePoint{static_cast<float>(start.x + part * x), static_cast<float>(start.y + part * y)};
  };
  if (enter > 0) a = at(enter);
  if (leave < 1) b = at(leave);
  return true;
}

void LineClipper::Break() {
  FinishRun();
  hasLast = false;
}

void LineClipper::FinishRun() {
  if (run.size() > 1) runs.push_back(run);
  run.clear();
}

void LineClipper::Add(SurfacePoint point) {
  if (hasLast) AddToRun(last, point);
  last = point;
  hasLast = true;
}

void LineClipper::AddToRun(SurfacePoint from, SurfacePoint to) {
  const bool fromInside = rect.Contains(from);
  const bool toInside = rect.Contains(to);
  if (!(fromInside && toInside) && !ClipLine(from, to, rect)) return FinishRun();
  if (!fromInside) FinishRun();
  if (run.empty()) run.push_back(from);
  run.push_back(to);
  if (!toInside) FinishRun();
}
