#include "flightplan/plan_layers.h"

#include <algorithm>
#include <array>
#include <cmath>

#include "base/code_page.h"
#include "map/clsNavaid.h"
#include "map/geo_line.h"
#include "map/symbol_label.h"

namespace {

constexpr std::int16_t labelRange = 2000;
constexpr double greatCircleStepNM = 60;
constexpr float airportLabelDrop = 50;  // over the map's own label
constexpr float labelDrop = 75;         // of most rows
constexpr float farLabelDrop = 150;     // of NDB and user waypoints
constexpr std::int16_t airportRadius = 46;
constexpr std::int16_t vorRadius = 180;
constexpr std::int16_t ndbRadius = 110;
constexpr float labelPadding = 14;  // units around a label's text
constexpr double fitMargin = 1.25;
constexpr std::int16_t nearestFitRow = 4;
constexpr std::int16_t farthestFitRow = 20;
constexpr std::int16_t farthestPolarRow = 19;

void DrawPlanLine(const MapPaint& paint, const FlightPlan& plan) {
  std::vector<SurfaceLine> lines;
  for (std::size_t row = 1; row < plan.rows.size(); ++row)
    AppendLegLines(paint.projection, PlaceOf(plan.rows[row - 1]), PlaceOf(plan.rows[row]), lines);
  paint.surface.DrawWidth = 2.4F;
  paint.surface.Lines(lines, paint.colors.ROUTE);
}

bool IsAirport(const PlanWaypoint& row) {
  return row.Kind == RowKind::departure || row.Kind == RowKind::destination;
}

// The type of a row's VOR; a plain VOR where the database does not have it.
std::int16_t VorTypeOf(const NavDatabase& database, const PlanWaypoint& row) {
  if (row.DbIndex < 0 || static_cast<std::size_t>(row.DbIndex) >= database.vors.size()) return 0;
  const VorRec& vor = database.vors[static_cast<std::size_t>(row.DbIndex)];
  return vor.strCode.View() == row.Code.View() ? vor.intType : std::int16_t{0};
}

// Draws the row's symbol. Returns where its label begins.
float DrawSymbol(const MapPaint& paint, const PlanWaypoint& row) {
  clsNavaid& symbol = paint.navaid;
  symbol.lngColor = paint.colors.ROUTE;
  symbol.sngCenterX = static_cast<float>(paint.projection.LonToX(row.Lon));
  symbol.sngCenterY = static_cast<float>(paint.projection.LatToY(row.Lat));
  paint.surface.DrawWidth = 1.6F;
  paint.surface.FillStyle = FillStyleKind::solid;
  paint.surface.FillColor = paint.colors.MAP;
  if (IsAirport(row)) {
    symbol.intRadius = airportRadius;
    symbol.intFillStyle = 0;
    symbol.DrawAsAirportCircle();
    return symbol.sngCenterY + airportLabelDrop;
  }
  if (row.Sym == "VOR") {
    symbol.intRadius = vorRadius;
    symbol.intType = VorTypeOf(paint.database, row);
    symbol.sngLength = 40;
    symbol.DrawAsVorSymbol();
    return symbol.sngCenterY + labelDrop;
  }
  if (row.Sym == "NDB") {
    symbol.intRadius = ndbRadius;
    paint.surface.FillStyle = FillStyleKind::transparent;
    symbol.DrawAsNDB();
    return symbol.sngCenterY + farLabelDrop;
  }
  if (row.Sym == "Uwp") {
    symbol.sngLength = 40;
    symbol.DrawAsVRP();
    return symbol.sngCenterY + farLabelDrop;
  }
  symbol.sngLength = 30;
  symbol.DrawAsIntersection();
  return symbol.sngCenterY + labelDrop;
}

// The code on a shaded plate, so that it stands out from what lies below it.
void PrintPlate(const MapPaint& paint, SurfacePoint place, const std::string& text) {
  DrawSurface& surface = paint.surface;
  const float left = place.x - labelPadding;
  const float right = place.x + surface.TextWidth(text) + labelPadding;
  const float bottom = place.y + surface.TextHeight(text);
  const std::array<SurfacePoint, 4> plate = {
      {{left, place.y}, {right, place.y}, {right, bottom}, {left, bottom}}};
  surface.Opacity = 0.72F;
  surface.Polygon(plate, paint.colors.MAP);
  surface.Opacity = 1;
  surface.CurrentX = place.x;
  surface.CurrentY = place.y;
  surface.Print(text);
}

// All symbols, then the codes, the airports' above the others.
void DrawPlanWaypoints(const MapPaint& paint, const FlightPlan& plan) {
  struct Label {
    const PlanWaypoint* row;
    float top;
  };
  std::vector<Label> labels;
  for (const PlanWaypoint& row : plan.rows)
    if (paint.view.InView(row.Lat, row.Lon, navaidMargin)) labels.push_back({&row, DrawSymbol(paint, row)});
  if (paint.view.RangeNM() > labelRange) return;
  std::stable_partition(labels.begin(), labels.end(),
                        [](const Label& label) { return !IsAirport(*label.row); });
  paint.surface.ForeColor = paint.colors.TAXINAME;
  for (const Label& label : labels) {
    paint.surface.FontBold = IsAirport(*label.row);
    paint.surface.FontSize = LabelPoints(paint.settings, IsAirport(*label.row) ? 10 : 8.5F);
    const std::string text = CodePageToUtf8(label.row->Code.View());
    const auto x =
        static_cast<float>(paint.projection.LonToX(label.row->Lon)) - paint.surface.TextWidth(text) / 2;
    PrintPlate(paint, {x, label.top}, text);
  }
}

double PlainScale(std::int16_t row) {
  return ZoomTable[static_cast<std::size_t>(row)].scale;
}

// Longitudes run on past 180 where the plan crosses the date line.
struct PlanExtent {
  double south, north, west, east;
};

PlanExtent ExtentOf(const FlightPlan& plan) {
  const PlanWaypoint& first = plan.rows.front();
  PlanExtent extent{first.Lat, first.Lat, first.Lon, first.Lon};
  double lon = first.Lon;
  const auto include = [&](Position place) {
    lon += std::remainder(static_cast<double>(place.lon) - lon, 360.0);  // the short way from the one before
    extent.south = std::min<double>(extent.south, place.lat);
    extent.north = std::max<double>(extent.north, place.lat);
    extent.west = std::min(extent.west, lon);
    extent.east = std::max(extent.east, lon);
  };
  for (std::size_t row = 1; row < plan.rows.size(); ++row) {
    const Position from = PlaceOf(plan.rows[row - 1]);
    for (const Position place : GreatCirclePlaces(from, PlaceOf(plan.rows[row]), greatCircleStepNM))
      include(place);
  }
  return extent;
}

}  // namespace

void AppendLegLines(const Projection& projection, Position from, Position to,
                    std::vector<SurfaceLine>& lines) {
  const std::vector<Position> places = GreatCirclePlaces(from, to, greatCircleStepNM);
  for (std::size_t i = 1; i < places.size(); ++i)
    AppendMapLine(projection, places[i - 1], places[i], lines);
}

std::vector<MapLayer> PlanLayers(const FlightPlan& plan) {
  const auto hasRows = [&plan](const MapPaint&) { return !plan.rows.empty(); };
  return {
      {LayerPlace::planLine, "plan", hasRows, [&plan](const MapPaint& paint) { DrawPlanLine(paint, plan); }},
      {LayerPlace::planWaypoints, "plan", hasRows,
       [&plan](const MapPaint& paint) { DrawPlanWaypoints(paint, plan); }}};
}

void ShowWholePlan(const FlightPlan& plan, MapView& view, const VisiblePage& page) {
  if (plan.rows.empty()) return;
  const PlanExtent extent = ExtentOf(plan);
  view.MapCenterLat = static_cast<float>((extent.south + extent.north) / 2);
  view.MapCenterLon = static_cast<float>(std::remainder((extent.west + extent.east) / 2, 360.0));
  const double cosine = std::cos(DegToRad(view.MapCenterLat));
  // Degrees that the page must be able to show, and its units for each of them.
  const double unitsHigh = page.height / (fitMargin * (extent.north - extent.south));
  const double unitsWide = page.width / (fitMargin * (extent.east - extent.west) * cosine);
  const double largestScale = std::min(unitsHigh, unitsWide);
  std::int16_t row = nearestFitRow;
  while (row < farthestFitRow && PlainScale(row) * view.MapSizeFactor > largestScale)
    ++row;
  // The farthest row is allowed or not by what the map would show.
  view.SetZoom(std::min(row, farthestPolarRow), true);
  view.UpdateVisibilityBox();
  if (row > farthestPolarRow) view.SetZoom(row, true);
}
