// What one repaint of the map leaves for the next: letters and discs drawn
// once, to be copied into the picture thereafter. Sizes are device pixels.
#pragma once

#include <QFont>
#include <QFontMetricsF>
#include <QHash>
#include <QImage>
#include <cstdint>
#include <memory>
#include <optional>
#include <unordered_map>
#include <vector>

// How much of each pixel is covered, row by row, 0 to 255.
struct CoverageMask {
  int left = 0;  // of the mask's first pixel, from the place that it is drawn at
  int top = 0;
  int width = 0;
  int height = 0;
  std::vector<std::uint8_t> coverage;
};

struct Glyph {
  CoverageMask ink;
  CoverageMask halo;  // a thin rim, for texts above lines
};

// The letters of one font size and weight, at quarters of a pixel from left to
// right.
class GlyphSet {
 public:
  static constexpr int subpixels = 4;
  static constexpr char32_t endOfLetters = 0x2100;  // Latin, Greek, Cyrillic, punctuation

  GlyphSet(const QFont& font, double haloStep);

  // Texts of these characters alone are drawn letter by letter; others (scripts
  // whose letters join) are left to the general painter.
  static bool Knows(char32_t character) { return character >= 0x20 && character < endOfLetters; }

  double Advance(char32_t character);
  double Height() const { return metrics.height(); }
  // The letter on its line, drawn from the top left corner of the line.
  const Glyph& At(char32_t character, int subpixel);

 private:
  Glyph Draw(char32_t character, int subpixel) const;

  QFont font;
  QFontMetricsF metrics;
  double haloStep;
  std::vector<double> advances;                // by character; below zero: not measured yet
  std::vector<std::unique_ptr<Glyph>> glyphs;  // by character and subpixel, as they are needed
};

// A disc with its colours mixed in, premultiplied.
struct DiscLook {
  double radius = 0;
  std::optional<QRgb> fill;
  std::optional<QRgb> ring;
  double ringWidth = 0;

  friend bool operator==(const DiscLook&, const DiscLook&) = default;
};

class SurfaceCache {
 public:
  GlyphSet& Letters(int pixelSize, bool bold, double density);
  const QImage& Disc(const DiscLook& look);

 private:
  struct Known {
    DiscLook look;
    QImage picture;
  };
  std::unordered_map<int, std::unique_ptr<GlyphSet>> letters;
  double lettersDensity = 0;
  std::vector<Known> discs;  // few looks are in use at a time
};
