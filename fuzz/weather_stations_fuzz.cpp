// Any text as the list of weather stations.
#include <algorithm>
#include <cstdlib>

#include "dbmanager/small_files.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  LineReader lines("metar.dat", {reinterpret_cast<const char*>(data), size});
  const AirportPlace place{"EDDF", "Frankfurt", {50, 8}, 364, false, ""};
  const WeatherStations stations = MakeWeatherStations(lines, {&place, 1});
  const auto written = std::count(stations.text.begin(), stations.text.end(), '\n');
  if (static_cast<std::size_t>(written) != stations.written || stations.written > stations.read) std::abort();
  return 0;
}
