// Anti-aliased points, lines and sprites set straight into a picture of 32-bit
// pixels. Thousands of them cost a repaint what a general painter takes for
// dozens. Everything outside the picture is cut off.
#pragma once

#include <QImage>
#include <QPointF>

// Mixes color into a pixel with coverage 0 to 1.
void BlendPixel(QImage& image, int x, int y, QRgb color, float coverage);

// A line of one pixel's width (Wu's method: each step shares its weight
// between the two pixels that the line passes between).
void BlendLine(QImage& image, QPointF from, QPointF to, QRgb color, float opacity);

// A square of side pixels around a place, its edges shared out by coverage.
void BlendSquare(QImage& image, QPointF centre, float side, QRgb color, float opacity);

// A sprite (premultiplied) with its middle on the nearest whole pixel.
void BlendSprite(QImage& image, const QImage& sprite, QPointF centre, float opacity);

// Cuts a line to a rectangle from (0, 0); false if nothing is left of it.
bool CutLine(QPointF& from, QPointF& to, double width, double height, double margin);
