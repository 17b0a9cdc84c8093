#include "map/map_overlays.h"

#include <algorithm>
#include <array>

#include "map/geo_line.h"
#include "map/style_keeper.h"

namespace {

constexpr float padding = 70;      // between a plate's edge and its text, units
constexpr float entryGap = 45;     // above every heading but the first
constexpr float pointerGap = 130;  // between the pointer and a plate
constexpr float pageMargin = 30;   // that a plate keeps from the page's edge
constexpr float plateOpacity = 0.92F;
constexpr float edgeOpacity = 0.45F;

struct Plate {
  float x, y, width, height;
};

void DrawGround(DrawSurface& surface, const Plate& plate, std::int32_t ground, std::int32_t edge) {
  const float right = plate.x + plate.width;
  const float bottom = plate.y + plate.height;
  const std::array<SurfacePoint, 5> corners = {
      {{plate.x, plate.y}, {right, plate.y}, {right, bottom}, {plate.x, bottom}, {plate.x, plate.y}}};
  surface.Opacity = plateOpacity;
  surface.Polygon(std::span(corners).first(4), ground);
  surface.Opacity = edgeOpacity;
  surface.Polyline(corners, edge);
  surface.Opacity = 1;
}

// start if so much fits in behind it, else as far back as it must, but not before the margin.
float Held(float start, float length, float page) {
  return std::max(pageMargin, std::min(start, page - pageMargin - length));
}

// Behind the pointer where there is room, else before it, else wherever it fits.
float BesidePointer(float pointer, float length, float page) {
  if (pointer + pointerGap + length + pageMargin <= page) return pointer + pointerGap;
  if (pointer - pointerGap - length >= pageMargin) return pointer - pointerGap - length;
  return Held(pointer + pointerGap, length, page);
}

float HoverFontSize(int fontSize) {
  if (fontSize == 1) return 11.5F;
  return fontSize == 2 ? 10 : 9;
}

float Width(DrawSurface& surface, const HoverLine& line) {
  surface.FontBold = line.heading;
  return surface.TextWidth(line.text);
}

// The lines that the page has room for; the last one counts those that it has not.
std::vector<HoverLine> FittingLines(std::vector<HoverLine> lines, float lineHeight, float room) {
  float height = 0;
  for (std::size_t i = 0; i < lines.size(); ++i) {
    height += lineHeight + (lines[i].heading && i > 0 ? entryGap : 0);
    if (height <= room) continue;
    const std::size_t kept = i > 0 ? i - 1 : 0;
    const std::size_t missing = lines.size() - kept;
    lines.resize(kept);
    lines.push_back({"... " + std::to_string(missing) + " more lines"});
    break;
  }
  return lines;
}

void DrawMapLine(Position from, Position to, const MapView& view, std::int32_t color, DrawSurface& surface) {
  std::vector<SurfaceLine> lines;
  AppendMapLine(view.CurrentProjection(), from, to, lines);
  surface.Lines(lines, color);
}

}  // namespace

float HoverBoxWidth(int fontSize) {
  if (fontSize == 1) return 240;
  return fontSize == 2 ? 190 : 170;
}

void DrawPlate(std::string_view text, float x, float y, std::int32_t color, const ColorSettings& colors,
               DrawSurface& surface) {
  const StyleKeeper keeper(surface);
  surface.ResetStyle();
  const float height = surface.TextHeight(text) + padding;
  const float width = surface.TextWidth(text) + 2 * padding;
  const Plate plate{Held(x, width, surface.ScaleWidth()), Held(y, height, surface.ScaleHeight()), width,
                    height};
  DrawGround(surface, plate, colors.MAP, color);
  surface.ForeColor = color;
  surface.CurrentX = plate.x + padding;
  surface.CurrentY = plate.y + padding / 2;
  surface.Print(text);
}

void DrawMeasureLine(const MeasureLine& line, const MapView& view, const ColorSettings& colors,
                     DrawSurface& surface, bool withCaption) {
  if (!line.visible) return;
  const StyleKeeper keeper(surface);
  surface.ResetStyle();
  surface.DrawWidth = 1.5F;
  DrawMapLine({line.MeasureStartLat, line.MeasureStartLon}, {line.MeasureEndLat, line.MeasureEndLon}, view,
              colors.MEASURE, surface);
  if (!withCaption) return;
  DrawPlate(line.Caption(view.MapMagVar), line.label.x + pointerGap, line.label.y + pointerGap,
            colors.MEASURE, colors, surface);
}

void DrawDragBox(const DragBox& box, const ColorSettings& colors, DrawSurface& surface) {
  if (!box.BoxActive) return;
  const StyleKeeper keeper(surface);
  surface.ResetStyle();
  surface.DrawWidth = 1.2F;
  const std::array<SurfacePoint, 5> corners = {{{box.BoxX1, box.BoxY1},
                                                {box.BoxX2, box.BoxY1},
                                                {box.BoxX2, box.BoxY2},
                                                {box.BoxX1, box.BoxY2},
                                                {box.BoxX1, box.BoxY1}}};
  surface.Polyline(corners, colors.ZOOM);
}

void DrawBearingLine(Position anchor, float x, float y, std::string_view text, const MapView& view,
                     const ColorSettings& colors, DrawSurface& surface) {
  const StyleKeeper keeper(surface);
  surface.ResetStyle();
  const Position pointer{view.YToLat(y), view.XToLon(x)};
  DrawMapLine(anchor, pointer, view, colors.ROUTE, surface);
  if (!text.empty()) DrawPlate(text, x + pointerGap, y + pointerGap, colors.AP, colors, surface);
}

void DrawHoverBox(const std::vector<HoverLine>& all, float x, float y, const Settings& settings,
                  DrawSurface& surface) {
  if (all.empty()) return;
  const StyleKeeper keeper(surface);
  surface.ResetStyle();
  const ColorSettings& colors = settings.colors;
  surface.FontSize = HoverFontSize(settings.FONTSIZE);
  const float lineHeight = surface.TextHeight("Ag") * 1.12F;
  const float room = surface.ScaleHeight() - 2 * pageMargin - padding;
  const std::vector<HoverLine> lines = FittingLines(all, lineHeight, room);
  float width = HoverBoxWidth(settings.FONTSIZE);
  float height = padding;
  for (const HoverLine& line : lines) {
    width = std::max(width, Width(surface, line));
    height += lineHeight + (line.heading && &line != &lines.front() ? entryGap : 0);
  }
  width += 2 * padding;
  const Plate plate{BesidePointer(x, width, surface.ScaleWidth()),
                    BesidePointer(y, height, surface.ScaleHeight()), width, height};
  DrawGround(surface, plate, colors.MAP, colors.AP);
  surface.ForeColor = colors.AP;
  float top = plate.y + padding / 2;
  for (const HoverLine& line : lines) {
    if (line.heading && &line != &lines.front()) top += entryGap;
    surface.FontBold = line.heading;
    surface.CurrentX = plate.x + padding;
    surface.CurrentY = top;
    surface.Print(line.text);
    top += lineHeight;
  }
}
