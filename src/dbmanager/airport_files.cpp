#include "dbmanager/airport_files.h"

#include <algorithm>
#include <cmath>
#include <map>
#include <set>
#include <tuple>
#include <unordered_map>

#include "base/code_page.h"
#include "base/numbers.h"
#include "dbmanager/earth.h"
#include "navdata/file_records.h"
#include "navdata/geodesy.h"

namespace {

constexpr double feetPerMetre = 1 / metresPerFoot;

std::int16_t FeetField(double feet) {
  return static_cast<std::int16_t>(std::clamp(RoundToEven(feet), 0, 32767));
}

bool Has(std::string_view text, std::string_view word) {
  return text.find(word) != std::string_view::npos;
}

SourcePosition RunwayCentre(const SourceRunway& runway) {
  return runway.kind == RunwayKind::helipad ? runway.ends[0].position
                                            : Midpoint(runway.ends[0].position, runway.ends[1].position);
}

char IlsTypeOf(const SourceLocalizer& localizer) {
  const std::string kind = AsciiUpper(std::string_view(localizer.kind));
  if (kind.ends_with("-III")) return '3';
  if (kind.ends_with("-II")) return '2';
  if (kind.ends_with("-I")) return '1';
  return kind.empty() ? 'L' : kind.front();
}

// A list file: the count, then the records.
template <class Records>
std::vector<std::byte> ListFile(const Records& records) {
  std::vector<std::byte> bytes;
  AppendValue(bytes, static_cast<std::int32_t>(records.size()));
  for (const auto& record : records)
    AppendRecord(bytes, record);
  return bytes;
}

class AirportFilesMaker {
 public:
  AirportFilesMaker(std::span<const SourceLocalizer> localizers, const std::string& sourceName,
                    const VariationAt& variationAt, const CountryAt& countryAt, Rejects& rejects)
      : localizers(localizers),
        sourceName(sourceName),
        variationAt(variationAt),
        countryAt(countryAt),
        rejects(rejects) {
    for (std::size_t i = 0; i < localizers.size(); ++i)
      localizersOf[localizers[i].airport].push_back(i);
    AppendValue(files.airport, std::int32_t{0});
  }

  AirportFiles Make(std::span<const SourceAirport> airports) {
    for (const SourceAirport& airport : airports)
      Add(airport);
    const auto count = static_cast<std::int32_t>(files.places.size());
    std::memcpy(files.airport.data(), &count, sizeof(count));
    AddPendingIls();
    MakeLists();
    return std::move(files);
  }

 private:
  void Add(const SourceAirport& airport) {
    const auto position = ReferencePoint(airport);
    if (!position) {
      rejects.Add(sourceName, airport.line, "airport " + airport.code + " has no position");
      return;
    }
    const std::vector<std::size_t>* ils = nullptr;
    // The ILS of a code belong to the first airport that has it.
    if (const auto found = localizersOf.find(airport.code);
        found != localizersOf.end() && !found->second.empty()) {
      if (assigned.insert(airport.code).second) ils = &found->second;
    }
    AppendRecord(files.airport, HeaderOf(airport, *position, ils != nullptr ? ils->size() : 0));
    for (const SourceRunway& runway : airport.runways)
      AppendRecord(files.airport, RunwayOf(airport, runway, ils));
    for (const SourceFrequency& frequency : airport.frequencies) {
      AppendRecord(files.airport, FrequencyOf(airport, *position, frequency));
    }
    for (const SourceStart& start : airport.starts)
      AppendRecord(files.airport, ParkingOf(airport, start));
    if (ils != nullptr) {
      for (const std::size_t i : *ils) {
        AppendRecord(files.airport, IlsOf(localizers[i], static_cast<std::int32_t>(files.places.size())));
      }
      files.airportIls += ils->size();
    }
    const auto tower = std::find_if(airport.frequencies.begin(), airport.frequencies.end(),
                                    [](const SourceFrequency& f) { return f.kind == 54; });
    const bool towered = tower != airport.frequencies.end();
    files.places.push_back({FixedText<5>(airport.code).Text(), airport.name, *position, airport.elevation,
                            towered, towered ? FormatPicture(tower->mhz, "000.00") : ""});
  }

  AirportFileRecord HeaderOf(const SourceAirport& airport, SourcePosition position, std::size_t ilsCount) {
    AirportFileRecord record;
    record.lngIndex = static_cast<std::int32_t>(files.places.size());
    record.strCode = airport.code;
    record.strName = airport.name;
    record.strCity = airport.city;
    record.strState = airport.state.empty() ? "0" : airport.state;
    record.strCountry = CountryOf(airport, position);
    record.sngLat = static_cast<float>(position.lat);
    record.sngLon = static_cast<float>(position.lon);
    record.sngAltitude = static_cast<float>(airport.elevation);
    record.lngElevation = RoundToEven(airport.elevation);
    record.strBglFile = sourceName;
    record.lngRunways = static_cast<std::int32_t>(airport.runways.size());
    record.lngFrequencies = static_cast<std::int32_t>(airport.frequencies.size());
    record.lngIls = static_cast<std::int32_t>(ilsCount);
    record.lngParkings = static_cast<std::int32_t>(airport.starts.size());
    AddToLists(record, position);
    return record;
  }

  std::string CountryOf(const SourceAirport& airport, SourcePosition position) const {
    if (!airport.country.empty()) return airport.country;
    const Country* country = FindCountryByAirportCode(airport.code);
    if (country == nullptr) country = countryAt(position);
    return country != nullptr ? Utf8ToCodePage(country->name) : "";
  }

  void AddToLists(const AirportFileRecord& record, SourcePosition position) {
    const std::string countryName = record.strCountry.Text();
    if (countryName.empty()) return;
    if (!regionOf.contains(countryName)) {
      const Country* country = FindCountryByName(CodePageToUtf8(countryName));
      if (country == nullptr) country = countryAt(position);
      regionOf[countryName] = country != nullptr ? std::string(country->region) : "Other";
    }
    if (record.strState != "0") states.insert({countryName, record.strState.Text()});
    if (!record.strCity.Empty()) cities.insert({countryName, record.strState.Text(), record.strCity.Text()});
  }

  RunwayFileRecord RunwayOf(const SourceAirport& airport, const SourceRunway& runway,
                            const std::vector<std::size_t>* ils) {
    const SourcePosition centre = RunwayCentre(runway);
    RunwayFileRecord record;
    record.strAirport = airport.code;
    record.sngLat = static_cast<float>(centre.lat);
    record.sngLon = static_cast<float>(centre.lon);
    record.sngAltitude = static_cast<float>(airport.elevation);
    record.intWidth = FeetField(runway.width * feetPerMetre);
    record.intSurface = static_cast<std::int16_t>(
        runway.kind == RunwayKind::water ? SurfaceOf(13) : SurfaceOf(runway.surface));
    if (runway.kind == RunwayKind::helipad) {
      record.strRwyID = "00H";
      record.sngHeading = static_cast<float>(NormalizeDeg(runway.heading));
      record.intLength = FeetField(runway.length * feetPerMetre);
      record.strType = "H";
      ++files.helipads;
      return record;
    }
    record.strRwyID = runway.ends[0].id;
    record.strRwyIDRecip = runway.ends[1].id;
    record.sngHeading = static_cast<float>(TrueCourse(runway.ends[0].position, runway.ends[1].position));
    record.intLength = FeetField(DistanceNM(runway.ends[0].position, runway.ends[1].position) * feetPerNM);
    record.strType = runway.kind == RunwayKind::water ? "W" : "R";
    record.strIlsCode = IlsCodeFor(runway.ends[0].id, ils);
    record.strIlsCodeRecip = IlsCodeFor(runway.ends[1].id, ils);
    ++files.runways;
    return record;
  }

  std::string IlsCodeFor(const std::string& runway, const std::vector<std::size_t>* ils) const {
    if (ils == nullptr) return "";
    for (const std::size_t i : *ils) {
      if (localizers[i].runway == runway) return localizers[i].ident;
    }
    return "";
  }

  FrequencyFileRecord FrequencyOf(const SourceAirport& airport, SourcePosition position,
                                  const SourceFrequency& frequency) {
    FrequencyFileRecord record;
    record.strCode = airport.code;
    record.strName = frequency.name;
    record.sngLat = static_cast<float>(position.lat);
    record.sngLon = static_cast<float>(position.lon);
    record.sngFrequency = static_cast<float>(frequency.mhz);
    record.bytType = static_cast<std::uint8_t>(FrequencyTypeOf(frequency));
    ++files.frequencies;
    return record;
  }

  ParkingFileRecord ParkingOf(const SourceAirport& airport, const SourceStart& start) {
    const GateCodes codes = GateCodesOf(start);
    ParkingFileRecord record;
    record.strCode = airport.code;
    record.sngLat = static_cast<float>(start.position.lat);
    record.sngLon = static_cast<float>(start.position.lon);
    record.sngRadius = static_cast<float>(codes.radius);
    record.lngType = codes.type;
    record.lngName = codes.name;
    record.lngNumber = codes.number;
    ++files.parkings;
    return record;
  }

  IlsFileRecord IlsOf(const SourceLocalizer& localizer, std::int32_t airportRow) const {
    IlsFileRecord record;
    record.lngAirport = airportRow;
    record.strCode = localizer.ident;
    record.strName = localizer.name;
    record.strAirport = localizer.airport;
    record.sngLat = static_cast<float>(localizer.position.lat);
    record.sngLon = static_cast<float>(localizer.position.lon);
    record.sngAltitude = static_cast<float>(localizer.elevation);
    record.sngRange = static_cast<float>(localizer.range);
    record.sngMagVar = static_cast<float>(variationAt(localizer.position));
    record.sngFrequency = static_cast<float>(localizer.frequency);
    record.sngCourse = static_cast<float>(localizer.course);
    record.sngILSGlideAngle = static_cast<float>(localizer.glideAngle);
    record.strBglFile = "nav.dat";
    record.strRwyID = localizer.runway;
    record.strType = std::string(1, IlsTypeOf(localizer));
    return record;
  }

  void AddPendingIls() {
    for (const SourceLocalizer& localizer : localizers) {
      if (assigned.contains(localizer.airport)) continue;
      AppendRecord(files.ils, IlsOf(localizer, -1));
      ++files.pendingIls;
    }
  }

  void MakeLists() {
    std::set<std::string> regionNames;
    std::vector<CountryFileRecord> countryRows;
    countryRows.reserve(regionOf.size());
    for (const auto& [name, region] : regionOf) {
      regionNames.insert(region);
      countryRows.push_back({FixedText<40>(name), FixedText<30>(region)});
    }
    std::vector<RegionFileRecord> regionRows;
    regionRows.reserve(regionNames.size());
    for (const std::string& name : regionNames)
      regionRows.push_back({FixedText<30>(name)});
    std::vector<StateFileRecord> stateRows;
    for (const auto& [country, state] : states)
      stateRows.push_back({FixedText<40>(state), FixedText<40>(country)});
    std::vector<CityFileRecord> cityRows;
    for (const auto& [country, state, city] : cities) {
      cityRows.push_back({FixedText<40>(city), FixedText<40>(state), FixedText<40>(country)});
    }
    files.region = ListFile(regionRows);
    files.country = ListFile(countryRows);
    files.state = ListFile(stateRows);
    files.city = ListFile(cityRows);
    files.countries = countryRows.size();
  }

  std::span<const SourceLocalizer> localizers;
  const std::string& sourceName;
  const VariationAt& variationAt;
  const CountryAt& countryAt;
  Rejects& rejects;
  AirportFiles files;
  std::unordered_map<std::string, std::vector<std::size_t>> localizersOf;
  std::set<std::string> assigned;  // airports whose ILS have been written
  std::map<std::string, std::string> regionOf;
  std::set<std::pair<std::string, std::string>> states;
  std::set<std::tuple<std::string, std::string, std::string>> cities;
};

}  // namespace

AirportFiles MakeAirportFiles(std::span<const SourceAirport> airports,
                              std::span<const SourceLocalizer> localizers, const std::string& sourceName,
                              const VariationAt& variationAt, const CountryAt& countryAt, Rejects& rejects) {
  return AirportFilesMaker(localizers, sourceName, variationAt, countryAt, rejects).Make(airports);
}

std::optional<SourcePosition> ReferencePoint(const SourceAirport& airport) {
  if (airport.datum) return airport.datum;
  const SourceRunway* longest = nullptr;
  double length = -1;
  for (const SourceRunway& runway : airport.runways) {
    const double own = runway.kind == RunwayKind::helipad
                           ? -0.5
                           : DistanceNM(runway.ends[0].position, runway.ends[1].position);
    if (own > length) {
      longest = &runway;
      length = own;
    }
  }
  if (longest != nullptr) return RunwayCentre(*longest);
  if (!airport.starts.empty()) return airport.starts.front().position;
  return std::nullopt;
}

int SurfaceOf(int aptCode) {
  if (aptCode >= 20 && aptCode <= 38) return 4;  // kinds of asphalt
  if (aptCode >= 50 && aptCode <= 57) return 0;  // kinds of concrete
  switch (aptCode) {
    case 1:
    case 6:
      return 4;
    case 2:
    case 7:
      return 0;
    case 3:
    case 8:
      return 1;
    case 4:
    case 9:
    case 12:  // dry lake bed
      return 12;
    case 5:
      return 14;
    case 13:
      return 2;
    case 14:
      return 8;
    default:
      return 254;
  }
}

int FrequencyTypeOf(const SourceFrequency& frequency) {
  const std::string name = AsciiUpper(std::string_view(frequency.name));
  switch (frequency.kind) {
    case 50:
      return Has(name, "ASOS") || Has(name, "AWOS") ? 12 : 1;
    case 51:
      if (Has(name, "CTAF")) return 4;
      if (Has(name, "MULTICOM")) return 2;
      return Has(name, "FSS") || Has(name, "FLIGHT SERVICE") ? 11 : 3;
    case 52:
      return 7;
    case 53:
      return 5;
    case 54:
      return 6;
    case 55:
      return Has(name, "CENTER") || Has(name, "CENTRE") ? 10 : 8;
    case 56:
      return 9;
    default:
      return 0;
  }
}
