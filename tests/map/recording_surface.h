// A drawing surface that keeps what was drawn instead of showing it.
#pragma once

#include <string>
#include <vector>

#include "map/map_view.h"
#include "platform/draw_surface.h"

class RecordingSurface : public DrawSurface {
 public:
  struct Drawn {
    std::string what;  // "clear", "line", "circle", "point", "polyline", "polygon", "print"
    std::int32_t color = 0;
    float x = 0;  // first coordinates of the shape
    float y = 0;
    std::string text;
    std::vector<SurfacePoint> points;
  };
  std::vector<Drawn> drawn;

  float ScaleWidth() const override { return mapScaleWidth; }
  float ScaleHeight() const override { return mapScaleHeight; }
  float UnitsPerPixel() const override { return 7; }
  void Clear(std::int32_t color) override { drawn.push_back({"clear", color, 0, 0, {}, {}}); }
  void Line(float x1, float y1, float x2, float y2, std::int32_t color) override {
    drawn.push_back({"line", color, x1, y1, {}, {{x1, y1}, {x2, y2}}});
  }
  void Circle(float x, float y, float radius, std::int32_t color) override {
    drawn.push_back({"circle", color, x, y, {}, {{radius, radius}}});
  }
  void PSet(float x, float y, std::int32_t color) override {
    drawn.push_back({"point", color, x, y, {}, {}});
  }
  void Lines(std::span<const SurfaceLine> lines, std::int32_t color) override {
    for (const SurfaceLine& line : lines)
      Line(line.from.x, line.from.y, line.to.x, line.to.y, color);
  }
  void Circles(std::span<const SurfacePoint> centres, float radius, std::int32_t color) override {
    for (const SurfacePoint centre : centres)
      Circle(centre.x, centre.y, radius, color);
  }
  void Points(std::span<const SurfacePoint> points, std::int32_t color) override {
    for (const SurfacePoint point : points)
      PSet(point.x, point.y, color);
  }
  void Polyline(std::span<const SurfacePoint> points, std::int32_t color) override {
    Keep("polyline", points, color);
  }
  void Polygon(std::span<const SurfacePoint> points, std::int32_t color) override {
    Keep("polygon", points, color);
  }
  void Print(std::string_view text) override {
    drawn.push_back({"print", ForeColor, CurrentX, CurrentY, std::string(text), {}});
  }
  float TextWidth(std::string_view text) override { return static_cast<float>(text.size()) * 60; }
  float TextHeight(std::string_view) override { return 100; }

  int Count(std::string_view what, std::int32_t color = -1) const {
    int count = 0;
    for (const Drawn& one : drawn)
      count += one.what == what && (color < 0 || one.color == color) ? 1 : 0;
    return count;
  }
  std::vector<std::string> Texts() const {
    std::vector<std::string> texts;
    for (const Drawn& one : drawn)
      if (one.what == "print") texts.push_back(one.text);
    return texts;
  }

 private:
  void Keep(const char* what, std::span<const SurfacePoint> points, std::int32_t color) {
    const SurfacePoint first = points.empty() ? SurfacePoint{} : points.front();
    drawn.push_back({what, color, first.x, first.y, {}, {points.begin(), points.end()}});
  }
};
