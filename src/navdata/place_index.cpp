#include "navdata/place_index.h"

#include <algorithm>
#include <cmath>
#include <numeric>

namespace {

constexpr int cellRows = 180;
constexpr int cellColumns = 360;
constexpr std::size_t cellCount = static_cast<std::size_t>(cellRows) * cellColumns;

int CellRow(double lat) {
  return std::clamp(static_cast<int>(std::floor(lat)) + 90, 0, cellRows - 1);
}
int CellColumn(double lon) {
  return std::clamp(static_cast<int>(std::floor(lon)) + 180, 0, cellColumns - 1);
}

std::size_t CellOf(Position place) {
  const auto lat = std::clamp(static_cast<double>(place.lat), -90.0, 90.0);
  const auto lon = std::clamp(static_cast<double>(place.lon), -180.0, 180.0);
  return static_cast<std::size_t>(CellRow(lat)) * cellColumns + static_cast<std::size_t>(CellColumn(lon));
}

}  // namespace

PlaceIndex PlaceIndex::Build(const std::vector<Position>& positions, const std::vector<bool>* skip) {
  constexpr std::uint32_t none = 0xFFFFFFFF;
  PlaceIndex index;
  index.cellStart.assign(cellCount + 1, 0);
  std::vector<std::uint32_t> cells(positions.size(), none);
  for (std::size_t row = 0; row < positions.size(); ++row) {
    const Position place = positions[row];
    if ((skip != nullptr && (*skip)[row]) || !std::isfinite(place.lat) || !std::isfinite(place.lon)) continue;
    cells[row] = static_cast<std::uint32_t>(CellOf(place));
    ++index.cellStart[cells[row] + 1];
  }
  for (std::size_t cell = 0; cell < cellCount; ++cell)
    index.cellStart[cell + 1] += index.cellStart[cell];
  index.rows.resize(index.cellStart.back());
  std::vector<std::uint32_t> at(index.cellStart.begin(), index.cellStart.end() - 1);
  for (std::size_t row = 0; row < cells.size(); ++row) {
    if (cells[row] != none) index.rows[at[cells[row]]++] = static_cast<std::int32_t>(row);
  }
  return index;
}

PlaceIndex PlaceIndex::BuildForEnds(const std::vector<Position>& places) {
  PlaceIndex index = Build(places);
  index.placesPerRow = 2;
  return index;
}

PlaceIndex PlaceIndex::WholeTable(std::size_t rowCount) {
  PlaceIndex index;
  index.rows.resize(rowCount);
  std::iota(index.rows.begin(), index.rows.end(), 0);
  return index;
}

std::vector<std::int32_t> PlaceIndex::Near(const GeoBox& box) const {
  if (cellStart.empty()) return rows;
  std::vector<std::int32_t> found;
  if (rows.empty() || !(box.north >= box.south)) return found;
  const auto addColumns = [&](int cellRow, int first, int last) {
    const std::size_t line = static_cast<std::size_t>(cellRow) * cellColumns;
    const auto from = rows.begin() + cellStart[line + static_cast<std::size_t>(first)];
    const auto to = rows.begin() + cellStart[line + static_cast<std::size_t>(last) + 1];
    found.insert(found.end(), from, to);
  };
  const int firstRow = CellRow(std::clamp(static_cast<double>(box.south), -90.0, 90.0));
  const int lastRow = CellRow(std::clamp(static_cast<double>(box.north), -90.0, 90.0));
  const int west = CellColumn(std::clamp(static_cast<double>(box.west), -180.0, 180.0));
  const int east = CellColumn(std::clamp(static_cast<double>(box.east), -180.0, 180.0));
  const bool crossesDateLine = box.west > box.east;
  for (int row = firstRow; row <= lastRow; ++row) {
    if (!crossesDateLine) {
      addColumns(row, west, east);
    } else if (west <= east) {
      addColumns(row, 0, cellColumns - 1);
    } else {
      addColumns(row, 0, east);
      addColumns(row, west, cellColumns - 1);
    }
  }
  if (placesPerRow > 1) {
    for (std::int32_t& place : found)
      place /= placesPerRow;
  }
  std::sort(found.begin(), found.end());
  if (placesPerRow > 1) found.erase(std::unique(found.begin(), found.end()), found.end());
  return found;
}

std::vector<std::int32_t> PlaceIndex::Near(Position centre, double radiusNM) const {
  if (!std::isfinite(centre.lat) || !std::isfinite(centre.lon) || !(radiusNM >= 0)) return {};
  // A little more than the radius, for the roundings of the distance itself.
  const double reach = radiusNM / 60.0 + 0.01;
  GeoBox box;
  box.south = static_cast<float>(std::max(-90.0, centre.lat - reach));
  box.north = static_cast<float>(std::min(90.0, centre.lat + reach));
  const double widest = std::max(std::fabs(centre.lat - reach), std::fabs(centre.lat + reach));
  if (widest >= 90.0) return Near(box);  // holds a pole: every longitude
  // Half width of a circle on the sphere: sin(dlon) = sin(reach) / cos(lat).
  const double ratio = std::sin(DegToRad(reach)) / std::cos(DegToRad(centre.lat));
  if (ratio >= 1.0) return Near(box);
  const double halfWidth = RadToDeg(std::asin(ratio)) + 0.01;
  if (halfWidth >= 179.0) return Near(box);
  double west = centre.lon - halfWidth;
  double east = centre.lon + halfWidth;
  if (west < -180.0) west += 360.0;
  if (east > 180.0) east -= 360.0;
  box.west = static_cast<float>(west);
  box.east = static_cast<float>(east);
  return Near(box);
}
