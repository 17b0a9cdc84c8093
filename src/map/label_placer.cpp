#include "map/label_placer.h"

#include <cmath>

namespace {

constexpr float cellSize = 50;      // units
constexpr float symbolHeight = 95;  // from the top of a label below a symbol to the symbol's top

}  // namespace

LabelPlacer::LabelPlacer(DrawSurface& surface)
    : surface(surface),
      columns(static_cast<int>(std::ceil(surface.ScaleWidth() / cellSize))),
      rows(static_cast<int>(std::ceil(surface.ScaleHeight() / cellSize))),
      taken(static_cast<std::size_t>(columns) * static_cast<std::size_t>(rows)) {}

std::optional<SurfacePoint> LabelPlacer::PlaceLabel(float x, float y, std::string_view text, LabelKind kind) {
  const float width = surface.TextWidth(text);
  const float height = surface.TextHeight(text);
  if (Claim(x, y, width, height)) return SurfacePoint{x, y};
  if (kind == LabelKind::airway) return std::nullopt;
  const float beside = y - (symbolHeight + height) / 2;
  const SurfacePoint others[] = {{x, y - symbolHeight - height},
                                 {x + width / 2 + symbolHeight / 2, beside},
                                 {x - width / 2 - symbolHeight / 2, beside}};
  for (const SurfacePoint place : others) {
    if (Claim(place.x, place.y, width, height)) return place;
  }
  return std::nullopt;
}

bool LabelPlacer::ClaimPlace(float x, float y, std::string_view text) {
  return Claim(x, y, surface.TextWidth(text), surface.TextHeight(text));
}

bool LabelPlacer::Claim(float x, float y, float width, float height) {
  const bool onPage =
      x >= 0 && y >= 0 && x + width < surface.ScaleWidth() && y + height < surface.ScaleHeight();
  if (!onPage) return false;
  const auto cell = [](float value) { return static_cast<int>(value / cellSize); };
  const Cells cells{cell(x), cell(y), cell(x + width), cell(y + height)};
  if (!Free(cells)) return false;
  for (int row = cells.top; row <= cells.bottom; ++row) {
    for (int column = cells.left; column <= cells.right; ++column)
      taken[CellNumber(row, column)] = true;
  }
  return true;
}

bool LabelPlacer::Free(const Cells& cells) const {
  for (int row = cells.top; row <= cells.bottom; ++row) {
    for (int column = cells.left; column <= cells.right; ++column)
      if (taken[CellNumber(row, column)]) return false;
  }
  return true;
}
