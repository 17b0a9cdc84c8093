// Magnetic variation by whole degrees, from a grid file of 360 x 181 16-bit
// values (magvar09.qtr, magvar10.qtr): column by column of longitude 0 to 359,
// each from latitude -90 to 90, unit 1/182.04 degree, east positive.
#pragma once

#include <cstdint>
#include <span>
#include <vector>

constexpr int magneticGridColumns = 360;
constexpr int magneticGridRows = 181;
constexpr double magneticUnitsPerDegree = 182.04;

class MagneticVariationGrid {
 public:
  MagneticVariationGrid() = default;

  // Takes a grid file's bytes. Cells that a cut-off file lacks read 0.
  static MagneticVariationGrid FromBytes(std::span<const std::byte> bytes);

  // The value of a cell in degrees; 0 for a cell outside the grid. Longitudes
  // below 0 have 360 added.
  float AtWholeDegrees(int lat, int lon) const;

  // The cell south-west of a position (whole degrees toward minus infinity).
  // Not interpolated.
  float MagVarLookup(float lat, float lon) const;

 private:
  std::vector<std::int16_t> cells;
};
