#include "windows/segment_map.h"

#include <QPainter>

#include "flightplan/plan_layers.h"
#include "map/draw_map.h"
#include "windows/qt_draw_surface.h"

namespace {

constexpr float restingOpacity = 0.4F;  // of the plan behind the segment

void DrawRestingPlan(const MapPaint& paint, const FlightPlan& plan) {
  std::vector<SurfaceLine> lines;
  for (std::size_t row = 1; row < plan.rows.size(); ++row)
    AppendLegLines(paint.projection, PlaceOf(plan.rows[row - 1]), PlaceOf(plan.rows[row]), lines);
  paint.surface.DrawWidth = 1.4F;
  paint.surface.Opacity = restingOpacity;
  paint.surface.Lines(lines, paint.colors.ROUTE);
  paint.surface.Opacity = 1;
}

}  // namespace

SegmentMap::SegmentMap(const FlightPlan& plan, const NavDatabase& database, const Settings& settings,
                       QWidget* parent)
    : QWidget(parent), plan(plan), database(database), settings(settings) {
  setObjectName("pctSid");
  setAccessibleName(tr("Map of the segment"));
  setAttribute(Qt::WA_OpaquePaintEvent);
  setMinimumSize(340, 260);
}

void SegmentMap::ShowRows(std::vector<PlanWaypoint> rows) {
  shown.rows = std::move(rows);
  Fit();
}

void SegmentMap::Fit() {
  const PagePlacement placement(width(), height());
  ShowWholePlan(shown.rows.empty() ? plan : shown, view,
                {static_cast<float>(width() / placement.PixelsPerUnit()),
                 static_cast<float>(height() / placement.PixelsPerUnit())});
  Redraw();
}

void SegmentMap::Zoom(bool in) {
  view.SetZoom(view.ZoomIndex + (in ? -1 : 1), true);
  Redraw();
}

void SegmentMap::Redraw() {
  stale = true;
  update();
}

void SegmentMap::DrawPicture() {
  stale = false;
  const double density = devicePixelRatioF();
  const QSize pixels = size() * density;
  if (picture.size() != pixels) picture = QImage(pixels, QImage::Format_RGB32);
  QtDrawSurface surface(picture, density);
  std::vector<MapLayer> layers = PlanLayers(shown);
  layers.insert(layers.begin(), {LayerPlace::planLine, "resting plan", [](const MapPaint&) { return true; },
                                 [this](const MapPaint& paint) { DrawRestingPlan(paint, plan); }});
  for (MapLayer& layer : DatabaseLayers())
    if (layer.place == LayerPlace::worldShapes) layers.push_back(std::move(layer));
  modDeclutter labels;
  const MapSwitches switches;
  DrawMap({view, labels, database, settings, switches, {}}, InDrawingOrder(std::move(layers)), surface);
}

void SegmentMap::paintEvent(QPaintEvent*) {
  if (stale) DrawPicture();
  QPainter(this).drawImage(rect(), picture);
}

void SegmentMap::resizeEvent(QResizeEvent*) {
  Fit();
}
