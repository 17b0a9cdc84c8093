#include "dbmanager/small_files.h"

#include <array>
#include <cmath>
#include <cstdio>
#include <unordered_map>

#include "base/binary.h"
#include "base/numbers.h"
#include "navdata/magnetic_variation.h"

std::vector<std::byte> MakeVariationGrid(const MagneticModel& model, double year,
                                         const std::function<bool()>& proceed) {
  std::vector<std::byte> bytes;
  for (int lon = 0; lon < magneticGridColumns && proceed(); ++lon) {
    for (int row = 0; row < magneticGridRows; ++row) {
      const double declination =
          model.Declination({static_cast<double>(row - 90), static_cast<double>(lon)}, year);
      AppendValue(bytes, static_cast<std::int16_t>(RoundToEven(declination * magneticUnitsPerDegree)));
    }
  }
  return bytes;
}

std::string MakeAiracText(const std::string& cycle) {
  return cycle.empty() ? "AIRAC cycle unknown\r\n" : "AIRAC " + cycle + "\r\n";
}

WeatherStations MakeWeatherStations(LineReader& lines, std::span<const AirportPlace> places) {
  std::unordered_map<std::string, const AirportPlace*> byCode;
  for (const AirportPlace& place : places)
    byCode.try_emplace(place.code, &place);
  WeatherStations stations;
  std::string_view line;
  while (lines.Next(line)) {
    const LineFields fields(line);
    if (fields.Count() == 0 || fields[0].front() == '#') continue;
    ++stations.read;
    const std::string code = CodePageOf(fields[0]);
    const auto found = byCode.find(code);
    if (code.size() != 4 || found == byCode.end()) continue;
    std::array<char, 64> text{};
    std::snprintf(text.data(), text.size(), "%s,%.5f,%.5f\r\n", code.c_str(), found->second->position.lat,
                  found->second->position.lon);
    stations.text += text.data();
    ++stations.written;
  }
  return stations;
}
