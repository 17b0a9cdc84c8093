#include <bit>

#include "navdata/tables.h"

namespace {

float FloatAt(const MsaRec& sector, std::size_t field) {
  std::uint32_t bits = 0;
  for (std::size_t i = 4; i-- > 0;)
    bits = bits << 8 | sector.numbers[4 * field + i];
  return std::bit_cast<float>(bits);
}

void PutFloat(MsaRec& sector, std::size_t field, float value) {
  auto bits = std::bit_cast<std::uint32_t>(value);
  for (std::size_t i = 0; i < 4; ++i, bits >>= 8)
    sector.numbers[4 * field + i] = static_cast<std::uint8_t>(bits & 0xFF);
}

}  // namespace

MsaArea AreaOf(const MsaRec& sector) {
  return {FloatAt(sector, 0), FloatAt(sector, 1), FloatAt(sector, 2), FloatAt(sector, 3), FloatAt(sector, 4)};
}

void SetArea(MsaRec& sector, const MsaArea& area) {
  sector.numbers.fill(0);
  PutFloat(sector, 0, area.west);
  PutFloat(sector, 1, area.south);
  PutFloat(sector, 2, area.east);
  PutFloat(sector, 3, area.north);
  PutFloat(sector, 4, area.altitudeFeet);
}
