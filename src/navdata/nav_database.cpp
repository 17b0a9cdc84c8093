#include "navdata/nav_database.h"

#include <array>

#include "base/numbers.h"

namespace {

template <class Row>
std::span<const Row> Slice(const std::vector<Row>& rows, std::uint32_t first, std::int32_t count) {
  return std::span(rows).subspan(first, static_cast<std::size_t>(count));
}

template <class Row>
IdentIndex IndexIdents(const std::vector<Row>& rows, std::size_t count) {
  return IdentIndex::Build(count, [&rows](std::size_t row) { return rows[row].strCode.View(); });
}

template <class Row>
PlaceIndex IndexPlaces(const std::vector<Row>& rows, std::size_t count,
                       const std::vector<bool>* skip = nullptr) {
  std::vector<Position> places;
  places.reserve(count);
  for (std::size_t row = 0; row < count; ++row)
    places.push_back({rows[row].sngLat, rows[row].sngLon});
  return PlaceIndex::Build(places, skip);
}

}  // namespace

std::span<const RunwayRec> NavDatabase::Runways(const AirportRec& airport) const {
  return Slice(runways, airport.firstRunway, airport.lngRunways);
}

std::span<const FrequencyRec> NavDatabase::Frequencies(const AirportRec& airport) const {
  return Slice(frequencies, airport.firstFrequency, airport.lngFrequencies);
}

std::span<const ParkingRec> NavDatabase::Parkings(const AirportRec& airport) const {
  return Slice(parkings, airport.firstParking, airport.lngParkings);
}

std::span<const IlsRec> NavDatabase::Ils(const AirportRec& airport) const {
  return Slice(ils, airport.firstIls, airport.lngIls);
}

std::span<const ConnectionRec> NavDatabase::LowAlt(const IntersectionRec& intersection) const {
  return Slice(lowConnections, intersection.firstLowAlt, intersection.bytLowAlt);
}

std::span<const ConnectionRec> NavDatabase::HighAlt(const IntersectionRec& intersection) const {
  return Slice(highConnections, intersection.firstHighAlt, intersection.bytHighAlt);
}

const IlsRec* NavDatabase::FindIls(std::int32_t airportRow, std::string_view ilsCode) const {
  if (airportRow < 0 || static_cast<std::size_t>(airportRow) >= airports.size()) return nullptr;
  const std::string wanted = AsciiUpper(Trimmed(ilsCode));
  for (const IlsRec& row : Ils(airports[static_cast<std::size_t>(airportRow)])) {
    if (!row.strCode.Empty() && AsciiUpper(row.strCode.View()) == wanted) return &row;
  }
  return nullptr;
}

char AirwayLevel(const IntersectionRec& intersection) {
  switch (intersection.strAirwayType.characters[0]) {
    case 'L':
      return 'V';
    case 'H':
      return 'J';
    case 'B':
      return 'X';
    default:
      return ' ';
  }
}

std::string GetRwyName(std::string_view code) {
  static constexpr std::array<std::string_view, 8> compassPoints = {"N", "NE", "E", "SE",
                                                                    "S", "SW", "W", "NW"};
  const double number = Val(Trimmed(code));
  if (number >= 37 && number <= 44) return std::string(compassPoints[static_cast<std::size_t>(number) - 37]);
  return std::string(Trimmed(code));
}

void BuildIndexes(NavDatabase& database) {
  const auto scanned = static_cast<std::size_t>(database.lngAirports) + 1;
  const auto real = static_cast<std::size_t>(database.AirportCount());
  const auto nodes =
      std::min(static_cast<std::size_t>(database.lngIntersections) + 1, database.intersections.size());
  database.airportsByIdent = IndexIdents(database.airports, std::min(scanned, database.airports.size()));
  database.intersectionsByIdent = IndexIdents(database.intersections, nodes);
  database.fixesByIdent = IndexIdents(database.fixes, database.fixes.size());
  database.vorsByIdent = IndexIdents(database.vors, database.vors.size());
  database.ndbsByIdent = IndexIdents(database.ndbs, database.ndbs.size());
  database.userWaypointsByIdent = IndexIdents(database.userWaypoints, database.userWaypoints.size());

  std::vector<bool> unused(nodes);
  for (std::size_t row = 0; row < nodes; ++row)
    unused[row] = database.intersections[row].strCode.Empty();
  database.airportsByPlace = IndexPlaces(database.airports, std::min(real, database.airports.size()));
  database.intersectionsByPlace = IndexPlaces(database.intersections, nodes, &unused);
  database.fixesByPlace = IndexPlaces(database.fixes, database.fixes.size());
  database.vorsByPlace = IndexPlaces(database.vors, database.vors.size());
  database.ndbsByPlace = IndexPlaces(database.ndbs, database.ndbs.size());
}
