// The small files of a database: the magnetic variation grid, the cycle and
// the weather stations.
#pragma once

#include <cstddef>
#include <functional>
#include <span>
#include <string>
#include <vector>

#include "dbmanager/airport_files.h"
#include "dbmanager/magnetic_model.h"

// magvar09.qtr and magvar10.qtr for a decimal year. proceed is asked once per
// column; the grid is cut short if it says no.
std::vector<std::byte> MakeVariationGrid(const MagneticModel& model, double year,
                                         const std::function<bool()>& proceed);

// AIRAC.INI: one line.
std::string MakeAiracText(const std::string& cycle);

struct WeatherStations {
  std::string text;  // WxStation.txt: code, latitude, longitude
  std::size_t read = 0;
  std::size_t written = 0;  // those whose airport is in the database
};

// lines: one code to a line, "#" begins a comment.
WeatherStations MakeWeatherStations(LineReader& lines, std::span<const AirportPlace> places);
