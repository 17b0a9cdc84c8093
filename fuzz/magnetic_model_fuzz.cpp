// Any text as coefficients of the magnetic model.
#include "dbmanager/magnetic_model.h"
#include "dbmanager/source_error.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  LineReader lines("wmm.txt", {reinterpret_cast<const char*>(data), size});
  try {
    MagneticModel::Read(lines).Declination({50, 8}, 2026.5);
  } catch (const BuildError&) {
  }
  return 0;
}
