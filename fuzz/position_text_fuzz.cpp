// Typed positions of any bytes: what is read lies on the earth, and reads the
// same when it is written as a plan file writes it.
#include <cmath>
#include <cstdlib>

#include "navdata/position_text.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  if (size > 4096) return 0;
  const auto place = PositionFromText({reinterpret_cast<const char*>(data), size});
  if (!place) return 0;
  if (!(std::abs(place->lat) <= 90) || !(std::abs(place->lon) <= 180)) std::abort();
  const auto again = PositionFromText(FormatPlanLat(place->lat) + FormatPlanLon(place->lon));
  // The text of 180 degrees is a little east of them.
  if (std::abs(place->lon) > 179.99F) return 0;
  if (!again || std::abs(again->lat - place->lat) > 1e-4F || std::abs(again->lon - place->lon) > 1e-4F)
    std::abort();
  return 0;
}
