#include "map/airway_layer.h"

#include <array>
#include <optional>

#include "base/code_page.h"
#include "map/geo_line.h"

namespace {

constexpr std::int16_t labelRange = 100;
constexpr std::int16_t altitudeRange = 75;

// The farther the view, the denser the net: it steps back behind the map.
float OpacityAt(std::int16_t rangeNM) {
  struct Step {
    std::int16_t range;
    float opacity;
  };
  constexpr std::array<Step, 7> steps = {
      {{50, 0.85F}, {100, 0.7F}, {200, 0.5F}, {300, 0.36F}, {500, 0.26F}, {900, 0.17F}, {2000, 0.1F}}};
  for (const Step& step : steps)
    if (rangeNM <= step.range) return step.opacity;
  return 0.06F;
}

Position PlaceOf(const NavDatabase& database, std::int32_t intersection) {
  const IntersectionRec& row = database.intersections[static_cast<std::size_t>(intersection)];
  return {row.sngLat, row.sngLon};
}

std::vector<std::string> LabelLines(const MapPaint& paint, const AirwaySegmentRec& segment) {
  std::vector<std::string> lines;
  if (paint.switches.btnIcao) lines.push_back(CodePageToUtf8(segment.strName.View()));
  if (paint.switches.btnFreq && paint.view.RangeNM() <= altitudeRange)
    lines.push_back(CodePageToUtf8("(" + segment.strLower.Text() + "-" + segment.strUpper.Text() + ")"));
  return lines;
}

void PrintLabel(const MapPaint& paint, const AirwaySegmentRec& segment, const SurfaceLine& line) {
  const std::vector<std::string> texts = LabelLines(paint, segment);
  if (texts.empty()) return;
  DrawSurface& surface = paint.surface;
  const float x = (line.from.x + line.to.x) / 2;
  const float y = (line.from.y + line.to.y) / 2;
  const float height = surface.TextHeight(texts.front());
  const auto place = paint.labels.PlaceLabel(x - surface.TextWidth(texts.front()) / 2, y - height / 2,
                                             texts.front(), LabelKind::airway);
  const float middle = place.x + surface.TextWidth(texts.front()) / 2;
  surface.CurrentY = place.y;
  for (const std::string& text : texts) {
    surface.CurrentX = middle - surface.TextWidth(text) / 2;
    surface.Print(text);
    surface.CurrentY += height;
  }
}

void DrawAirways(const MapPaint& paint, const std::vector<AirwaySegmentRec>& segments,
                 const PlaceIndex& byEnds, std::int32_t color) {
  DrawSurface& surface = paint.surface;
  const auto shown = SegmentsInView(paint.view, paint.database, segments, byEnds);
  std::vector<SurfaceLine> lines;
  lines.reserve(shown.size());
  for (const AirwaySegmentRec* segment : shown)
    AppendMapLine(paint.projection, PlaceOf(paint.database, segment->lngFrom),
                  PlaceOf(paint.database, segment->lngTo), lines);
  surface.Opacity = OpacityAt(paint.view.RangeNM());
  surface.DrawWidth = 1;
  surface.Lines(lines, color);
  if (paint.view.RangeNM() > labelRange) return;
  surface.Opacity = 1;
  surface.ForeColor = color;
  surface.FontSize = 7.5F;
  surface.TextHalo = true;
  std::vector<SurfaceLine> one;
  for (const AirwaySegmentRec* segment : shown) {
    one.clear();
    AppendMapLine(paint.projection, PlaceOf(paint.database, segment->lngFrom),
                  PlaceOf(paint.database, segment->lngTo), one);
    PrintLabel(paint, *segment, one.front());
  }
}

}  // namespace

std::vector<const AirwaySegmentRec*> SegmentsInView(const MapView& view, const NavDatabase& database,
                                                    const std::vector<AirwaySegmentRec>& segments,
                                                    const PlaceIndex& byEnds) {
  const auto inView = [&](std::int32_t intersection) {
    if (intersection < 0 || static_cast<std::size_t>(intersection) >= database.intersections.size())
      return std::optional<bool>();
    const Position place = PlaceOf(database, intersection);
    return std::optional<bool>(view.InView(place.lat, place.lon, navaidMargin));
  };
  std::vector<const AirwaySegmentRec*> shown;
  for (const std::int32_t row : byEnds.Near(view.SearchBox(navaidMargin))) {
    const AirwaySegmentRec& segment = segments[static_cast<std::size_t>(row)];
    const auto from = inView(segment.lngFrom);
    const auto to = inView(segment.lngTo);
    if (from && to && (*from || *to)) shown.push_back(&segment);
  }
  return shown;
}

void DrawJetAirways(const MapPaint& paint) {
  DrawAirways(paint, paint.database.jetAirways, paint.database.jetAirwaysByEnds, paint.colors.JET);
}

void DrawVictorAirways(const MapPaint& paint) {
  DrawAirways(paint, paint.database.victorAirways, paint.database.victorAirwaysByEnds, paint.colors.VICTOR);
}
