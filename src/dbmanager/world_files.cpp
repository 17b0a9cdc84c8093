#include "dbmanager/world_files.h"

#include <algorithm>
#include <cmath>

#include "dbmanager/earth.h"
#include "navdata/file_records.h"

namespace {

enum Kind : std::uint8_t { land = 1, border = 2, hole = 3 };

struct Bounds {
  double west, south, east, north;
};

Bounds BoundsOf(const OutlineRing& points) {
  const auto [west, east] = std::minmax_element(
      points.begin(), points.end(), [](SourcePosition a, SourcePosition b) { return a.lon < b.lon; });
  const auto [south, north] = std::minmax_element(
      points.begin(), points.end(), [](SourcePosition a, SourcePosition b) { return a.lat < b.lat; });
  return {west->lon, south->lat, east->lon, north->lat};
}

bool Contains(const OutlineRing& ring, SourcePosition p) {
  bool inside = false;
  for (std::size_t i = 0; i + 1 < ring.size(); ++i) {
    const SourcePosition a = ring[i], b = ring[i + 1];
    if ((a.lat > p.lat) == (b.lat > p.lat)) continue;
    if (p.lon < a.lon + (b.lon - a.lon) * (p.lat - a.lat) / (b.lat - a.lat)) inside = !inside;
  }
  return inside;
}

void AddShape(const OutlineRing& points, Kind kind, WorldFile& file) {
  if (points.size() < 2) return;
  ++file.shapes;
  WorldShapeFileRecord record;
  record.lngID = static_cast<std::int32_t>(file.shapes);
  // Readers stop behind a polygon of this number.
  if (kind != border && record.lngID >= lastWorldPolygonID) ++record.lngID;
  record.bytType = kind;
  record.lngPoints = static_cast<std::int32_t>(points.size()) - 1;
  const Bounds bounds = BoundsOf(points);
  record.sngBox1 = static_cast<float>(bounds.west);
  record.sngBox2 = static_cast<float>(bounds.south);
  record.sngBox3 = static_cast<float>(bounds.east);
  record.sngBox4 = static_cast<float>(bounds.north);
  AppendRecord(file.bytes, record);
  for (const SourcePosition point : points) {
    AppendRecord(file.bytes, PointFileRecord{static_cast<float>(point.lat), static_cast<float>(point.lon)});
  }
  file.points += points.size();
}

SourcePosition Crossing(SourcePosition a, SourcePosition b, double lon) {
  const double t = (lon - a.lon) / (b.lon - a.lon);
  return {a.lat + (b.lat - a.lat) * t, lon};
}

// The part of a closed ring east of lon (or west of it), closed.
OutlineRing Half(const OutlineRing& ring, double lon, bool east) {
  const auto inside = [&](SourcePosition p) { return east ? p.lon >= lon : p.lon <= lon; };
  OutlineRing part;
  for (std::size_t i = 0; i + 1 < ring.size(); ++i) {
    const SourcePosition a = ring[i], b = ring[i + 1];
    if (inside(a)) part.push_back(a);
    if (inside(a) != inside(b)) part.push_back(Crossing(a, b, lon));
  }
  if (!part.empty()) part.push_back(part.front());
  return part;
}

// More than a line along the cut.
bool HasArea(const OutlineRing& ring) {
  double area = 0;
  for (std::size_t i = 0; i + 1 < ring.size(); ++i) {
    area += ring[i].lon * ring[i + 1].lat - ring[i + 1].lon * ring[i].lat;
  }
  return ring.size() >= 4 && std::abs(area) > 1e-9;
}

// A ring that goes once around the globe is closed along its pole.
void CloseAroundPole(OutlineRing& ring) {
  if (std::abs(ring.back().lon - ring.front().lon) < 180) return;
  double sum = 0;
  for (const SourcePosition point : ring)
    sum += point.lat;
  const double pole = sum < 0 ? -90 : 90;
  const SourcePosition first = ring.front();
  ring.push_back({pole, ring.back().lon});
  ring.push_back({pole, first.lon});
  ring.push_back(first);
}

}  // namespace

OutlineRing Unwrapped(const OutlineRing& ring) {
  OutlineRing result = ring;
  for (std::size_t i = 1; i < result.size(); ++i) {
    result[i].lon = result[i - 1].lon + WrapLon(ring[i].lon - ring[i - 1].lon);
  }
  return result;
}

std::vector<OutlineRing> SplitAtDateLine(const OutlineRing& ring) {
  if (ring.size() < 3) return {};
  OutlineRing whole = Unwrapped(ring);
  CloseAroundPole(whole);
  const Bounds bounds = BoundsOf(whole);
  const double first = std::floor((bounds.west + 180) / 360), last = std::floor((bounds.east + 180) / 360);
  std::vector<OutlineRing> parts;
  for (double turn = first; turn <= last; ++turn) {
    OutlineRing part = Half(Half(whole, turn * 360 - 180, true), turn * 360 + 180, false);
    if (!HasArea(part)) continue;
    for (SourcePosition& point : part)
      point.lon -= turn * 360;
    parts.push_back(std::move(part));
  }
  return parts;
}

WorldFile MakeWorldPolygons(const Outlines& outlines) {
  WorldFile file;
  for (const OutlineObject& object : outlines.objects) {
    for (const OutlinePolygon& polygon : object.polygons) {
      for (std::size_t i = 0; i < polygon.rings.size(); ++i) {
        for (const OutlineRing& part : SplitAtDateLine(polygon.rings[i]))
          AddShape(part, i == 0 ? land : hole, file);
      }
    }
  }
  return file;
}

WorldFile MakeWorldLines(const Outlines& countries) {
  WorldFile file;
  for (const OutlineRing& arc : countries.sharedArcs) {
    // A border that meets the date line goes on as a shape of its own behind it.
    OutlineRing piece;
    for (const SourcePosition point : arc) {
      if (!piece.empty() && std::abs(point.lon - piece.back().lon) > 180) {
        AddShape(piece, border, file);
        piece.clear();
      }
      piece.push_back(point);
    }
    AddShape(piece, border, file);
  }
  return file;
}

CountryOutlines::CountryOutlines(const Outlines& outlines) {
  for (const OutlineObject& object : outlines.objects) {
    const Country* country = FindCountryByNumber(object.id);
    if (country == nullptr) country = FindCountryByName(object.name);
    if (country == nullptr) continue;
    for (const OutlinePolygon& polygon : object.polygons) {
      if (polygon.rings.empty() || polygon.rings[0].empty()) continue;
      Area area{country, {}, 0, 0, 0, 0};
      for (const OutlineRing& ring : polygon.rings) {
        area.rings.push_back(Unwrapped(ring));
        CloseAroundPole(area.rings.back());
      }
      const Bounds bounds = BoundsOf(area.rings[0]);
      area.south = bounds.south;
      area.north = bounds.north;
      area.west = bounds.west;
      area.east = bounds.east;
      areas.push_back(std::move(area));
    }
  }
}

const Country* CountryOutlines::At(SourcePosition position) const {
  for (const Area& area : areas) {
    if (position.lat < area.south || position.lat > area.north) continue;
    for (const double lon : {position.lon - 360, position.lon, position.lon + 360}) {
      if (lon < area.west || lon > area.east) continue;
      bool inside = false;  // even-odd: a hole turns inside to outside
      for (const OutlineRing& ring : area.rings) {
        if (Contains(ring, {position.lat, lon})) inside = !inside;
      }
      if (inside) return area.country;
    }
  }
  return nullptr;
}

const Country* CountryOutlines::Near(SourcePosition position) const {
  if (const Country* country = At(position)) return country;
  for (const double miles : {3.0, 6.0, 12.0, 20.0, 30.0}) {
    for (int course = 0; course < 360; course += 45) {
      if (const Country* country = At(Offset(position, course, miles))) return country;
    }
  }
  return nullptr;
}
