// Lines between two places on the map.
#pragma once

#include <cmath>
#include <span>
#include <vector>

#include "map/map_view.h"
#include "map/shape_clip.h"
#include "platform/draw_surface.h"

// Appends the straight line on the map between two places, the shorter way
// round the world. Where that way leaves the map's world at one side and comes
// back at the other, two lines are appended.
void AppendMapLine(const Projection& projection, Position from, Position to, std::vector<SurfaceLine>& lines);

// How far a point of the page is from the nearest point of a line, in units.
double DistanceToLine(const SurfaceLine& line, double x, double y);

// The page grown by margin units on each side, but never more than one turn of
// the world: what is drawn for a turn beside it stays off.
ClipRect OneWorldPage(const Projection& projection, float margin);

// A shape on the page: its points, once for each turn of the world at which it
// may touch the rectangle. A shape that crosses the date line stays whole.
// Points that are not on the map are passed over.
std::vector<std::vector<SurfacePoint>> ShapeOnPage(const Projection& projection,
                                                   std::span<const Position> shape, const ClipRect& page);

// The great circle between two places, the shorter way.
class GreatCircleArc {
 public:
  GreatCircleArc(Position from, Position to);

  double DistanceNM() const { return distance; }
  // False for equal and for opposite places, between which no one arc leads.
  bool HasDirection() const { return std::abs(sine) >= 1e-6; }
  // The place at a part of the arc, 0 to 1. Without a direction the nearer end.
  Position At(double part) const;

 private:
  struct Vector {
    double x, y, z;
  };
  static Vector VectorOf(Position place);

  Position from;
  Position to;
  double distance;
  double angle;
  double sine;
  Vector a;
  Vector b;
};

// The places along the great circle between two places, both ends included, no
// step longer than about stepNM.
std::vector<Position> GreatCirclePlaces(Position from, Position to, double stepNM);
