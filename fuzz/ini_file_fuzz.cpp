// Any text as vlm.ini: it can be read, and what is written back reads the same.

#include <cstddef>
#include <cstdint>
#include <cstdlib>

#include "settings/settings_file.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  const std::string_view text(reinterpret_cast<const char*>(data), size);
  Settings settings = ReadSettings(text).settings;
  settings.IVAOVPW = DecodeIvaoPWord(settings.IVAOVPW);
  const std::string written = SettingsText(settings, text);
  const Settings again = ReadSettings(written).settings;
  if (again.SCALE != settings.SCALE || again.FPSEL != settings.FPSEL ||
      again.colors.LAND != settings.colors.LAND) {
    std::abort();
  }
  return 0;
}
