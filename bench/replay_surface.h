// Keeps what a repaint draws on the page, in device pixels, and draws it again straight
// through QPainter: the floor that repaints are held against.
#pragma once

#include <QFont>
#include <QList>
#include <QPainter>
#include <QStaticText>
#include <vector>

#include "windows/qt_painter_surface.h"

class ReplaySurface : public QtPainterSurface {
 public:
  ReplaySurface(QPainter& painter, const PagePlacement& placement) : QtPainterSurface(painter, placement) {}

  void Clear(std::int32_t color) override;
  void Lines(std::span<const SurfaceLine> lines, std::int32_t color) override;
  void Circles(std::span<const SurfacePoint> centres, float radius, std::int32_t color) override;
  void Points(std::span<const SurfacePoint> points, std::int32_t color) override;
  void Polyline(std::span<const SurfacePoint> points, std::int32_t color) override;
  void Polygon(std::span<const SurfacePoint> points, std::int32_t color) override;
  void Print(std::string_view text) override;

  // Draws everything that was kept.
  void Replay(QPainter& target) const;
  std::size_t Kept() const { return kept.size(); }

 private:
  enum class Kind { clear, lines, circles, points, polygon, print };
  struct Primitive {
    Kind kind;
    QPen pen;
    QBrush brush;
    double opacity;
    double size = 0;  // radius, or side of a point
    QList<QPointF> pixels = {};
    QStaticText text = {};
    QFont font = {};
    bool halo = false;
  };
  Primitive& Keep(Kind kind, std::int32_t color, std::span<const SurfacePoint> points);

  std::vector<Primitive> kept;
};
