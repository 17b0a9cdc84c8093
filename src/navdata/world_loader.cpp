#include "navdata/world_loader.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <optional>

#include "base/numbers.h"
#include "navdata/file_records.h"
#include "navdata/record_stream.h"

namespace {

// Appends count points, or none and false if the file has fewer.
bool ReadPoints(ByteReader& reader, std::int64_t count, std::vector<Position>& points) {
  constexpr std::size_t size = RecordSize<PointFileRecord>();
  const auto wanted = static_cast<std::size_t>(std::max<std::int64_t>(0, count));
  if (wanted > reader.Remaining() / size) return false;
  points.reserve(std::max(points.capacity(), points.size() + wanted));
  for (std::size_t i = 0; i < wanted; ++i) {
    PointFileRecord point;
    reader.ReadRecord(point);
    points.push_back({point.sngLat, point.sngLon});
  }
  return true;
}

FixedText<5> CleanLimit(const FixedText<5>& limit) {
  const std::string_view cleaned = CleanLevel(limit.Raw());
  return FixedText<5>(Trimmed(cleaned).empty() ? "n/a" : cleaned);
}

bool ParseWorldShapes(std::span<const std::byte> bytes, WorldShapes& table,
                      std::optional<std::int32_t> lastID) {
  ByteReader reader(bytes);
  table.points.reserve(bytes.size() / RecordSize<PointFileRecord>());
  while (!reader.AtEnd()) {
    WorldShapeFileRecord record;
    if (!reader.ReadRecord(record)) return false;
    WorldShapeRec shape{
        record.lngID, record.bytType, record.sngBox1, record.sngBox2, record.sngBox3, record.sngBox4, 0, 0};
    shape.firstPoint = static_cast<std::uint32_t>(table.points.size());
    if (!ReadPoints(reader, std::int64_t{record.lngPoints} + 1, table.points)) return false;
    shape.pointCount = static_cast<std::uint32_t>(table.points.size() - shape.firstPoint);
    table.shapes.push_back(shape);
    if (lastID && record.lngID == *lastID) break;
  }
  return true;
}

std::optional<UserWaypointRec> ParseUserWaypoint(std::string_view line) {
  std::array<std::string_view, 4> fields;
  for (std::size_t i = 0; i < fields.size(); ++i) {
    const std::size_t end = line.find(';');
    if (end == std::string_view::npos && i + 1 < fields.size()) return std::nullopt;
    fields[i] = Trimmed(line.substr(0, end));
    line.remove_prefix(end == std::string_view::npos ? line.size() : end + 1);
  }
  const double lat = Val(fields[2]);
  const double lon = Val(fields[3]);
  if (fields[0].empty() || fields[2].empty() || fields[3].empty() || std::fabs(lat) > 90 ||
      std::fabs(lon) > 180) {
    return std::nullopt;
  }
  return UserWaypointRec{FixedText<10>(fields[0]), FixedText<40>(fields[1]), static_cast<float>(lat),
                         static_cast<float>(lon), 0};
}

}  // namespace

std::string_view CleanLevel(std::string_view limit) {
  std::string_view text = Trimmed(limit);
  if (text.starts_with('0')) text.remove_prefix(1);
  return text;
}

bool ParseTaxiways(std::span<const std::byte> bytes, std::vector<TaxiRec>& table) {
  table.reserve(bytes.size() / RecordSize<TaxiFileRecord>());
  return ParseRecords<TaxiFileRecord>(bytes, [&](const TaxiFileRecord& record) {
    if (record.strName.IsEmptySlot() || record.sngLat2 == 0 || record.sngLon2 == 0) return;
    table.push_back({record.sngLat1, record.sngLon1, record.sngLat2, record.sngLon2, record.strName,
                     static_cast<std::uint8_t>(record.intWidth), record.strType});
  });
}

bool ParsePolygons(std::span<const std::byte> bytes, std::vector<PolygonRec>& table) {
  table.reserve(bytes.size() / RecordSize<PolygonFileRecord>());
  return ParseRecords<PolygonFileRecord>(bytes, [&](const PolygonFileRecord& record) {
    if (record.strFlag.IsEmptySlot()) return;
    table.push_back({record.strFlag, record.sngLat, record.sngLon, record.sngValue});
  });
}

bool ParseMarkers(std::span<const std::byte> bytes, std::vector<MarkerRec>& table) {
  return ParseRecords<MarkerFileRecord>(bytes, [&](const MarkerFileRecord& record) {
    if (record.strCode.IsEmptySlot()) return;
    table.push_back({record.strCode, record.sngLat, record.sngLon, record.sngCourse});
  });
}

bool ParseMsa(std::span<const std::byte> bytes, std::vector<MsaRec>& table) {
  return ParseRecords<MsaFileRecord>(bytes, [&](const MsaFileRecord& record) {
    if (record.strIdent.IsEmptySlot()) return;
    table.push_back({record.strName, record.strCode, record.numbers, record.strIdent});
  });
}

bool ParseAirways(std::span<const std::byte> bytes, std::vector<AirwaySegmentRec>& table) {
  table.reserve(bytes.size() / RecordSize<AirwaySegmentFileRecord>());
  return ParseRecords<AirwaySegmentFileRecord>(bytes, [&](const AirwaySegmentFileRecord& record) {
    if (record.strName.IsEmptySlot() || record.lngTo == -1) return;
    table.push_back({FixedText<8>(record.strName.View()), record.lngFrom, record.lngTo, record.sngLength,
                     CleanLimit(record.strUpper), CleanLimit(record.strLower)});
  });
}

bool ParseAirspaces(std::span<const std::byte> bytes, std::vector<AirspaceRec>& table) {
  ByteReader reader(bytes);
  while (!reader.AtEnd()) {
    AirspaceFileRecord record;
    if (!reader.ReadRecord(record)) return false;
    AirspaceRec row{record.intType,
                    record.strCode,
                    record.strName,
                    record.strName2,
                    record.strUnit1,
                    record.strUnit2,
                    record.strClass,
                    record.strClass2,
                    FixedText<10>(CleanLevel(record.strUpper.Raw())),
                    FixedText<9>(CleanLevel(record.strLower.Raw())),
                    record.sngLat,
                    record.sngLon,
                    {}};
    if (!ReadPoints(reader, std::int64_t{record.intPoints} + 1, row.points)) return false;
    if (!record.strCode.IsEmptySlot()) table.push_back(std::move(row));
  }
  return true;
}

bool ParseWorldPolygons(std::span<const std::byte> bytes, WorldShapes& table) {
  return ParseWorldShapes(bytes, table, lastWorldPolygonID);
}

bool ParseWorldLines(std::span<const std::byte> bytes, WorldShapes& table) {
  return ParseWorldShapes(bytes, table, std::nullopt);
}

bool ParseUserWaypoints(std::string_view text, const MagneticVariationGrid& variation,
                        std::vector<UserWaypointRec>& table) {
  bool complete = true;
  bool first = true;
  while (!text.empty()) {
    const std::size_t end = std::min(text.find('\n'), text.size());
    std::string_view line = text.substr(0, end);
    text.remove_prefix(std::min(end + 1, text.size()));
    while (!line.empty() && (line.back() == '\r' || line.back() == ' '))
      line.remove_suffix(1);
    if (first && line != "VLMUSERDB") return false;
    if (!first && !line.empty() && !line.starts_with('#')) {
      auto row = ParseUserWaypoint(line);
      if (row) {
        row->sngMagVar = variation.MagVarLookup(row->sngLat, row->sngLon);
        table.push_back(*row);
      } else {
        complete = false;
      }
    }
    first = false;
  }
  return complete;
}
