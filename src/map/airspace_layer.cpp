#include "map/airspace_layer.h"

#include <algorithm>

#include "base/code_page.h"
#include "map/airspace_kinds.h"
#include "map/geo_line.h"
#include "map/mixed_color.h"
#include "map/range_steps.h"

namespace {

constexpr float clipMargin = 60;  // units beyond the page
constexpr float zoneWidth = 1.4F;
constexpr float activeWidth = 2;
constexpr std::int16_t labelRange = 50;
constexpr float labelGap = 35;  // units below the northernmost point
constexpr float labelPoints = 7.5F;
constexpr double labelContrast = 0.45;  // texts are thinner than areas and need more light

// Of outlines; the farther the view, the smaller the zones and the denser.
constexpr std::array<RangeStep, 5> outlineOpacity = {
    {{100, 1}, {200, 0.85F}, {400, 0.6F}, {900, 0.4F}, {6000, 0.25F}}};
// Too near, a fill is the whole page; too far, all of them are one.
constexpr std::array<RangeStep, 4> fillOpacity = {{{5, 0}, {50, 0.22F}, {200, 0.3F}, {6000, 0}}};

using Rings = std::vector<std::vector<SurfacePoint>>;

struct Shown {
  const AirspaceRec* airspace;
  std::int32_t color;
  Rings rings;
};

std::int32_t ColorOf(const AirspaceRec& airspace, const ColorSettings& colors) {
  if (airspace.intType == controlZone) return colors.CTRZ;
  return airspace.intType == restrictedAirspace ? colors.AIR2 : colors.AIR1;
}

// The rings are closed, also where the file leaves out the last side.
Rings RingsOf(const MapPaint& paint, const AirspaceRec& airspace, const ClipRect& page) {
  Rings rings = ShapeOnPage(paint.projection, airspace.points, page);
  for (auto& ring : rings) {
    ring.push_back(ring.front());
    ThinOut(ring, paint.surface.UnitsPerPixel());
  }
  return rings;
}

void Outline(DrawSurface& surface, const Rings& rings, const ClipRect& page, std::int32_t color) {
  for (const auto& ring : rings) {
    LineClipper clipper(page);
    for (const SurfacePoint point : ring)
      clipper.Add(point);
    clipper.Break();
    for (const auto& run : clipper.Runs())
      surface.Polyline(run, color);
  }
}

std::vector<Shown> ShownAirspaces(const MapPaint& paint, const ClipRect& page) {
  std::vector<Shown> shown;
  for (const std::int32_t row : paint.database.airspacesByBox.Near(paint.view.SearchBox(navaidMargin))) {
    const AirspaceRec& airspace = paint.database.airspaces[static_cast<std::size_t>(row)];
    if (!AirspaceIsShown(airspace, paint.switches)) continue;
    Rings rings = RingsOf(paint, airspace, page);
    if (!rings.empty()) shown.push_back({&airspace, ColorOf(airspace, paint.colors), std::move(rings)});
  }
  return shown;
}

// Class, name and, with the altitudes switched on, the limits.
std::vector<std::string> LabelLines(const MapPaint& paint, const AirspaceRec& airspace) {
  std::vector<std::string> lines{CodePageToUtf8(airspace.strName.Text())};
  if (!airspace.strClass.Empty()) lines[0] = CodePageToUtf8(airspace.strClass.Text()) + "  " + lines[0];
  if (paint.switches.btnFreq)
    lines.push_back(CodePageToUtf8(airspace.strLower.Text() + " - " + airspace.strUpper.Text()));
  return lines;
}

// Inside the ring below its northernmost point, if it is wide enough there.
void PrintLabel(const MapPaint& paint, const Shown& one, const std::vector<SurfacePoint>& ring) {
  DrawSurface& surface = paint.surface;
  const auto byX =
      std::minmax_element(ring.begin(), ring.end(), [](SurfacePoint a, SurfacePoint b) { return a.x < b.x; });
  const auto top =
      std::min_element(ring.begin(), ring.end(), [](SurfacePoint a, SurfacePoint b) { return a.y < b.y; });
  const float width = byX.second->x - byX.first->x;
  const float middle = (byX.first->x + byX.second->x) / 2;
  const std::vector<std::string> lines = LabelLines(paint, *one.airspace);
  if (width < 1.5F * surface.TextWidth(lines[0])) return;
  if (middle < 0 || middle > surface.ScaleWidth() || top->y < 0 || top->y > surface.ScaleHeight()) return;
  surface.ForeColor = Mixed(one.color, ContrastTo(paint.colors.MAP), labelContrast);
  surface.CurrentY = top->y + labelGap;
  for (const std::string& line : lines) {
    surface.CurrentX = middle - surface.TextWidth(line) / 2;
    surface.Print(line);
    surface.CurrentY += surface.TextHeight(line);
  }
}

}  // namespace

void DrawAirspaces(const MapPaint& paint) {
  DrawSurface& surface = paint.surface;
  const MapSwitches& on = paint.switches;
  if (!on.mnuCtrz && !on.mnuAir1 && !on.mnuAir2) return;
  const ClipRect page = OneWorldPage(paint.projection, clipMargin);
  const std::vector<Shown> shown = ShownAirspaces(paint, page);
  surface.Opacity = ValueAt(fillOpacity, paint.RangeNM());
  for (const Shown& one : shown) {
    if (surface.Opacity <= 0) break;
    for (const auto& ring : one.rings) {
      const auto visible = ClipPolygon(ring, page);
      if (visible.size() > 2) surface.Polygon(visible, one.color);
    }
  }
  surface.DrawWidth = zoneWidth;
  surface.Opacity = ValueAt(outlineOpacity, paint.RangeNM());
  for (const Shown& one : shown)
    Outline(surface, one.rings, page, one.color);
  if (paint.RangeNM() > labelRange || !on.btnName) return;
  surface.Opacity = 1;
  surface.FontSize = labelPoints;
  surface.TextHalo = true;
  for (const Shown& one : shown)
    for (const auto& ring : one.rings)
      PrintLabel(paint, one, ring);
}

void DrawActiveAirspaces(const MapPaint& paint) {
  const ClipRect page = OneWorldPage(paint.projection, clipMargin);
  paint.surface.DrawWidth = activeWidth;
  for (const std::int32_t row : paint.selection.activeAirspaces) {
    if (row < 0 || static_cast<std::size_t>(row) >= paint.database.airspaces.size()) continue;
    const AirspaceRec& airspace = paint.database.airspaces[static_cast<std::size_t>(row)];
    Outline(paint.surface, RingsOf(paint, airspace, page), page, paint.colors.HILITE);
  }
}
