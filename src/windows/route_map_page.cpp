#include "windows/route_map_page.h"

#include <algorithm>
#include <cmath>

#include "base/numbers.h"
#include "flightplan/plan_layers.h"
#include "flightplan/procedure_layer.h"
#include "map/draw_map.h"
#include "windows/qt_painter_surface.h"

namespace {

constexpr double fitMargin = 1.25;  // with room for the names at the ends
constexpr std::int16_t nearestRow = 2;
constexpr std::int16_t farthestRow = 19;  // farther ones have no names of waypoints
constexpr float nameWidth = 430;          // units that a waypoint's name needs
constexpr float nameHeight = 210;
constexpr double screenPixelsPerInch = 96;

constexpr ColorValue FromRgb(int red, int green, int blue) {
  return red | green << 8 | blue << 16;
}

Settings PaperSettings(const Settings& settings) {
  Settings paper = settings;
  ColorSettings& colors = paper.colors;
  colors.MAP = FromRgb(255, 255, 255);
  colors.LAND = FromRgb(241, 240, 232);
  colors.COAST = FromRgb(120, 126, 132);
  colors.RIVER = FromRgb(150, 190, 220);
  colors.LATLONG = FromRgb(160, 166, 172);
  colors.ROUTE = FromRgb(150, 20, 90);
  colors.TAXINAME = FromRgb(16, 16, 16);
  return paper;
}

// Texts on white need no rim.
class PaperSurface : public QtPainterSurface {
 public:
  using QtPainterSurface::QtPainterSurface;
  void Print(std::string_view text) override {
    TextHalo = false;
    QtPainterSurface::Print(text);
  }
};

// The plan without those waypoints on the way whose names would stand on others'.
FlightPlan Thinned(const FlightPlan& plan, const Projection& projection) {
  std::vector<SurfacePoint> named;
  const auto isFree = [&](SurfacePoint place) {
    return std::none_of(named.begin(), named.end(), [&](SurfacePoint other) {
      return std::abs(place.x - other.x) < nameWidth && std::abs(place.y - other.y) < nameHeight;
    });
  };
  const auto placeOf = [&](const PlanWaypoint& row) {
    return SurfacePoint{static_cast<float>(projection.LonToX(row.Lon)),
                        static_cast<float>(projection.LatToY(row.Lat))};
  };
  if (!plan.rows.empty()) named = {placeOf(plan.rows.front()), placeOf(plan.rows.back())};
  FlightPlan thinned;
  for (const PlanWaypoint& row : plan.rows) {
    const bool airport = row.Kind == RowKind::departure || row.Kind == RowKind::destination;
    if (!airport && !isFree(placeOf(row))) continue;
    if (!airport) named.push_back(placeOf(row));
    thinned.rows.push_back(row);
  }
  return thinned;
}

// named: the plan with the waypoints that are shown.
std::vector<MapLayer> PaperLayers(const FlightPlan& plan, const FlightPlan& named) {
  std::vector<MapLayer> layers;
  for (MapLayer& layer : DatabaseLayers())
    if (layer.place == LayerPlace::worldShapes || layer.place == LayerPlace::grid)
      layers.push_back(std::move(layer));
  for (const FlightPlan* shown : {&plan, &named})
    for (MapLayer& layer : PlanLayers(*shown))
      if ((layer.place == LayerPlace::planLine) == (shown == &plan)) layers.push_back(std::move(layer));
  for (MapLayer& layer : ProcedureLayers(plan))
    layers.push_back(std::move(layer));
  return InDrawingOrder(std::move(layers));
}

// The largest scale at which the page shows the whole plan.
MapView ViewOf(const FlightPlan& plan, const VisiblePage& page) {
  MapView view;
  ShowWholePlan(plan, view, page);
  const Projection projection = view.CurrentProjection();
  std::vector<SurfaceLine> lines;
  for (std::size_t row = 1; row < plan.rows.size(); ++row)
    AppendLegLines(projection, PlaceOf(plan.rows[row - 1]), PlaceOf(plan.rows[row]), lines);
  double right = 1, down = 1;  // of the middle
  for (const SurfaceLine& line : lines) {
    for (const SurfacePoint point : {line.from, line.to}) {
      right = std::max(right, std::abs(point.x - mapScaleWidth / 2.0));
      down = std::max(down, std::abs(point.y - mapScaleHeight / 2.0));
    }
  }
  const double larger = std::min(page.width / (2 * fitMargin * right), page.height / (2 * fitMargin * down));
  const double scale = std::min<double>(view.MapScale * larger, ZoomTable[nearestRow].scale);
  view.MapScale = std::max(1, FloorToInt(scale));
  view.ZoomIndex =
      std::min(farthestRow, NearestZoomRow(RoundToEven(mapScaleHeight / scale * 60), farthestRow));
  view.UpdateVisibilityBox();
  return view;
}

}  // namespace

MapDrawer RouteMapDrawer(const FlightPlan& plan, const NavDatabase& database, const Settings& settings) {
  return [&plan, &database, &settings](QPainter& painter, const QRectF& area) {
    const double density = paperUnitsPerInch / screenPixelsPerInch;
    const PagePlacement placement(area.width(), area.height());
    const auto visible = [&](double pixels) {
      return static_cast<float>(pixels / placement.PixelsPerUnit());
    };
    MapView view = ViewOf(plan, {visible(area.width()), visible(area.height())});
    const FlightPlan named = Thinned(plan, view.CurrentProjection());
    const Settings paper = PaperSettings(settings);
    modDeclutter labels;
    MapSwitches switches;
    switches.mnuLatLong = true;
    painter.save();
    painter.setClipRect(area);
    painter.translate(area.topLeft());
    PaperSurface surface(painter, placement, density);
    DrawMap({view, labels, database, paper, switches, {}}, PaperLayers(plan, named), surface);
    painter.restore();
    painter.setPen(QPen(QColor(0x60, 0x60, 0x60), density));
    painter.setBrush(Qt::NoBrush);
    painter.drawRect(area);
  };
}
