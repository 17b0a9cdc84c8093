#include "windows/qt_draw_surface.h"

#include <QStaticText>
#include <algorithm>
#include <cmath>
#include <vector>

#include "windows/pixel_strokes.h"
#include "windows/style.h"

namespace {

constexpr double thinLine = 1.25;  // pixels; wider lines are the painter's
constexpr double lineMargin = 50;  // pixels kept beyond the picture when a line is cut
constexpr double haloOpacity = 0.5;
constexpr double hugeRadius = 64;  // pixels; larger circles are not kept as sprites

QString ToQString(std::string_view text) {
  return QString::fromUtf8(text.data(), static_cast<qsizetype>(text.size()));
}

QRgb ToQRgb(std::int32_t color) {
  return qRgb(color & 0xFF, (color >> 8) & 0xFF, (color >> 16) & 0xFF);
}

}  // namespace

QColor ToQColor(std::int32_t color) {
  return QColor::fromRgb(ToQRgb(color));
}

PagePlacement::PagePlacement(double pixelWidth, double pixelHeight)
    : pixelsPerUnit(std::max({pixelWidth / mapScaleWidth, pixelHeight / mapScaleHeight, 1e-6})),
      left((pixelWidth - mapScaleWidth * pixelsPerUnit) / 2),
      top((pixelHeight - mapScaleHeight * pixelsPerUnit) / 2) {}

QtDrawSurface::QtDrawSurface(QImage& image, double density)
    : image(image), placement(image.width(), image.height()), density(density), painter(&image) {
  painter.setRenderHint(QPainter::Antialiasing);
  painter.setRenderHint(QPainter::TextAntialiasing);
  font = MapFont();
}

void QtDrawSurface::UsePen(std::int32_t color) {
  QPen pen(ToQColor(color), PenWidth(), Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin);
  if (DrawStyle == DrawStyleKind::dash) pen.setDashPattern({5, 4});
  if (DrawStyle == DrawStyleKind::dot) pen.setDashPattern({1, 3});
  painter.setPen(pen);
  painter.setOpacity(Opacity);
}

void QtDrawSurface::Clear(std::int32_t color) {
  image.fill(ToQColor(color));
}

void QtDrawSurface::Line(float x1, float y1, float x2, float y2, std::int32_t color) {
  const SurfaceLine line{{x1, y1}, {x2, y2}};
  Lines({&line, 1}, color);
}

void QtDrawSurface::Lines(std::span<const SurfaceLine> lines, std::int32_t color) {
  if (DrawStyle == DrawStyleKind::solid && PenWidth() <= thinLine) {
    const QRgb pixel = ToQRgb(color);
    const PixelGrid grid(image);
    for (const SurfaceLine& line : lines)
      BlendLine(grid, Pixel(line.from), Pixel(line.to), pixel, Opacity);
    return;
  }
  UsePen(color);
  for (const SurfaceLine& line : lines) {
    QPointF from = Pixel(line.from);
    QPointF to = Pixel(line.to);
    if (CutLine(from, to, image.width(), image.height(), lineMargin)) painter.drawLine(from, to);
  }
}

void QtDrawSurface::Polyline(std::span<const SurfacePoint> points, std::int32_t color) {
  if (points.size() < 2) return;
  if (DrawStyle == DrawStyleKind::solid && PenWidth() <= thinLine) {
    const QRgb pixel = ToQRgb(color);
    const PixelGrid grid(image);
    for (std::size_t i = 1; i < points.size(); ++i)
      BlendLine(grid, Pixel(points[i - 1]), Pixel(points[i]), pixel, Opacity);
    return;
  }
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
    if (!CutLine(from, to, image.width(), image.height(), lineMargin)) {
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

void QtDrawSurface::Polygon(std::span<const SurfacePoint> points, std::int32_t color) {
  QList<QPointF> pixels;
  pixels.reserve(static_cast<qsizetype>(points.size()));
  for (const SurfacePoint point : points)
    pixels << Pixel(point);
  painter.setPen(Qt::NoPen);
  painter.setBrush(ToQColor(color));
  painter.setOpacity(Opacity);
  painter.drawPolygon(pixels.constData(), static_cast<int>(pixels.size()), Qt::OddEvenFill);
}

const QImage& QtDrawSurface::Disc(double radius, std::optional<QRgb> fill, std::optional<QRgb> ring,
                                  double ringWidth) {
  const QString key =
      QStringLiteral("%1 %2 %3 %4").arg(radius).arg(fill.value_or(0)).arg(ring.value_or(0)).arg(ringWidth);
  const auto known = discs.constFind(key);
  if (known != discs.constEnd()) return *known;
  const int half = static_cast<int>(std::ceil(radius + ringWidth / 2)) + 1;
  QImage disc(2 * half + 1, 2 * half + 1, QImage::Format_ARGB32_Premultiplied);
  disc.fill(Qt::transparent);
  QPainter discPainter(&disc);
  discPainter.setRenderHint(QPainter::Antialiasing);
  discPainter.setPen(ring ? QPen(QColor::fromRgb(*ring), ringWidth) : QPen(Qt::NoPen));
  discPainter.setBrush(fill ? QBrush(QColor::fromRgb(*fill)) : QBrush(Qt::NoBrush));
  discPainter.drawEllipse(QPointF(half + 0.5, half + 0.5), radius, radius);
  discPainter.end();
  return *discs.insert(key, disc);
}

void QtDrawSurface::Circle(float x, float y, float radius, std::int32_t color) {
  const SurfacePoint centre{x, y};
  Circles({&centre, 1}, radius, color);
}

void QtDrawSurface::Circles(std::span<const SurfacePoint> centres, float radius, std::int32_t color) {
  if (centres.empty()) return;
  const double pixels = std::max(0.5, radius * placement.PixelsPerUnit());
  const bool filled = FillStyle == FillStyleKind::solid;
  if (pixels <= hugeRadius && DrawStyle == DrawStyleKind::solid) {
    const bool plain = filled && FillColor == color;
    const QImage& disc = Disc(pixels, filled ? std::optional(ToQRgb(FillColor)) : std::nullopt,
                              plain ? std::nullopt : std::optional(ToQRgb(color)), PenWidth());
    const PixelGrid grid(image);
    for (const SurfacePoint centre : centres)
      BlendSprite(grid, disc, Pixel(centre), Opacity);
    return;
  }
  UsePen(color);
  painter.setBrush(filled ? QBrush(ToQColor(FillColor)) : QBrush(Qt::NoBrush));
  for (const SurfacePoint centre : centres)
    painter.drawEllipse(Pixel(centre), pixels, pixels);
}

void QtDrawSurface::PSet(float x, float y, std::int32_t color) {
  const SurfacePoint point{x, y};
  Points({&point, 1}, color);
}

void QtDrawSurface::Points(std::span<const SurfacePoint> points, std::int32_t color) {
  const QRgb pixel = ToQRgb(color);
  const auto side = static_cast<float>(PenWidth());
  const PixelGrid grid(image);
  for (const SurfacePoint point : points)
    BlendSquare(grid, Pixel(point), side, pixel, Opacity);
}

void QtDrawSurface::UseFont() {
  if (metrics && fontSize == FontSize && fontBold == FontBold) return;
  fontSize = FontSize;
  fontBold = FontBold;
  constexpr double pixelsPerPoint = 96.0 / 72;
  font.setPixelSize(std::max(1, static_cast<int>(std::lround(FontSize * pixelsPerPoint * density))));
  font.setWeight(FontBold ? QFont::DemiBold : QFont::Normal);
  metrics.emplace(font);
  painter.setFont(font);
  measuredText.clear();
}

void QtDrawSurface::Print(std::string_view text) {
  UseFont();
  QStaticText glyphs(ToQString(text));
  glyphs.setTextFormat(Qt::PlainText);
  glyphs.setPerformanceHint(QStaticText::AggressiveCaching);
  const QPointF corner = placement.ToPixel(CurrentX, CurrentY);
  // Whole pixels keep small letters sharp.
  const QPointF place(std::round(corner.x()), std::round(corner.y()));
  if (TextHalo) {
    painter.setPen(Qt::black);
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

float QtDrawSurface::TextWidth(std::string_view text) {
  UseFont();
  if (text != measuredText || text.empty()) {
    measuredText = text;
    measuredWidth =
        static_cast<float>(metrics->horizontalAdvance(ToQString(text)) / placement.PixelsPerUnit());
  }
  return measuredWidth;
}

float QtDrawSurface::TextHeight(std::string_view) {
  UseFont();
  return static_cast<float>(metrics->height() / placement.PixelsPerUnit());
}
