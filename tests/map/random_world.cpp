#include "tests/map/random_world.h"

#include <algorithm>
#include <cmath>
#include <random>
#include <string>

namespace {

class Maker {
 public:
  explicit Maker(std::uint32_t seed) : random(seed) {}

  float Between(float low, float high) {
    return low + (high - low) * static_cast<float>(random() % 100001) / 100000;
  }
  std::int16_t Whole(int low, int high) {
    return static_cast<std::int16_t>(low +
                                     static_cast<int>(random() % static_cast<unsigned>(high - low + 1)));
  }
  bool Chance(int percent) { return Whole(1, 100) <= percent; }
  std::string Name() {
    std::string name;
    for (int i = Whole(2, 5); i > 0; --i)
      name.push_back(static_cast<char>('A' + Whole(0, 25)));
    return name;
  }

  static Position OnGlobe(float lat, float lon) {
    if (lon > 180) lon -= 360;
    if (lon < -180) lon += 360;
    return {std::clamp(lat, -90.0F, 90.0F), lon};
  }
  // Most within a degree of a thick place, some anywhere.
  Position Place() {
    if (Chance(15)) return {Between(-90, 90), Between(-180, 180)};
    const auto thick = ThickPlaces();
    const Position centre = thick[static_cast<std::size_t>(Whole(0, static_cast<int>(thick.size()) - 1))];
    const float spread = Chance(50) ? 0.05F : 1.5F;
    return OnGlobe(centre.lat + Between(-spread, spread), centre.lon + Between(-spread, spread));
  }
  Position Near(Position place, float most) {
    return OnGlobe(place.lat + Between(-most, most), place.lon + Between(-most, most));
  }
  // A ring of short steps around a place.
  std::vector<Position> Ring(float radius, int corners) {
    const Position centre = Place();
    std::vector<Position> ring;
    for (int i = 0; i <= corners; ++i) {
      const float angle = 6.2831853F * static_cast<float>(i % corners) / static_cast<float>(corners);
      ring.push_back(OnGlobe(centre.lat + radius * std::cos(angle), centre.lon + radius * std::sin(angle)));
    }
    return ring;
  }

 private:
  std::mt19937 random;
};

template <class Row>
Row At(Maker& make) {
  const Position place = make.Place();
  Row row;
  row.strCode = std::string_view(make.Name());
  row.sngLat = place.lat;
  row.sngLon = place.lon;
  row.sngMagVar = make.Between(-20, 20);
  return row;
}

void AddAirports(Maker& make, NavDatabase& database) {
  for (int i = 0; i < 500; ++i) {
    auto airport = At<AirportRec>(make);
    airport.strName = std::string_view(make.Name());
    airport.firstRunway = static_cast<std::uint32_t>(database.runways.size());
    airport.firstParking = static_cast<std::uint32_t>(database.parkings.size());
    airport.firstIls = static_cast<std::uint32_t>(database.ils.size());
    airport.lngRunways = make.Whole(0, 3);
    airport.lngParkings = make.Whole(0, 4);
    airport.lngIls = make.Whole(0, 2);
    for (int k = 0; k < airport.lngRunways; ++k) {
      RunwayRec runway;
      runway.strRwyID = std::string_view(std::to_string(make.Whole(1, 36)));
      runway.sngLat = airport.sngLat;
      runway.sngLon = airport.sngLon;
      runway.sngHeading = make.Between(0, 360);
      runway.intLength = make.Whole(900, 14000);
      database.runways.push_back(runway);
    }
    for (int k = 0; k < airport.lngParkings; ++k) {
      ParkingRec parking;
      const Position place = make.Near({airport.sngLat, airport.sngLon}, 0.02F);
      parking.sngLat = place.lat;
      parking.sngLon = place.lon;
      parking.lngType = make.Whole(8, 12);
      parking.sngRadius = make.Between(10, 40);
      database.parkings.push_back(parking);
    }
    for (int k = 0; k < airport.lngIls; ++k) {
      auto ils = At<IlsRec>(make);
      ils.sngLat = airport.sngLat;
      ils.sngLon = airport.sngLon;
      ils.sngCourse = make.Between(0, 360);
      ils.sngFrequency = make.Between(108, 112);
      database.ils.push_back(ils);
    }
    database.airports.push_back(airport);
  }
  database.lngAirports = static_cast<std::int32_t>(database.airports.size());
  database.airports.resize(database.airports.size() + NavDatabase::surplusAirportRows + 1);
}

void AddAirways(Maker& make, NavDatabase& database) {
  constexpr std::int32_t nodes = 900;
  database.intersections.resize(NavDatabase::intersectionRows);
  database.lngIntersections = nodes;
  constexpr const char* types[] = {"L", "H", "B", " "};
  for (std::int32_t row = 1; row <= nodes; ++row) {
    // Every second lies near the one before, so that links stay short.
    const Position before{database.intersections[static_cast<std::size_t>(row) - 1].sngLat,
                          database.intersections[static_cast<std::size_t>(row) - 1].sngLon};
    auto& fix = database.intersections[static_cast<std::size_t>(row)];
    fix = At<IntersectionRec>(make);
    fix.strAirwayType = std::string_view(types[make.Whole(0, 3)]);
    if (row % 2 == 0) {
      const Position near = make.Near(before, longestLink);
      fix.sngLat = near.lat;
      fix.sngLon = near.lon;
    }
    if (make.Chance(3)) fix.strCode = FixedText<8>();
    if (row % 2 != 0) continue;
    AirwaySegmentRec segment;
    segment.strName = std::string_view(make.Chance(10) ? "PICKED" : make.Name());
    segment.lngFrom = row - 1;
    segment.lngTo = make.Chance(2) ? 999999 : row;
    segment.strLower = std::string_view("FL100");
    (make.Chance(50) ? database.victorAirways : database.jetAirways).push_back(segment);
  }
}

void AddNavaids(Maker& make, NavDatabase& database) {
  constexpr const char* types[] = {"VOR", "VORTAC", "TACAN", "VOR-DME", "DME"};
  for (int i = 0; i < 300; ++i) {
    auto vor = At<VorRec>(make);
    vor.strType = std::string_view(types[make.Whole(0, 4)]);
    vor.sngFrequency = make.Between(108, 118);
    database.vors.push_back(vor);
    database.ndbs.push_back(At<NdbRec>(make));
    database.fixes.push_back(At<FixRec>(make));
    database.fixes.push_back(At<FixRec>(make));
    if (i % 3 == 0) database.userWaypoints.push_back(At<UserWaypointRec>(make));
    if (i % 3 == 1) database.pendingIls.push_back(At<IlsRec>(make));
  }
}

void AddAreas(Maker& make, NavDatabase& database) {
  for (int i = 0; i < 250; ++i) {
    AirspaceRec airspace;
    airspace.intType = make.Whole(0, 4);
    airspace.strName = std::string_view(make.Name());
    airspace.strClass = std::string_view("D");
    airspace.points =
        make.Chance(5) ? make.Ring(30, 90) : make.Ring(make.Between(0.02F, 2), make.Whole(4, 36));
    database.airspaces.push_back(airspace);
    const Position corner = make.Place();
    MsaRec sector;
    const Position far = Maker::OnGlobe(corner.lat + 1, corner.lon + 1);
    SetArea(sector, {corner.lon, corner.lat, far.lon, far.lat, make.Between(100, 20000)});
    database.msa.push_back(sector);
  }
}

void AddGround(Maker& make, NavDatabase& database) {
  constexpr const char* types[] = {"TAXI", "LINE"};
  for (int i = 0; i < 700; ++i) {
    const Position from = make.Place();
    const Position to = make.Near(from, 0.02F);
    TaxiRec taxiway{from.lat, from.lon, to.lat, to.lon, {}, 60, {}};
    taxiway.strType = std::string_view(types[make.Whole(0, 1)]);
    if (make.Chance(50)) taxiway.strName = std::string_view(make.Name());
    database.taxiways.push_back(taxiway);
  }
  for (int i = 0; i < 150; ++i) {
    const auto add = [&](const std::vector<Position>& ring, float value) {
      for (std::size_t k = 0; k < ring.size(); ++k) {
        PolygonRec row;
        row.strFlag = std::string_view(k == 0 ? "M" : "L");
        row.sngLat = ring[k].lat;
        row.sngLon = ring[k].lon;
        row.sngValue = value;
        database.polygons.push_back(row);
      }
    };
    const auto outer = make.Ring(0.02F, make.Whole(4, 12));
    add(outer, 0);
    if (!make.Chance(40)) continue;
    std::vector<Position> hole;
    for (const Position corner : outer)
      hole.push_back({(corner.lat + outer[0].lat) / 2, corner.lon});
    add(hole, groundHoleValue);
  }
}

void AddShape(WorldShapes& world, std::uint8_t kind, const std::vector<Position>& points) {
  WorldShapeRec shape;
  shape.bytType = kind;
  shape.firstPoint = static_cast<std::uint32_t>(world.points.size());
  shape.pointCount = static_cast<std::uint32_t>(points.size());
  world.points.insert(world.points.end(), points.begin(), points.end());
  world.shapes.push_back(shape);
}

void AddWorld(Maker& make, NavDatabase& database) {
  for (int i = 0; i < 40; ++i) {
    AddShape(database.worldPolygons, make.Chance(80) ? worldLand : worldInlandWater,
             make.Ring(make.Between(0.05F, 20), 100));
    AddShape(database.worldLines, make.Chance(70) ? worldBorder : worldRiver,
             make.Ring(make.Between(0.5F, 5), 60));
  }
}

}  // namespace

std::vector<Position> ThickPlaces() {
  return {{50, 8.5F},    {-17, 179.6F}, {52, -179.8F}, {0, 0},   {89.5F, 30}, {-89, -120},
          {66, 179.99F}, {40, -74},     {-34, 151},    {71, 25}, {-60, -180}, {10, -0.2F}};
}

NavDatabase RandomWorld(std::uint32_t seed) {
  Maker make(seed);
  NavDatabase database;
  AddAirports(make, database);
  AddAirways(make, database);
  AddNavaids(make, database);
  AddAreas(make, database);
  AddGround(make, database);
  AddWorld(make, database);
  BuildIndexes(database);
  return database;
}

void WalkWholeTables(NavDatabase& database) {
  const auto whole = [](PlaceIndex& index, std::size_t rows) { index = PlaceIndex::WholeTable(rows); };
  whole(database.airportsByPlace, static_cast<std::size_t>(database.AirportCount()));
  whole(database.intersectionsByPlace, static_cast<std::size_t>(database.lngIntersections) + 1);
  whole(database.fixesByPlace, database.fixes.size());
  whole(database.vorsByPlace, database.vors.size());
  whole(database.ndbsByPlace, database.ndbs.size());
  whole(database.pendingIlsByPlace, database.pendingIls.size());
  whole(database.userWaypointsByPlace, database.userWaypoints.size());
  whole(database.victorAirwaysByEnds, database.victorAirways.size());
  whole(database.jetAirwaysByEnds, database.jetAirways.size());
  whole(database.taxiwaysByEnds, database.taxiways.size());
  whole(database.groundShapesByPlace, database.groundShapes.size());
  whole(database.airspacesByBox, database.airspaces.size());
  whole(database.msaByBox, database.msa.size());
}
