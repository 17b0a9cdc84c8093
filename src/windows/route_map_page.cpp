#include "windows/route_map_page.h"

#include <algorithm>
#include <cmath>

#include "base/numbers.h"
#include "flightplan/plan_layers.h"
#include "flightplan/procedure_layer.h"
#include "map/draw_map.h"
#include "windows/qt_painter_surface.h"

namespace {

constexpr double fitMargin = 1.25;   // with room for the names at the ends
constexpr double leastHeight = 0.7;  // of the width
constexpr int fitTurns = 6;
constexpr std::int16_t nearestRow = 2;
constexpr std::int16_t farthestRow = 19;               // farther ones have no names of waypoints
constexpr double nameWidth = 0.6 * paperUnitsPerInch;  // that a waypoint's name needs
constexpr double nameHeight = 0.28 * paperUnitsPerInch;
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
FlightPlan Thinned(const FlightPlan& plan, const Projection& projection, const PagePlacement& placement) {
  std::vector<SurfacePoint> named;
  const auto isFree = [&](SurfacePoint place) {
    return std::none_of(named.begin(), named.end(), [&](SurfacePoint other) {
      return std::abs(place.x - other.x) * placement.PixelsPerUnit() < nameWidth &&
             std::abs(place.y - other.y) * placement.PixelsPerUnit() < nameHeight;
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

// How far the plan reaches from the middle of the page, in units, at least 1.
SurfacePoint Reach(const FlightPlan& plan, const MapView& view) {
  const Projection projection = view.CurrentProjection();
  std::vector<SurfaceLine> lines;
  for (std::size_t row = 1; row < plan.rows.size(); ++row)
    AppendLegLines(projection, PlaceOf(plan.rows[row - 1]), PlaceOf(plan.rows[row]), lines);
  SurfacePoint reach{1, 1};
  for (const SurfaceLine& line : lines) {
    for (const SurfacePoint point : {line.from, line.to}) {
      reach.x = std::max(reach.x, std::abs(point.x - mapScaleWidth / 2.0F));
      reach.y = std::max(reach.y, std::abs(point.y - mapScaleHeight / 2.0F));
    }
  }
  return reach;
}

// The upper part of the area that a route needs which leads more east and west.
QRectF NeededPart(const FlightPlan& plan, const QRectF& area) {
  MapView view;
  ShowWholePlan(plan, view);
  const SurfacePoint reach = Reach(plan, view);
  const double height = area.width() * std::max(leastHeight, fitMargin * reach.y / reach.x);
  return {area.left(), area.top(), area.width(), std::min(area.height(), height)};
}

}  // namespace

MapView RouteMapView(const FlightPlan& plan, const VisiblePage& page) {
  MapView view;
  ShowWholePlan(plan, view, page);
  const float middle = view.MapCenterLat;
  // A page that would show what lies beyond a pole moves its middle, and with it the plan's width.
  for (int turn = 0; turn < fitTurns; ++turn) {
    const SurfacePoint reach = Reach(plan, view);
    const double room = std::min(page.width / reach.x, page.height / reach.y) / (2 * fitMargin);
    const double scale = view.MapScale * room;
    view.MapScale = std::max(1, FloorToInt(std::min<double>(scale, ZoomTable[nearestRow].scale)));
    view.MapCenterLat = middle;
    view.UpdateVisibilityBox();
  }
  const std::int32_t rangeNM = RoundToEven(mapScaleHeight * 60.0 / view.MapScale);
  view.ZoomIndex = std::min(farthestRow, NearestZoomRow(rangeNM, farthestRow));
  return view;
}

MapDrawer RouteMapDrawer(const FlightPlan& plan, const NavDatabase& database, const Settings& settings) {
  return [&plan, &database, &settings](QPainter& painter, const QRectF& whole) {
    const QRectF area = NeededPart(plan, whole);
    const double density = paperUnitsPerInch / screenPixelsPerInch;
    const PagePlacement placement(area.width(), area.height());
    const auto visible = [&](double pixels) {
      return static_cast<float>(pixels / placement.PixelsPerUnit());
    };
    MapView view = RouteMapView(plan, {visible(area.width()), visible(area.height())});
    const FlightPlan named = Thinned(plan, view.CurrentProjection(), placement);
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
