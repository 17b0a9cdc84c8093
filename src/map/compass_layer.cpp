#include "map/compass_layer.h"

#include <array>
#include <cmath>

#include "base/numbers.h"
#include "map/mixed_color.h"

namespace {

constexpr double radius = 2500;  // units
constexpr double textRadius = radius - 330;
constexpr int tickStep = 5;  // degrees
constexpr int numberStep = 30;
constexpr float ringWidth = 1.8F;
constexpr double textContrast = 0.35;  // texts are thinner than the ring and need more light
constexpr float numberPoints = 9;
constexpr float cardinalPoints = 13;

double TickLength(int mark) {
  if (mark % numberStep == 0) return 170;
  return mark % 10 == 0 ? 110 : 60;
}

// The rose's words for 0, 90, 180 and 270, the tens of degrees between them.
std::string MarkText(int mark) {
  constexpr std::array<const char*, 4> cardinals = {"N", "E", "S", "W"};
  if (mark % 90 == 0) return cardinals[static_cast<std::size_t>(mark / 90)];
  const int tens = mark / 10;
  return FormatPicture(tens, "00");
}

}  // namespace

void DrawCompass(const MapPaint& paint) {
  DrawSurface& surface = paint.surface;
  const std::int32_t color = paint.colors.COMP;
  const float x = surface.ScaleWidth() / 2;
  const float y = surface.ScaleHeight() / 2;
  // A magnetic bearing plus the variation (east positive) is the true one.
  const auto at = [&](int mark, double distance) {
    const double angle = DegToRad(mark + static_cast<double>(paint.view.MapMagVar));
    return SurfacePoint{static_cast<float>(x + distance * std::sin(angle)),
                        static_cast<float>(y - distance * std::cos(angle))};
  };
  std::vector<SurfaceLine> ticks;
  for (int mark = 0; mark < 360; mark += tickStep)
    ticks.push_back({at(mark, radius), at(mark, radius - TickLength(mark))});
  surface.DrawWidth = ringWidth;
  surface.Circle(x, y, static_cast<float>(radius), color);
  surface.Lines(ticks, color);
  surface.ForeColor = Mixed(color, ContrastTo(paint.colors.MAP), textContrast);
  for (int mark = 0; mark < 360; mark += numberStep) {
    const std::string text = MarkText(mark);
    const bool cardinal = mark % 90 == 0;
    surface.FontSize = cardinal ? cardinalPoints : numberPoints;
    surface.FontBold = cardinal;
    const SurfacePoint middle = at(mark, textRadius);
    surface.CurrentX = middle.x - surface.TextWidth(text) / 2;
    surface.CurrentY = middle.y - surface.TextHeight(text) / 2;
    surface.Print(text);
  }
}
