// DrawSurface on a QImage. The page of 11325 x 7000 units covers the whole
// picture at one scale for both directions, centred: a circle stays a circle,
// and where the picture's shape differs from the page's, the page's longer
// direction is cut evenly on both sides. Thin lines, discs and points are set
// straight into the picture; everything else is QPainter's.
#pragma once

#include <QFont>
#include <QFontMetricsF>
#include <QHash>
#include <QImage>
#include <QPainter>
#include <optional>
#include <string>

#include "map/map_view.h"
#include "platform/draw_surface.h"

// Where the page lies on a picture of so many pixels.
class PagePlacement {
 public:
  PagePlacement(double pixelWidth, double pixelHeight);

  double PixelsPerUnit() const { return pixelsPerUnit; }
  QPointF ToPixel(double x, double y) const { return {x * pixelsPerUnit + left, y * pixelsPerUnit + top}; }
  SurfacePoint ToUnits(QPointF pixel) const {
    return {static_cast<float>((pixel.x() - left) / pixelsPerUnit),
            static_cast<float>((pixel.y() - top) / pixelsPerUnit)};
  }

 private:
  double pixelsPerUnit;
  double left;
  double top;
};

class QtDrawSurface : public DrawSurface {
 public:
  // Draws on image (Format_RGB32), which must outlive the surface and may not
  // be copied while it is drawn on. density: device pixels per pixel of normal
  // density, for pens and fonts.
  explicit QtDrawSurface(QImage& image, double density = 1);

  float ScaleWidth() const override { return mapScaleWidth; }
  float ScaleHeight() const override { return mapScaleHeight; }
  float UnitsPerPixel() const override { return static_cast<float>(1 / placement.PixelsPerUnit()); }

  void Clear(std::int32_t color) override;
  void Line(float x1, float y1, float x2, float y2, std::int32_t color) override;
  void Circle(float x, float y, float radius, std::int32_t color) override;
  void PSet(float x, float y, std::int32_t color) override;
  void Lines(std::span<const SurfaceLine> lines, std::int32_t color) override;
  void Circles(std::span<const SurfacePoint> centres, float radius, std::int32_t color) override;
  void Points(std::span<const SurfacePoint> points, std::int32_t color) override;
  void Polyline(std::span<const SurfacePoint> points, std::int32_t color) override;
  void Polygon(std::span<const SurfacePoint> points, std::int32_t color) override;
  void Print(std::string_view text) override;
  float TextWidth(std::string_view text) override;
  float TextHeight(std::string_view text) override;

 private:
  void UsePen(std::int32_t color);
  void UseFont();
  double PenWidth() const { return DrawWidth * density; }
  QPointF Pixel(SurfacePoint p) const { return placement.ToPixel(p.x, p.y); }
  const QImage& Disc(double radius, std::optional<QRgb> fill, std::optional<QRgb> ring, double ringWidth);

  QImage& image;
  PagePlacement placement;
  double density;
  QPainter painter;
  QFont font;
  float fontSize = -1;
  bool fontBold = false;
  std::optional<QFontMetricsF> metrics;
  std::string measuredText;  // the last text that was measured: callers ask twice
  float measuredWidth = 0;
  QHash<QString, QImage> discs;
};

// A colour of the settings, red in its low byte.
QColor ToQColor(std::int32_t color);
