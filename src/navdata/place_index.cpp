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

std::size_t CellAt(int row, int column) {
  return static_cast<std::size_t>(row) * cellColumns + static_cast<std::size_t>(column);
}

std::size_t CellOf(Position place) {
  const auto lat = std::clamp(static_cast<double>(place.lat), -90.0, 90.0);
  const auto lon = std::clamp(static_cast<double>(place.lon), -180.0, 180.0);
  return CellAt(CellRow(lat), CellColumn(lon));
}

// A box over more cells than this is not worth its entries.
constexpr int mostCellsPerBox = 100;

struct CellRange {
  int firstRow, lastRow, west, east;
  bool crossesDateLine;

  int Columns() const { return crossesDateLine ? cellColumns - west + east + 1 : east - west + 1; }
  int Cells() const { return (lastRow - firstRow + 1) * Columns(); }
};

CellRange CellsOf(const GeoBox& box) {
  const auto row = [](float lat) { return CellRow(std::clamp(static_cast<double>(lat), -90.0, 90.0)); };
  const auto column = [](float lon) {
    return CellColumn(std::clamp(static_cast<double>(lon), -180.0, 180.0));
  };
  return {row(box.south), row(box.north), column(box.west), column(box.east), box.west > box.east};
}

}  // namespace

GeoBox BoxAround(std::span<const Position> points) {
  constexpr GeoBox nothing{90, 180, -90, -180};
  double south = 90;
  double north = -90;
  double west = 0;
  double east = 0;
  double turn = 0;
  double before = 0;
  bool first = true;
  for (const Position point : points) {
    if (!IsOnMap(point)) continue;
    const double step = point.lon - before;
    if (!first && std::abs(step) > 180) turn += step > 0 ? -360 : 360;
    before = point.lon;
    const double lon = point.lon + turn;
    west = first ? lon : std::min(west, lon);
    east = first ? lon : std::max(east, lon);
    south = std::min<double>(south, point.lat);
    north = std::max<double>(north, point.lat);
    first = false;
  }
  if (first) return nothing;
  const auto wrapped = [](double lon) { return static_cast<float>(std::remainder(lon, 360)); };
  GeoBox box{static_cast<float>(south), -180, static_cast<float>(north), 180};
  if (east - west >= 360) return box;
  const bool within = west >= -180 && east <= 180;
  box.west = within ? static_cast<float>(west) : wrapped(west);
  box.east = within ? static_cast<float>(east) : wrapped(east);
  return box;
}

PlaceIndex PlaceIndex::BuildForBoxes(const std::vector<GeoBox>& boxes) {
  PlaceIndex index;
  index.manyCellsPerRow = true;
  std::vector<std::vector<std::int32_t>> byCell(cellCount);
  for (std::size_t row = 0; row < boxes.size(); ++row) {
    const GeoBox& box = boxes[row];
    if (!(box.south <= box.north) || !std::isfinite(box.west) || !std::isfinite(box.east)) continue;
    const CellRange cells = CellsOf(box);
    if (cells.Cells() > mostCellsPerBox) {
      index.wideRows.push_back(static_cast<std::int32_t>(row));
      continue;
    }
    for (int line = cells.firstRow; line <= cells.lastRow; ++line)
      for (int i = 0; i < cells.Columns(); ++i)
        byCell[CellAt(line, (cells.west + i) % cellColumns)].push_back(static_cast<std::int32_t>(row));
  }
  index.cellStart.assign(cellCount + 1, 0);
  for (std::size_t cell = 0; cell < cellCount; ++cell) {
    index.rows.insert(index.rows.end(), byCell[cell].begin(), byCell[cell].end());
    index.cellStart[cell + 1] = static_cast<std::uint32_t>(index.rows.size());
  }
  return index;
}

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
  if (!(box.north >= box.south)) return found;
  found = wideRows;
  if (rows.empty()) return found;
  const auto addColumns = [&](int cellRow, int first, int last) {
    const std::size_t line = static_cast<std::size_t>(cellRow) * cellColumns;
    const auto from = rows.begin() + cellStart[line + static_cast<std::size_t>(first)];
    const auto to = rows.begin() + cellStart[line + static_cast<std::size_t>(last) + 1];
    found.insert(found.end(), from, to);
  };
  const CellRange cells = CellsOf(box);
  for (int row = cells.firstRow; row <= cells.lastRow; ++row) {
    if (!cells.crossesDateLine) {
      addColumns(row, cells.west, cells.east);
    } else if (cells.west <= cells.east) {
      addColumns(row, 0, cellColumns - 1);
    } else {
      addColumns(row, 0, cells.east);
      addColumns(row, cells.west, cellColumns - 1);
    }
  }
  if (placesPerRow > 1) {
    for (std::int32_t& place : found)
      place /= placesPerRow;
  }
  std::sort(found.begin(), found.end());
  if (placesPerRow > 1 || manyCellsPerRow) found.erase(std::unique(found.begin(), found.end()), found.end());
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
