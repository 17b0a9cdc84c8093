// FS2004: an ini text with a line for each waypoint (plan_file.h has the
// layout). The last field of a waypoint, where there is one, is its airway.
#include <map>

#include "base/fixed_text.h"
#include "flightplan/formats/foreign_readers.h"
#include "flightplan/formats/foreign_text.h"

namespace {

PointKind KindOfLetter(std::string_view letter) {
  if (letter == "A") return PointKind::airport;
  if (letter == "V") return PointKind::vor;
  if (letter == "N") return PointKind::ndb;
  return letter == "U" ? PointKind::user : PointKind::intersection;
}

// "EGPB, N59* 52.88', W001* 17.63', +000020.00"
void TakeAirport(ForeignAirport& airport, std::string_view value) {
  const auto fields = Parts(value, ',');
  airport.code = fields[0];
  if (fields.size() > 2) airport.place = PlaceOf(AngleOf(fields[1]), AngleOf(fields[2]));
}

// "KK, WIK, , WIK, V, N58* 27.53', W003* 06.02', +000000.00, UN590"
std::optional<ForeignPoint> PointOfLine(std::string_view value) {
  const auto fields = Parts(value, ',');
  if (fields.size() < 7) return std::nullopt;
  ForeignPoint point;
  if (fields[0] != "KK") point.region = fields[0];
  point.code = fields[1];
  point.kind = IsNamelessPosition(point.code) ? PointKind::user : KindOfLetter(fields[4]);
  point.place = PlaceOf(AngleOf(fields[5]), AngleOf(fields[6]));
  if (fields.size() > 8) point.airway = fields[8];
  return point;
}

std::optional<RouteKind> RouteKindOf(std::string_view value) {
  if (value.size() != 1 || value[0] < '0' || value[0] > '3') return std::nullopt;
  return static_cast<RouteKind>(value[0] - '0');
}

class Reader {
 public:
  ForeignPlan Read(std::string_view text) {
    plan.format = "FS2004 plan";
    while (const std::optional<std::string_view> line = TakeTextLine(text))
      TakeLine(Stripped(*line));
    for (auto& [number, point] : points)
      plan.points.push_back(std::move(point));
    return std::move(plan);
  }

 private:
  void TakeLine(std::string_view line) {
    if (line.starts_with('[')) inPlan = EqualNoCase(line, "[flightplan]");
    const std::size_t equals = line.find('=');
    if (!inPlan || equals == std::string_view::npos) return;
    const std::string_view key = Stripped(line.substr(0, equals));
    const std::string_view value = Stripped(line.substr(equals + 1));
    if (key.starts_with("waypoint.")) return TakeWaypoint(key, value);
    TakeValue(key, value);
  }

  void TakeWaypoint(std::string_view key, std::string_view value) {
    const std::optional<double> number = NumberOf(key.substr(key.find('.') + 1));
    std::optional<ForeignPoint> point = PointOfLine(value);
    if (!number || !point) return plan.problems.Add(std::string(key) + " is not complete; it is left out");
    points.insert_or_assign(*number, std::move(*point));
  }

  void TakeValue(std::string_view key, std::string_view value) {
    if (key == "departure_id") return TakeAirport(plan.departure, value);
    if (key == "destination_id") return TakeAirport(plan.destination, value);
    if (key == "routetype") plan.routeType = RouteKindOf(value);
    if (key == "cruising_altitude") plan.cruiseFeet = NumberOf(value).value_or(0);
    if (key == "type") plan.planType = value;
    if (key == "departure_position") plan.start = value;
    if (key == "alternate_name") plan.alternate.name = value;
  }

  ForeignPlan plan;
  std::map<double, ForeignPoint> points;
  bool inPlan = false;
};

}  // namespace

ForeignPlan ReadSimulatorPlan(std::string_view text) {
  return Reader().Read(text);
}
