// Colours between two colours of the settings.
#pragma once

#include <cstdint>

// Channel by channel, part (0 to 1) of top and the rest of base.
constexpr std::int32_t Mixed(std::int32_t base, std::int32_t top, double part) {
  std::int32_t mixed = 0;
  for (const int shift : {0, 8, 16}) {
    const int a = base >> shift & 0xFF;
    const int b = top >> shift & 0xFF;
    mixed |= static_cast<int>(a + part * (b - a) + 0.5) << shift;
  }
  return mixed;
}
