// DrawSurface on any QPainter: a widget's overlay, a printer, a picture. The
// page of 11325 x 7000 units covers the device at one scale for both
// directions, centred: a circle stays a circle, and where the device's shape
// differs from the page's, the page's longer direction is cut evenly on both
// sides.
#pragma once

#include <QFont>
#include <QFontMetricsF>
#include <QPainter>
#include <optional>
#include <string>

#include "map/map_view.h"
#include "platform/draw_surface.h"

// Where the page lies on a device of so many pixels.
class PagePlacement {
 public:
  PagePlacement(double pixelWidth, double pixelHeight);

  double PixelWidth() const { return pixelWidth; }
  double PixelHeight() const { return pixelHeight; }
  double PixelsPerUnit() const { return pixelsPerUnit; }
  QPointF ToPixel(double x, double y) const { return {x * pixelsPerUnit + left, y * pixelsPerUnit + top}; }
  SurfacePoint ToUnits(QPointF pixel) const {
    return {static_cast<float>((pixel.x() - left) / pixelsPerUnit),
            static_cast<float>((pixel.y() - top) / pixelsPerUnit)};
  }

 private:
  double pixelWidth;
  double pixelHeight;
  double pixelsPerUnit;
  double left;
  double top;
};

class QtPainterSurface : public DrawSurface {
 public:
  // painter must outlive the surface; its coordinates are those of placement.
  // density: its pixels per pixel of normal density, for pens and fonts.
  QtPainterSurface(QPainter& painter, const PagePlacement& placement, double density = 1);

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

 protected:
  double PenWidth() const { return DrawWidth * density; }
  int FontPixels() const;
  // Of the texts that have one: it stands out from the letters as the page does.
  std::int32_t HaloColor() const { return haloColor; }
  void SetPageColor(std::int32_t color);
  QPointF Pixel(SurfacePoint p) const { return placement.ToPixel(p.x, p.y); }

  QPainter& painter;
  const PagePlacement placement;
  const double density;

 private:
  void UsePen(std::int32_t color);
  void UseFont();

  std::int32_t haloColor = 0;
  QFont font;
  int fontPixels = 0;
  bool fontBold = false;
  std::optional<QFontMetricsF> metrics;
};

// A colour of the settings, red in its low byte.
QColor ToQColor(std::int32_t color);
