#include "windows/pixel_fill.h"

#include <algorithm>
#include <cmath>
#include <utility>

namespace {

// Where winding overlaps itself an even number of times there is nothing.
float EvenOdd(float winding) {
  const float turns = std::fmod(std::fabs(winding), 2.0F);
  return turns > 1 ? 2 - turns : turns;
}

}  // namespace

void PixelFill::AddInRow(Row& row, double x1, double x2, double height) {
  // Right of the picture an edge covers nothing that is seen, left of it all.
  if (x1 >= width && x2 >= width) return;
  if (x1 <= 0 && x2 <= 0) {
    row.cells.push_back({0, static_cast<float>(height), static_cast<float>(height)});
    return;
  }
  const bool leftward = x2 < x1;
  const double low = leftward ? x2 : x1;
  const double high = leftward ? x1 : x2;
  if (low < 0) {
    const double part = height * (-low) / (high - low);
    row.cells.push_back({0, static_cast<float>(part), static_cast<float>(part)});
    return AddInRow(row, 0, high, height - part);
  }
  const double perColumn = high > low ? height / (high - low) : 0;
  const int last = std::min(static_cast<int>(high), width - 1);
  for (int column = static_cast<int>(low); column <= last; ++column) {
    const double from = std::max<double>(low, column);
    const double to = std::min<double>(high, column + 1);
    const double part = high > low ? (to - from) * perColumn : height;
    const double right = 1 - ((from + to) / 2 - column);
    row.cells.push_back({column, static_cast<float>(part), static_cast<float>(part * right)});
  }
}

void PixelFill::AddEdge(QPointF from, QPointF to) {
  if (from.y() == to.y()) return;
  const double sign = from.y() < to.y() ? 1 : -1;
  if (sign < 0) std::swap(from, to);
  const double top = std::max(from.y(), 0.0);
  const double bottom = std::min<double>(to.y(), height);
  if (top >= bottom) return;
  const double slope = (to.x() - from.x()) / (to.y() - from.y());
  const int first = static_cast<int>(top);
  const int last = std::min(static_cast<int>(bottom), height - 1);
  double x = from.x() + slope * (top - from.y());
  for (int y = first; y <= last; ++y) {
    const double begin = std::max<double>(top, y);
    const double end = std::min<double>(bottom, y + 1);
    const double next = x + slope * (end - begin);
    if (end > begin) AddInRow(rows[static_cast<std::size_t>(y)], x, next, sign * (end - begin));
    x = next;
  }
  firstRow = std::min(firstRow, first);
  lastRow = std::max(lastRow, last);
}

void PixelFill::Sweep(const PixelGrid& grid, int y, QRgb color, float opacity) {
  std::vector<Cell>& cells = rows[static_cast<std::size_t>(y)].cells;
  std::sort(cells.begin(), cells.end(), [](const Cell& a, const Cell& b) { return a.column < b.column; });
  float winding = 0;
  for (std::size_t i = 0; i < cells.size();) {
    const int column = cells[i].column;
    float share = winding;
    for (; i < cells.size() && cells[i].column == column; ++i) {
      share += cells[i].share;
      winding += cells[i].cover;
    }
    BlendPixel(grid, column, y, color, opacity * EvenOdd(share));
    const int next = i < cells.size() ? cells[i].column : width;
    BlendSpan(grid, column + 1, next, y, color, opacity * EvenOdd(winding));
  }
  cells.clear();
}

void PixelFill::Fill(const PixelGrid& grid, std::span<const QPointF> shape, QRgb color, float opacity) {
  for (const QPointF point : shape)
    if (!std::isfinite(point.x()) || !std::isfinite(point.y())) return;
  width = grid.width;
  height = grid.height;
  rows.resize(static_cast<std::size_t>(height));
  firstRow = height;
  lastRow = -1;
  for (std::size_t i = 0; i < shape.size(); ++i)
    AddEdge(shape[i], shape[i + 1 < shape.size() ? i + 1 : 0]);
  for (int y = firstRow; y <= lastRow; ++y)
    Sweep(grid, y, color, opacity);
}
