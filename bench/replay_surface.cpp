#include "bench/replay_surface.h"

#include <cmath>

#include "windows/pixel_strokes.h"
#include "windows/style.h"

ReplaySurface::Primitive& ReplaySurface::Keep(Kind kind, std::int32_t color,
                                              std::span<const SurfacePoint> points) {
  QPen pen(ToQColor(color), PenWidth(), Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin);
  if (DrawStyle == DrawStyleKind::dash) pen.setDashPattern({5, 4});
  if (DrawStyle == DrawStyleKind::dot) pen.setDashPattern({1, 3});
  const QBrush brush = FillStyle == FillStyleKind::solid ? QBrush(ToQColor(FillColor)) : QBrush(Qt::NoBrush);
  kept.push_back({kind, pen, brush, static_cast<double>(Opacity)});
  for (const SurfacePoint point : points)
    kept.back().pixels << Pixel(point);
  return kept.back();
}

void ReplaySurface::Clear(std::int32_t color) {
  kept.clear();
  Keep(Kind::clear, color, {});
}

void ReplaySurface::Lines(std::span<const SurfaceLine> lines, std::int32_t color) {
  Primitive& primitive = Keep(Kind::lines, color, {});
  for (const SurfaceLine& line : lines) {
    QPointF from = Pixel(line.from);
    QPointF to = Pixel(line.to);
    if (CutLine(from, to, placement.PixelWidth(), placement.PixelHeight(), 2)) primitive.pixels << from << to;
  }
}

void ReplaySurface::Circles(std::span<const SurfacePoint> centres, float radius, std::int32_t color) {
  Keep(Kind::circles, color, centres).size = std::max(0.5, radius * placement.PixelsPerUnit());
}

void ReplaySurface::Points(std::span<const SurfacePoint> points, std::int32_t color) {
  Keep(Kind::points, color, points).size = PenWidth();
}

void ReplaySurface::Polyline(std::span<const SurfacePoint> points, std::int32_t color) {
  // As lines: what lies off the page is cut away.
  std::vector<SurfaceLine> lines;
  for (std::size_t i = 1; i < points.size(); ++i)
    lines.push_back({points[i - 1], points[i]});
  Lines(lines, color);
}

void ReplaySurface::Polygon(std::span<const SurfacePoint> points, std::int32_t color) {
  Keep(Kind::polygon, color, points).brush = ToQColor(color);
}

void ReplaySurface::Print(std::string_view text) {
  const SurfacePoint corner{CurrentX, CurrentY};
  Primitive& primitive = Keep(Kind::print, ForeColor, {&corner, 1});
  primitive.font = MapFont();
  primitive.font.setPixelSize(FontPixels());
  primitive.font.setWeight(FontBold ? QFont::DemiBold : QFont::Normal);
  primitive.text.setText(QString::fromUtf8(text.data(), static_cast<qsizetype>(text.size())));
  primitive.text.setTextFormat(Qt::PlainText);
  primitive.text.setPerformanceHint(QStaticText::AggressiveCaching);
  primitive.text.prepare(QTransform(), primitive.font);
  primitive.halo = TextHalo;
}

void ReplaySurface::Replay(QPainter& target) const {
  target.setRenderHint(QPainter::Antialiasing);
  target.setRenderHint(QPainter::TextAntialiasing);
  for (const Primitive& one : kept) {
    target.setOpacity(one.opacity);
    target.setPen(one.pen);
    target.setBrush(one.brush);
    const int count = static_cast<int>(one.pixels.size());
    switch (one.kind) {
      case Kind::clear:
        target.fillRect(0, 0, target.device()->width(), target.device()->height(), one.pen.color());
        break;
      case Kind::lines:
        target.drawLines(one.pixels.constData(), count / 2);
        break;
      case Kind::circles:
        for (const QPointF centre : one.pixels)
          target.drawEllipse(centre, one.size, one.size);
        break;
      case Kind::points:
        for (const QPointF point : one.pixels)
          target.fillRect(QRectF(point.x() - one.size / 2, point.y() - one.size / 2, one.size, one.size),
                          one.pen.color());
        break;
      case Kind::polygon:
        target.setPen(Qt::NoPen);
        target.drawPolygon(one.pixels.constData(), count, Qt::OddEvenFill);
        break;
      case Kind::print:
        target.setFont(one.font);
        if (one.halo) {
          target.setPen(QColor(0, 0, 0, 128));
          for (const QPointF offset : {QPointF(-1, -1), QPointF(1, -1), QPointF(-1, 1), QPointF(1, 1)})
            target.drawStaticText(one.pixels[0] + offset, one.text);
        }
        target.setPen(one.pen.color());
        target.drawStaticText(one.pixels[0], one.text);
        break;
    }
  }
}
