#include "map/world_layer.h"

#include <algorithm>
#include <cmath>

#include "map/geo_line.h"
#include "map/shape_clip.h"

namespace {

constexpr float clipMargin = 60;       // units beyond the page
constexpr float outlineDetail = 0.4F;  // pixels that an outline may lie off
constexpr float outlineWidth = 1.2F;   // pixels, as all widths
constexpr float selectedWidth = 1.8F;
constexpr float borderOpacity = 0.9F;
constexpr float riverWidth = 1;
constexpr float riverOpacity = 0.5F;

// What can be seen of one level's shapes.
class OutlinePainter {
 public:
  OutlinePainter(const MapPaint& paint, const OutlineLevels& levels)
      : surface(paint.surface),
        projection(paint.projection),
        page(OneWorldPage(projection, clipMargin)),
        level(
            levels.For(outlineDetail * surface.UnitsPerPixel() / static_cast<double>(paint.view.MapScale))) {}

  const std::vector<OutlineShape>& Shapes() const { return level.shapes; }

  void Fill(const OutlineShape& shape, std::int32_t color) {
    for (const double turn : Turns(shape)) {
      ring.clear();
      ForEachBlock(shape, turn, [&](std::span<const Position> points, bool visible) {
        // A run beyond one edge of the page adds no more than its ends.
        ring.push_back(FillPoint(points.front(), turn));
        for (std::size_t i = 1; visible && i < points.size(); ++i)
          ring.push_back(FillPoint(points[i], turn));
      });
      ring.push_back(FillPoint(level.Points(shape).back(), turn));
      const auto visible = ClipPolygon(ring, page);
      if (visible.size() > 2) surface.Polygon(visible, color);
    }
  }

  void Outline(const OutlineShape& shape, std::int32_t color) {
    for (const double turn : Turns(shape)) {
      LineClipper clipper(page);
      ForEachBlock(shape, turn, [&](std::span<const Position> points, bool visible) {
        if (!visible) return clipper.Break();
        // The first point is the last of the block before.
        if (!clipper.Begun()) clipper.Add(Point(points.front(), turn));
        for (std::size_t i = 1; i < points.size(); ++i) {
          if (IsCutEdge(points[i - 1], points[i])) clipper.Break();
          clipper.Add(Point(points[i], turn));
        }
      });
      clipper.Break();
      for (const auto& run : clipper.Runs())
        surface.Polyline(run, color);
    }
  }

 private:
  SurfacePoint Point(Position place, double turn) const {
    return {static_cast<float>(projection.UnwrappedX(place.lon + turn)),
            static_cast<float>(projection.UnroundedY(place.lat))};
  }

  // Land that was cut at 180 degrees reaches a pixel over the cut, so that the
  // two halves meet without a seam.
  SurfacePoint FillPoint(Position place, double turn) const {
    SurfacePoint point = Point(place, turn);
    if (std::abs(place.lon) == 180) point.x += std::copysign(surface.UnitsPerPixel(), place.lon);
    return point;
  }

  bool OnPage(const OutlineBox& box, double turn) const {
    return projection.UnwrappedX(box.east + turn) >= page.left &&
           projection.UnwrappedX(box.west + turn) <= page.right &&
           projection.UnroundedY(box.south) >= page.top && projection.UnroundedY(box.north) <= page.bottom;
  }

  // The turns of the world at which a shape may touch the page.
  std::vector<double> Turns(const OutlineShape& shape) const {
    std::vector<double> turns;
    if (shape.pointCount < 2) return turns;
    for (const double turn : {-720.0, -360.0, 0.0, 360.0, 720.0})
      if (OnPage(shape.box, turn)) turns.push_back(turn);
    return turns;
  }

  template <class Visit>
  void ForEachBlock(const OutlineShape& shape, double turn, const Visit& visit) const {
    const auto points = level.Points(shape);
    std::size_t first = 0;
    for (const OutlineBox& box : level.Blocks(shape)) {
      const std::size_t count = std::min<std::size_t>(OutlineLevel::blockSteps + 1, points.size() - first);
      visit(points.subspan(first, count), OnPage(box, turn));
      first += OutlineLevel::blockSteps;
    }
  }

  DrawSurface& surface;
  const Projection& projection;
  ClipRect page;
  const OutlineLevel& level;
  std::vector<SurfacePoint> ring;
};

constexpr std::size_t AsRow(std::int32_t row) {
  return static_cast<std::size_t>(row);
}

}  // namespace

void DrawWorld(const MapPaint& paint) {
  DrawSurface& surface = paint.surface;
  const ColorSettings& colors = paint.colors;
  OutlinePainter lands(paint, paint.database.polygonOutlines);
  OutlinePainter lines(paint, paint.database.lineOutlines);
  for (const OutlineShape& shape : lands.Shapes())
    if (shape.bytType != worldInlandWater) lands.Fill(shape, colors.LAND);
  for (const OutlineShape& shape : lands.Shapes())
    if (shape.bytType == worldInlandWater) lands.Fill(shape, colors.MAP);
  surface.DrawWidth = riverWidth;
  surface.Opacity = riverOpacity;
  for (const OutlineShape& shape : lines.Shapes())
    if (shape.bytType == worldRiver) lines.Outline(shape, colors.RIVER);
  surface.DrawWidth = outlineWidth;
  surface.Opacity = borderOpacity;
  for (const OutlineShape& shape : lines.Shapes())
    if (shape.bytType != worldRiver) lines.Outline(shape, colors.COAST);
  surface.Opacity = 1;
  for (const OutlineShape& shape : lands.Shapes())
    lands.Outline(shape, colors.COAST);
}

void DrawSelectedOutline(const MapPaint& paint) {
  OutlinePainter lands(paint, paint.database.polygonOutlines);
  const std::int32_t row = paint.selection.SelectedOutline;
  if (row < 0 || AsRow(row) >= lands.Shapes().size()) return;
  paint.surface.DrawWidth = selectedWidth;
  lands.Outline(lands.Shapes()[AsRow(row)], paint.colors.HILITE);
}
