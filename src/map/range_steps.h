// Values that change with the map's range in steps, such as how far a dense
// layer steps back behind the map.
#pragma once

#include <algorithm>
#include <array>
#include <cstddef>
#include <cstdint>

struct RangeStep {
  std::int16_t range;  // NM, up to and with
  float value;
};

// The value of the first step that holds range; beyond the last step its value.
template <std::size_t N>
constexpr float ValueAt(const std::array<RangeStep, N>& steps, std::int16_t range) {
  for (const RangeStep& step : steps)
    if (range <= step.range) return step.value;
  return steps.back().value;
}

// Nothing has to step back in an empty view: an opacity rises towards almost
// full as the number of things in view falls below a crowd.
constexpr float WithRoom(float opacity, std::size_t shown, std::size_t crowd) {
  constexpr float alone = 0.9F;
  const float room = 1 - std::min(1.0F, static_cast<float>(shown) / static_cast<float>(crowd));
  return opacity + std::max(0.0F, alone - opacity) * room;
}
