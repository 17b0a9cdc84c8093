#include "map/modDeclutter.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <utility>

#include "base/fixed_text.h"
#include "base/numbers.h"

namespace {

constexpr double cellUnits = 170;

std::int32_t SpanOfCell(float scale) {
  return RoundToEven(scale / (scale / cellUnits));
}

// One step of the search: how far the candidate lies, the direction that it
// records, and the kinds of label that may take it.
struct Step {
  std::int32_t down;     // cells below
  std::int32_t columns;  // columns to the right
  std::int32_t direction;
  std::uint8_t kinds;  // bit i: kind i
};

constexpr std::uint8_t all = 0b111111;
constexpr std::uint8_t allButNdb = 0b110111;
constexpr std::uint8_t upward = 0b100011;     // airport, ILS, airway
constexpr std::uint8_t twoUp = 0b000011;      // airport, ILS
constexpr std::uint8_t fourBelow = 0b000111;  // airport, ILS, VOR
constexpr std::array<Step, 14> searchOrder = {{{1, 0, 0, allButNdb},
                                               {-1, 0, 4, upward},
                                               {0, -1, 8, all},
                                               {0, 1, 11, all},
                                               {2, 0, 1, allButNdb},
                                               {-2, 0, 5, twoUp},
                                               {0, -2, 9, all},
                                               {0, 2, 12, all},
                                               {3, 0, 2, allButNdb},
                                               {4, 0, 3, fourBelow},
                                               {-3, 0, 6, upward},
                                               {-4, 0, 7, upward},
                                               {0, -3, 10, all},
                                               {0, 3, 13, all}}};

}  // namespace

void modDeclutter::InitDeclutterGrid(DrawSurface& target) {
  surface = &target;
  CellWidth = SpanOfCell(target.ScaleWidth());
  CellHeight = SpanOfCell(target.ScaleHeight());
  GridColumns = RoundToEven(static_cast<double>(target.ScaleWidth()) / CellWidth);
  GridRows = RoundToEven(static_cast<double>(target.ScaleHeight()) / CellHeight);
  CellCount = GridRows * GridColumns;
  CellTaken.assign(static_cast<std::size_t>(CellCount), 0);
}

std::int32_t modDeclutter::CellIndexOf(float x, float y) const {
  const std::int32_t column = FloorToInt(static_cast<double>(x) / CellWidth);
  std::int32_t row = FloorToInt(static_cast<double>(y) / CellHeight);
  if (row == GridRows) row = GridRows - 1;
  return GridRows * column + row;
}

std::int32_t modDeclutter::LabelSpan(std::string_view text) const {
  return RoundToEven(surface->TextWidth(Trimmed(text)) / cellUnits);
}

bool modDeclutter::RunIsFree(std::int32_t cell, std::int32_t span) const {
  for (std::int32_t k = 0; k <= span; ++k) {
    const std::int32_t one = cell + GridRows * k;
    if (one >= 0 && one < CellCount && Taken(one)) return false;
  }
  return true;
}

void modDeclutter::ClaimRun(std::int32_t cell, std::int32_t span) {
  for (std::int32_t k = 0; k <= span; ++k) {
    const std::int32_t one = cell + GridRows * k;
    if (one >= 0 && one < CellCount) CellTaken[static_cast<std::size_t>(one)] = 1;
  }
}

SurfacePoint modDeclutter::PlaceLabel(float x, float y, std::string_view text, LabelKind kind) {
  LabelMoved = false;
  const SurfacePoint wanted{x, y};
  const bool onPage = x >= 0 && x < surface->ScaleWidth() && y >= 0 && y < surface->ScaleHeight();
  if (!onPage) return wanted;
  const float height = surface->TextHeight(text);
  const std::int32_t first = CellIndexOf(x, y);
  const std::int32_t second = y + height <= surface->ScaleHeight() ? CellIndexOf(x, y + height) : first;
  if (first > CellCount - 1) return wanted;
  const std::int32_t span = LabelSpan(text);
  if (RunIsFree(first, span) && RunIsFree(second, span)) {
    ClaimRun(first, span);
    ClaimRun(second, span);
    return wanted;
  }
  const std::int32_t cell = FindFreeCell(first, text, kind);
  const SurfacePoint pushed = CellToPoint(cell, x, y, LastDirection);
  LabelMoved = true;
  if (pushed.y + height <= surface->ScaleHeight()) ClaimRun(CellIndexOf(pushed.x, pushed.y + height), span);
  return pushed;
}

std::int32_t modDeclutter::FindFreeCell(std::int32_t cell, std::string_view text, LabelKind kind) {
  const std::int32_t column = cell / GridRows;
  const std::int32_t row = cell % GridRows;
  const std::int32_t span = LabelSpan(text);
  for (const Step& step : searchOrder) {
    if ((step.kinds >> static_cast<int>(kind) & 1) == 0) continue;
    const bool inColumn = row + step.down >= 0 && row + step.down < GridRows;
    const std::int32_t candidate = cell + step.down + step.columns * GridRows;
    if (!inColumn || column + step.columns < 0 || candidate >= CellCount) continue;
    if (TryCells(candidate, step.direction, span) != occupied) return candidate;
  }
  return cell;
}

std::int32_t modDeclutter::TryCellRun(std::int32_t cell, std::int32_t direction, std::string_view text) {
  return TryCells(cell, direction, LabelSpan(text));
}

std::int32_t modDeclutter::TryCells(std::int32_t cell, std::int32_t direction, std::int32_t span) {
  if (!RunIsFree(cell, span)) return occupied;
  LastDirection = direction;
  ClaimRun(cell, span);
  return cell;
}

SurfacePoint modDeclutter::CellToPoint(std::int32_t cell, float x, float y, std::int32_t direction) const {
  const std::int32_t column = cell / GridRows;
  const std::int32_t row = cell - GridRows * column;
  const auto left = static_cast<float>(CellWidth * column);
  const auto top = static_cast<float>(CellHeight * row);
  const auto halfWidth = static_cast<float>(CellWidth) / 2;
  const auto halfHeight = static_cast<float>(CellHeight) / 2;
  switch (direction) {
    case 0:
      return {x, top + halfHeight};
    case 4:
      return {x, top - halfHeight};
    case 1:
    case 2:
    case 3:
    case 5:
    case 6:
    case 7:
      return {x, top};
    case 8:
    case 9:
    case 10:
      return {left + halfWidth, y};
    case 11:
    case 12:
    case 13:
      return {left, y};
    default:
      return {left + halfWidth, top + halfHeight};
  }
}

std::string ReciprocalDesignator(std::string_view designator) {
  designator = Trimmed(designator);
  const int number = CutToInt(Val(designator.substr(0, 2)));
  if (number > 0) {
    std::string reciprocal = std::to_string(number + 18 > 36 ? number - 18 : number + 18);
    const char letter = designator.back();
    if (letter == 'L') reciprocal += 'R';
    if (letter == 'R') reciprocal += 'L';
    if (letter == 'C') reciprocal += 'C';
    return reciprocal;
  }
  constexpr std::pair<std::string_view, std::string_view> opposites[] = {
      {"N", "S"}, {"S", "N"}, {"E", "W"}, {"W", "E"}, {"NE", "SW"}, {"SW", "NE"}, {"SE", "NW"}, {"NW", "SE"}};
  for (const auto& [word, opposite] : opposites)
    if (designator.substr(0, 2) == word) return std::string(opposite);
  return {};
}
