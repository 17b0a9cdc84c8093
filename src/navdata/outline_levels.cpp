#include "navdata/outline_levels.h"

#include <algorithm>
#include <cmath>

namespace {

// Longest run that is simplified as one: bounds the work on hostile files.
constexpr std::size_t longestRun = 1024;

bool OnDateLine(Position p) {
  return std::abs(std::abs(p.lon) - 180) <= 0.005F;
}

bool AtPole(Position p) {
  return std::abs(p.lat) >= 89.9F;
}

// Square of the distance from p to the line between a and b, in degrees.
double SquareOff(Position p, Position a, Position b) {
  const double x = static_cast<double>(b.lon) - a.lon;
  const double y = static_cast<double>(b.lat) - a.lat;
  const double px = static_cast<double>(p.lon) - a.lon;
  const double py = static_cast<double>(p.lat) - a.lat;
  const double length = x * x + y * y;
  const double along = length > 0 ? std::clamp((px * x + py * y) / length, 0.0, 1.0) : 0;
  const double dx = px - along * x;
  const double dy = py - along * y;
  return dx * dx + dy * dy;
}

class Simplifier {
 public:
  Simplifier(std::span<const Position> points, float tolerance)
      : points(points), square(static_cast<double>(tolerance) * tolerance), keep(points.size()) {}

  std::vector<Position> Run() {
    std::size_t anchor = 0;
    keep.front() = keep.back() = true;
    if (IsClosed()) KeepTriangle();
    for (std::size_t i = 1; i < points.size(); ++i) {
      if (OnDateLine(points[i]) || AtPole(points[i]) || i - anchor >= longestRun) keep[i] = true;
      if (!keep[i]) continue;
      SimplifyRun(anchor, i);
      anchor = i;
    }
    std::vector<Position> kept;
    for (std::size_t i = 0; i < points.size(); ++i)
      if (keep[i]) kept.push_back(points[i]);
    return kept;
  }

 private:
  struct Span {
    std::size_t first, last;
  };

  bool IsClosed() const { return points.size() > 3 && points.front() == points.back(); }

  std::size_t Farthest(Span span, double& most) const {
    std::size_t farthest = span.first;
    most = -1;
    for (std::size_t i = span.first + 1; i < span.last; ++i) {
      const double off = SquareOff(points[i], points[span.first], points[span.last]);
      if (off > most) most = off, farthest = i;
    }
    return farthest;
  }

  // The point farthest from the first, and the one farthest from the line between the two.
  void KeepTriangle() {
    double most = 0;
    const std::size_t last = points.size() - 1;
    const std::size_t corner = Farthest({0, last}, most);
    keep[corner] = true;
    double before = 0;
    double behind = 0;
    const std::size_t a = Farthest({0, corner}, before);
    const std::size_t b = Farthest({corner, last}, behind);
    keep[before >= behind ? a : b] = true;
  }

  void SimplifyRun(std::size_t first, std::size_t last) {
    open.push_back({first, last});
    while (!open.empty()) {
      const Span span = open.back();
      open.pop_back();
      double most = 0;
      const std::size_t farthest = Farthest(span, most);
      if (most <= square) continue;
      keep[farthest] = true;
      open.push_back({span.first, farthest});
      open.push_back({farthest, span.last});
    }
  }

  std::span<const Position> points;
  double square;
  std::vector<bool> keep;
  std::vector<Span> open;
};

void AddShape(OutlineLevel& level, std::uint8_t kind, std::span<const Position> points) {
  OutlineShape shape;
  shape.bytType = kind;
  shape.firstPoint = static_cast<std::uint32_t>(level.points.size());
  shape.firstBlock = static_cast<std::uint32_t>(level.blocks.size());
  shape.pointCount = points.size() < 2 ? 0 : static_cast<std::uint32_t>(points.size());
  for (std::size_t i = 0; i < shape.pointCount; ++i) {
    if (i % OutlineLevel::blockSteps == 0 && i + 1 < points.size()) {
      if (i > 0) level.blocks.back().Add(points[i]);
      level.blocks.emplace_back();
    }
    level.blocks.back().Add(points[i]);
    shape.box.Add(points[i]);
    level.points.push_back(points[i]);
  }
  level.shapes.push_back(shape);
}

}  // namespace

void OutlineBox::Add(Position place) {
  south = std::min(south, place.lat);
  north = std::max(north, place.lat);
  west = std::min(west, place.lon);
  east = std::max(east, place.lon);
}

std::span<const OutlineBox> OutlineLevel::Blocks(const OutlineShape& shape) const {
  if (shape.pointCount < 2) return {};
  return std::span(blocks).subspan(shape.firstBlock, (shape.pointCount - 2) / blockSteps + 1);
}

bool IsCutEdge(Position a, Position b) {
  const bool alongDateLine = OnDateLine(a) && OnDateLine(b) && std::abs(a.lon - b.lon) < 1;
  return alongDateLine || (AtPole(a) && AtPole(b));
}

std::vector<Position> UnwrappedOutline(std::span<const Position> points) {
  std::vector<Position> unwrapped;
  unwrapped.reserve(points.size());
  float turn = 0;
  Position before;
  for (const Position point : points) {
    if (!(std::abs(point.lat) <= 90) || !(std::abs(point.lon) <= 720)) continue;
    const float step = unwrapped.empty() ? 0 : point.lon - before.lon;
    const bool alongPole = AtPole(point) && AtPole(before);
    if (std::abs(step) > 180 && !alongPole) turn += step > 0 ? -360.0F : 360.0F;
    turn = std::clamp(turn, -360.0F, 360.0F);
    before = point;
    unwrapped.push_back({point.lat, point.lon + turn});
  }
  return unwrapped;
}

std::vector<Position> SimplifiedOutline(std::span<const Position> points, float tolerance) {
  if (points.size() < 3) return {points.begin(), points.end()};
  return Simplifier(points, tolerance).Run();
}

OutlineLevels OutlineLevels::Build(const WorldShapes& world) {
  OutlineLevels built;
  for (std::size_t i = 0; i < tolerances.size(); ++i) {
    OutlineLevel& level = built.levels[i];
    level.tolerance = tolerances[i];
    level.shapes.reserve(world.shapes.size());
    for (std::size_t row = 0; row < world.shapes.size(); ++row) {
      const WorldShapeRec& shape = world.shapes[row];
      if (i == 0) {
        const auto points = std::span(world.points).subspan(shape.firstPoint, shape.pointCount);
        AddShape(level, shape.bytType, UnwrappedOutline(points));
      } else {
        // From the level before, which has fewer points; the two errors add up.
        const OutlineLevel& finer = built.levels[i - 1];
        AddShape(level, shape.bytType,
                 SimplifiedOutline(finer.Points(finer.shapes[row]), tolerances[i] - finer.tolerance));
      }
    }
  }
  return built;
}

const OutlineLevel& OutlineLevels::For(double degrees) const {
  std::size_t level = levels.size() - 1;
  while (level > 0 && !(tolerances[level] <= degrees))
    --level;
  return levels[level];
}
