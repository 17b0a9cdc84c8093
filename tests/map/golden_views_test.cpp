// What a handful of views of a small world draw, operation by operation, held
// against the files in golden/. After a change of the picture that is meant,
// run this test with VELMORA_WRITE_GOLDEN=1 and read the difference.
#include <gtest/gtest.h>

#include <cstdlib>
#include <fstream>
#include <sstream>

#include "tests/map/painted.h"

namespace {

template <class Row>
Row At(const char* code, Position place) {
  Row row;
  row.strCode = std::string_view(code);
  row.sngLat = place.lat;
  row.sngLon = place.lon;
  return row;
}

void AddShape(WorldShapes& world, std::uint8_t kind, const std::vector<Position>& points) {
  WorldShapeRec shape;
  shape.bytType = kind;
  shape.firstPoint = static_cast<std::uint32_t>(world.points.size());
  shape.pointCount = static_cast<std::uint32_t>(points.size());
  world.points.insert(world.points.end(), points.begin(), points.end());
  world.shapes.push_back(shape);
}

void AddGround(NavDatabase& database) {
  const Position apron[] = {{-17.99F, 179.99F}, {-17.99F, -179.99F}, {-18.0F, -179.99F}, {-18.0F, 179.99F}};
  for (const Position corner : apron)
    database.polygons.push_back(
        {FixedText<1>(database.polygons.empty() ? "M" : "L"), corner.lat, corner.lon, 0});
  database.taxiways.push_back(
      {-17.995F, 179.995F, -18.005F, 179.995F, FixedText<8>("A"), 75, FixedText<5>("TAXI")});
  ParkingRec parking;
  parking.sngLat = -17.995F;
  parking.sngLon = -179.995F;
  parking.lngType = 10;
  database.parkings.push_back(parking);
}

// An island on the date line with an airport, two airways to it, a navaid of
// each kind, and a continent around the south pole.
NavDatabase IslandWorld() {
  NavDatabase database;
  auto airport = At<AirportRec>("NFIS", {-18, 180});
  airport.strName = std::string_view("Island");
  airport.lngRunways = airport.lngParkings = 1;
  RunwayRec runway;
  runway.strRwyID = std::string_view("09");
  runway.sngLat = -18.005F;
  runway.sngLon = 180;
  runway.sngHeading = 90;
  runway.intLength = 8000;
  database.runways = {runway};
  database.airports = {airport};
  database.airports.resize(1 + NavDatabase::surplusAirportRows + 1);
  database.lngAirports = 1;
  AddGround(database);
  auto vor = At<VorRec>("ISL", {-17.8F, -179.9F});
  vor.strType = std::string_view("VOR-DME");
  vor.sngFrequency = 113.5F;
  vor.sngMagVar = 12;
  database.vors = {vor};
  database.ndbs = {At<NdbRec>("NI", {-18.2F, 179.8F})};
  database.intersections.resize(NavDatabase::intersectionRows);
  database.lngIntersections = 3;
  const std::pair<const char*, Position> fixes[] = {
      {"WESTO", {-17, 178}}, {"MIDDL", {-18, 179.9F}}, {"EASTO", {-19, -177}}};
  for (std::size_t i = 0; i < 3; ++i) {
    database.intersections[i + 1] = At<IntersectionRec>(fixes[i].first, fixes[i].second);
    database.intersections[i + 1].strAirwayType = std::string_view("B");
  }
  const auto segment = [](std::int32_t from, const char* name) {
    AirwaySegmentRec row;
    row.strName = std::string_view(name);
    row.lngFrom = from;
    row.lngTo = from + 1;
    return row;
  };
  database.victorAirways = {segment(1, "V1")};
  database.jetAirways = {segment(2, "J2")};
  AirspaceRec zone;
  zone.intType = 1;
  zone.strName = std::string_view("ISLAND CTR");
  zone.points = {{-17.8F, 179.8F}, {-17.8F, -179.8F}, {-18.2F, -179.8F}, {-18.2F, 179.8F}};
  database.airspaces = {zone};
  AddShape(database.worldPolygons, worldLand,
           {{-17.5F, 179.5F}, {-17.5F, -179.5F}, {-18.5F, -179.5F}, {-18.5F, 179.5F}, {-17.5F, 179.5F}});
  AddShape(database.worldPolygons, worldLand,
           {{-90, -180}, {-70, -180}, {-72, -60}, {-68, 60}, {-70, 180}, {-90, 180}, {-90, -180}});
  AddShape(database.worldLines, worldBorder, {{-17.5F, 180}, {-18.5F, -179.9F}});
  return database;
}

std::string OperationsOf(const RecordingSurface& surface) {
  std::ostringstream text;
  for (const auto& one : surface.drawn) {
    char color[8];
    std::snprintf(color, sizeof color, "#%02X%02X%02X", one.color & 0xFF, one.color >> 8 & 0xFF,
                  one.color >> 16 & 0xFF);
    text << one.what << ' ' << color;
    if (one.what == "clear") {
      text << '\n';
      continue;
    }
    const auto whole = [&](float x, float y) { text << ' ' << std::lround(x) << ',' << std::lround(y); };
    const bool atOnePlace = one.points.empty() || one.what == "circle";
    if (atOnePlace) whole(one.x, one.y);
    if (one.what == "circle") text << " r " << std::lround(one.points[0].x);
    for (const SurfacePoint point : one.points)
      if (!atOnePlace) whole(point.x, point.y);
    if (!one.text.empty()) text << " \"" << one.text << '"';
    text << '\n';
  }
  return text.str();
}

std::string FileText(const std::string& path) {
  std::ifstream file(path, std::ios::binary);
  return {std::istreambuf_iterator<char>(file), {}};
}

TEST(GoldenViews, DrawWhatTheyDrew) {
  NavDatabase database = IslandWorld();
  MapSwitches on;
  on.mnuCtrz = true;
  on.btnName = true;
  MapSwitches withGrid = on;
  withGrid.mnuLatLong = true;
  struct Case {
    const char* name;
    Position centre;
    int row;
    const MapSwitches& switches;
  };
  const Case cases[] = {{"airport-3nm", {-18, 179.995F}, 2, on},
                        {"island-50nm", {-18, -179.9F}, 7, on},
                        {"date-line-300nm", {-18, 179}, 12, withGrid},
                        {"south-pole-2000nm", {-89, 100}, 19, withGrid},
                        {"world-6000nm", {-30, -150}, 21, withGrid}};
  for (const Case& c : cases) {
    const std::string path = std::string(VELMORA_SOURCE_DIR "/tests/map/golden/") + c.name + ".txt";
    const std::string drawn = OperationsOf(PaintedMap(database, ViewAtRow(c.centre, c.row), c.switches));
    if (std::getenv("VELMORA_WRITE_GOLDEN") != nullptr) std::ofstream(path, std::ios::binary) << drawn;
    EXPECT_EQ(drawn, FileText(path)) << c.name;
  }
}

}  // namespace
