#include "map/waypoint_layer.h"

#include <array>

#include "base/code_page.h"
#include "map/range_steps.h"
#include "map/rows_in_view.h"
#include "map/symbol_label.h"

namespace {

constexpr std::int16_t intersectionLabelRange = 150;
constexpr std::int16_t fixLabelRange = 50;
constexpr float halfSize = 30;
constexpr float userHalfSize = 40;
constexpr float labelDrop = 75;
constexpr float userLabelDrop = 150;
constexpr std::size_t crowd = 150;  // points

constexpr std::array<RangeStep, 9> symbolOpacity = {{{50, 0.9F},
                                                     {100, 0.75F},
                                                     {150, 0.6F},
                                                     {200, 0.42F},
                                                     {300, 0.28F},
                                                     {500, 0.18F},
                                                     {900, 0.12F},
                                                     {2000, 0.22F},
                                                     {6000, 0.12F}}};
constexpr std::array<RangeStep, 4> labelOpacity = {{{50, 1}, {75, 0.9F}, {100, 0.75F}, {150, 0.6F}}};

// Puts the shared symbol on a row's place.
template <class Row>
clsNavaid& SymbolAt(const MapPaint& paint, const Row& row, std::int32_t color) {
  clsNavaid& symbol = paint.navaid;
  symbol.sngCenterX = static_cast<float>(paint.projection.LonToX(row.sngLon));
  symbol.sngCenterY = static_cast<float>(paint.projection.LatToY(row.sngLat));
  symbol.lngColor = color;
  paint.surface.ForeColor = color;
  return symbol;
}

void Prepare(const MapPaint& paint) {
  paint.surface.DrawWidth = 1;
  paint.surface.FontSize = LabelPoints(paint.settings, 7.5F);
  paint.surface.TextHalo = true;
  paint.navaid.sngLength = halfSize;
}

}  // namespace

bool IsShown(const IntersectionRec& intersection, const MapSwitches& switches) {
  if (intersection.strCode.Empty()) return false;
  if (switches.mnuIntersection) return true;
  const char level = AirwayLevel(intersection);
  return (switches.mnuVictor && (level == 'V' || level == 'X')) ||
         (switches.mnuJet && (level == 'J' || level == 'X'));
}

void DrawIntersections(const MapPaint& paint) {
  Prepare(paint);
  const auto rows =
      RowsInView(paint.view, paint.database.intersectionsByPlace, paint.database.intersections, navaidMargin);
  const float opacity = WithRoom(ValueAt(symbolOpacity, paint.RangeNM()), rows.size(), crowd);
  std::string label;
  for (const std::int32_t row : rows) {
    const IntersectionRec& intersection = paint.database.intersections[static_cast<std::size_t>(row)];
    if (!IsShown(intersection, paint.switches)) continue;
    const bool selected = paint.selection.Holds(SelectedObject::intersection, row);
    clsNavaid& symbol = SymbolAt(paint, intersection, selected ? paint.colors.HILITE : paint.colors.INT);
    paint.surface.Opacity = selected ? 1 : opacity;
    symbol.DrawAsIntersection();
    if (paint.RangeNM() > intersectionLabelRange) continue;
    label.clear();
    AppendLine(label, CodePageToUtf8(intersection.strCode.View()));
    const bool named = paint.switches.btnName && !(intersection.strName == intersection.strCode.View());
    if (named) AppendLine(label, CodePageToUtf8(intersection.strName.View()));
    paint.surface.Opacity = selected ? 1 : ValueAt(labelOpacity, paint.RangeNM());
    PlaceAndPrint(paint.surface, paint.labels, symbol.sngCenterX, symbol.sngCenterY + labelDrop, label,
                  LabelKind::fix);
  }
}

void DrawFixes(const MapPaint& paint) {
  Prepare(paint);
  const bool labelled = paint.switches.btnIcao && paint.RangeNM() <= fixLabelRange;
  const auto rows = RowsInView(paint.view, paint.database.fixesByPlace, paint.database.fixes, navaidMargin);
  const float opacity = WithRoom(ValueAt(symbolOpacity, paint.RangeNM()), rows.size(), crowd);
  for (const std::int32_t row : rows) {
    const FixRec& fix = paint.database.fixes[static_cast<std::size_t>(row)];
    const bool selected = paint.selection.Holds(SelectedObject::fix, row);
    clsNavaid& symbol = SymbolAt(paint, fix, selected ? paint.colors.HILITE : paint.colors.FIX);
    paint.surface.Opacity = selected ? 1 : opacity;
    symbol.DrawAsIntersection();
    if (!labelled) continue;
    paint.surface.Opacity = 1;
    PlaceAndPrint(paint.surface, paint.labels, symbol.sngCenterX, symbol.sngCenterY + labelDrop,
                  CodePageToUtf8(fix.strCode.View()), LabelKind::fix);
  }
}

void DrawUserWaypoints(const MapPaint& paint) {
  Prepare(paint);
  paint.navaid.sngLength = userHalfSize;
  DrawSurface& surface = paint.surface;
  surface.DrawWidth = 1.3F;
  for (const std::int32_t row : RowsInView(paint.view, paint.database.userWaypointsByPlace,
                                           paint.database.userWaypoints, navaidMargin)) {
    const UserWaypointRec& waypoint = paint.database.userWaypoints[static_cast<std::size_t>(row)];
    clsNavaid& symbol = SymbolAt(paint, waypoint, paint.colors.USER);
    symbol.DrawAsVRP();
    const std::string name = CodePageToUtf8(waypoint.strName.View());
    PrintLabelLines(
        surface, {symbol.sngCenterX - surface.TextWidth(name) / 2, symbol.sngCenterY + userLabelDrop}, name);
  }
}
