#include "windows/pixel_strokes.h"

#include <algorithm>
#include <cmath>
#include <utility>

namespace {

// Weight 0 to 256. Red and blue are mixed at one go: what one spills over falls
// into the gap before the other.
QRgb Mixed(QRgb below, QRgb color, int weight) {
  constexpr QRgb redBlue = 0x00FF00FF;
  constexpr QRgb green = 0x0000FF00;
  const auto share = static_cast<QRgb>(weight);
  const QRgb rest = 256 - share;
  const QRgb rb = ((below & redBlue) * rest + (color & redBlue) * share) >> 8 & redBlue;
  const QRgb g = ((below & green) * rest + (color & green) * share) >> 8 & green;
  return 0xFF000000 | rb | g;
}

int WeightOf(float coverage) {
  return std::clamp(static_cast<int>(std::lround(coverage * 256)), 0, 256);
}

// One edge of Liang and Barsky's clipping; false if the line lies outside.
bool CutAtEdge(double along, double distance, double& first, double& last) {
  if (along == 0) return distance >= 0;
  const double t = distance / along;
  if (along < 0) {
    first = std::max(first, t);
  } else {
    last = std::min(last, t);
  }
  return first <= last;
}

// Length of the part of [from, from + side] that lies in pixel's [i, i + 1].
float Share(float from, float side, int i) {
  const float low = std::max(from, static_cast<float>(i));
  const float high = std::min(from + side, static_cast<float>(i + 1));
  return std::max(0.0F, high - low);
}

constexpr double thinStroke = 1.25;  // pixels

}  // namespace

PixelGrid::PixelGrid(QImage& image)
    : pixels(reinterpret_cast<QRgb*>(image.bits())),
      stride(image.bytesPerLine() / static_cast<qsizetype>(sizeof(QRgb))),
      width(image.width()),
      height(image.height()) {}

void BlendPixel(const PixelGrid& grid, int x, int y, QRgb color, float coverage) {
  if (x < 0 || y < 0 || x >= grid.width || y >= grid.height) return;
  QRgb& pixel = grid.Row(y)[x];
  pixel = Mixed(pixel, color, WeightOf(coverage));
}

void BlendSpan(const PixelGrid& grid, int from, int to, int y, QRgb color, float coverage) {
  const int weight = WeightOf(coverage);
  from = std::max(from, 0);
  to = std::min(to, grid.width);
  if (weight == 0 || from >= to || y < 0 || y >= grid.height) return;
  QRgb* const row = grid.Row(y);
  if (weight == 256) {
    std::fill(row + from, row + to, color | 0xFF000000);
    return;
  }
  for (int x = from; x < to; ++x)
    row[x] = Mixed(row[x], color, weight);
}

bool CutLine(QPointF& from, QPointF& to, double width, double height, double margin) {
  const double dx = to.x() - from.x();
  const double dy = to.y() - from.y();
  if (!std::isfinite(dx) || !std::isfinite(dy)) return false;
  double first = 0;
  double last = 1;
  const bool inside = CutAtEdge(-dx, from.x() + margin, first, last) &&
                      CutAtEdge(dx, width + margin - from.x(), first, last) &&
                      CutAtEdge(-dy, from.y() + margin, first, last) &&
                      CutAtEdge(dy, height + margin - from.y(), first, last);
  if (!inside) return false;
  const QPointF start = from;
  from = QPointF(start.x() + first * dx, start.y() + first * dy);
  to = QPointF(start.x() + last * dx, start.y() + last * dy);
  return true;
}

void BlendLine(const PixelGrid& grid, QPointF from, QPointF to, QRgb color, float opacity, double width) {
  if (!CutLine(from, to, grid.width, grid.height, 2 + width)) return;
  // Pixel (i, j) has its middle at i + 0.5, j + 0.5.
  double x1 = from.x() - 0.5;
  double y1 = from.y() - 0.5;
  double x2 = to.x() - 0.5;
  double y2 = to.y() - 0.5;
  const bool steep = std::abs(y2 - y1) > std::abs(x2 - x1);
  if (steep) {
    std::swap(x1, y1);
    std::swap(x2, y2);
  }
  if (x1 > x2) {
    std::swap(x1, x2);
    std::swap(y1, y2);
  }
  const double slope = x2 > x1 ? (y2 - y1) / (x2 - x1) : 0;
  const int major = steep ? grid.height : grid.width;
  const int minor = steep ? grid.width : grid.height;
  const int firstStep = std::max(0, static_cast<int>(std::lround(x1)));
  const int lastStep = std::min(std::max(firstStep, static_cast<int>(std::lround(x2))), major - 1);
  const std::ptrdiff_t along = steep ? grid.stride : 1;
  const std::ptrdiff_t across = steep ? 1 : grid.stride;
  double y = y1 + slope * (firstStep - x1) + 0.5;
  QRgb* at = grid.pixels + along * firstStep;
  if (width <= thinStroke) {
    // One pixel across whatever the slope, shared between two.
    const float strength = opacity * static_cast<float>(std::min(width, 1.0)) * 256;
    y -= 0.5;
    for (int x = firstStep; x <= lastStep; ++x, y += slope, at += along) {
      const int row = static_cast<int>(std::floor(y));
      const int second = static_cast<int>(static_cast<float>(y - row) * strength);
      const int first = static_cast<int>(strength) - second;
      QRgb* const pixel = at + across * row;
      if (row >= 0 && row < minor) *pixel = Mixed(*pixel, color, first);
      if (row + 1 >= 0 && row + 1 < minor) pixel[across] = Mixed(pixel[across], color, second);
    }
    return;
  }
  const double thickness = width * std::sqrt(1 + slope * slope);
  y -= thickness / 2;
  for (int x = firstStep; x <= lastStep; ++x, y += slope, at += along) {
    const int first = std::max(0, static_cast<int>(std::floor(y)));
    const int last = std::min(minor, static_cast<int>(std::ceil(y + thickness))) - 1;
    for (int row = first; row <= last; ++row) {
      const float share = Share(static_cast<float>(y), static_cast<float>(thickness), row);
      at[across * row] = Mixed(at[across * row], color, WeightOf(opacity * share));
    }
  }
}

void BlendSquare(const PixelGrid& grid, QPointF centre, float side, QRgb color, float opacity) {
  if (!(std::abs(centre.x()) < 1e6 && std::abs(centre.y()) < 1e6)) return;
  const float left = static_cast<float>(centre.x()) - side / 2;
  const float top = static_cast<float>(centre.y()) - side / 2;
  const int firstColumn = static_cast<int>(std::floor(left));
  const int firstRow = static_cast<int>(std::floor(top));
  const int count = static_cast<int>(std::ceil(side)) + 1;
  for (int row = firstRow; row < firstRow + count; ++row) {
    for (int column = firstColumn; column < firstColumn + count; ++column)
      BlendPixel(grid, column, row, color, opacity * Share(left, side, column) * Share(top, side, row));
  }
}

void BlendSprite(const PixelGrid& grid, const QImage& sprite, QPointF centre, float opacity) {
  if (!(std::abs(centre.x()) < 1e6 && std::abs(centre.y()) < 1e6)) return;
  const int left = static_cast<int>(std::floor(centre.x())) - sprite.width() / 2;
  const int top = static_cast<int>(std::floor(centre.y())) - sprite.height() / 2;
  const int weight = std::clamp(static_cast<int>(opacity * 256), 0, 256);
  const int firstColumn = std::max(0, -left);
  const int endColumn = std::min(sprite.width(), grid.width - left);
  for (int row = std::max(0, -top); row < sprite.height() && top + row < grid.height; ++row) {
    const auto* from = reinterpret_cast<const QRgb*>(sprite.constScanLine(row));
    QRgb* to = grid.Row(top + row) + left;
    for (int column = firstColumn; column < endColumn; ++column) {
      const int alpha = qAlpha(from[column]);
      if (alpha == 0) continue;
      to[column] = Mixed(to[column], qUnpremultiply(from[column]), alpha * weight / 255);
    }
  }
}

void BlendMask(const PixelGrid& grid, const CoverageMask& mask, int x, int y, QRgb color, float opacity) {
  const int left = x + mask.left;
  const int top = y + mask.top;
  const int weight = std::clamp(static_cast<int>(opacity * 256), 0, 256);
  const int firstColumn = std::max(0, -left);
  const int endColumn = std::min(mask.width, grid.width - left);
  for (int row = std::max(0, -top); row < mask.height && top + row < grid.height; ++row) {
    const std::uint8_t* from = mask.coverage.data() + static_cast<std::ptrdiff_t>(row) * mask.width;
    QRgb* to = grid.Row(top + row) + left;
    for (int column = firstColumn; column < endColumn; ++column)
      if (from[column] != 0) to[column] = Mixed(to[column], color, from[column] * weight / 255);
  }
}
