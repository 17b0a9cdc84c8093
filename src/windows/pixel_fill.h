// Anti-aliased filled shapes set straight into a picture of 32-bit pixels: how
// much of each pixel a shape covers is summed up along its edges, row by row.
#pragma once

#include <QPointF>
#include <QRgb>
#include <span>
#include <vector>

#include "windows/pixel_strokes.h"

class PixelFill {
 public:
  // A closed shape (even-odd where it crosses itself), mixed into the picture
  // by opacity 0 to 1. Points may lie far off the picture; a shape with a point
  // that is no number is not drawn.
  void Fill(const PixelGrid& grid, std::span<const QPointF> shape, QRgb color, float opacity);

 private:
  // What the shape's edges do to one pixel of a row: cover is the height of the
  // edge in it, which everything to the right of the pixel has, too; share is
  // what the pixel itself has of it.
  struct Cell {
    int column;
    float cover;
    float share;
  };
  struct Row {
    std::vector<Cell> cells;
  };

  void AddEdge(QPointF from, QPointF to);
  void AddInRow(Row& row, double x1, double x2, double height);
  void Sweep(const PixelGrid& grid, int y, QRgb color, float opacity);

  int width = 0;
  int height = 0;
  int firstRow = 0;  // of those that the shape touches
  int lastRow = -1;
  std::vector<Row> rows;  // kept for the next shape
};
