#include "dbmanager/small_files.h"

#include <array>
#include <cmath>
#include <cstdio>
#include <unordered_map>

#include "base/binary.h"
#include "base/numbers.h"
#include "navdata/magnetic_variation.h"

namespace {

struct Aircraft {
  int number;
  const char* name;
  int maxFuel, ceiling, maxWeight, emptyWeight, loadWeight;  // kg, hundreds of feet, kg
  int climbRate, climbSpeed, descentRate, descentSpeed, cruiseSpeed, cruiseFlightLevel;
  int approachSpeed, maxRange;
};

// Fuel, weights and range go together: range at cruise speed uses up the fuel.
constexpr auto aircraft = std::to_array<Aircraft>({
    {1, "Cessna Skyhawk 172", 144, 140, 1111, 767, 180, 650, 75, 500, 110, 122, 70, 65, 640},
    {2, "Piper Cherokee Six", 228, 160, 1542, 810, 320, 800, 90, 500, 130, 146, 80, 75, 730},
    {3, "Beechcraft Bonanza A36", 200, 180, 1656, 1040, 300, 1000, 105, 600, 160, 170, 100, 80, 720},
    {4, "Beechcraft Baron 58", 452, 200, 2495, 1770, 380, 1500, 115, 700, 180, 195, 120, 95, 1300},
    {5, "Beechcraft King Air 350", 1638, 350, 6804, 4300, 1000, 2200, 160, 1800, 240, 305, 280, 110, 1550},
    {6, "Cessna Citation CJ1", 1460, 410, 4853, 3100, 600, 2800, 210, 2200, 270, 380, 370, 110, 1250},
    {7, "ATR 72-500", 5000, 250, 22500, 13000, 6500, 1350, 170, 1500, 230, 275, 200, 115, 1330},
    {8, "Airbus A320-200", 19100, 390, 77000, 42500, 15500, 2200, 290, 2000, 290, 450, 350, 138, 3200},
    {9, "Boeing 737-800", 20900, 410, 79000, 41500, 15800, 2400, 280, 2000, 280, 455, 360, 142, 3100},
    {10, "Boeing 767-300ER", 73400, 430, 186900, 90000, 26000, 2000, 300, 2000, 300, 465, 350, 145, 6000},
    {11, "Boeing 747-400", 173000, 450, 396900, 180000, 50000, 1800, 320, 2000, 310, 490, 350, 153, 7250},
    {12, "Cessna Skylane 182", 239, 181, 1406, 894, 240, 900, 85, 500, 125, 145, 80, 70, 850},
});

int ApproachAltitudeFor(int approachSpeed) {
  if (approachSpeed <= 100) return 3500;
  if (approachSpeed <= 120) return 5000;
  if (approachSpeed <= 140) return 7000;
  return approachSpeed <= 160 ? 8500 : 10000;
}

}  // namespace

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

std::string MakeAircraftText() {
  std::string text;
  for (const Aircraft& a : aircraft) {
    text += std::to_string(a.number) + "," + a.name;
    for (const int value : {a.maxFuel, a.ceiling, a.maxWeight, a.emptyWeight, a.loadWeight, a.climbRate,
                            a.climbSpeed, a.descentRate, a.descentSpeed, a.cruiseSpeed, a.cruiseFlightLevel,
                            a.approachSpeed, ApproachAltitudeFor(a.approachSpeed), a.maxRange}) {
      text += "," + std::to_string(value);
    }
    text += "\r\n";
  }
  return text;
}
