#include "windows/surface_cache.h"

#include <QPainter>
#include <algorithm>
#include <cmath>

#include "windows/style.h"

namespace {

constexpr double haloWeight = 0.5;      // of each of the rim's four shifted copies
constexpr std::size_t mostDiscs = 200;  // far more than one map uses; then begins anew

// The part of a picture that is not empty, its origin at originX, 0.
CoverageMask Trimmed(const QImage& picture, int originX) {
  int left = picture.width(), right = -1, top = picture.height(), bottom = -1;
  for (int y = 0; y < picture.height(); ++y) {
    const uchar* const row = picture.constScanLine(y);
    for (int x = 0; x < picture.width(); ++x) {
      if (row[x] == 0) continue;
      left = std::min(left, x), right = std::max(right, x);
      top = std::min(top, y), bottom = std::max(bottom, y);
    }
  }
  CoverageMask mask;
  if (right < left) return mask;
  mask.left = left - originX;
  mask.top = top;
  mask.width = right - left + 1;
  mask.height = bottom - top + 1;
  for (int y = top; y <= bottom; ++y) {
    const uchar* const row = picture.constScanLine(y);
    mask.coverage.insert(mask.coverage.end(), row + left, row + right + 1);
  }
  return mask;
}

// Four copies of the letter, shifted diagonally, each half as strong.
CoverageMask HaloOf(const CoverageMask& ink, int step) {
  CoverageMask halo;
  if (ink.coverage.empty()) return halo;
  halo.left = ink.left - step;
  halo.top = ink.top - step;
  halo.width = ink.width + 2 * step;
  halo.height = ink.height + 2 * step;
  const auto inkAt = [&](int x, int y) {
    if (x < 0 || y < 0 || x >= ink.width || y >= ink.height) return 0.0;
    return ink.coverage[static_cast<std::size_t>(y) * static_cast<std::size_t>(ink.width) +
                        static_cast<std::size_t>(x)] /
           255.0;
  };
  for (int y = 0; y < halo.height; ++y) {
    for (int x = 0; x < halo.width; ++x) {
      double clear = 1;
      for (const int dx : {0, 2 * step})
        for (const int dy : {0, 2 * step})
          clear *= 1 - haloWeight * inkAt(x - dx, y - dy);
      halo.coverage.push_back(static_cast<std::uint8_t>(std::lround(255 * (1 - clear))));
    }
  }
  return halo;
}

}  // namespace

GlyphSet::GlyphSet(const QFont& font, double haloStep)
    : font(font),
      metrics(font),
      haloStep(haloStep),
      advances(endOfLetters, -1),
      glyphs(static_cast<std::size_t>(endOfLetters) * subpixels) {}

double GlyphSet::Advance(char32_t character) {
  double& advance = advances[character];
  if (advance < 0) advance = metrics.horizontalAdvance(QString::fromUcs4(&character, 1));
  return advance;
}

const Glyph& GlyphSet::At(char32_t character, int subpixel) {
  auto& glyph = glyphs[static_cast<std::size_t>(character) * subpixels + static_cast<std::size_t>(subpixel)];
  if (!glyph) glyph = std::make_unique<Glyph>(Draw(character, subpixel));
  return *glyph;
}

Glyph GlyphSet::Draw(char32_t character, int subpixel) const {
  const QString text = QString::fromUcs4(&character, 1);
  // Room for what leans over its advance.
  const int margin = static_cast<int>(std::ceil(metrics.height() / 2)) + 2;
  const int width = static_cast<int>(std::ceil(metrics.horizontalAdvance(text))) + 2 * margin;
  const int height = static_cast<int>(std::ceil(metrics.height())) + margin;
  QImage picture(width, height, QImage::Format_Alpha8);
  picture.fill(0);
  QPainter painter(&picture);
  painter.setRenderHint(QPainter::TextAntialiasing);
  painter.setFont(font);
  painter.setPen(Qt::white);
  painter.drawText(QPointF(margin + static_cast<double>(subpixel) / subpixels, std::round(metrics.ascent())),
                   text);
  painter.end();
  Glyph glyph;
  glyph.ink = Trimmed(picture, margin);
  glyph.halo = HaloOf(glyph.ink, std::max(1, static_cast<int>(std::lround(haloStep))));
  return glyph;
}

GlyphSet& SurfaceCache::Letters(int pixelSize, bool bold, double density) {
  if (density != lettersDensity) letters.clear();
  lettersDensity = density;
  std::unique_ptr<GlyphSet>& set = letters[2 * pixelSize + (bold ? 1 : 0)];
  if (!set) {
    QFont font = MapFont();
    font.setPixelSize(pixelSize);
    font.setWeight(bold ? QFont::DemiBold : QFont::Normal);
    set = std::make_unique<GlyphSet>(font, density);
  }
  return *set;
}

const QImage& SurfaceCache::Disc(const DiscLook& look) {
  const auto known =
      std::find_if(discs.begin(), discs.end(), [&](const Known& one) { return one.look == look; });
  if (known != discs.end()) return known->picture;
  if (discs.size() >= mostDiscs) discs.clear();
  const int half = static_cast<int>(std::ceil(look.radius + look.ringWidth / 2)) + 1;
  QImage disc(2 * half + 1, 2 * half + 1, QImage::Format_ARGB32_Premultiplied);
  disc.fill(Qt::transparent);
  QPainter painter(&disc);
  painter.setRenderHint(QPainter::Antialiasing);
  painter.setPen(look.ring ? QPen(QColor::fromRgb(*look.ring), look.ringWidth) : QPen(Qt::NoPen));
  painter.setBrush(look.fill ? QBrush(QColor::fromRgb(*look.fill)) : QBrush(Qt::NoBrush));
  painter.drawEllipse(QPointF(half + 0.5, half + 0.5), look.radius, look.radius);
  painter.end();
  discs.push_back({look, disc});
  return discs.back().picture;
}
