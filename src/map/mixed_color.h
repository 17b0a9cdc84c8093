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

// White for a dark colour, black for a light one.
constexpr std::int32_t ContrastTo(std::int32_t color) {
  const double brightness =
      0.299 * (color & 0xFF) + 0.587 * (color >> 8 & 0xFF) + 0.114 * (color >> 16 & 0xFF);
  return brightness < 128 ? 0xFFFFFF : 0;
}
