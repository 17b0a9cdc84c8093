#include "dbmanager/apt_dat.h"

#include <algorithm>
#include <cmath>
#include <unordered_map>
#include <utility>

#include "base/fixed_text.h"
#include "dbmanager/apt_pavement.h"
#include "dbmanager/earth.h"

namespace {

constexpr double metresPerNM = 1852;
constexpr double metresPerFootHere = 0.3048;

class AptReader {
 public:
  AptReader(LineReader& lines, const std::function<void(SourceAirport&&)>& take, Rejects& rejects)
      : lines(lines), take(take), rejects(rejects) {}

  AptData Read() {
    data.head = ReadSourceHead(lines, 1000, 1200);
    std::string_view line;
    while (!data.complete && lines.Next(line)) {
      const LineFields fields(line);
      if (fields.Count() == 0) continue;
      if (const char* reason = ReadRow(fields)) rejects.Add(lines.Name(), lines.LineNumber(), reason);
    }
    EndAirport();
    return data;
  }

 private:
  const char* ReadRow(const LineFields& fields) {
    const auto row = fields.Whole(0);
    if (!row) return "no row number";
    if (*row >= 111 && *row <= 116) return insideAirport ? pavement.ReadNode(*row, fields, airport) : outside;
    switch (*row) {
      case 1:
      case 16:
      case 17:
        return BeginAirport(fields);
      case 99:
        data.complete = true;
        return nullptr;
      default:
        pavement.End();
        return insideAirport ? ReadAirportRow(*row, fields) : outside;
    }
  }

  const char* ReadAirportRow(int row, const LineFields& fields) {
    switch (row) {
      case 10:
        return ReadOldRunway(fields);
      case 15:
        return ReadStart(fields, 4);
      case 100:
        return ReadRunway(fields);
      case 101:
        return ReadWaterRunway(fields);
      case 102:
        return ReadHelipad(fields);
      case 110:
        pavement.BeginPavement();
        return nullptr;
      case 120:
        pavement.BeginLine();
        return nullptr;
      case 130:
        pavement.BeginBoundary();
        return nullptr;
      case 1201:
        return ReadNetworkNode(fields);
      case 1202:
        return ReadNetworkEdge(fields);
      case 1300:
        return ReadStart(fields, 6);
      case 1301:
        return ReadStartDetails(fields);
      case 1302:
        return ReadMetadata(fields);
      default:
        if (row >= 50 && row <= 56) return ReadFrequency(row, fields, 0.01);
        if (row >= 1050 && row <= 1056) return ReadFrequency(row - 1000, fields, 0.001);
        return nullptr;  // beacons, windsocks, signs, flows and the like
    }
  }

  const char* BeginAirport(const LineFields& fields) {
    EndAirport();
    if (fields[4].empty()) return "airport without a code";
    airport = SourceAirport{};
    airport.line = lines.LineNumber();
    airport.elevation = fields.Number(1).value_or(0);
    airport.code = CodePageOf(fields[4]);
    airport.name = CodePageOf(fields.From(5));
    insideAirport = true;
    return nullptr;
  }

  void EndAirport() {
    if (insideAirport) {
      ++data.airports;
      take(std::move(airport));
    }
    insideAirport = false;
    datumLat.reset();
    datumLon.reset();
    networkNodes.clear();
    pavement.End();
  }

  const char* ReadEnd(const LineFields& fields, std::size_t first, RunwayEnd& end) const {
    const auto position = ParsePosition(fields, first + 1);
    if (fields[first].empty() || !position) return "runway end without identifier and position";
    end = {CodePageOf(fields[first]), *position};
    return nullptr;
  }

  const char* ReadRunway(const LineFields& fields) {
    SourceRunway runway;
    runway.width = fields.Number(1).value_or(0);
    runway.surface = fields.Whole(2).value_or(0);
    if (const char* reason = ReadEnd(fields, 8, runway.ends[0])) return reason;
    if (const char* reason = ReadEnd(fields, 17, runway.ends[1])) return reason;
    airport.runways.push_back(std::move(runway));
    return nullptr;
  }

  const char* ReadWaterRunway(const LineFields& fields) {
    SourceRunway runway;
    runway.kind = RunwayKind::water;
    runway.width = fields.Number(1).value_or(0);
    if (const char* reason = ReadEnd(fields, 3, runway.ends[0])) return reason;
    if (const char* reason = ReadEnd(fields, 6, runway.ends[1])) return reason;
    airport.runways.push_back(std::move(runway));
    return nullptr;
  }

  const char* ReadHelipad(const LineFields& fields) {
    SourceRunway pad;
    pad.kind = RunwayKind::helipad;
    if (const char* reason = ReadEnd(fields, 1, pad.ends[0])) return reason;
    pad.heading = fields.Number(4).value_or(0);
    pad.length = fields.Number(5).value_or(0);
    pad.width = fields.Number(6).value_or(0);
    pad.surface = fields.Whole(7).value_or(0);
    airport.runways.push_back(std::move(pad));
    return nullptr;
  }

  // Row 10 of format 810: centre, "07L" (or "07x"; "H1x" a helipad; "xxx" a
  // taxiway), heading, length, displaced, stopway, width in feet, lights, surface.
  const char* ReadOldRunway(const LineFields& fields) {
    const auto centre = ParsePosition(fields, 1);
    const auto heading = fields.Number(4);
    const auto length = fields.Number(5);
    const auto width = fields.Number(8);
    if (!centre || !heading || !length || !width || *length < 0 || *width < 0) return "incomplete runway row";
    const double lengthMetres = *length * metresPerFootHere;
    const double widthMetres = *width * metresPerFootHere;
    std::string id = CodePageOf(fields[3]);
    if (id == "xxx") {
      AddRectangle(*centre, *heading, lengthMetres, widthMetres);
      return nullptr;
    }
    while (!id.empty() && id.back() == 'x')
      id.pop_back();
    if (id.empty()) return "runway without identifier";
    SourceRunway runway;
    runway.width = widthMetres;
    runway.surface = fields.Whole(10).value_or(0);
    const double half = lengthMetres / 2 / metresPerNM;
    if (id.front() == 'H') {
      runway.kind = RunwayKind::helipad;
      runway.length = lengthMetres;
      runway.heading = *heading;
      runway.ends[0] = {id, *centre};
    } else {
      runway.kind = runway.surface == 13 ? RunwayKind::water : RunwayKind::land;
      runway.ends[0] = {id, Offset(*centre, *heading + 180, half)};
      runway.ends[1] = {OppositeEnd(id), Offset(*centre, *heading, half)};
    }
    airport.runways.push_back(std::move(runway));
    return nullptr;
  }

  // Empty if the identifier does not begin with a number from 1 to 36.
  static std::string OppositeEnd(const std::string& id) {
    const std::size_t digits = std::min(id.find_first_not_of("0123456789"), id.size());
    const int number = ParseWhole(std::string_view(id).substr(0, digits)).value_or(0);
    if (number < 1 || number > 36) return "";
    const int opposite = number > 18 ? number - 18 : number + 18;
    std::string text = opposite < 10 ? "0" + std::to_string(opposite) : std::to_string(opposite);
    for (const char side : std::string_view(id).substr(digits))
      text += side == 'L' ? 'R' : side == 'R' ? 'L' : side;
    return text;
  }

  void AddRectangle(SourcePosition centre, double heading, double length, double width) {
    const double halfLength = length / 2 / metresPerNM;
    const double halfWidth = width / 2 / metresPerNM;
    const double reach = std::hypot(halfLength, halfWidth);
    const double turn = std::atan2(halfWidth, halfLength) * 180 / 3.14159265;
    SourcePavement ring;
    for (const double course : {heading - turn, heading + turn, heading + 180 - turn, heading + 180 + turn}) {
      const SourcePosition corner = Offset(centre, course, reach);
      ring.points.push_back({static_cast<float>(corner.lat), static_cast<float>(corner.lon)});
    }
    airport.pavement.push_back(std::move(ring));
  }

  const char* ReadFrequency(int kind, const LineFields& fields, double unit) {
    const auto value = fields.Number(1);
    if (!value || *value <= 0) return "no frequency";
    double mhz = std::round(*value * unit * 1000) / 1000;
    // Two decimals stand for the 25 kHz channels: .x2 is .x25 and .x7 is .x75.
    const int lastDigit = static_cast<int>(std::fmod(*value, 10));
    if (unit == 0.01 && (lastDigit == 2 || lastDigit == 7)) mhz += 0.005;
    airport.frequencies.push_back({kind, mhz, CodePageOf(fields.From(2))});
    return nullptr;
  }

  // Row 15: position, heading, name; row 1300 has kind and aircraft before the name.
  const char* ReadStart(const LineFields& fields, std::size_t nameField) {
    const auto position = ParsePosition(fields, 1);
    if (!position) return "no position";
    SourceStart start;
    start.position = *position;
    start.heading = fields.Number(3).value_or(0);
    start.name = CodePageOf(fields.From(nameField));
    if (nameField == 6) {
      start.kind = CodePageOf(fields[4]);
      start.airplanes = CodePageOf(fields[5]);
    }
    airport.starts.push_back(std::move(start));
    return nullptr;
  }

  const char* ReadStartDetails(const LineFields& fields) {
    if (airport.starts.empty()) return "details without a start position";
    SourceStart& start = airport.starts.back();
    if (!fields[1].empty()) start.widthCode = fields[1].front();
    start.operation = CodePageOf(fields[2]);
    return nullptr;
  }

  const char* ReadNetworkNode(const LineFields& fields) {
    const auto position = ParsePosition(fields, 1);
    const auto number = fields.Whole(4);
    if (!position || !number) return "taxi node without position and number";
    networkNodes[*number] = {static_cast<float>(position->lat), static_cast<float>(position->lon)};
    return nullptr;
  }

  // Two nodes, oneway or twoway, runway or taxiway or taxiway_A to _F, name.
  const char* ReadNetworkEdge(const LineFields& fields) {
    const auto from = networkNodes.find(fields.Whole(1).value_or(-1));
    const auto to = networkNodes.find(fields.Whole(2).value_or(-1));
    if (from == networkNodes.end() || to == networkNodes.end()) return "taxi edge to an unknown node";
    const std::string_view kind = fields[4];
    if (kind == "runway") return nullptr;
    constexpr std::string_view withWidth = "taxiway_";
    const char width =
        kind.starts_with(withWidth) && kind.size() > withWidth.size() ? kind[withWidth.size()] : ' ';
    airport.network.push_back({from->second, to->second, CodePageOf(fields.From(5)), width});
    return nullptr;
  }

  const char* ReadMetadata(const LineFields& fields) {
    const std::string_view key = fields[1];
    const std::string value = CodePageOf(fields.From(2));
    if (key == "city") airport.city = value;
    if (key == "state") airport.state = value;
    if (key == "country") airport.country = WithoutCountryCode(value);
    if (key == "datum_lat") datumLat = ParseNumber(value);
    if (key == "datum_lon") datumLon = ParseNumber(value);
    if (datumLat && datumLon && std::abs(*datumLat) <= 90 && std::abs(*datumLon) <= 180) {
      airport.datum = SourcePosition{*datumLat, *datumLon};
    }
    return nullptr;
  }

  // "USA United States" reads "United States".
  static std::string WithoutCountryCode(const std::string& value) {
    const auto capital = [](char c) { return c >= 'A' && c <= 'Z'; };
    const bool coded =
        value.size() > 4 && value[3] == ' ' && capital(value[0]) && capital(value[1]) && capital(value[2]);
    return coded ? std::string(Trimmed(std::string_view(value).substr(4))) : value;
  }

  static constexpr const char* outside = "row outside an airport";

  LineReader& lines;
  const std::function<void(SourceAirport&&)>& take;
  Rejects& rejects;
  AptData data;
  SourceAirport airport;
  bool insideAirport = false;
  std::optional<double> datumLat, datumLon;
  std::unordered_map<int, GroundPoint> networkNodes;
  PavementReader pavement;
};

}  // namespace

AptData ReadAptDat(LineReader& lines, const std::function<void(SourceAirport&&)>& take, Rejects& rejects) {
  return AptReader(lines, take, rejects).Read();
}
