#include "flightplan/formats/foreign_matching.h"

#include <algorithm>
#include <limits>

#include "base/code_page.h"
#include "base/numbers.h"
#include "flightplan/object_rows.h"

namespace {

constexpr int coordinateStyle = 1;  // degrees and decimal minutes

std::string PlaceText(Position place) {
  return FormatLat(place.lat, coordinateStyle) + " " + FormatLon(place.lon, coordinateStyle);
}

float Between(Position a, Position b) {
  return GreatCircleDistance(a.lat, a.lon, b.lat, b.lon);
}

std::string WholeNM(float distance) {
  return FormatPicture(distance, "0") + " NM";
}

// Text of the code page without control characters and without the commas that part the fields of our file.
std::string PlainName(std::string_view name) {
  std::string plain = Utf8ToCodePage(name);
  for (char& c : plain)
    if (static_cast<unsigned char>(c) < ' ' || c == ',') c = ' ';
  return std::string(Trimmed(plain));
}

std::string PlainCode(std::string_view code) {
  return AsciiUpper(PlainName(code));
}

// ---- airports

Position PlaceOfAirport(const NavDatabase& database, std::int32_t row) {
  const AirportRec& airport = database.airports[static_cast<std::size_t>(row)];
  return {airport.sngLat, airport.sngLon};
}

std::int32_t AirportOfCode(const NavDatabase& database, const ForeignAirport& wanted) {
  std::int32_t found = -1;
  float least = std::numeric_limits<float>::max();
  for (const std::int32_t row : database.airportsByIdent.All(PlainCode(wanted.code))) {
    if (row >= database.AirportCount()) continue;
    const float distance = wanted.place ? Between(*wanted.place, PlaceOfAirport(database, row)) : 0;
    if (distance >= least) continue;
    found = row;
    least = distance;
  }
  return found;
}

std::int32_t AirportAt(const NavDatabase& database, Position place) {
  std::int32_t found = -1;
  float least = nearbyAirportDistance;
  for (const std::int32_t row : database.airportsByPlace.Near(place, nearbyAirportDistance)) {
    const float distance = Between(place, PlaceOfAirport(database, row));
    if (row >= database.AirportCount() || distance > least) continue;
    if (distance == least && found >= 0) continue;
    found = row;
    least = distance;
  }
  return found;
}

// ---- points

// The best so far of the objects looked at; less is better.
struct Best {
  std::optional<PlanWaypoint> row;
  float score = std::numeric_limits<float>::max();

  void Take(const Best& other) {
    if (other.score < score) *this = other;
  }
};

template <class Row, class Score>
Best BestOf(const std::vector<Row>& table, const IdentIndex& byIdent, std::string_view code,
            const Score& score) {
  Best best;
  for (const std::int32_t row : byIdent.All(code)) {
    const Row& object = table[static_cast<std::size_t>(row)];
    const float value = score(Position{object.sngLat, object.sngLon});
    if (!(value < best.score)) continue;
    best.score = value;
    best.row = ObjectRow(object, row);
  }
  return best;
}

// Of each kind's objects the best, in the order in which a tie is decided.
struct BestOfKinds {
  Best intersection, vor, ndb, fix;

  Best All() const {
    Best best = intersection;
    for (const Best* other : {&vor, &ndb, &fix})
      best.Take(*other);
    return best;
  }
  Best OfKind(PointKind kind) const {
    if (kind == PointKind::vor) return vor;
    if (kind == PointKind::ndb) return ndb;
    if (kind != PointKind::intersection) return All();
    Best best = intersection;
    best.Take(fix);
    return best;
  }
  // The kind that the file names if it has one within limit, else any.
  Best Choose(PointKind kind, float limit) const {
    const Best wanted = OfKind(kind);
    return wanted.score <= limit ? wanted : All();
  }
};

template <class Score>
BestOfKinds Search(const NavDatabase& database, std::string_view code, const Score& score) {
  return {BestOf(database.intersections, database.intersectionsByIdent, code, score),
          BestOf(database.vors, database.vorsByIdent, code, score),
          BestOf(database.ndbs, database.ndbsByIdent, code, score),
          BestOf(database.fixes, database.fixesByIdent, code, score)};
}

// "+53.000_+007.000", "Fix 07" and "" are no names.
bool IsNameless(std::string_view code) {
  return code.empty() || code[0] == '+' || code[0] == '-' || IsNamelessPosition(code);
}

PlanWaypoint PositionRow(const NavDatabase& database, const ForeignPoint& point, Position place) {
  PlanWaypoint row;
  const std::string code = PlainCode(point.code);
  if (IsNameless(code)) {
    row.Sym = std::string_view("Fix");  // numbered where it comes to stand
    row.Code = std::string_view("Fix 00");
    row.Name = std::string_view("Fix 00");
  } else {
    row.Sym = std::string_view("Uwp");
    row.Code = code;
    const std::string name = PlainName(point.name);
    row.Name = name.empty() ? Utf8ToCodePage(PlaceText(place)) : name;
  }
  row.Lat = place.lat;
  row.Lon = place.lon;
  row.MagVar = database.magneticVariation.MagVarLookup(place.lat, place.lon);
  return row;
}

PointMatch MatchUserPoint(const NavDatabase& database, const ForeignPoint& point) {
  if (!point.place) return {{}, point.code + " has no position on the earth; it is left out"};
  const Best own = BestOf(database.userWaypoints, database.userWaypointsByIdent, PlainCode(point.code),
                          [&](Position at) { return Between(*point.place, at); });
  if (own.row && own.score < 1) return {own.row, {}};
  return {PositionRow(database, point, *point.place), {}};
}

PointMatch MatchAirportOnTheWay(const NavDatabase& database, const ForeignPoint& point) {
  const AirportMatch airport = MatchAirport(database, {point.code, {}, point.place}, !point.place);
  if (airport.row < 0 && !point.place)
    return {{}, point.code + " is not in the database and has no position; it is left out"};
  const Position place = airport.row < 0 ? *point.place : PlaceOfAirport(database, airport.row);
  return {PositionRow(database, point, place),
          point.code + " is an airport on the way; it is taken as a position"};
}

PointMatch MatchByPlace(const NavDatabase& database, const ForeignPoint& point) {
  const Position place = *point.place;
  const BestOfKinds found =
      Search(database, PlainCode(point.code), [&](Position at) { return Between(place, at); });
  const Best best = found.Choose(point.kind, sameObjectDistance);
  if (best.row && best.score <= sameObjectDistance) return {best.row, {}};
  const std::string why = best.row ? " lies " + WholeNM(best.score) + " away" : " is not in the database";
  return {PositionRow(database, point, place), point.code + why + ": position " + PlaceText(place)};
}

// Fixes of one name all over the world are told apart by their region, else by the way.
PointMatch MatchByWay(const NavDatabase& database, const ForeignPoint& point, Position before,
                      Position destination) {
  const float direct = Between(before, destination);
  const auto detour = [&](Position at) { return Between(before, at) + Between(at, destination) - direct; };
  const Best best = Search(database, PlainCode(point.code), detour).Choose(point.kind, longestDetour);
  if (best.row && best.score <= longestDetour) return {best.row, {}};
  return {{},
          point.code + (best.row ? " is not in the database on the way" : " is not in the database") +
              ", and the file has no position of it; it is left out"};
}

}  // namespace

AirportMatch MatchAirport(const NavDatabase& database, const ForeignAirport& wanted, bool trustCode) {
  const std::int32_t byCode = AirportOfCode(database, wanted);
  const float away =
      byCode >= 0 && wanted.place ? Between(*wanted.place, PlaceOfAirport(database, byCode)) : 0;
  if (byCode >= 0 && away <= sameAirportDistance) return {byCode, {}};
  if (const std::int32_t near = wanted.place ? AirportAt(database, *wanted.place) : -1; near >= 0) {
    const std::string code = CodePageToUtf8(database.airports[static_cast<std::size_t>(near)].strCode.View());
    const std::string missing = wanted.code.empty() ? PlaceText(*wanted.place) : wanted.code;
    return {near, missing + (byCode >= 0 ? " lies elsewhere: " : " is not an airport of the database: ") +
                      code + ", which is there, is taken"};
  }
  if (byCode < 0 || !trustCode) return {};
  return {byCode, wanted.code + " lies " + WholeNM(away) + " from where the file has it"};
}

PointMatch MatchPoint(const NavDatabase& database, const ForeignPoint& point, Position before,
                      Position destination) {
  if (point.code.empty() && !point.place) return {{}, "a point without a name and a position is left out"};
  if (point.kind == PointKind::user || (point.place && IsNameless(PlainCode(point.code))))
    return MatchUserPoint(database, point);
  if (point.kind == PointKind::airport) return MatchAirportOnTheWay(database, point);
  return point.place ? MatchByPlace(database, point) : MatchByWay(database, point, before, destination);
}
