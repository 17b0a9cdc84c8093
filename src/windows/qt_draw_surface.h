// DrawSurface on a QImage, for the moving map. Lines, shapes, discs, points and
// texts are set straight into the picture, which costs a repaint a fraction of what
// the general painter takes; everything else is QPainter's.
#pragma once

#include <QImage>
#include <QPainter>

#include "windows/pixel_fill.h"
#include "windows/pixel_strokes.h"
#include "windows/qt_painter_surface.h"
#include "windows/surface_cache.h"

// Holds the painter, which the surface's base needs first.
struct ImagePainter {
  explicit ImagePainter(QImage& image) : imagePainter(&image) {}
  QPainter imagePainter;
};

class QtDrawSurface : private ImagePainter, public QtPainterSurface {
 public:
  // Draws on image (Format_RGB32), which must outlive the surface and may not
  // be copied while it is drawn on. density: device pixels per pixel of normal
  // density, for pens and fonts. cache, if given, is kept for the next picture.
  explicit QtDrawSurface(QImage& image, double density = 1, SurfaceCache* cache = nullptr);

  void Clear(std::int32_t color) override;
  void Lines(std::span<const SurfaceLine> lines, std::int32_t color) override;
  void Circles(std::span<const SurfacePoint> centres, float radius, std::int32_t color) override;
  void Points(std::span<const SurfacePoint> points, std::int32_t color) override;
  void Polyline(std::span<const SurfacePoint> points, std::int32_t color) override;
  void Polygon(std::span<const SurfacePoint> points, std::int32_t color) override;
  void Print(std::string_view text) override;
  float TextWidth(std::string_view text) override;
  float TextHeight(std::string_view text) override;

 private:
  bool SetsStrokes() const;
  GlyphSet& Letters();

  QImage& image;
  PixelGrid grid;
  PixelFill fill;
  std::vector<QPointF> pixels;  // of the shape being filled
  SurfaceCache ownCache;
  SurfaceCache& cache;
  GlyphSet* letters = nullptr;  // of lettersPixels, lettersBold
  int lettersPixels = 0;
  bool lettersBold = false;
};
