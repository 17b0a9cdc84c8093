#include "dbmanager/airspace_file.h"

#include <array>
#include <cmath>
#include <cstdio>

#include "base/fixed_text.h"
#include "base/numbers.h"
#include "dbmanager/earth.h"
#include "navdata/file_records.h"

namespace {

constexpr double zoneRadiusNM = 5;
constexpr double zoneHeightFeet = 2500;
constexpr int zonePoints = 36;
constexpr std::size_t mostPoints = 32767;

void AddAirspace(AirspaceFileRecord record, const std::vector<SourcePosition>& points, AirspaceFile& file) {
  const std::size_t step = points.size() / (mostPoints + 1) + 1;
  const std::size_t count = (points.size() + step - 1) / step;
  record.intPoints = static_cast<std::int16_t>(count);
  AppendRecord(file.bytes, record);
  const auto add = [&](SourcePosition p) {
    AppendRecord(file.bytes, PointFileRecord{static_cast<float>(p.lat), static_cast<float>(p.lon)});
  };
  for (std::size_t i = 0; i < points.size(); i += step)
    add(points[i]);
  add(points.front());  // closed
  ++file.airspaces;
}

// The middle of the outline's bounds, counted from its first point so that it
// holds across the date line too.
SourcePosition MiddleOf(const std::vector<SourcePosition>& points) {
  double south = 90, north = -90, west = 0, east = 0;
  for (const SourcePosition p : points) {
    const double step = WrapLon(p.lon - points.front().lon);
    south = std::min(south, p.lat);
    north = std::max(north, p.lat);
    west = std::min(west, step);
    east = std::max(east, step);
  }
  return {(south + north) / 2, WrapLon(points.front().lon + (west + east) / 2)};
}

// Without the inner blanks if it is too long with them.
std::string LimitText(const std::string& text, std::size_t width) {
  if (text.size() <= width) return text;
  std::string tight;
  for (const char c : text) {
    if (c != ' ') tight += c;
  }
  return tight;
}

bool IsOneOf(std::string_view word, std::initializer_list<std::string_view> words) {
  return std::find(words.begin(), words.end(), word) != words.end();
}

}  // namespace

AirspaceKind AirspaceKindOf(const SourceAirspace& airspace) {
  const std::string& kind = airspace.type.empty() ? airspace.airspaceClass : airspace.type;
  if (IsOneOf(kind, {"CTR", "ATZ", "MATZ", "D"})) return AirspaceKind::controlZone;
  if (IsOneOf(kind, {"R", "Q", "P", "DANGER", "PROHIBITED", "RESTRICTED", "TRA", "TSA", "MTA", "MOA"})) {
    return AirspaceKind::restricted;
  }
  if (IsOneOf(kind, {"TMA", "CTA", "TMZ", "RMZ"}) ||
      IsOneOf(airspace.airspaceClass, {"A", "B", "C", "D", "E"})) {
    return AirspaceKind::controlled;
  }
  return AirspaceKind::other;
}

AirspaceFile MakeAirspaceFile(std::span<const SourceAirspace> airspaces) {
  AirspaceFile file;
  for (const SourceAirspace& airspace : airspaces) {
    const SourcePosition middle = MiddleOf(airspace.points);
    AirspaceFileRecord record;
    record.intType = static_cast<std::int16_t>(AirspaceKindOf(airspace));
    record.strName = airspace.name;
    record.strName2 = airspace.type;
    record.strUnit1 = airspace.frequency;
    record.strClass = airspace.airspaceClass;
    record.strUpper = LimitText(airspace.upper, 10);
    record.strLower = LimitText(airspace.lower, 9);
    record.sngLat = static_cast<float>(middle.lat);
    record.sngLon = static_cast<float>(middle.lon);
    AddAirspace(record, airspace.points, file);
  }
  return file;
}

AirspaceFile MakeControlZones(std::span<const AirportPlace> places) {
  AirspaceFile file;
  for (const AirportPlace& place : places) {
    if (!place.towered) continue;
    std::vector<SourcePosition> circle;
    circle.reserve(zonePoints);
    for (int i = 0; i < zonePoints; ++i) {
      circle.push_back(Offset(place.position, 360.0 * i / zonePoints, zoneRadiusNM));
    }
    AirspaceFileRecord record;
    record.intType = static_cast<std::int16_t>(AirspaceKind::controlZone);
    record.strCode = place.code;
    record.strName = place.name;
    record.strName2 = "approximate";
    record.strUnit1 = place.towerFrequency;
    record.strClass = "D";
    record.strUpper = std::to_string(RoundToEven((place.elevation + zoneHeightFeet) / 100) * 100) + " ft";
    record.strLower = "GND";
    record.sngLat = static_cast<float>(place.position.lat);
    record.sngLon = static_cast<float>(place.position.lon);
    AddAirspace(record, circle, file);
  }
  return file;
}
