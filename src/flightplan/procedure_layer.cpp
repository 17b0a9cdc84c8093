#include "flightplan/procedure_layer.h"

#include <array>

#include "base/code_page.h"
#include "map/geo_line.h"
#include "map/symbol_label.h"

namespace {

constexpr double greatCircleStepNM = 60;
constexpr std::int16_t labelRange = 150;
constexpr float labelGap = 22;  // units beside a mark

// The plan's rows carry their own names.
void DropNamesOfRows(ProcedurePath& path, const FlightPlan& plan) {
  for (ProcedureMark& mark : path.marks)
    for (const PlanWaypoint& row : plan.rows)
      if (CodePageToUtf8(row.Code.View()) == mark.name) mark.name.clear();
}

std::optional<RunwayStart> StartOf(const FlightPlan& plan, const NavDatabase& database) {
  if (plan.DepartureType == "Gate") return std::nullopt;
  return RunwayEnd(database, plan.DepartureIndex, plan.DepartureID);
}

void DrawSteps(const MapPaint& paint, const FlightPlan& plan, const std::vector<ProcedureStep>& steps,
               const std::optional<RunwayStart>& start) {
  if (steps.empty()) return;
  ProcedurePath path = PathOf(steps, start, paint.database.magneticVariation);
  DropNamesOfRows(path, plan);
  PathStyle style;
  style.color = paint.colors.ROUTE;
  style.textColor = paint.colors.TAXINAME;
  style.opacity = 0.8F;
  style.fontPoints = paint.RangeNM() <= labelRange ? LabelPoints(paint.settings, 8) : 0;
  paint.surface.TextHalo = true;
  DrawProcedurePath(paint.surface, paint.projection, path, style);
}

}  // namespace

void DrawProcedurePath(DrawSurface& surface, const Projection& projection, const ProcedurePath& path,
                       const PathStyle& style) {
  std::vector<SurfaceLine> flown, vectored;
  for (const ProcedureLeg& leg : path.legs) {
    const auto places = GreatCirclePlaces(leg.from, leg.to, greatCircleStepNM);
    for (std::size_t i = 1; i < places.size(); ++i)
      AppendMapLine(projection, places[i - 1], places[i], leg.vectored ? vectored : flown);
  }
  surface.Opacity = style.opacity;
  surface.DrawWidth = style.width;
  surface.Lines(flown, style.color);
  surface.DrawStyle = DrawStyleKind::dash;
  surface.Lines(vectored, style.color);
  surface.DrawStyle = DrawStyleKind::solid;
  surface.ForeColor = style.textColor;
  for (const ProcedureMark& mark : path.marks) {
    const auto x = static_cast<float>(projection.LonToX(mark.place.lon));
    const auto y = static_cast<float>(projection.LatToY(mark.place.lat));
    const float size = style.markSize;
    const std::array<SurfacePoint, 4> diamond = {
        {{x, y - size}, {x + size, y}, {x, y + size}, {x - size, y}}};
    surface.Polygon(diamond, style.color);
    if (style.fontPoints <= 0 || mark.name.empty()) continue;
    surface.FontSize = style.fontPoints;
    PrintLabelLines(surface, {x + size + labelGap, y - surface.TextHeight(mark.name) / 2}, mark.name,
                    LineAlign::left);
  }
}

std::vector<MapLayer> ProcedureLayers(const FlightPlan& plan) {
  return {
      {LayerPlace::procedures, "plan",
       [&plan](const MapPaint& paint) { return paint.switches.mnuDisplaySid && !plan.SidSteps.empty(); },
       [&plan](const MapPaint& paint) {
         DrawSteps(paint, plan, plan.SidSteps, StartOf(plan, paint.database));
       }},
      {LayerPlace::procedures, "plan",
       [&plan](const MapPaint& paint) { return paint.switches.mnuDisplayStar && !plan.StarSteps.empty(); },
       [&plan](const MapPaint& paint) { DrawSteps(paint, plan, plan.StarSteps, std::nullopt); }}};
}
