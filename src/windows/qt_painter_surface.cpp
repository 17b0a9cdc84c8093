#include "windows/qt_painter_surface.h"

#include <QStaticText>
#include <algorithm>
#include <cmath>

#include "map/mixed_color.h"
#include "windows/pixel_strokes.h"
#include "windows/style.h"

namespace {

constexpr double lineMargin = 50;  // pixels kept beyond the device when a line is cut
constexpr double haloOpacity = 0.5;
constexpr double pixelsPerPoint = 96.0 / 72;

QString ToQString(std::string_view text) {
  return QString::fromUtf8(text.data(), static_cast<qsizetype>(text.size()));
}

bool OnSomePage(QPointF pixel) {
  return std::abs(pixel.x()) < 1e6 && std::abs(pixel.y()) < 1e6;
}

}  // namespace

QColor ToQColor(std::int32_t color) {
  return QColor(color & 0xFF, (color >> 8) & 0xFF, (color >> 16) & 0xFF);
}

PagePlacement::PagePlacement(double pixelWidth, double pixelHeight)
    : pixelWidth(pixelWidth),
      pixelHeight(pixelHeight),
      pixelsPerUnit(std::max({pixelWidth / mapScaleWidth, pixelHeight / mapScaleHeight, 1e-6})),
      left((pixelWidth - mapScaleWidth * pixelsPerUnit) / 2),
      top((pixelHeight - mapScaleHeight * pixelsPerUnit) / 2) {}

QtPainterSurface::QtPainterSurface(QPainter& painter, const PagePlacement& placement, double density)
    : painter(painter), placement(placement), density(density), font(MapFont()) {
  painter.setRenderHint(QPainter::Antialiasing);
  painter.setRenderHint(QPainter::TextAntialiasing);
}

void QtPainterSurface::UsePen(std::int32_t color) {
  QPen pen(ToQColor(color), PenWidth(), Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin);
  if (DrawStyle == DrawStyleKind::dash) pen.setDashPattern({5, 4});
  if (DrawStyle == DrawStyleKind::dot) pen.setDashPattern({1, 3});
  painter.setPen(pen);
  painter.setOpacity(Opacity);
}

void QtPainterSurface::SetPageColor(std::int32_t color) {
  haloColor = ContrastTo(ContrastTo(color));
}

void QtPainterSurface::Clear(std::int32_t color) {
  SetPageColor(color);
  painter.setOpacity(1);
  painter.fillRect(QRectF(0, 0, placement.PixelWidth(), placement.PixelHeight()), ToQColor(color));
}

void QtPainterSurface::Line(float x1, float y1, float x2, float y2, std::int32_t color) {
  const SurfaceLine line{{x1, y1}, {x2, y2}};
  Lines({&line, 1}, color);
}

void QtPainterSurface::Lines(std::span<const SurfaceLine> lines, std::int32_t color) {
  UsePen(color);
  for (const SurfaceLine& line : lines) {
    QPointF from = Pixel(line.from);
    QPointF to = Pixel(line.to);
    if (CutLine(from, to, placement.PixelWidth(), placement.PixelHeight(), lineMargin))
      painter.drawLine(from, to);
  }
}

void QtPainterSurface::Polyline(std::span<const SurfacePoint> points, std::int32_t color) {
  if (points.size() < 2) return;
  UsePen(color);
  painter.setBrush(Qt::NoBrush);
  QList<QPointF> pixels;
  const auto flush = [&] {
    if (pixels.size() > 1) painter.drawPolyline(pixels.constData(), static_cast<int>(pixels.size()));
    pixels.clear();
  };
  for (std::size_t i = 1; i < points.size(); ++i) {
    QPointF from = Pixel(points[i - 1]);
    const QPointF end = Pixel(points[i]);
    QPointF to = end;
    if (!CutLine(from, to, placement.PixelWidth(), placement.PixelHeight(), lineMargin)) {
      flush();
      continue;
    }
    if (pixels.isEmpty() || pixels.last() != from) {
      flush();
      pixels << from;
    }
    pixels << to;
    if (to != end) flush();
  }
  flush();
}

void QtPainterSurface::Polygon(std::span<const SurfacePoint> points, std::int32_t color) {
  QList<QPointF> pixels;
  pixels.reserve(static_cast<qsizetype>(points.size()));
  for (const SurfacePoint point : points)
    pixels << Pixel(point);
  painter.setPen(Qt::NoPen);
  painter.setBrush(ToQColor(color));
  painter.setOpacity(Opacity);
  painter.drawPolygon(pixels.constData(), static_cast<int>(pixels.size()), Qt::OddEvenFill);
}

void QtPainterSurface::Circle(float x, float y, float radius, std::int32_t color) {
  const SurfacePoint centre{x, y};
  Circles({&centre, 1}, radius, color);
}

void QtPainterSurface::Circles(std::span<const SurfacePoint> centres, float radius, std::int32_t color) {
  const double pixels = std::max(0.5, radius * placement.PixelsPerUnit());
  UsePen(color);
  painter.setBrush(FillStyle == FillStyleKind::solid ? QBrush(ToQColor(FillColor)) : QBrush(Qt::NoBrush));
  for (const SurfacePoint centre : centres)
    if (OnSomePage(Pixel(centre))) painter.drawEllipse(Pixel(centre), pixels, pixels);
}

void QtPainterSurface::PSet(float x, float y, std::int32_t color) {
  const SurfacePoint point{x, y};
  Points({&point, 1}, color);
}

void QtPainterSurface::Points(std::span<const SurfacePoint> points, std::int32_t color) {
  const double side = PenWidth();
  painter.setOpacity(Opacity);
  for (const SurfacePoint point : points) {
    const QPointF middle = Pixel(point);
    if (OnSomePage(middle))
      painter.fillRect(QRectF(middle.x() - side / 2, middle.y() - side / 2, side, side), ToQColor(color));
  }
}

int QtPainterSurface::FontPixels() const {
  return std::max(1, static_cast<int>(std::lround(FontSize * pixelsPerPoint * density)));
}

void QtPainterSurface::UseFont() {
  if (metrics && fontPixels == FontPixels() && fontBold == FontBold) return;
  fontPixels = FontPixels();
  fontBold = FontBold;
  font.setPixelSize(fontPixels);
  font.setWeight(fontBold ? QFont::DemiBold : QFont::Normal);
  metrics.emplace(font);
}

void QtPainterSurface::Print(std::string_view text) {
  UseFont();
  painter.setFont(font);
  QStaticText glyphs(ToQString(text));
  glyphs.setTextFormat(Qt::PlainText);
  glyphs.setPerformanceHint(QStaticText::AggressiveCaching);
  const QPointF corner = placement.ToPixel(CurrentX, CurrentY);
  if (!OnSomePage(corner)) return;
  // Whole pixels keep small letters sharp.
  const QPointF place(std::round(corner.x()), std::round(corner.y()));
  if (TextHalo) {
    painter.setPen(ToQColor(haloColor));
    painter.setOpacity(haloOpacity * Opacity);
    const double step = density;
    for (const QPointF offset :
         {QPointF(-step, -step), QPointF(step, -step), QPointF(-step, step), QPointF(step, step)})
      painter.drawStaticText(place + offset, glyphs);
  }
  painter.setPen(ToQColor(ForeColor));
  painter.setOpacity(Opacity);
  painter.drawStaticText(place, glyphs);
}

float QtPainterSurface::TextWidth(std::string_view text) {
  UseFont();
  return static_cast<float>(metrics->horizontalAdvance(ToQString(text)) / placement.PixelsPerUnit());
}

float QtPainterSurface::TextHeight(std::string_view) {
  UseFont();
  return static_cast<float>(metrics->height() / placement.PixelsPerUnit());
}
