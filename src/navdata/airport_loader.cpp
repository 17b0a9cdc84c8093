#include "navdata/airport_loader.h"

#include <algorithm>

#include "base/numbers.h"
#include "navdata/file_records.h"
#include "navdata/record_stream.h"

namespace {

// A lookup text file: an i32 count, then records into rows 0 to count. A
// record that no longer fits is lost.
template <class Record, class Store>
bool ParseCounted(std::span<const std::byte> bytes, std::size_t& rowsUsed, const Store& store) {
  ByteReader reader(bytes);
  std::int32_t count = 0;
  rowsUsed = 0;
  if (!reader.ReadValue(count)) return false;
  const auto capacity = static_cast<std::size_t>(std::max<std::int64_t>(0, std::int64_t{count} + 1));
  bool complete = true;
  while (!reader.AtEnd()) {
    Record record;
    if (!reader.ReadRecord(record)) return false;
    const char firstCharacter = *reinterpret_cast<const char*>(&record);
    if (firstCharacter == '\0') continue;
    if (rowsUsed >= capacity) {
      complete = false;
      continue;
    }
    store(record);
    ++rowsUsed;
  }
  return complete;
}

FixedText<5> ShownRunwayName(const FixedText<5>& code) {
  if (Val(code.Raw().substr(0, 2)) <= 36) return code;
  return FixedText<5>(GetRwyName(code.Raw().substr(0, 2)));
}

RunwayRec ToRow(const RunwayFileRecord& record) {
  RunwayRec row;
  row.strRwyID = ShownRunwayName(record.strRwyID);
  row.strRwyIDRecip = ShownRunwayName(record.strRwyIDRecip);
  row.sngLat = record.sngLat;
  row.sngLon = record.sngLon;
  row.sngHeading = record.sngHeading;
  row.sngAltitude = record.sngAltitude;
  row.intLength = record.intLength;
  row.intWidth = record.intWidth;
  row.bytSurface = static_cast<std::uint8_t>(record.intSurface);
  row.strIlsCode = record.strIlsCode;
  row.strIlsCodeRecip = record.strIlsCodeRecip;
  row.strType = record.strType;
  return row;
}

FrequencyRec ToRow(const FrequencyFileRecord& record) {
  return {record.strCode,      FixedText<30>(record.strName.Raw()),
          record.sngLat,       record.sngLon,
          record.sngFrequency, record.bytType};
}

ParkingRec ToRow(const ParkingFileRecord& record) {
  return {record.strCode, record.sngLat,  record.sngLon,   record.sngRadius,
          record.lngType, record.lngName, record.lngNumber};
}

IlsRec ToRow(const IlsFileRecord& record) {
  IlsRec row;
  row.strCode = record.strCode;
  row.strName = record.strName;
  row.strAirport = record.strAirport;
  row.sngLat = record.sngLat;
  row.sngLon = record.sngLon;
  row.sngAltitude = record.sngAltitude;
  row.sngRange = record.sngRange;
  row.sngMagVar = record.sngMagVar;
  row.sngFrequency = record.sngFrequency;
  row.sngCourse = record.sngCourse;
  row.sngILSGlideAngle = record.sngILSGlideAngle;
  row.strBglFile = record.strBglFile;
  row.strRwyID = record.strRwyID;
  row.strType = record.strType;
  return row;
}

// Reads up to count sub-records into the shared table. Returns how many whole
// ones there were.
template <class Record, class Row>
std::int32_t ReadSubTable(ByteReader& reader, std::int32_t count, std::vector<Row>& table) {
  std::int32_t read = 0;
  for (; read < count; ++read) {
    Record record;
    if (!reader.ReadRecord(record)) break;
    table.push_back(ToRow(record));
  }
  return read;
}

class AirportFile {
 public:
  AirportFile(std::span<const std::byte> bytes, NavDatabase& database) : reader(bytes), database(database) {}

  bool Read() {
    std::int32_t count = 0;
    if (!reader.ReadValue(count)) return false;
    const std::size_t possible = reader.Remaining() / RecordSize<AirportFileRecord>();
    const std::size_t stated = static_cast<std::size_t>(std::max(count, 0));
    database.airports.resize(std::min(stated, possible) + spareRows);
    while (!reader.AtEnd() && ReadAirport()) {
    }
    AppendPseudoAirports();
    return complete;
  }

 private:
  static constexpr std::size_t spareRows = 50;

  // False at the end of what can be read.
  bool ReadAirport() {
    AirportFileRecord record;
    if (!reader.ReadRecord(record)) {
      complete = false;
      return false;
    }
    if (record.lngIndex < previousIndex && record.sngLat == 0 && record.sngLon == 0 && record.lngIndex == 0) {
      record.lngIndex = -1;
    }
    if (record.lngIndex < 0) return true;
    previousIndex = record.lngIndex;
    AirportRec row = ToAirport(record);
    ReadSubTables(record, row);
    const auto index = static_cast<std::size_t>(record.lngIndex);
    if (record.strCode.IsEmptySlot()) return true;
    if (index >= database.airports.size()) {
      complete = false;
      return true;
    }
    database.airports[index] = row;
    ++rowsStored;
    return true;
  }

  AirportRec ToAirport(const AirportFileRecord& record) const {
    AirportRec row;
    row.strCode = record.strCode.View();
    row.strName = record.strName.View();
    row.strCity = record.strCity.View();
    row.strState = record.strState.View();
    row.strCountry = record.strCountry.View();
    row.sngLat = record.sngLat;
    row.sngLon = record.sngLon;
    row.sngAltitude = record.sngAltitude;
    row.lngElevation = record.lngElevation;
    row.strBglFile = record.strBglFile;
    row.sngMagVar = database.magneticVariation.MagVarLookup(row.sngLat, row.sngLon);
    return row;
  }

  void ReadSubTables(const AirportFileRecord& record, AirportRec& row) {
    row.firstRunway = static_cast<std::uint32_t>(database.runways.size());
    row.lngRunways = ReadSubTable<RunwayFileRecord>(reader, record.lngRunways, database.runways);
    row.firstFrequency = static_cast<std::uint32_t>(database.frequencies.size());
    row.lngFrequencies =
        ReadSubTable<FrequencyFileRecord>(reader, record.lngFrequencies, database.frequencies);
    row.firstParking = static_cast<std::uint32_t>(database.parkings.size());
    row.lngParkings = ReadSubTable<ParkingFileRecord>(reader, record.lngParkings, database.parkings);
    row.firstIls = static_cast<std::uint32_t>(database.ils.size());
    row.lngIls = ReadSubTable<IlsFileRecord>(reader, record.lngIls, database.ils);
    const auto wanted = [](std::int32_t count) { return std::max(count, 0); };
    if (row.lngRunways != wanted(record.lngRunways) || row.lngFrequencies != wanted(record.lngFrequencies) ||
        row.lngParkings != wanted(record.lngParkings) || row.lngIls != wanted(record.lngIls)) {
      complete = false;
    }
  }

  // "AFIL" counts as an airport; the two "ZZZZ" rows lie beyond the counter.
  void AppendPseudoAirports() {
    const std::size_t behindLast = rowsStored;
    if (database.airports.size() < behindLast + 3) database.airports.resize(behindLast + 3);
    const auto pseudo = [this](std::size_t at, std::string_view code, std::string_view name) {
      database.airports[at] = AirportRec{};
      database.airports[at].strCode = code;
      database.airports[at].strName = name;
    };
    pseudo(behindLast, "AFIL", "from current location");
    pseudo(behindLast + 1, "ZZZZ", "from arbitrary location");
    pseudo(behindLast + 2, "ZZZZ", "to arbitrary location");
    database.lngAirports = static_cast<std::int32_t>(behindLast);
  }

  ByteReader reader;
  NavDatabase& database;
  std::int32_t previousIndex = -1;
  std::size_t rowsStored = 0;
  bool complete = true;
};

}  // namespace

bool ParseRegions(std::span<const std::byte> bytes, NavDatabase& database) {
  std::size_t rows = 0;
  return ParseCounted<RegionFileRecord>(bytes, rows, [&](const RegionFileRecord& record) {
    database.regions.emplace_back(record.strRegion.View());
  });
}

bool ParseCountries(std::span<const std::byte> bytes, NavDatabase& database) {
  std::size_t rows = 0;
  return ParseCounted<CountryFileRecord>(bytes, rows, [&](const CountryFileRecord& record) {
    database.countries.push_back(
        {FixedText<40>(record.strCountry.View()), FixedText<30>(record.strRegion.View())});
  });
}

bool ParseStates(std::span<const std::byte> bytes, NavDatabase& database) {
  std::size_t rows = 0;
  return ParseCounted<StateFileRecord>(bytes, rows, [&](const StateFileRecord& record) {
    database.states.push_back(
        {FixedText<40>(record.strState.View()), FixedText<40>(record.strCountry.View())});
  });
}

bool ParseCities(std::span<const std::byte> bytes, NavDatabase& database) {
  std::size_t rows = 0;
  return ParseCounted<CityFileRecord>(bytes, rows, [&](const CityFileRecord& record) {
    database.cities.push_back({FixedText<40>(record.strCity.View()), FixedText<40>(record.strState.View()),
                               FixedText<40>(record.strCountry.View())});
  });
}

bool ParseAirports(std::span<const std::byte> bytes, NavDatabase& database) {
  return AirportFile(bytes, database).Read();
}

bool ParsePendingIls(std::span<const std::byte> bytes, NavDatabase& database) {
  return ParseRecords<IlsFileRecord>(bytes, [&](const IlsFileRecord& record) {
    if (record.strCode.IsEmptySlot()) return;
    IlsRec row = ToRow(record);
    row.strAirport = "#";
    row.strRwyID = "N/A";
    database.pendingIls.push_back(row);
  });
}

LoadResult ReadAirports(const DatabaseLocation& location, LoadListener& listener, NavDatabase& database) {
  struct Step {
    std::string_view name;
    bool (*parse)(std::span<const std::byte>, NavDatabase&);
  };
  static constexpr Step steps[] = {{"region.vlm", ParseRegions},
                                   {"country.vlm", ParseCountries},
                                   {"state.vlm", ParseStates},
                                   {"city.vlm", ParseCities},
                                   {"airport.vlm", ParseAirports}};
  LoadResult result;
  for (const Step& step : steps) {
    const DatabaseFile file = OpenDatabaseFile(location, location.versionFolder, step.name);
    listener.WriteInfoLog(file.SizeLine());
    if (file.IsEmpty()) {
      result.successful = false;
      result.emptyFile = file.SpacedName();
      return result;
    }
    if (step.parse == ParseAirports) listener.ShowProgress("...loading airports" + location.versionText);
    if (!step.parse(file.Bytes(), database)) result.successful = false;
  }
  return result;
}

bool ReadPendingIls(const DatabaseLocation& location, LoadListener& listener, NavDatabase& database) {
  database.pendingIls.clear();
  const DatabaseFile file = OpenDatabaseFile(location, location.versionFolder, "ils.vlm");
  if (file.IsEmpty()) {
    listener.WriteInfoLog(file.name + " no pending ILS exist");
    return true;
  }
  listener.WriteInfoLog(file.SizeLine());
  return ParsePendingIls(file.Bytes(), database);
}
