// Airports under the pointer, their sun times and their parking spots.
#include <cmath>
#include <cstdint>
#include <utility>

#include "base/code_page.h"
#include "base/numbers.h"
#include "map/hover_sources.h"
#include "navdata/lookup_names.h"
#include "navdata/sun_times.h"

namespace {

constexpr std::int32_t parkingRadius = 75;
constexpr std::string_view heliport = "00H";

void AddRunways(const NavDatabase& database, const AirportRec& airport, HoverLines& lines) {
  for (const RunwayRec& runway : database.Runways(airport)) {
    const bool pad = runway.strRwyID == heliport;
    std::string text = JoinedWords({pad ? "Heli" : "Rwy", runway.strRwyID.View()});
    if (!pad && !runway.strRwyIDRecip.Empty()) text += "/" + CodePageToUtf8(runway.strRwyIDRecip.View());
    text += ": " + std::to_string(runway.intLength) + " x " + std::to_string(runway.intWidth) + " ft";
    const std::string_view surface = strSurface(runway.bytSurface);
    if (!surface.empty()) text += " " + std::string(surface);
    lines.push_back({text});
  }
}

// One line for each kind of frequency, in the order in which the kinds come.
void AddFrequencies(const NavDatabase& database, const AirportRec& airport, HoverLines& lines) {
  std::vector<std::pair<std::uint8_t, std::string>> kinds;
  for (const FrequencyRec& row : database.Frequencies(airport)) {
    const std::string frequency = FormatPicture(row.sngFrequency, "000.000");
    auto kind = kinds.begin();
    while (kind != kinds.end() && kind->first != row.bytType)
      ++kind;
    if (kind != kinds.end()) {
      kind->second += ", " + frequency;
      continue;
    }
    const std::string_view name = strFreqType(row.bytType);
    kinds.emplace_back(row.bytType, std::string(name.empty() ? "Frequency" : name) + ": " + frequency);
  }
  for (auto& [type, text] : kinds)
    lines.push_back({std::move(text)});
}

void AddIls(const NavDatabase& database, const AirportRec& airport, HoverLines& lines) {
  for (const IlsRec& row : database.Ils(airport)) {
    lines.push_back({JoinedWords({"ILS", row.strRwyID.View(), row.strCode.View()}) + ": " +
                     FormatPicture(row.sngFrequency, "000.00") + " / " +
                     FormatPicture(NormalizeDeg(row.sngCourse - airport.sngMagVar), "000") + "°"});
  }
}

std::string TimeLine(std::string_view event, double minutes) {
  return std::string(event) + FormatMinutes(RoundToEven(minutes)) + " UTC";
}

}  // namespace

void FindAirports(const HoverQuestion& question, HoverLines& lines) {
  const NavDatabase& database = question.database;
  VisitNear(question, database.airportsByPlace, database.airports, hoverRadius,
            [&](std::int32_t, const AirportRec& airport) {
              lines.push_back({JoinedWords({airport.strCode.View(), airport.strName.View()}), true});
              lines.push_back({question.PositionLine(airport.sngLat, airport.sngLon)});
              lines.push_back({"Elevation: " + std::to_string(airport.lngElevation) + " ft"});
              AddRunways(database, airport, lines);
              AddFrequencies(database, airport, lines);
              AddIls(database, airport, lines);
            });
}

void FindSunTimes(const HoverQuestion& question, HoverLines& lines) {
  const AirportRec* nearest = nullptr;
  double nearestSquare = 0;
  VisitNear(question, question.database.airportsByPlace, question.database.airports, hoverRadius,
            [&](std::int32_t, const AirportRec& airport) {
              const double dx = question.projection.LonToX(airport.sngLon) - static_cast<double>(question.x);
              const double dy = question.projection.LatToY(airport.sngLat) - static_cast<double>(question.y);
              const double square = dx * dx + dy * dy;
              if (nearest != nullptr && square >= nearestSquare) return;
              nearest = &airport;
              nearestSquare = square;
            });
  if (nearest == nullptr) return;
  lines.push_back({JoinedWords({"Sun", nearest->strCode.View()}), true});
  const SunTimes times = SunTimesAt(nearest->sngLat, nearest->sngLon, question.today);
  if (!times.sunrise || !times.sunset) {
    lines.push_back({times.sunUpAllDay ? "The sun is up all day" : "The sun is down all day"});
    return;
  }
  lines.push_back({TimeLine("Sunrise: ", *times.sunrise)});
  lines.push_back({TimeLine("Sunset: ", *times.sunset)});
}

void FindParkings(const HoverQuestion& question, HoverLines& lines) {
  VisitNear(question, question.database.parkingsByPlace, question.database.parkings, parkingRadius,
            [&](std::int32_t, const ParkingRec& parking) {
              const std::string_view name = parking.lngName == 0 ? "Parking" : strGateName(parking.lngName);
              lines.push_back({JoinedWords({name, std::to_string(parking.lngNumber)}), true});
              const std::string_view type = strGateType(parking.lngType);
              if (!type.empty()) lines.push_back({std::string(type)});
            });
}
