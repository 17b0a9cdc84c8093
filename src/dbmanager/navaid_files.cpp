#include "dbmanager/navaid_files.h"

#include <algorithm>
#include <cmath>

#include "base/numbers.h"
#include "navdata/file_records.h"

namespace {

// An NDB and its DME may stand this far apart.
constexpr double pairedNM = 5;

std::int16_t Short(double value) {
  return static_cast<std::int16_t>(std::clamp(RoundToEven(value), 0, 32767));
}

// Terminal, low, high by the range in NM.
std::int16_t ClassOf(double range) {
  return range <= 25 ? 1 : range <= 60 ? 2 : 3;
}

template <class Record>
Record SharedFields(const SourceNavaid& navaid, const std::function<double(SourcePosition)>& variationAt) {
  Record record;
  record.strCode = navaid.ident;
  record.strName = navaid.name;
  record.sngLat = static_cast<float>(navaid.position.lat);
  record.sngLon = static_cast<float>(navaid.position.lon);
  record.sngFrequency = static_cast<float>(navaid.frequency);
  record.sngMagVar = static_cast<float>(variationAt(navaid.position));
  record.sngElevation = static_cast<float>(navaid.elevation);
  return record;
}

class NdbPairs {
 public:
  explicit NdbPairs(std::span<const SourceNavaid> ndbs) : ndbs(ndbs), paired(ndbs.size()) {
    for (std::size_t i = 0; i < ndbs.size(); ++i) {
      byIdent[ndbs[i].ident].push_back(i);
      paired[i] = ndbs[i].kind == "NDB-DME";
    }
  }

  // Marks the NDB of this DME; false if there is none.
  bool Pair(const SourceNavaid& dme) {
    const auto found = byIdent.find(dme.ident);
    if (found == byIdent.end()) return false;
    for (const std::size_t i : found->second) {
      if (DistanceNM(ndbs[i].position, dme.position) > pairedNM) continue;
      paired[i] = true;
      return true;
    }
    return false;
  }

  bool IsPaired(std::size_t ndb) const { return paired[ndb]; }

 private:
  std::span<const SourceNavaid> ndbs;
  std::vector<bool> paired;
  std::unordered_map<std::string, std::vector<std::size_t>> byIdent;
};

}  // namespace

int VorTypeOf(std::string_view kind) {
  if (kind == "VORTAC") return 2;
  if (kind == "TACAN") return 3;
  if (kind == "VOR-DME" || kind == "VORDME") return 4;
  return kind.ends_with("DME") ? 9 : 1;
}

NavaidFiles MakeNavaidFiles(const NavData& navaids, std::span<const SourceFix> fixes,
                            const IdentPlaces& airwayPoints,
                            const std::function<double(SourcePosition)>& variationAt) {
  NavaidFiles files;
  NdbPairs pairs(navaids.ndbs);
  const auto addVor = [&](const SourceNavaid& navaid) {
    auto record = SharedFields<VorFileRecord>(navaid, variationAt);
    record.intType = static_cast<std::int16_t>(VorTypeOf(navaid.kind));
    record.intRange = Short(navaid.range);
    record.intClass = ClassOf(navaid.range);
    AppendRecord(files.vor, record);
    ++files.vors;
  };
  for (const SourceNavaid& vor : navaids.vors)
    addVor(vor);
  for (const SourceNavaid& dme : navaids.dmes) {
    if (dme.kind != "NDB-DME" || !pairs.Pair(dme)) addVor(dme);
  }
  for (std::size_t i = 0; i < navaids.ndbs.size(); ++i) {
    auto record = SharedFields<NdbFileRecord>(navaids.ndbs[i], variationAt);
    record.strClass = pairs.IsPaired(i) ? "7" : "5";
    AppendRecord(files.ndb, record);
    ++files.ndbs;
  }
  for (const SourceFix& fix : fixes) {
    if (airwayPoints.Find(fix.ident, fix.position)) {
      ++files.fixesOnAirways;
      continue;
    }
    FixFileRecord record;
    record.strRegion = fix.region;
    record.strCode = fix.ident;
    record.strName = fix.ident;
    record.sngLat = static_cast<float>(fix.position.lat);
    record.sngLon = static_cast<float>(fix.position.lon);
    record.sngMagVar = static_cast<float>(variationAt(fix.position));
    AppendRecord(files.fixes, record);
    ++files.fixRows;
  }
  for (const SourceMarker& marker : navaids.markers) {
    MarkerFileRecord record;
    record.strCode = marker.kind;
    record.sngLat = static_cast<float>(marker.position.lat);
    record.sngLon = static_cast<float>(marker.position.lon);
    record.sngCourse = static_cast<float>(marker.course);
    AppendRecord(files.marker, record);
    ++files.markers;
  }
  return files;
}
