// The rows of a table that a layer has to look at.
#pragma once

#include <cstdint>
#include <vector>

#include "map/map_view.h"

// The rows whose places lie in the visibility box grown by margin degrees, in
// table order.
template <class Row>
std::vector<std::int32_t> RowsInView(const MapView& view, const PlaceIndex& index,
                                     const std::vector<Row>& table, float margin) {
  std::vector<std::int32_t> rows = index.Near(view.SearchBox(margin));
  std::erase_if(rows, [&](std::int32_t row) {
    const Row& one = table[static_cast<std::size_t>(row)];
    return !view.InView(one.sngLat, one.sngLon, margin);
  });
  return rows;
}
