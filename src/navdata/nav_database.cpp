#include "navdata/nav_database.h"

#include <array>
#include <limits>

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

// A segment that names a row outside the intersection table is at no place.
PlaceIndex IndexSegments(const std::vector<AirwaySegmentRec>& segments,
                         const std::vector<IntersectionRec>& intersections) {
  constexpr float nowhere = std::numeric_limits<float>::quiet_NaN();
  const auto known = [&](std::int32_t row) {
    return row >= 0 && static_cast<std::size_t>(row) < intersections.size();
  };
  std::vector<Position> ends;
  ends.reserve(2 * segments.size());
  for (const AirwaySegmentRec& segment : segments) {
    const bool whole = known(segment.lngFrom) && known(segment.lngTo);
    for (const std::int32_t end : {segment.lngFrom, segment.lngTo}) {
      if (!whole) {
        ends.push_back({nowhere, nowhere});
        continue;
      }
      const IntersectionRec& row = intersections[static_cast<std::size_t>(end)];
      ends.push_back({row.sngLat, row.sngLon});
    }
  }
  return PlaceIndex::BuildForEnds(ends);
}

PlaceIndex IndexTaxiways(const std::vector<TaxiRec>& taxiways) {
  std::vector<Position> ends;
  ends.reserve(2 * taxiways.size());
  for (const TaxiRec& taxiway : taxiways) {
    ends.push_back({taxiway.sngLat1, taxiway.sngLon1});
    ends.push_back({taxiway.sngLat2, taxiway.sngLon2});
  }
  return PlaceIndex::BuildForEnds(ends);
}

// Points before the first "M" belong to no shape, a hole to the shape before it.
std::vector<GroundShape> ShapesOf(const std::vector<PolygonRec>& polygons) {
  std::vector<GroundShape> shapes;
  for (std::uint32_t row = 0; row < polygons.size(); ++row) {
    const bool begins = polygons[row].strFlag.characters[0] == 'M';
    const bool hole = polygons[row].sngValue == groundHoleValue && !shapes.empty();
    if (begins && !hole) shapes.push_back({row, 0});
    if (!shapes.empty()) ++shapes.back().rowCount;
  }
  return shapes;
}

PlaceIndex IndexShapes(const std::vector<GroundShape>& shapes, const std::vector<PolygonRec>& polygons) {
  std::vector<Position> places;
  places.reserve(shapes.size());
  for (const GroundShape& shape : shapes)
    places.push_back({polygons[shape.firstRow].sngLat, polygons[shape.firstRow].sngLon});
  return PlaceIndex::Build(places);
}

PlaceIndex IndexAirspaces(const std::vector<AirspaceRec>& airspaces) {
  std::vector<GeoBox> boxes;
  boxes.reserve(airspaces.size());
  for (const AirspaceRec& airspace : airspaces)
    boxes.push_back(BoxAround(airspace.points));
  return PlaceIndex::BuildForBoxes(boxes);
}

PlaceIndex IndexMsa(const std::vector<MsaRec>& msa) {
  std::vector<GeoBox> boxes;
  boxes.reserve(msa.size());
  for (const MsaRec& sector : msa) {
    const MsaArea area = AreaOf(sector);
    boxes.push_back({area.south, area.west, area.north, area.east});
  }
  return PlaceIndex::BuildForBoxes(boxes);
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
  database.pendingIlsByPlace = IndexPlaces(database.pendingIls, database.pendingIls.size());
  database.userWaypointsByPlace = IndexPlaces(database.userWaypoints, database.userWaypoints.size());
  database.victorAirwaysByEnds = IndexSegments(database.victorAirways, database.intersections);
  database.jetAirwaysByEnds = IndexSegments(database.jetAirways, database.intersections);
  database.taxiwaysByEnds = IndexTaxiways(database.taxiways);
  database.parkingsByPlace = IndexPlaces(database.parkings, database.parkings.size());
  database.airspacesByPlace = IndexPlaces(database.airspaces, database.airspaces.size());
  database.groundShapes = ShapesOf(database.polygons);
  database.groundShapesByPlace = IndexShapes(database.groundShapes, database.polygons);
  database.airspacesByBox = IndexAirspaces(database.airspaces);
  database.msaByBox = IndexMsa(database.msa);
  database.polygonOutlines = OutlineLevels::Build(database.worldPolygons);
  database.lineOutlines = OutlineLevels::Build(database.worldLines);
}
