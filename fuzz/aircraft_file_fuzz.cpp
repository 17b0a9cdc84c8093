// The aircraft file's reader on any bytes; what it read has to come back
// unchanged from what the writer makes of it.
#include <cstdlib>

#include "flightplan/aircraft_file.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  const AircraftFile file = ParseAircraft({reinterpret_cast<const char*>(data), size});
  const std::string text = AircraftText(file.aircraft);
  const AircraftFile again = ParseAircraft(text);
  if (!again.problems.empty() || AircraftText(again.aircraft) != text) std::abort();
  return 0;
}
