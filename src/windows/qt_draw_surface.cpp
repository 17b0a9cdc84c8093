#include "windows/qt_draw_surface.h"

#include <algorithm>
#include <cmath>
#include <optional>

namespace {

constexpr double widestStroke = 6;  // pixels; wider lines are the painter's
constexpr double hugeRadius = 64;   // pixels; larger circles are not kept as pictures

QRgb ToQRgb(std::int32_t color) {
  return qRgb(color & 0xFF, (color >> 8) & 0xFF, (color >> 16) & 0xFF);
}

// The next character of a UTF-8 text, taken off it; nothing if the bytes are no
// character that can be drawn letter by letter.
std::optional<char32_t> NextCharacter(std::string_view& text) {
  const auto byte = [&](std::size_t i) { return static_cast<unsigned char>(text[i]); };
  const unsigned char first = byte(0);
  std::size_t length = 1;
  char32_t character = first;
  if (first >= 0xC2 && first < 0xE0) {
    length = 2;
    character = first & 0x1FU;
  } else if (first >= 0xE0 && first < 0xF0) {
    length = 3;
    character = first & 0x0FU;
  } else if (first >= 0x80) {
    return std::nullopt;
  }
  if (text.size() < length) return std::nullopt;
  for (std::size_t i = 1; i < length; ++i) {
    if ((byte(i) & 0xC0) != 0x80) return std::nullopt;
    character = character << 6 | (byte(i) & 0x3FU);
  }
  text.remove_prefix(length);
  if (!GlyphSet::Knows(character)) return std::nullopt;
  return character;
}

bool AllKnown(std::string_view text) {
  while (!text.empty())
    if (!NextCharacter(text)) return false;
  return true;
}

}  // namespace

QtDrawSurface::QtDrawSurface(QImage& image, double density, SurfaceCache* cache)
    : ImagePainter(image),
      QtPainterSurface(imagePainter, PagePlacement(image.width(), image.height()), density),
      image(image),
      grid(image),
      cache(cache != nullptr ? *cache : ownCache) {}

bool QtDrawSurface::SetsStrokes() const {
  return DrawStyle == DrawStyleKind::solid && PenWidth() <= widestStroke;
}

void QtDrawSurface::Clear(std::int32_t color) {
  SetPageColor(color);
  image.fill(ToQColor(color));
}

void QtDrawSurface::Lines(std::span<const SurfaceLine> lines, std::int32_t color) {
  if (!SetsStrokes()) return QtPainterSurface::Lines(lines, color);
  const QRgb pixel = ToQRgb(color);
  for (const SurfaceLine& line : lines)
    BlendLine(grid, Pixel(line.from), Pixel(line.to), pixel, Opacity, PenWidth());
}

void QtDrawSurface::Polyline(std::span<const SurfacePoint> points, std::int32_t color) {
  if (!SetsStrokes()) return QtPainterSurface::Polyline(points, color);
  const QRgb pixel = ToQRgb(color);
  for (std::size_t i = 1; i < points.size(); ++i)
    BlendLine(grid, Pixel(points[i - 1]), Pixel(points[i]), pixel, Opacity, PenWidth());
}

void QtDrawSurface::Polygon(std::span<const SurfacePoint> points, std::int32_t color) {
  pixels.clear();
  for (const SurfacePoint point : points)
    pixels.push_back(Pixel(point));
  fill.Fill(grid, pixels, ToQRgb(color), Opacity);
}

void QtDrawSurface::Circles(std::span<const SurfacePoint> centres, float radius, std::int32_t color) {
  const double pixels = std::max(0.5, radius * placement.PixelsPerUnit());
  if (centres.empty()) return;
  if (pixels > hugeRadius || DrawStyle != DrawStyleKind::solid)
    return QtPainterSurface::Circles(centres, radius, color);
  DiscLook look{pixels, std::nullopt, std::nullopt, PenWidth()};
  if (FillStyle == FillStyleKind::solid) look.fill = ToQRgb(FillColor);
  if (!look.fill || FillColor != color) look.ring = ToQRgb(color);
  const QImage& disc = cache.Disc(look);
  for (const SurfacePoint centre : centres)
    BlendSprite(grid, disc, Pixel(centre), Opacity);
}

void QtDrawSurface::Points(std::span<const SurfacePoint> points, std::int32_t color) {
  const QRgb pixel = ToQRgb(color);
  const auto side = static_cast<float>(PenWidth());
  for (const SurfacePoint point : points)
    BlendSquare(grid, Pixel(point), side, pixel, Opacity);
}

GlyphSet& QtDrawSurface::Letters() {
  const int size = FontPixels();
  if (letters == nullptr || size != lettersPixels || FontBold != lettersBold) {
    letters = &cache.Letters(size, FontBold, density);
    lettersPixels = size;
    lettersBold = FontBold;
  }
  return *letters;
}

void QtDrawSurface::Print(std::string_view text) {
  if (!AllKnown(text)) return QtPainterSurface::Print(text);
  const QPointF corner = placement.ToPixel(CurrentX, CurrentY);
  GlyphSet& set = Letters();
  const bool near = corner.x() < image.width() && corner.y() < image.height() && corner.x() > -1e5 &&
                    corner.y() + set.Height() > 0;
  if (!near) return;
  // Whole pixels from line to line keep small letters sharp.
  const int top = static_cast<int>(std::lround(corner.y()));
  const auto draw = [&](CoverageMask Glyph::*part, QRgb color) {
    double x = std::round(corner.x());
    for (std::string_view rest = text; !rest.empty();) {
      const char32_t character = *NextCharacter(rest);
      const double quarters = std::round(x * GlyphSet::subpixels);
      const double whole = std::floor(quarters / GlyphSet::subpixels);
      const int subpixel = static_cast<int>(quarters - whole * GlyphSet::subpixels);
      BlendMask(grid, set.At(character, subpixel).*part, static_cast<int>(whole), top, color, Opacity);
      x += set.Advance(character);
      if (x > image.width()) return;
    }
  };
  if (TextHalo) draw(&Glyph::halo, ToQRgb(HaloColor()));
  draw(&Glyph::ink, ToQRgb(ForeColor));
}

float QtDrawSurface::TextWidth(std::string_view text) {
  GlyphSet& set = Letters();
  double width = 0;
  for (std::string_view rest = text; !rest.empty();) {
    const std::optional<char32_t> character = NextCharacter(rest);
    if (!character) return QtPainterSurface::TextWidth(text);
    width += set.Advance(*character);
  }
  return static_cast<float>(width / placement.PixelsPerUnit());
}

float QtDrawSurface::TextHeight(std::string_view) {
  return static_cast<float>(Letters().Height() / placement.PixelsPerUnit());
}
