// The reader of departures and arrivals on any bytes: what it gives has to fit
// into the file it came from.
#include <cstdlib>

#include "flightplan/procedure_file.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  const ProcedureList list = ParseProcedures({reinterpret_cast<const std::byte*>(data), size}, "EDDA");
  std::size_t used = 0;
  for (const SidStarEntry& entry : list.entries) {
    used += 56 + 61 * entry.Steps.size();
    if (entry.ListText().empty()) std::abort();
  }
  if (used > size) std::abort();
  return 0;
}
