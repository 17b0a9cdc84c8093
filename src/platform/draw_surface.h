// The surface that maps, charts and printed pages are drawn on: a page of
// logical units with the origin at the top left and y growing downward,
// whatever the device behind it. The moving map is 11325 x 7000 units. The
// style (pen, fill, font, opacity) is plain state that stays until it is set
// again; ResetStyle() brings the defaults back. Coordinates may lie far off
// the page. Colours are 24-bit values with red in the low byte; texts UTF-8.
#pragma once

#include <cstdint>
#include <span>
#include <string_view>

struct SurfacePoint {
  float x = 0;
  float y = 0;
};

struct SurfaceLine {
  SurfacePoint from;
  SurfacePoint to;
};

enum class DrawStyleKind { solid, dash, dot };
enum class FillStyleKind { solid, transparent };

struct SurfaceStyle {
  float CurrentX = 0;  // where Print() begins
  float CurrentY = 0;
  float DrawWidth = 1;  // of lines and points, in pixels at normal density
  DrawStyleKind DrawStyle = DrawStyleKind::solid;
  FillStyleKind FillStyle = FillStyleKind::transparent;
  std::int32_t FillColor = 0;
  std::int32_t ForeColor = 0;  // of Print()
  float FontSize = 9;          // points
  bool FontBold = false;
  bool TextHalo = false;  // a thin dark rim, for texts above lines
  float Opacity = 1;      // 0 to 1, of everything that is drawn
};

class DrawSurface : public SurfaceStyle {
 public:
  virtual ~DrawSurface() = default;

  void ResetStyle() { static_cast<SurfaceStyle&>(*this) = SurfaceStyle(); }

  virtual float ScaleWidth() const = 0;
  virtual float ScaleHeight() const = 0;
  // Size of a device pixel; detail below it cannot be seen.
  virtual float UnitsPerPixel() const = 0;

  // Covers the page, whatever the opacity.
  virtual void Clear(std::int32_t color) = 0;

  virtual void Line(float x1, float y1, float x2, float y2, std::int32_t color) = 0;
  virtual void Circle(float x, float y, float radius, std::int32_t color) = 0;
  virtual void PSet(float x, float y, std::int32_t color) = 0;

  // Many at once, each as the single operation would draw it.
  virtual void Lines(std::span<const SurfaceLine> lines, std::int32_t color) = 0;
  virtual void Circles(std::span<const SurfacePoint> centres, float radius, std::int32_t color) = 0;
  virtual void Points(std::span<const SurfacePoint> points, std::int32_t color) = 0;

  // An open line through all points; fewer than two draw nothing.
  virtual void Polyline(std::span<const SurfacePoint> points, std::int32_t color) = 0;
  // A closed shape filled with color (even-odd where it crosses itself), without an outline.
  virtual void Polygon(std::span<const SurfacePoint> points, std::int32_t color) = 0;

  // One line of text with its top left corner at CurrentX, CurrentY, in ForeColor.
  virtual void Print(std::string_view text) = 0;
  virtual float TextWidth(std::string_view text) = 0;
  virtual float TextHeight(std::string_view text) = 0;
};
