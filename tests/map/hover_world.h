// A small world of objects for the tests of what lies under the pointer.
#pragma once

#include <algorithm>
#include <random>
#include <string>
#include <vector>

#include "map/hover.h"

inline void PutAirport(NavDatabase& database, float lat, float lon, std::string_view code) {
  AirportRec airport;
  airport.strCode = code;
  airport.strName = "Airport";
  airport.sngLat = lat;
  airport.sngLon = lon;
  // The row behind the airports of the file is no airport.
  if (!database.airports.empty()) database.airports.pop_back();
  database.airports.push_back(airport);
  database.airports.emplace_back();
  database.airports.back().strCode = "AFIL";
  database.lngAirports = static_cast<std::int32_t>(database.airports.size()) - 1;
}

inline VorRec VorAt(float lat, float lon, std::string_view code) {
  VorRec vor;
  vor.strCode = code;
  vor.strName = "Name";
  vor.sngLat = lat;
  vor.sngLon = lon;
  vor.sngFrequency = 114.2F;
  return vor;
}

inline NdbRec NdbAt(float lat, float lon, std::string_view code) {
  NdbRec ndb;
  ndb.strCode = code;
  ndb.strName = "Name";
  ndb.sngLat = lat;
  ndb.sngLon = lon;
  ndb.sngFrequency = 297;
  return ndb;
}

inline void PutIntersection(NavDatabase& database, float lat, float lon, std::string_view code) {
  IntersectionRec row;
  row.strCode = code;
  row.sngLat = lat;
  row.sngLon = lon;
  database.intersections.push_back(row);
  database.lngIntersections = static_cast<std::int32_t>(database.intersections.size()) - 1;
}

inline FixRec FixAt(float lat, float lon, std::string_view code) {
  FixRec fix;
  fix.strCode = code;
  fix.sngLat = lat;
  fix.sngLon = lon;
  return fix;
}

inline UserWaypointRec UserAt(float lat, float lon, std::string_view code) {
  UserWaypointRec row;
  row.strCode = code;
  row.strName = "Name";
  row.sngLat = lat;
  row.sngLon = lon;
  return row;
}

// Within -180..180.
inline float WrappedLon(float lon) {
  if (lon > 180) return lon - 360;
  return lon < -180 ? lon + 360 : lon;
}

inline AirspaceRec AirspaceAt(float lat, float lon, std::string_view name, std::int16_t kind) {
  AirspaceRec row;
  row.intType = kind;
  row.strName = name;
  row.sngLat = lat;
  row.sngLon = lon;
  const float west = WrappedLon(lon - 1);
  const float east = WrappedLon(lon + 1);
  row.points = {{lat - 1, west}, {lat - 1, east}, {lat + 1, east}, {lat + 1, west}};
  return row;
}

inline ParkingRec ParkingAt(float lat, float lon) {
  ParkingRec row;
  row.sngLat = lat;
  row.sngLon = lon;
  row.lngName = 12;
  row.lngNumber = 7;
  row.lngType = 10;
  return row;
}

inline std::vector<std::string> Headings(const std::vector<HoverLine>& lines) {
  std::vector<std::string> headings;
  for (const HoverLine& line : lines)
    if (line.heading) headings.push_back(line.text);
  return headings;
}

// Everything switched on, at 50 north 8 east.
struct HoverWorld {
  explicit HoverWorld(int row = 9) : view(MapView::At(50, 8, row)) {
    view.UpdateVisibilityBox();
    switches.mnuCtrz = switches.mnuAir1 = switches.mnuAir2 = true;
    switches.mnuIntersection = switches.mnuGPSFix = switches.mnuSunrise = true;
  }

  NavDatabase database;
  Settings settings;
  MapSwitches switches;
  MapView view;

  void Index() { BuildIndexes(database); }

  // Every index of the search answers with all rows of its table.
  void WalkWholeTables() {
    const auto walk = [](PlaceIndex& index, std::size_t rows) { index = PlaceIndex::WholeTable(rows); };
    walk(database.airportsByPlace, static_cast<std::size_t>(database.AirportCount()));
    walk(database.vorsByPlace, database.vors.size());
    walk(database.ndbsByPlace, database.ndbs.size());
    walk(database.intersectionsByPlace, database.intersections.size());
    walk(database.fixesByPlace, database.fixes.size());
    walk(database.userWaypointsByPlace, database.userWaypoints.size());
    walk(database.airspacesByPlace, database.airspaces.size());
    walk(database.parkingsByPlace, database.parkings.size());
  }

  HoverQuestion Question(float x, float y) const {
    HoverQuestion question{view, database, settings, switches, x, y};
    question.today = std::chrono::sys_days{std::chrono::year{2024} / 3 / 20};
    return question;
  }

  std::vector<HoverLine> Find(float x, float y) const {
    return FindUnderPointer(Question(x, y), InSearchOrder(DatabaseHoverSources()));
  }
};

// Around the date line, both poles, and a crowd in one place.
inline Position RandomPlace(std::mt19937& random) {
  std::uniform_real_distribution<float> part(-1, 1);
  const float a = part(random);
  const float b = part(random);
  switch (random() % 4) {
    case 0:
      return {a * 10, b < 0 ? -180 - b * 2 : 180 - b * 2};
    case 1:
      return {90 - std::abs(a) * 3, b * 180};
    case 2:
      return {std::abs(a) * 3 - 90, b * 180};
    default:
      return {50 + a, 8 + b};
  }
}

inline void FillRandomly(NavDatabase& database, unsigned seed) {
  std::mt19937 random(seed);
  for (int row = 0; row < 2000; ++row) {
    const std::string code = "P" + std::to_string(row);
    const auto place = [&] { return RandomPlace(random); };
    const Position at[8] = {place(), place(), place(), place(), place(), place(), place(), place()};
    PutAirport(database, at[0].lat, at[0].lon, code);
    database.vors.push_back(VorAt(at[1].lat, at[1].lon, code));
    database.ndbs.push_back(NdbAt(at[2].lat, at[2].lon, code));
    PutIntersection(database, at[3].lat, at[3].lon, row % 10 == 0 ? "" : code);
    database.fixes.push_back(FixAt(at[4].lat, at[4].lon, code));
    database.userWaypoints.push_back(UserAt(at[5].lat, at[5].lon, code));
    database.airspaces.push_back(AirspaceAt(at[6].lat, at[6].lon, code, static_cast<std::int16_t>(row % 4)));
    database.parkings.push_back(ParkingAt(at[7].lat, at[7].lon));
  }
}
