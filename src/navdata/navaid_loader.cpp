#include "navdata/navaid_loader.h"

#include "base/numbers.h"
#include "navdata/file_records.h"
#include "navdata/nav_database.h"
#include "navdata/record_stream.h"

namespace {

std::string_view VorTypeName(std::int16_t type) {
  switch (type) {
    case 2:
      return "VORTAC";
    case 3:
      return "TACAN";
    case 4:
      return "VOR-DME";
    case 9:
      return "DME";
    default:
      return "VOR";
  }
}

// "L" low, "H" high, "B" both: the file's letter corrected by what links there are.
char CorrectedAirwayType(char stated, bool low, bool high) {
  switch (stated) {
    case 'B':
      return 'B';
    case 'L':
      return high ? 'B' : 'L';
    case 'H':
      return low ? 'B' : 'H';
    default:
      if (low && high) return 'B';
      if (low) return 'L';
      return high ? 'H' : ' ';
  }
}

// Appends the whole connections among the next count ones. False if the file
// ends before.
bool ReadConnections(ByteReader& reader, std::uint8_t& count, std::vector<ConnectionRec>& table) {
  for (std::uint8_t i = 0; i < count; ++i) {
    ConnectionFileRecord record;
    if (!reader.ReadRecord(record)) {
      count = i;
      return false;
    }
    table.push_back(
        {record.lngNext, record.strAirway, record.sngDistance, record.strMinAlt, record.strMaxAlt});
  }
  return true;
}

IntersectionRec ToRow(const IntersectionFileRecord& record, const MagneticVariationGrid& variation) {
  IntersectionRec row;
  row.strRegion = record.strRegion;
  row.strCode = record.strCode.Raw();
  row.strName = record.strName;
  row.sngUnused = record.sngUnused;
  row.sngLat = record.sngLat;
  row.sngLon = record.sngLon;
  row.sngMagVar = variation.MagVarLookup(record.sngLat, record.sngLon);
  row.bytLowAlt = record.bytLowAlt;
  row.bytHighAlt = record.bytHighAlt;
  row.strFlag = record.strFlag;
  return row;
}

}  // namespace

bool ParseVors(std::span<const std::byte> bytes, NavDatabase& database) {
  database.vors.reserve(bytes.size() / RecordSize<VorFileRecord>() + 1);
  return ParseRecords<VorFileRecord>(bytes, [&](const VorFileRecord& record) {
    if (record.strCode.IsEmptySlot()) return;
    database.vors.push_back(
        {record.strCode, record.strName, record.sngLat, record.sngLon, record.sngFrequency,
         database.magneticVariation.MagVarLookup(record.sngLat, record.sngLon), record.sngElevation,
         record.intType, record.intRange, record.intClass, FixedText<8>(VorTypeName(record.intType))});
  });
}

bool ParseNdbs(std::span<const std::byte> bytes, NavDatabase& database) {
  database.ndbs.reserve(bytes.size() / RecordSize<NdbFileRecord>() + 1);
  return ParseRecords<NdbFileRecord>(bytes, [&](const NdbFileRecord& record) {
    if (record.strCode.IsEmptySlot()) return;
    const bool hasDme = Val(record.strClass.Raw()) == 7;
    database.ndbs.push_back({record.strCode, record.strName, record.sngLat, record.sngLon,
                             record.sngFrequency,
                             database.magneticVariation.MagVarLookup(record.sngLat, record.sngLon),
                             record.sngElevation, FixedText<8>(hasDme ? "NDB-DME" : "NDB")});
  });
}

bool ParseFixes(std::span<const std::byte> bytes, NavDatabase& database) {
  database.fixes.reserve(bytes.size() / RecordSize<FixFileRecord>() + 1);
  return ParseRecords<FixFileRecord>(bytes, [&](const FixFileRecord& record) {
    if (record.strRegion.IsEmptySlot()) return;
    database.fixes.push_back({record.strRegion, record.strCode, record.strName, record.sngLat, record.sngLon,
                              database.magneticVariation.MagVarLookup(record.sngLat, record.sngLon)});
  });
}

bool ParseIntersections(std::span<const std::byte> bytes, NavDatabase& database) {
  database.intersections.resize(NavDatabase::intersectionRows);
  ByteReader reader(bytes);
  bool complete = true;
  while (!reader.AtEnd()) {
    IntersectionFileRecord record;
    if (!reader.ReadRecord(record)) return false;
    IntersectionRec row = ToRow(record, database.magneticVariation);
    row.firstLowAlt = static_cast<std::uint32_t>(database.lowConnections.size());
    row.firstHighAlt = static_cast<std::uint32_t>(database.highConnections.size());
    if (!ReadConnections(reader, row.bytLowAlt, database.lowConnections)) {
      row.bytHighAlt = 0;
      complete = false;
    } else if (!ReadConnections(reader, row.bytHighAlt, database.highConnections)) {
      complete = false;
    }
    const char letter =
        CorrectedAirwayType(record.strAirwayType.characters[0], row.bytLowAlt > 0, row.bytHighAlt > 0);
    row.strAirwayType.characters[0] = letter;
    if (record.strRegion.IsEmptySlot()) continue;
    if (record.lngIndex < 0 || record.lngIndex >= NavDatabase::intersectionRows) {
      complete = false;
      continue;
    }
    database.intersections[static_cast<std::size_t>(record.lngIndex)] = row;
    database.lngIntersections = record.lngIndex;
  }
  return complete;
}
