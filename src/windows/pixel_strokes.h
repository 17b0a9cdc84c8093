// Anti-aliased points, lines and sprites set straight into a picture of 32-bit
// pixels. Thousands of them cost a repaint what a general painter takes for
// dozens. Everything outside the picture is cut off.
#pragma once

#include <QImage>
#include <QPointF>

// The pixels of a picture (Format_RGB32), taken once for many strokes. The
// picture must stay and not be copied meanwhile.
struct PixelGrid {
  explicit PixelGrid(QImage& image);

  QRgb* Row(int y) const { return pixels + static_cast<std::ptrdiff_t>(y) * stride; }

  QRgb* pixels;
  std::ptrdiff_t stride;  // in pixels
  int width;
  int height;
};

// Mixes color into a pixel with coverage 0 to 1.
void BlendPixel(const PixelGrid& grid, int x, int y, QRgb color, float coverage);

// A line of one pixel's width (Wu's method: each step shares its weight
// between the two pixels that the line passes between).
void BlendLine(const PixelGrid& grid, QPointF from, QPointF to, QRgb color, float opacity);

// A square of side pixels around a place, its edges shared out by coverage.
void BlendSquare(const PixelGrid& grid, QPointF centre, float side, QRgb color, float opacity);

// A sprite (premultiplied) with its middle on the nearest whole pixel.
void BlendSprite(const PixelGrid& grid, const QImage& sprite, QPointF centre, float opacity);

// Cuts a line to a rectangle from (0, 0); false if nothing is left of it.
bool CutLine(QPointF& from, QPointF& to, double width, double height, double margin);
