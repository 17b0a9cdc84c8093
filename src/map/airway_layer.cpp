#include "map/airway_layer.h"

#include <array>
#include <optional>

#include "base/code_page.h"
#include "map/geo_line.h"
#include "map/range_steps.h"
#include "map/symbol_label.h"

namespace {

constexpr std::int16_t labelRange = 100;
constexpr std::int16_t altitudeRange = 75;
constexpr std::size_t crowd = 250;  // segments

// The farther the view, the denser the net: it steps back behind the map.
constexpr std::array<RangeStep, 9> lineOpacity = {{{10, 0.8F},
                                                   {50, 0.7F},
                                                   {100, 0.5F},
                                                   {200, 0.38F},
                                                   {300, 0.3F},
                                                   {500, 0.22F},
                                                   {900, 0.14F},
                                                   {2000, 0.09F},
                                                   {6000, 0.06F}}};
constexpr std::array<RangeStep, 3> labelOpacity = {{{30, 0.95F}, {50, 0.85F}, {100, 0.7F}}};

Position PlaceOf(const NavDatabase& database, std::int32_t intersection) {
  const IntersectionRec& row = database.intersections[static_cast<std::size_t>(intersection)];
  return {row.sngLat, row.sngLon};
}

void MakeLabel(const MapPaint& paint, const AirwaySegmentRec& segment, std::string& label) {
  label.clear();
  if (paint.switches.btnIcao) AppendLine(label, CodePageToUtf8(segment.strName.View()));
  if (!paint.switches.btnFreq || paint.RangeNM() > altitudeRange) return;
  AppendLine(label, CodePageToUtf8("(" + segment.strLower.Text() + "-" + segment.strUpper.Text() + ")"));
}

void PrintLabels(const MapPaint& paint, const std::vector<const AirwaySegmentRec*>& segments,
                 std::int32_t color) {
  DrawSurface& surface = paint.surface;
  surface.Opacity = ValueAt(labelOpacity, paint.RangeNM());
  surface.ForeColor = color;
  surface.FontSize = LabelPoints(paint.settings, 7.5F);
  surface.TextHalo = true;
  const float halfHeight = surface.TextHeight("0") / 2;
  std::string label;
  std::vector<SurfaceLine> line;
  for (const AirwaySegmentRec* segment : segments) {
    MakeLabel(paint, *segment, label);
    line.clear();
    AppendMapLine(paint.projection, PlaceOf(paint.database, segment->lngFrom),
                  PlaceOf(paint.database, segment->lngTo), line);
    const SurfaceLine& first = line.front();
    PlaceAndPrint(surface, paint.labels, (first.from.x + first.to.x) / 2,
                  (first.from.y + first.to.y) / 2 - halfHeight, label, LabelKind::airway);
  }
}

// One pass: all lines, then all labels, each in table order.
void DrawSegments(const MapPaint& paint, const std::vector<const AirwaySegmentRec*>& segments,
                  std::int32_t color) {
  std::vector<SurfaceLine> lines;
  lines.reserve(segments.size());
  for (const AirwaySegmentRec* segment : segments)
    AppendMapLine(paint.projection, PlaceOf(paint.database, segment->lngFrom),
                  PlaceOf(paint.database, segment->lngTo), lines);
  paint.surface.Lines(lines, color);
  if (paint.RangeNM() <= labelRange) PrintLabels(paint, segments, color);
}

// First all but the selected airway, then that one above them.
void DrawAirways(const MapPaint& paint, const std::vector<AirwaySegmentRec>& table, const PlaceIndex& byEnds,
                 std::int32_t color) {
  const MapSelection& selection = paint.selection;
  std::vector<const AirwaySegmentRec*> plain = SegmentsInView(paint.view, paint.database, table, byEnds);
  std::vector<const AirwaySegmentRec*> selected;
  if (!selection.SelectedAirway.empty())
    std::erase_if(plain, [&](const AirwaySegmentRec* segment) {
      const bool named = segment->strName == selection.SelectedAirway;
      if (named) selected.push_back(segment);
      return named;
    });
  paint.surface.DrawWidth = 1;
  paint.surface.Opacity = WithRoom(ValueAt(lineOpacity, paint.RangeNM()), plain.size(), crowd);
  DrawSegments(paint, plain, color);
  const bool airwaySelected = selection.SelectedObjectType == SelectedObject::jetAirway ||
                              selection.SelectedObjectType == SelectedObject::victorAirway;
  if (!airwaySelected) return;
  paint.surface.DrawWidth = 2;
  paint.surface.Opacity = 1;
  DrawSegments(paint, selected, paint.colors.HILITE);
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
