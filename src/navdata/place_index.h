// Finds rows by where they are: a grid of whole degrees over the world. It
// answers with row numbers in ascending order, as a scan from row 0 would meet
// them, so "first wins", "last wins" and every tie come out the same.
#pragma once

#include <cstdint>
#include <span>
#include <vector>

#include "navdata/geodesy.h"

// A box of latitudes and longitudes in degrees. West greater than east: the
// box crosses the date line.
struct GeoBox {
  float south = -90;
  float west = -180;
  float north = 90;
  float east = 180;
};

// The smallest box around a shape's points, which follow each other the shorter
// way round the world. Points that are not on the map are passed over; a shape
// without points gives a box that holds nothing (south above north).
GeoBox BoxAround(std::span<const Position> points);

class PlaceIndex {
 public:
  PlaceIndex() = default;

  // positions[row] is the row's place; rows that skip[row] marks (if given)
  // and rows whose place is no number are left out. Latitudes beyond a pole
  // and longitudes beyond 180 are kept in the outermost cells.
  static PlaceIndex Build(const std::vector<Position>& positions, const std::vector<bool>* skip = nullptr);

  // Rows that have two places (the ends of a line) are found by either; places
  // holds two for each row, one behind the other.
  static PlaceIndex BuildForEnds(const std::vector<Position>& places);

  // Rows that cover an area are found wherever their box lies. Boxes of no
  // numbers and boxes that hold nothing are left out.
  static PlaceIndex BuildForBoxes(const std::vector<GeoBox>& boxes);

  // Answers every question with all of so many rows, as a walk over the table
  // would look at them: to hold the index against.
  static PlaceIndex WholeTable(std::size_t rowCount);

  // Rows whose cell touches the box, ascending: every row inside the box and
  // some near it. The caller tests the exact condition.
  std::vector<std::int32_t> Near(const GeoBox& box) const;

  // Likewise for a circle, radius in NM (also over a pole and the date line).
  std::vector<std::int32_t> Near(Position centre, double radiusNM) const;

 private:
  std::vector<std::uint32_t> cellStart;  // 180 x 360 cells + 1
  std::vector<std::int32_t> rows;        // by cell, ascending within one
  std::vector<std::int32_t> wideRows;    // boxes over so many cells that every answer has them
  int placesPerRow = 1;
  bool manyCellsPerRow = false;
};
