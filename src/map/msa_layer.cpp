#include "map/msa_layer.h"

#include <algorithm>
#include <array>
#include <cmath>

#include "base/numbers.h"
#include "map/geo_line.h"
#include "map/range_steps.h"

namespace {

constexpr float clipMargin = 60;  // units beyond the page
constexpr float netOpacity = 0.5F;
constexpr float textOpacity = 0.8F;
constexpr double feetPerUnit = 100;
constexpr std::array<RangeStep, 3> textPoints = {{{50, 16}, {150, 13}, {300, 9}}};

// The corners, once round.
std::array<Position, 5> CornersOf(const MsaArea& area) {
  return {{{area.north, area.west},
           {area.north, area.east},
           {area.south, area.east},
           {area.south, area.west},
           {area.north, area.west}}};
}

void PrintAltitude(DrawSurface& surface, const std::vector<SurfacePoint>& cell, float altitudeFeet) {
  // A safe altitude is never rounded down.
  const std::string text = FormatPicture(std::ceil(altitudeFeet / feetPerUnit), "#0");
  const float width = surface.TextWidth(text);
  const float height = surface.TextHeight(text);
  if (width > cell[1].x - cell[0].x || height > cell[2].y - cell[1].y) return;
  const SurfacePoint middle{(cell[0].x + cell[2].x) / 2, (cell[0].y + cell[2].y) / 2};
  if (middle.x < 0 || middle.x > surface.ScaleWidth() || middle.y < 0 || middle.y > surface.ScaleHeight())
    return;
  surface.CurrentX = middle.x - width / 2;
  surface.CurrentY = middle.y - height / 2;
  surface.Print(text);
}

}  // namespace

void DrawMsa(const MapPaint& paint) {
  DrawSurface& surface = paint.surface;
  const ClipRect page = OneWorldPage(paint.projection, clipMargin);
  surface.ForeColor = paint.colors.MSA;
  surface.FontSize = ValueAt(textPoints, paint.RangeNM());
  surface.FontBold = true;
  for (const std::int32_t row : paint.database.msaByBox.Near(paint.view.SearchBox(navaidMargin))) {
    const MsaArea area = AreaOf(paint.database.msa[static_cast<std::size_t>(row)]);
    if (!(area.altitudeFeet > 0) || !(area.south < area.north)) continue;
    const auto corners = CornersOf(area);
    if (!std::all_of(corners.begin(), corners.end(), IsOnMap)) continue;
    for (const auto& cell : ShapeOnPage(paint.projection, corners, page)) {
      LineClipper clipper(page);
      for (const SurfacePoint corner : cell)
        clipper.Add(corner);
      clipper.Break();
      surface.Opacity = netOpacity;
      for (const auto& run : clipper.Runs())
        surface.Polyline(run, paint.colors.MSA);
      surface.Opacity = textOpacity;
      PrintAltitude(surface, cell, area.altitudeFeet);
    }
  }
}
