// Values that change with the map's range in steps, such as how far a dense
// layer steps back behind the map.
#pragma once

#include <array>
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
