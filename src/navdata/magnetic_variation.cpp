#include "navdata/magnetic_variation.h"

#include <cmath>
#include <cstring>

MagneticVariationGrid MagneticVariationGrid::FromBytes(std::span<const std::byte> bytes) {
  MagneticVariationGrid grid;
  grid.cells.assign(static_cast<std::size_t>(magneticGridColumns) * magneticGridRows, 0);
  const std::size_t whole = std::min(bytes.size() / sizeof(std::int16_t), grid.cells.size());
  if (whole > 0) std::memcpy(grid.cells.data(), bytes.data(), whole * sizeof(std::int16_t));
  return grid;
}

float MagneticVariationGrid::AtWholeDegrees(int lat, int lon) const {
  if (lon < 0) lon += 360;
  if (lat < -90 || lat > 90 || lon < 0 || lon >= magneticGridColumns) return 0;
  const auto cell = static_cast<std::size_t>(lon) * magneticGridRows + static_cast<std::size_t>(lat + 90);
  if (cell >= cells.size()) return 0;
  return static_cast<float>(cells[cell] / magneticUnitsPerDegree);
}

float MagneticVariationGrid::MagVarLookup(float lat, float lon) const {
  if (!(std::fabs(lat) <= 90.0F) || !(std::fabs(lon) <= 360.0F)) return 0;
  return AtWholeDegrees(static_cast<int>(std::floor(lat)), static_cast<int>(std::floor(lon)));
}
