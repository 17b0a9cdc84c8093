// Anti-aliased points, lines and sprites set straight into a picture of 32-bit
// pixels. Thousands of them cost a repaint what a general painter takes for
// dozens. Everything outside the picture is cut off.
#pragma once

#include <QImage>
#include <QPointF>

#include "windows/surface_cache.h"

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

// The same for the pixels of row y from column from up to before column to.
void BlendSpan(const PixelGrid& grid, int from, int to, int y, QRgb color, float coverage);

// A line of some pixels' width, ends cut square to its longer axis. Each step
// along that axis covers as much across it as the width asks for, the pixels at
// both rims by their share (Wu's method, widened). Below one pixel it fades.
void BlendLine(const PixelGrid& grid, QPointF from, QPointF to, QRgb color, float opacity, double width = 1);

// A square of side pixels around a place, its edges shared out by coverage.
void BlendSquare(const PixelGrid& grid, QPointF centre, float side, QRgb color, float opacity);

// A sprite (premultiplied) with its middle on the nearest whole pixel.
void BlendSprite(const PixelGrid& grid, const QImage& sprite, QPointF centre, float opacity);

// A mask in one colour, its origin on pixel x, y.
void BlendMask(const PixelGrid& grid, const CoverageMask& mask, int x, int y, QRgb color, float opacity);

// Cuts a line to a rectangle from (0, 0); false if nothing is left of it.
bool CutLine(QPointF& from, QPointF& to, double width, double height, double margin);
