// The world's outlines made ready for maps of any range: the same shapes in
// several levels of detail, each cut into short blocks of points with a box
// around each, so that a map walks no more points than it can show. Built once
// from the tables; shape i of every level is row i of its table.
#pragma once

#include <array>
#include <cstdint>
#include <span>
#include <vector>

#include "navdata/tables.h"

// Longitudes run on without a jump where a shape crosses the date line: they
// may leave -180..180 by one turn.
struct OutlineBox {
  float south = 90;
  float west = 720;
  float north = -90;
  float east = -720;

  void Add(Position place);
};

struct OutlineShape {
  std::uint8_t bytType = 0;
  std::uint32_t firstPoint = 0;
  std::uint32_t pointCount = 0;  // 0: nothing that could be drawn
  std::uint32_t firstBlock = 0;
  OutlineBox box;
};

struct OutlineLevel {
  // Block i of a shape holds its points i * blockSteps to (i + 1) * blockSteps, both included.
  static constexpr std::uint32_t blockSteps = 32;

  float tolerance = 0;  // degrees that a line may lie off the table's
  std::vector<OutlineShape> shapes;
  std::vector<Position> points;
  std::vector<OutlineBox> blocks;

  std::span<const Position> Points(const OutlineShape& shape) const {
    return std::span(points).subspan(shape.firstPoint, shape.pointCount);
  }
  std::span<const OutlineBox> Blocks(const OutlineShape& shape) const;
};

class OutlineLevels {
 public:
  static constexpr std::array<float, 4> tolerances = {0, 0.008F, 0.02F, 0.05F};

  static OutlineLevels Build(const WorldShapes& world);

  // The level with the fewest points whose lines lie off by no more than this
  // many degrees; the whole outline for anything too small.
  const OutlineLevel& For(double degrees) const;

 private:
  std::array<OutlineLevel, tolerances.size()> levels;
};

// An outline with longitudes that run on across the date line, each step the
// short way round, but a turn along a pole as it is. Points that are no places
// are left out.
std::vector<Position> UnwrappedOutline(std::span<const Position> points);

// The points of an unwrapped outline that stay when it may lie off by tolerance
// degrees (Douglas and Peucker's rule, within runs of a bounded number of
// points). First and last point stay, every point on the date line or at a
// pole, and of a closed shape at least a triangle.
std::vector<Position> SimplifiedOutline(std::span<const Position> points, float tolerance);

// True for an edge where an outline was cut at 180 degrees or closed along a
// pole: there is no coast.
bool IsCutEdge(Position a, Position b);
