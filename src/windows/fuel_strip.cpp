#include "windows/fuel_strip.h"

#include <QPainter>
#include <QPainterPath>
#include <algorithm>

#include "windows/style.h"

namespace {

constexpr int stripHeight = 16;
constexpr int gap = 2;

// The trip in blues, the reserves in sand.
constexpr QRgb colors[FuelStrip::partCount] = {qRgb(126, 176, 234), qRgb(64, 132, 214),  qRgb(52, 101, 164),
                                               qRgb(44, 74, 116),   qRgb(206, 171, 106), qRgb(164, 134, 82),
                                               qRgb(122, 101, 66)};

}  // namespace

FuelStrip::FuelStrip(QWidget* parent) : QWidget(parent) {
  setFixedHeight(stripHeight);
}

QColor FuelStrip::ColorOf(int part) {
  return QColor::fromRgb(colors[part]);
}

void FuelStrip::SetParts(const std::array<double, partCount>& amounts) {
  parts = amounts;
  update();
}

void FuelStrip::paintEvent(QPaintEvent*) {
  double sum = 0;
  for (const double part : parts)
    sum += std::max(part, 0.0);
  QPainter painter(this);
  painter.setRenderHint(QPainter::Antialiasing);
  QPainterPath shape;
  shape.addRoundedRect(QRectF(rect()), stripHeight / 3.0, stripHeight / 3.0);
  painter.setClipPath(shape);
  painter.fillRect(rect(), QColor::fromRgb(IsNightStyle() ? qRgb(28, 36, 49) : qRgb(228, 233, 240)));
  double x = 0;
  for (int i = 0; i < partCount && sum > 0; ++i) {
    const double length = std::max(parts[static_cast<std::size_t>(i)], 0.0) / sum * (width() + gap);
    painter.fillRect(QRectF(x, 0, std::max(length - gap, 0.0), height()), ColorOf(i));
    x += length;
  }
}
