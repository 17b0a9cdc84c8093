// The World Magnetic Model: the earth's main field as spherical harmonics of
// degree and order 12, with its change per year. Formulas and conventions as
// in the model's technical report (NOAA NCEI and BGS, 2025): positions are
// geodetic on WGS 84, the reference sphere has 6371.2 km.
#pragma once

#include <array>
#include <string_view>

#include "dbmanager/source_lines.h"

class MagneticModel {
 public:
  static constexpr int degrees = 12;

  // Lines of "n m g h dg dh" (nT and nT per year); "#" begins a comment, which
  // may name the epoch as "epoch 2025.0". Throws BuildError if a coefficient is
  // missing, twice there or no number.
  static MagneticModel Read(LineReader& lines);

  // Declination in degrees, east positive, at sea level (height 0 above the
  // ellipsoid). year is a decimal year. At the poles, where north has no
  // direction, the value for the given meridian in the limit toward the pole.
  double Declination(SourcePosition position, double year) const;

  double Epoch() const { return epoch; }

 private:
  struct Coefficients {
    double g = 0, h = 0, gChange = 0, hChange = 0;
    bool known = false;
  };
  static constexpr std::size_t Index(int n, int m) { return static_cast<std::size_t>(n * (n + 1) / 2 + m); }

  double epoch = 2025.0;
  std::array<Coefficients, (degrees + 1) * (degrees + 2) / 2> coefficients{};
};

// 2026-07-02 is about 2026.5. The day counts from 1.
double DecimalYear(int year, int month, int day);
