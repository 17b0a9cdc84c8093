#include "dbmanager/cifp_airport.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <map>
#include <tuple>

#include "base/fixed_text.h"

namespace {

constexpr std::size_t longestName = 24;        // of a procedure; with a transition it fits into 40
constexpr std::size_t longestIdent = 10;       // of a transition or a fix
constexpr std::size_t fewestFields = 12;       // up to the path terminator
constexpr int lowestFlightLevelFeet = 100000;  // nothing that flies is told to stay above

// The fields of one line, blanks around them cut.
class CommaFields {
 public:
  explicit CommaFields(std::string_view line) {
    while (count < fields.size()) {
      const std::size_t comma = line.find(',');
      fields[count++] = Trimmed(line.substr(0, comma));
      if (comma == std::string_view::npos) return;
      line.remove_prefix(comma + 1);
    }
  }
  std::size_t Count() const { return count; }
  std::string_view operator[](std::size_t field) const {
    return field < count ? fields[field] : std::string_view{};
  }
  char Letter(std::size_t field) const { return (*this)[field].empty() ? ' ' : (*this)[field].front(); }

 private:
  std::array<std::string_view, 40> fields;
  std::size_t count = 0;
};

// A number without a sign, in tenths; nothing if anything else is in it.
std::optional<double> Tenths(std::string_view digits) {
  int value = 0;
  const auto [end, error] = std::from_chars(digits.data(), digits.data() + digits.size(), value);
  if (digits.empty() || error != std::errc{} || end != digits.data() + digits.size() || value < 0)
    return std::nullopt;
  return value / 10.0;
}

std::optional<double> TenthsOfACircle(std::string_view digits) {
  const auto angle = Tenths(digits);
  return angle && *angle <= 360 ? angle : std::nullopt;
}

std::optional<CifpAltitude> AltitudeOf(std::string_view text) {
  const bool level = text.starts_with("FL");
  const auto number = ParseWhole(level ? text.substr(2) : text);
  if (!number || *number < 0 || *number > (level ? lowestFlightLevelFeet / 100 : lowestFlightLevelFeet))
    return std::nullopt;
  return CifpAltitude{level ? *number * 100 : *number, level};
}

// "N50020393": degrees, minutes, seconds and hundredths.
std::optional<double> AngleOf(std::string_view text, char positive, char negative, std::size_t degreeDigits) {
  if (text.size() != degreeDigits + 7 || (text[0] != positive && text[0] != negative)) return std::nullopt;
  const auto degrees = ParseWhole(text.substr(1, degreeDigits));
  const auto minutes = ParseWhole(text.substr(1 + degreeDigits, 2));
  const auto seconds = ParseWhole(text.substr(3 + degreeDigits, 4));
  if (!degrees || !minutes || !seconds || *degrees < 0 || *minutes < 0 || *minutes > 59 || *seconds < 0)
    return std::nullopt;
  const double angle = *degrees + *minutes / 60.0 + *seconds / 360000.0;
  return text[0] == positive ? angle : -angle;
}

CifpFixName FixNameIn(const CommaFields& fields, std::size_t first) {
  return {fields[first], fields[first + 1], fields.Letter(first + 2), fields.Letter(first + 3)};
}

// Which part of its procedure a leg belongs to, by its route type: departures
// count from the runway outward, arrivals the other way.
std::optional<CifpPartKind> PartKindOf(bool star, std::string_view routeType) {
  if (routeType.size() != 1) return std::nullopt;
  constexpr std::string_view first = "147F", middle = "258M", last = "369S";
  const char type = routeType.front();
  if (!star && (type == '0' || type == 'T')) return CifpPartKind::runwayTransition;  // engine out, vectors
  if (!star && type == 'V') return CifpPartKind::enrouteTransition;
  if (!star && type > '6' && type <= '9') return std::nullopt;
  if (middle.find(type) != std::string_view::npos) return CifpPartKind::common;
  if (first.find(type) != std::string_view::npos)
    return star ? CifpPartKind::enrouteTransition : CifpPartKind::runwayTransition;
  if (last.find(type) != std::string_view::npos)
    return star ? CifpPartKind::runwayTransition : CifpPartKind::enrouteTransition;
  return std::nullopt;
}

class CifpReader {
 public:
  CifpReader(std::string_view file, Rejects& rejects) : file(file), rejects(rejects) {}

  CifpAirport Read(std::string_view text) {
    while (!text.empty()) {
      const std::size_t end = std::min(text.find('\n'), text.size());
      ++lineNumber;
      if (const char* reason = ReadLine(Trimmed(text.substr(0, end)))) rejects.Add(file, lineNumber, reason);
      text.remove_prefix(std::min(end + 1, text.size()));
    }
    for (CifpPart& part : airport.parts)
      std::stable_sort(part.legs.begin(), part.legs.end(),
                       [](const CifpLeg& a, const CifpLeg& b) { return a.sequence < b.sequence; });
    return std::move(airport);
  }

 private:
  const char* ReadLine(std::string_view line) {
    if (line.ends_with('\r')) line = Trimmed(line.substr(0, line.size() - 1));
    if (line.empty()) return nullptr;
    const std::size_t colon = line.find(':');
    const std::string_view word = line.substr(0, std::min(colon, line.size()));
    const std::string_view rest = colon == std::string_view::npos ? "" : line.substr(colon + 1);
    if (word == "SID" || word == "STAR") return ReadLeg(word == "STAR", rest.substr(0, rest.find(';')));
    if (word == "RWY") return ReadRunway(rest);
    if (word == "APPCH") ++airport.lines;
    return word == "APPCH" || word == "PRDAT" ? nullptr : "neither SID, STAR, APPCH nor RWY";
  }

  const char* ReadRunway(std::string_view rest) {
    const std::size_t semicolon = rest.find(';');
    if (semicolon == std::string_view::npos) return "a runway without a position";
    const std::string_view id = CommaFields(rest.substr(0, semicolon))[0];
    rest.remove_prefix(semicolon + 1);
    const CommaFields place(rest.substr(0, rest.find(';')));
    const auto lat = AngleOf(place[0], 'N', 'S', 2);
    const auto lon = AngleOf(place[1], 'E', 'W', 3);
    if (!lat || !lon || *lat < -90 || *lat > 90 || *lon < -180 || *lon > 180)
      return "a runway without a position";
    if (!id.starts_with("RW") || id.size() < 3 || id.size() > 7) return "no runway RWnn";
    airport.runways.push_back({id.substr(2), {*lat, *lon}});
    return nullptr;
  }

  const char* ReadLeg(bool star, std::string_view line) {
    ++airport.lines;
    const CommaFields fields(line);
    if (fields.Count() < fewestFields) return "too few fields";
    CifpLeg leg;
    leg.line = lineNumber;
    const auto sequence = ParseWhole(fields[0]);
    if (!sequence || *sequence < 0) return "no sequence number";
    leg.sequence = *sequence;
    auto kind = PartKindOf(star, fields[1]);
    if (!kind) return "unknown route type";
    if (fields[2].empty() || fields[2].size() > longestName) return "no name that fits";
    std::string_view transition = fields[3] == "ALL" ? std::string_view{} : fields[3];
    if (transition.size() > longestIdent) return "the transition's name is too long";
    leg.pathTerminator = fields[11];
    if (leg.pathTerminator.size() != 2) return "no path terminator";
    leg.fix = FixNameIn(fields, 4);
    leg.navaid = FixNameIn(fields, 13);
    if (leg.fix.ident.size() > longestIdent) return "the fix's name is too long";
    ReadFigures(fields, leg);
    // A transition for every way on is one more common part.
    if (*kind == CifpPartKind::enrouteTransition && transition.empty()) kind = CifpPartKind::common;
    PartOf(star, fields[2], *kind, transition).legs.push_back(leg);
    return nullptr;
  }

  static void ReadFigures(const CommaFields& fields, CifpLeg& leg) {
    const char turn = fields.Letter(9);
    leg.turn = turn == 'L' || turn == 'R' ? turn : ' ';
    leg.theta = TenthsOfACircle(fields[18]);
    leg.rho = Tenths(fields[19]);
    std::string_view course = fields[20];
    leg.trueCourse = course.ends_with('T');
    if (leg.trueCourse) course.remove_suffix(1);
    leg.course = leg.trueCourse && course.size() == 3 ? WholeDegrees(course) : TenthsOfACircle(course);
    leg.distance = Tenths(fields[21]);
    leg.altitudeKind = fields.Letter(22);
    leg.altitude1 = AltitudeOf(fields[23]);
    leg.altitude2 = AltitudeOf(fields[24]);
    leg.speedKind = fields.Letter(26);
    const auto speed = ParseWhole(fields[27]);
    leg.speed = speed && *speed > 0 && *speed < 1000 ? *speed : 0;
  }

  static std::optional<double> WholeDegrees(std::string_view digits) {
    const auto angle = Tenths(digits);
    return angle && *angle <= 36 ? std::optional(*angle * 10) : std::nullopt;
  }

  CifpPart& PartOf(bool star, std::string_view name, CifpPartKind kind, std::string_view transition) {
    const auto [found, fresh] = partOf.try_emplace({star, name, kind, transition}, airport.parts.size());
    if (fresh) airport.parts.push_back({star, name, kind, transition, {}});
    return airport.parts[found->second];
  }

  std::string_view file;
  Rejects& rejects;
  CifpAirport airport;
  std::map<std::tuple<bool, std::string_view, CifpPartKind, std::string_view>, std::size_t> partOf;
  std::size_t lineNumber = 0;
};

}  // namespace

CifpAirport ReadCifpAirport(std::string_view file, std::string_view text, Rejects& rejects) {
  return CifpReader(file, rejects).Read(text);
}
