// Any bytes as a variation grid, any floats as a position.

#include <cmath>
#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <cstring>

#include "navdata/magnetic_variation.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  float position[2] = {0, 0};
  if (size < sizeof(position)) return 0;
  std::memcpy(position, data, sizeof(position));
  const auto grid =
      MagneticVariationGrid::FromBytes(std::as_bytes(std::span(data, size)).subspan(sizeof(position)));
  if (!(std::fabs(grid.MagVarLookup(position[0], position[1])) <= 181)) std::abort();
  return 0;
}
