#include "map/world_layer.h"

#include <algorithm>
#include <cmath>

#include "map/shape_clip.h"

namespace {

constexpr std::uint8_t inlandWater = 3;  // bytType of a lake
constexpr float clipMargin = 60;         // units beyond the page

struct Pen {
  std::int32_t color;
  float width;
  float opacity;
};

// Where the data were cut at 180 degrees and closed over a pole there is no coast.
bool IsCutEdge(Position a, Position b) {
  const auto onDateLine = [](Position p) { return std::abs(p.lon) >= 179.995F; };
  const auto onPole = [](Position p) { return std::abs(p.lat) >= 89.9F; };
  return (onDateLine(a) && onDateLine(b)) || (onPole(a) && onPole(b));
}

// One shape's points on the page. A shape that crosses the date line is kept
// whole: a jump of more than half the world is the short way round, except the
// full turn along a pole's edge.
class ProjectedShape {
 public:
  ProjectedShape(const MapPaint& paint, std::span<const Position> points, double shift) {
    projected.reserve(points.size());
    double turn = shift;
    for (std::size_t i = 0; i < points.size(); ++i) {
      if (i > 0) {
        const double step = static_cast<double>(points[i].lon) - points[i - 1].lon;
        if (std::abs(step) > 180 && std::abs(step) < 359) turn += step > 0 ? -360 : 360;
      }
      projected.push_back({static_cast<float>(paint.projection.UnwrappedX(points[i].lon + turn)),
                           static_cast<float>(paint.projection.UnroundedY(points[i].lat))});
    }
  }

  std::span<const SurfacePoint> Points() const { return projected; }

 private:
  std::vector<SurfacePoint> projected;
};

// Leaves out points that a pixel cannot tell from the one before.
std::vector<SurfacePoint> Thinned(std::span<const SurfacePoint> points, float detail) {
  std::vector<SurfacePoint> thinned;
  thinned.reserve(points.size());
  for (const SurfacePoint point : points) {
    const bool same = !thinned.empty() && std::abs(point.x - thinned.back().x) < detail &&
                      std::abs(point.y - thinned.back().y) < detail;
    if (!same) thinned.push_back(point);
  }
  return thinned;
}

void DrawOutline(DrawSurface& surface, std::span<const Position> places, std::span<const SurfacePoint> points,
                 const ClipRect& page, const Pen& pen) {
  surface.DrawWidth = pen.width;
  surface.Opacity = pen.opacity;
  const float detail = surface.UnitsPerPixel();
  std::vector<SurfacePoint> run;
  const auto finishRun = [&] {
    if (run.size() > 1) surface.Polyline(run, pen.color);
    run.clear();
  };
  for (std::size_t i = 1; i < points.size(); ++i) {
    if (!MayTouch(points[i - 1], points[i], page) || IsCutEdge(places[i - 1], places[i])) {
      finishRun();
      continue;
    }
    if (run.empty()) run.push_back(points[i - 1]);
    const bool last = i + 1 == points.size();
    const bool tooNear =
        std::abs(points[i].x - run.back().x) < detail && std::abs(points[i].y - run.back().y) < detail;
    if (!tooNear || last) run.push_back(points[i]);
  }
  finishRun();
}

// Calls draw for each turn of the world in which the shape touches the page.
template <class Draw>
void ForEachAppearance(const MapPaint& paint, const WorldShapes& world, const WorldShapeRec& shape,
                       const ClipRect& page, const Draw& draw) {
  const std::span<const Position> places(world.points.data() + shape.firstPoint, shape.pointCount);
  const double top = paint.projection.UnroundedY(shape.sngBox4);
  const double bottom = paint.projection.UnroundedY(shape.sngBox2);
  if (bottom < page.top || top > page.bottom) return;
  const bool crossesDateLine = shape.sngBox1 > shape.sngBox3;
  for (const double shift : {-360.0, 0.0, 360.0}) {
    // A crossing shape may begin on either side of the line.
    const double west = crossesDateLine ? shape.sngBox1 - 360.0 : shape.sngBox1;
    const double east = crossesDateLine ? shape.sngBox3 + 360.0 : shape.sngBox3;
    if (paint.projection.UnwrappedX(east + shift) < page.left) continue;
    if (paint.projection.UnwrappedX(west + shift) > page.right) continue;
    draw(places, ProjectedShape(paint, places, shift).Points());
  }
}

}  // namespace

void DrawWorld(const MapPaint& paint) {
  DrawSurface& surface = paint.surface;
  const ClipRect page{-clipMargin, -clipMargin, surface.ScaleWidth() + clipMargin,
                      surface.ScaleHeight() + clipMargin};
  const NavDatabase& database = paint.database;
  const float detail = surface.UnitsPerPixel() / 2;
  const auto fill = [&](const WorldShapeRec& shape, std::int32_t color) {
    ForEachAppearance(paint, database.worldPolygons, shape, page, [&](auto, auto points) {
      const auto visible = ClipPolygon(Thinned(points, detail), page);
      if (visible.size() > 2) surface.Polygon(visible, color);
    });
  };
  for (const WorldShapeRec& shape : database.worldPolygons.shapes)
    if (shape.bytType != inlandWater) fill(shape, paint.colors.LAND);
  for (const WorldShapeRec& shape : database.worldPolygons.shapes)
    if (shape.bytType == inlandWater) fill(shape, paint.colors.MAP);
  const Pen border{paint.colors.COAST, 1.2F, 0.9F};
  for (const WorldShapeRec& shape : database.worldLines.shapes) {
    ForEachAppearance(paint, database.worldLines, shape, page,
                      [&](auto places, auto points) { DrawOutline(surface, places, points, page, border); });
  }
  const Pen coast{paint.colors.COAST, 1.2F, 1};
  for (const WorldShapeRec& shape : database.worldPolygons.shapes) {
    ForEachAppearance(paint, database.worldPolygons, shape, page,
                      [&](auto places, auto points) { DrawOutline(surface, places, points, page, coast); });
  }
}
