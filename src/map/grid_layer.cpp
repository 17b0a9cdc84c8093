#include "map/grid_layer.h"

#include <algorithm>
#include <cmath>
#include <cstdlib>

#include "base/numbers.h"
#include "map/geo_line.h"
#include "map/mixed_color.h"

namespace {

constexpr std::int32_t perMinute = 4;
constexpr std::int32_t perDegree = 60 * perMinute;
constexpr double leastSpacing = 1000;  // units between two lines: at most seven across the page's height
constexpr float lineOpacity = 0.55F;
constexpr float edgeGap = 40;  // units between a text and the edge, and a text and its line
constexpr float textPoints = 8;
constexpr double textContrast = 0.3;  // texts are thinner than lines look and need more light

constexpr std::array<std::int32_t, 17> steps = {
    1,
    2,
    perMinute,
    2 * perMinute,
    5 * perMinute,
    10 * perMinute,
    15 * perMinute,
    20 * perMinute,
    30 * perMinute,
    perDegree,
    2 * perDegree,
    5 * perDegree,
    10 * perDegree,
    15 * perDegree,
    20 * perDegree,
    30 * perDegree,
    45 * perDegree,
};

// The multiples of step from low to high degrees.
template <class Visit>
void ForEachLine(double low, double high, std::int32_t step, const Visit& visit) {
  const auto first = static_cast<std::int32_t>(std::ceil(low * perDegree / step));
  const auto last = static_cast<std::int32_t>(std::floor(high * perDegree / step));
  for (std::int32_t i = first; i <= last; ++i)
    visit(i * step);
}

struct GridLabel {
  float at;  // x of a meridian, y of a parallel
  std::string text;
};

void PrintAt(DrawSurface& surface, float x, float y, const std::string& text) {
  surface.CurrentX = x;
  surface.CurrentY = y;
  surface.Print(text);
}

// Latitudes above their lines at the left edge, longitudes beside theirs at the
// lower; the corner is the longitudes'.
void PrintLabels(DrawSurface& surface, const std::vector<GridLabel>& lats, const std::vector<GridLabel>& lons,
                 float left) {
  const float height = surface.TextHeight("0");
  const float lowest = surface.ScaleHeight() - edgeGap - height;
  for (const GridLabel& label : lats) {
    const float y = label.at - height;
    if (y >= 0 && label.at <= lowest) PrintAt(surface, left + edgeGap, y, label.text);
  }
  for (const GridLabel& label : lons) {
    const float x = label.at + edgeGap;
    if (x + surface.TextWidth(label.text) <= surface.ScaleWidth()) PrintAt(surface, x, lowest, label.text);
  }
}

std::string DegreesText(std::int32_t quarterMinutes, const char* wholeDegrees) {
  const std::int32_t value = std::abs(quarterMinutes);
  const std::int32_t rest = value % perDegree;
  const std::int32_t degrees = value / perDegree;
  const std::int32_t minutes = rest / perMinute;
  std::string text = FormatPicture(degrees, wholeDegrees) + "°";
  if (rest % perMinute != 0) return text + FormatPicture(rest / double{perMinute}, "00.00") + "'";
  return rest == 0 ? text : text + FormatPicture(minutes, "00") + "'";
}

}  // namespace

std::int32_t GridStep(double unitsPerDegree, double leastUnits) {
  for (const std::int32_t step : steps)
    if (step * unitsPerDegree / perDegree >= leastUnits) return step;
  return steps.back();
}

std::string GridLatText(std::int32_t quarterMinutes) {
  if (quarterMinutes == 0) return "0°";
  return (quarterMinutes > 0 ? "N" : "S") + DegreesText(quarterMinutes, "00");
}

std::string GridLonText(std::int32_t quarterMinutes) {
  constexpr std::int32_t half = 180 * perDegree;
  std::int32_t value = quarterMinutes % (2 * half);
  if (value > half) value -= 2 * half;
  if (value < -half) value += 2 * half;
  if (value == 0) return "0°";
  if (std::abs(value) == half) return "180°";
  return (value > 0 ? "E" : "W") + DegreesText(value, "000");
}

void DrawGrid(const MapPaint& paint) {
  DrawSurface& surface = paint.surface;
  const Projection& map = paint.projection;
  const ClipRect page = OneWorldPage(map, 0);
  const double north = std::min<double>(90, map.YToLat(page.top));
  const double south = std::max<double>(-90, map.YToLat(page.bottom));
  const auto top = static_cast<float>(map.UnroundedY(north));
  const auto bottom = static_cast<float>(map.UnroundedY(south));
  std::vector<SurfaceLine> lines;
  std::vector<GridLabel> lats;
  std::vector<GridLabel> lons;
  const double eastScale = map.UnwrappedX(1) - map.UnwrappedX(0);
  ForEachLine(south, north, GridStep(paint.view.MapScale, leastSpacing), [&](std::int32_t at) {
    const auto y = static_cast<float>(map.UnroundedY(static_cast<double>(at) / perDegree));
    lines.push_back({{page.left, y}, {page.right, y}});
    lats.push_back({y, GridLatText(at)});
  });
  const double middle = paint.view.MapCenterLon;
  const double halfWidth = (page.right - page.left) / 2 / eastScale;
  ForEachLine(middle - halfWidth, middle + halfWidth, GridStep(eastScale, leastSpacing),
              [&](std::int32_t at) {
                const auto x = static_cast<float>(map.UnwrappedX(static_cast<double>(at) / perDegree));
                lines.push_back({{x, top}, {x, bottom}});
                lons.push_back({x, GridLonText(at)});
              });
  surface.Opacity = lineOpacity;
  surface.Lines(lines, paint.colors.LATLONG);
  surface.Opacity = 1;
  surface.ForeColor = Mixed(paint.colors.LATLONG, ContrastTo(paint.colors.MAP), textContrast);
  surface.FontSize = textPoints;
  surface.TextHalo = true;
  PrintLabels(surface, lats, lons, page.left);
}
