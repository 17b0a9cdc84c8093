#include "dbmanager/openair.h"

#include <algorithm>
#include <cmath>

#include "base/fixed_text.h"
#include "dbmanager/earth.h"

namespace {

constexpr double arcStep = 5;  // degrees
constexpr double largestRadius = 5400;

void SkipBlanks(std::string_view& text) {
  while (!text.empty() && (text.front() == ' ' || text.front() == '\t'))
    text.remove_prefix(1);
}

// "50:01:59 N": up to three parts and the hemisphere's letter.
std::optional<double> TakeAngle(std::string_view& text, char positive, char negative, double limit) {
  double value = 0, unit = 1;
  for (int part = 0; part < 3; ++part, unit /= 60) {
    SkipBlanks(text);
    const std::size_t length = std::min(text.find_first_not_of("0123456789."), text.size());
    const auto number = ParseNumber(text.substr(0, length));
    if (!number) return std::nullopt;
    value += *number * unit;
    text.remove_prefix(length);
    if (text.empty() || text.front() != ':') break;
    text.remove_prefix(1);
  }
  SkipBlanks(text);
  if (text.empty() || value > limit) return std::nullopt;
  const char letter = AsciiUpper(text.front());
  if (letter != positive && letter != negative) return std::nullopt;
  text.remove_prefix(1);
  return letter == negative ? -value : value;
}

std::optional<SourcePosition> TakePosition(std::string_view& text) {
  const auto lat = TakeAngle(text, 'N', 'S', 90);
  if (!lat) return std::nullopt;
  const auto lon = TakeAngle(text, 'E', 'W', 180);
  if (!lon) return std::nullopt;
  return SourcePosition{*lat, *lon};
}

// Numbers between commas.
std::vector<double> NumberList(std::string_view text) {
  std::vector<double> numbers;
  while (!text.empty()) {
    const std::size_t end = std::min(text.find(','), text.size());
    const auto number = ParseNumber(Trimmed(text.substr(0, end)));
    if (!number) return {};
    numbers.push_back(*number);
    text.remove_prefix(std::min(end + 1, text.size()));
  }
  return numbers;
}

class OpenAirReader {
 public:
  OpenAirReader(LineReader& lines, Rejects& rejects) : lines(lines), rejects(rejects) {}

  std::vector<SourceAirspace> Read() {
    std::string_view line;
    while (lines.Next(line)) {
      if (line.starts_with("\xEF\xBB\xBF")) line.remove_prefix(3);
      line = Trimmed(line);
      if (line.empty() || line.front() == '*' || line.front() == '#') continue;
      const std::size_t blank = std::min(line.find_first_of(" \t"), line.size());
      std::string_view rest = line.substr(blank);
      SkipBlanks(rest);
      if (const char* reason = ReadRecord(AsciiUpper(line.substr(0, blank)), rest)) Reject(reason);
    }
    EndAirspace();
    return std::move(airspaces);
  }

 private:
  void Reject(std::string_view reason) { rejects.Add(lines.Name(), lines.LineNumber(), reason); }

  const char* ReadRecord(const std::string& word, std::string_view rest) {
    if (word == "AC") {
      EndAirspace();
      open = true;
      firstLine = lines.LineNumber();
      airspace.airspaceClass = AsciiUpper(std::string_view(CodePageOf(rest)));
      return nullptr;
    }
    if (word == "V") return ReadVariable(rest);
    if (word == "SP" || word == "SB" || word == "AT" || word == "AI" || word == "AG" || word == "AA" ||
        word == "AX" || word == "TO" || word == "TC" || word == "DY") {
      return nullptr;
    }
    if (!open) return "record before the first airspace";
    if (word == "AN")
      airspace.name = CodePageOf(rest);
    else if (word == "AY")
      airspace.type = AsciiUpper(std::string_view(CodePageOf(rest)));
    else if (word == "AH")
      airspace.upper = CodePageOf(rest);
    else if (word == "AL")
      airspace.lower = CodePageOf(rest);
    else if (word == "AF" || word == "AR")
      airspace.frequency = CodePageOf(rest);
    else if (word == "DP")
      return ReadPoint(rest);
    else if (word == "DC")
      return ReadCircle(rest);
    else if (word == "DA")
      return ReadArcByAngles(rest);
    else if (word == "DB")
      return ReadArcByPoints(rest);
    else
      return "unknown record";
    return nullptr;
  }

  const char* ReadVariable(std::string_view rest) {
    const std::size_t equals = rest.find('=');
    if (equals == std::string_view::npos) return "variable without a value";
    const std::string name = AsciiUpper(Trimmed(rest.substr(0, equals)));
    const std::string_view value = Trimmed(rest.substr(equals + 1));
    if (name == "D") {
      clockwise = value != "-";
    } else if (name == "X") {
      centre = ParseOpenAirPosition(value);
      if (!centre) return "no position";
    }
    return nullptr;
  }

  const char* ReadPoint(std::string_view rest) {
    const auto position = ParseOpenAirPosition(rest);
    if (!position) return "no position";
    airspace.points.push_back(*position);
    return nullptr;
  }

  const char* ReadCircle(std::string_view rest) {
    const auto radius = NumberList(rest);
    if (radius.size() != 1 || radius[0] <= 0 || radius[0] > largestRadius) return "no radius";
    if (!centre) return "circle without a centre";
    for (double course = 0; course < 360; course += arcStep) {
      airspace.points.push_back(Offset(*centre, course, radius[0]));
    }
    return nullptr;
  }

  const char* ReadArcByAngles(std::string_view rest) {
    const auto values = NumberList(rest);
    if (values.size() != 3 || values[0] <= 0 || values[0] > largestRadius) return "no radius and angles";
    if (!centre) return "arc without a centre";
    AddArc(values[1], values[2], values[0], values[0]);
    return nullptr;
  }

  const char* ReadArcByPoints(std::string_view rest) {
    const auto from = TakePosition(rest);
    SkipBlanks(rest);
    if (!rest.empty() && rest.front() == ',') rest.remove_prefix(1);
    const auto to = from ? TakePosition(rest) : std::nullopt;
    if (!from || !to) return "no positions";
    if (!centre) return "arc without a centre";
    AddArc(TrueCourse(*centre, *from), TrueCourse(*centre, *to), DistanceNM(*centre, *from),
           DistanceNM(*centre, *to));
    return nullptr;
  }

  // Both ends belong to the arc; the radius glides from one to the other.
  void AddArc(double from, double to, double radiusFrom, double radiusTo) {
    double sweep = std::fmod(clockwise ? to - from : from - to, 360.0);
    if (!std::isfinite(sweep)) return;
    if (sweep <= 0) sweep += 360;
    const int steps = std::max(1, static_cast<int>(std::ceil(sweep / arcStep)));
    for (int i = 0; i <= steps; ++i) {
      const double t = double{1} * i / steps;
      const double course = from + (clockwise ? sweep : -sweep) * t;
      airspace.points.push_back(Offset(*centre, course, radiusFrom + (radiusTo - radiusFrom) * t));
    }
  }

  void EndAirspace() {
    if (open) {
      auto& points = airspace.points;
      if (points.size() > 1 && DistanceNM(points.front(), points.back()) < 1e-3) points.pop_back();
      if (points.size() >= 3) {
        airspaces.push_back(std::move(airspace));
      } else {
        rejects.Add(lines.Name(), firstLine, "airspace with fewer than three points");
      }
    }
    airspace = {};
    open = false;
    clockwise = true;
    centre.reset();
  }

  LineReader& lines;
  Rejects& rejects;
  std::vector<SourceAirspace> airspaces;
  SourceAirspace airspace;
  bool open = false;
  std::size_t firstLine = 0;
  bool clockwise = true;
  std::optional<SourcePosition> centre;
};

}  // namespace

std::optional<SourcePosition> ParseOpenAirPosition(std::string_view text) {
  const auto position = TakePosition(text);
  return position && Trimmed(text).empty() ? position : std::nullopt;
}

std::vector<SourceAirspace> ReadOpenAir(LineReader& lines, Rejects& rejects) {
  return OpenAirReader(lines, rejects).Read();
}
