#include "dbmanager/nav_dat.h"

#include <algorithm>
#include <cmath>
#include <unordered_map>

#include "base/fixed_text.h"

namespace {

class NavReader {
 public:
  NavReader(LineReader& lines, Rejects& rejects) : lines(lines), rejects(rejects) {}

  NavData Read() {
    data.head = ReadSourceHead(lines, 810, 1200);
    hasRegion = data.head.version >= 1100;
    std::string_view line;
    while (!data.complete && lines.Next(line)) {
      const LineFields fields(line);
      if (fields.Count() == 0) continue;
      if (const char* reason = ReadRow(fields)) rejects.Add(lines.Name(), lines.LineNumber(), reason);
    }
    AssignGlideSlopes();
    return std::move(data);
  }

 private:
  struct GlideSlope {
    std::string key;
    double angle = 0;
    std::size_t line = 0;
  };

  const char* ReadRow(const LineFields& fields) {
    const auto row = fields.Whole(0);
    if (!row) return "no row number";
    switch (*row) {
      case 2:
        return ReadEnroute(fields, 1, data.ndbs);
      case 3:
        return ReadEnroute(fields, 0.01, data.vors);
      case 4:
      case 5:
        return ReadLocalizer(fields);
      case 6:
        return ReadGlideSlope(fields);
      case 7:
      case 8:
      case 9:
        return ReadMarker(fields, *row);
      case 12:
        ++data.pairedDmes;
        return nullptr;
      case 13:
        return ReadEnroute(fields, 0.01, data.dmes);
      case 14:
      case 15:
      case 16:
        ++data.satelliteRows;
        return nullptr;
      case 99:
        data.complete = true;
        return nullptr;
      default:
        return "unknown row number";
    }
  }

  // Position, elevation, frequency, range, ident.
  const char* ReadShared(const LineFields& fields, double frequencyUnit, SourceNavaid& navaid) const {
    const auto position = ParsePosition(fields, 1);
    const auto frequency = fields.Number(4);
    if (!position) return "no position";
    if (!frequency || *frequency < 0) return "no frequency";
    if (fields[7].empty()) return "no ident";
    navaid.position = *position;
    navaid.elevation = fields.Number(3).value_or(0);
    navaid.frequency = *frequency * frequencyUnit;
    navaid.range = fields.Number(5).value_or(0);
    navaid.ident = CodePageOf(fields[7]);
    return nullptr;
  }

  const char* ReadEnroute(const LineFields& fields, double frequencyUnit,
                          std::vector<SourceNavaid>& to) const {
    SourceNavaid navaid;
    if (const char* reason = ReadShared(fields, frequencyUnit, navaid)) return reason;
    if (hasRegion) navaid.region = CodePageOf(fields[9]);
    SplitName(CodePageOf(fields.From(hasRegion ? 10 : 8)), navaid);
    to.push_back(std::move(navaid));
    return nullptr;
  }

  static void SplitName(const std::string& text, SourceNavaid& navaid) {
    const std::size_t blank = text.rfind(' ');
    navaid.kind = AsciiUpper(blank == std::string::npos ? text : text.substr(blank + 1));
    navaid.name = blank == std::string::npos ? "" : std::string(Trimmed(text.substr(0, blank)));
    // Some sources write VOR/DME.
    std::replace(navaid.kind.begin(), navaid.kind.end(), '/', '-');
  }

  std::size_t RunwayField() const { return hasRegion ? 10 : 9; }

  const char* ReadLocalizer(const LineFields& fields) {
    SourceLocalizer localizer;
    if (const char* reason = ReadShared(fields, 0.01, localizer)) return reason;
    const auto course = fields.Number(6);
    if (!course) return "no course";
    if (fields[8].empty() || fields[RunwayField()].empty()) return "no airport and runway";
    // 1100 adds 360 times the magnetic course.
    localizer.course = std::fmod(*course, 360.0);
    if (localizer.course < 0) localizer.course += 360;
    localizer.airport = CodePageOf(fields[8]);
    if (hasRegion) localizer.region = CodePageOf(fields[9]);
    localizer.runway = CodePageOf(fields[RunwayField()]);
    localizer.kind = CodePageOf(fields.From(RunwayField() + 1));
    localizer.name = localizer.kind;
    data.localizers.push_back(std::move(localizer));
    return nullptr;
  }

  static std::string KeyOf(std::string_view airport, std::string_view runway, std::string_view ident) {
    std::string key(airport);
    key += ' ';
    key += runway;
    key += ' ';
    key += ident;
    return key;
  }

  // The angle times 100000 is added to the course.
  const char* ReadGlideSlope(const LineFields& fields) {
    const auto combined = fields.Number(6);
    if (!combined || *combined < 0) return "no glide angle";
    const std::string airport = CodePageOf(fields[8]);
    const std::string runway = CodePageOf(fields[RunwayField()]);
    if (airport.empty() || runway.empty()) return "no airport and runway";
    ++data.glideSlopes;
    slopes.push_back({KeyOf(airport, runway, CodePageOf(fields[7])), std::floor(*combined / 1000) / 100,
                      lines.LineNumber()});
    return nullptr;
  }

  const char* ReadMarker(const LineFields& fields, int row) {
    const auto position = ParsePosition(fields, 1);
    const auto course = fields.Number(6);
    if (!position) return "no position";
    if (!course) return "no course";
    const double within = std::fmod(*course, 360.0);
    data.markers.push_back({row == 7   ? "OM"
                            : row == 8 ? "MM"
                                       : "IM",
                            *position, within < 0 ? within + 360 : within});
    return nullptr;
  }

  void AssignGlideSlopes() {
    std::unordered_map<std::string, SourceLocalizer*> byKey;
    for (SourceLocalizer& localizer : data.localizers) {
      byKey.try_emplace(KeyOf(localizer.airport, localizer.runway, localizer.ident), &localizer);
    }
    for (const GlideSlope& slope : slopes) {
      const auto found = byKey.find(slope.key);
      if (found == byKey.end()) {
        rejects.Add(lines.Name(), slope.line, "glide slope without a localizer");
      } else {
        found->second->glideAngle = slope.angle;
      }
    }
  }

  LineReader& lines;
  Rejects& rejects;
  NavData data;
  std::vector<GlideSlope> slopes;
  bool hasRegion = false;
};

}  // namespace

NavData ReadNavDat(LineReader& lines, Rejects& rejects) {
  return NavReader(lines, rejects).Read();
}
