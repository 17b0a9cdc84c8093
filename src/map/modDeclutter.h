// Keeps the map's labels from overprinting each other. The page is covered by
// a coarse grid of cells of 170 units; a label claims the cells under its text,
// and one that finds them taken is pushed, cell by cell, along a search order
// of its kind. Layers drawn earlier win their places; a label that finds no
// place at all is still printed, over what is there.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

#include "platform/draw_surface.h"

enum class LabelKind : std::int16_t { airport = 0, ils = 1, vor = 2, ndb = 3, fix = 4, airway = 5 };

class modDeclutter {
 public:
  // Begins a repaint of surface, whose font of the moment measures the labels
  // from now on: sizes the grid by its page and drops all claims. LastDirection
  // stays from the repaint before. surface must stay until the repaint ends.
  void InitDeclutterGrid(DrawSurface& surface);

  // x, y: the wanted top left corner of text, in units. Where to print it. An
  // anchor off the page comes back as it is and claims nothing.
  SurfacePoint PlaceLabel(float x, float y, std::string_view text, LabelKind kind);

  // The cell of a place: GridRows x column + row. A place on the page's bottom
  // edge lies in the last row.
  std::int32_t CellIndexOf(float x, float y) const;
  // Where a label that wanted x, y is printed when it comes to lie in cell,
  // pushed there in direction (0 to 13; others: the cell's middle).
  SurfacePoint CellToPoint(std::int32_t cell, float x, float y, std::int32_t direction) const;
  // The first free cell of the kind's search order, claimed; cell itself,
  // unclaimed and with LastDirection as it was, if there is none.
  std::int32_t FindFreeCell(std::int32_t cell, std::string_view text, LabelKind kind);
  // Claims the cells under text from cell to the right and answers cell, or
  // occupied if one of them is taken.
  std::int32_t TryCellRun(std::int32_t cell, std::int32_t direction, std::string_view text);
  static constexpr std::int32_t occupied = -555;

  std::int32_t CellWidth = 0;
  std::int32_t CellHeight = 0;
  std::int32_t GridColumns = 0;
  std::int32_t GridRows = 0;
  std::int32_t CellCount = 0;
  std::int32_t LastDirection = 0;
  bool LabelMoved = false;

  bool Taken(std::int32_t cell) const { return CellTaken[static_cast<std::size_t>(cell)] != 0; }

 private:
  std::int32_t LabelSpan(std::string_view text) const;
  std::int32_t TryCells(std::int32_t cell, std::int32_t direction, std::int32_t span);
  bool RunIsFree(std::int32_t cell, std::int32_t span) const;
  void ClaimRun(std::int32_t cell, std::int32_t span);

  DrawSurface* surface = nullptr;
  std::vector<std::uint8_t> CellTaken;  // column by column
};

// The ident of a runway's other end: "09L" gives "27R", "36" gives "18", the
// compass words "N", "NE" and so on their opposites. The number is written
// without a leading zero; anything else comes back empty.
std::string ReciprocalDesignator(std::string_view designator);
