// Keeps the map's labels from overprinting each other. A label claims the
// cells of a fine grid under its text; layers drawn earlier win their places.
#pragma once

#include <optional>
#include <string_view>
#include <vector>

#include "platform/draw_surface.h"

enum class LabelKind { airport = 0, ils = 1, vor = 2, ndb = 3, fix = 4, airway = 5 };

class LabelPlacer {
 public:
  // Measures texts with the surface's font of the moment.
  explicit LabelPlacer(DrawSurface& surface);

  // x, y: the wanted top left corner, in units. Where to print the label: there,
  // or (all kinds but airway labels) a little above, right or left of it.
  // Nothing if no such place is free or the label would leave the page.
  std::optional<SurfacePoint> PlaceLabel(float x, float y, std::string_view text, LabelKind kind);

  // Takes exactly this place, if it is free.
  bool ClaimPlace(float x, float y, std::string_view text);

 private:
  struct Cells {
    int left, top, right, bottom;
  };
  bool Claim(float x, float y, float width, float height);
  bool Free(const Cells& cells) const;
  std::size_t CellNumber(int row, int column) const {
    return static_cast<std::size_t>(row) * static_cast<std::size_t>(columns) +
           static_cast<std::size_t>(column);
  }

  DrawSurface& surface;
  int columns;
  int rows;
  std::vector<bool> taken;  // by row
};
