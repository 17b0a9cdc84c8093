#include "flightplan/zone_crossings.h"

#include <algorithm>
#include <cmath>
#include <optional>
#include <span>

#include "base/code_page.h"
#include "map/airspace_kinds.h"
#include "map/geo_line.h"

namespace {

constexpr double stepNM = 10;        // a straight line in degrees is this long at most
constexpr std::size_t boxSteps = 6;  // that the index is asked about together

// Longitudes of one piece of a leg and of a zone's outline on one scale.
struct Point {
  double lat = 0;
  double lon = 0;
};

struct Piece {
  Point from;
  Point to;
};

bool IsZone(const AirspaceRec& airspace) {
  return airspace.intType == controlZone && airspace.points.size() > 2;
}

// Twice the area of the triangle: which side of a to b the point c lies on.
double Side(Point a, Point b, Point c) {
  return (b.lon - a.lon) * (c.lat - a.lat) - (b.lat - a.lat) * (c.lon - a.lon);
}

bool Between(Point a, Point b, Point c) {
  return std::min(a.lon, b.lon) <= c.lon && c.lon <= std::max(a.lon, b.lon) &&
         std::min(a.lat, b.lat) <= c.lat && c.lat <= std::max(a.lat, b.lat);
}

// How far along the piece, 0 to 1, it first touches the side from a to b.
std::optional<double> Meeting(const Piece& piece, Point a, Point b) {
  const double fromSide = Side(a, b, piece.from), toSide = Side(a, b, piece.to);
  const double aSide = Side(piece.from, piece.to, a), bSide = Side(piece.from, piece.to, b);
  if (fromSide * toSide < 0 && aSide * bSide <= 0) return fromSide / (fromSide - toSide);
  if (fromSide == 0 && Between(a, b, piece.from)) return 0;
  return toSide == 0 && Between(a, b, piece.to) ? std::optional(1.0) : std::nullopt;
}

// Walks the sides of an outline; the last one closes it. Its longitudes run on
// from the one that lies next to near.
template <class Visit>
void VisitSides(std::span<const Position> outline, double near, const Visit& visit) {
  const auto pointOf = [](Position place, double beside) {
    return Point{place.lat, beside + std::remainder(static_cast<double>(place.lon) - beside, 360.0)};
  };
  const Point first = pointOf(outline.front(), near);
  Point before = first;
  for (const Position place : outline.subspan(1)) {
    const Point next = pointOf(place, before.lon);
    visit(before, next);
    before = next;
  }
  visit(before, first);
}

// How far along the piece, 0 to 1, it is first within the outline or on its side.
std::optional<double> FirstTouch(const Piece& piece, std::span<const Position> outline) {
  bool inside = false;
  std::optional<double> first;
  VisitSides(outline, piece.from.lon, [&](Point a, Point b) {
    const auto meeting = Meeting(piece, a, b);
    if (meeting && (!first || *meeting < *first)) first = meeting;
    if ((a.lat > piece.from.lat) == (b.lat > piece.from.lat)) return;
    const double lon = a.lon + (piece.from.lat - a.lat) / (b.lat - a.lat) * (b.lon - a.lon);
    if (piece.from.lon < lon) inside = !inside;
  });
  return inside ? 0 : first;
}

bool IsPlace(Position place) {
  return IsOnMap(place) && std::abs(place.lat) <= 90;
}

// How many steps from the start a zone is met on the way through places.
std::optional<double> StepsTo(const AirspaceRec& zone, std::span<const Position> places) {
  for (std::size_t i = 0; i + 1 < places.size(); ++i) {
    const double lon = places[i].lon;
    const double change = std::remainder(places[i + 1].lon - lon, 360.0);
    const auto part = FirstTouch({{places[i].lat, lon}, {places[i + 1].lat, lon + change}}, zone.points);
    if (part) return static_cast<double>(i) + *part;
  }
  return std::nullopt;
}

}  // namespace

std::vector<ZoneCrossing> ZonesCrossed(const NavDatabase& database, Position from, Position to) {
  std::vector<ZoneCrossing> found;
  if (!IsPlace(from) || !IsPlace(to)) return found;
  const std::vector<Position> places = GreatCirclePlaces(from, to, stepNM);
  const double step = GreatCircleArc(from, to).DistanceNM() / static_cast<double>(places.size() - 1);
  for (std::size_t first = 0; first + 1 < places.size(); first += boxSteps) {
    const auto part = std::span(places).subspan(first, std::min(boxSteps + 1, places.size() - first));
    for (const std::int32_t row : database.airspacesByBox.Near(BoxAround(part))) {
      const AirspaceRec& zone = database.airspaces[static_cast<std::size_t>(row)];
      const auto isRow = [row](const ZoneCrossing& one) { return one.row == row; };
      if (!IsZone(zone) || std::any_of(found.begin(), found.end(), isRow)) continue;
      if (const auto steps = StepsTo(zone, part))
        found.push_back({row, step * (static_cast<double>(first) + *steps)});
    }
  }
  std::stable_sort(found.begin(), found.end(), [](const ZoneCrossing& a, const ZoneCrossing& b) {
    return a.afterNM != b.afterNM ? a.afterNM < b.afterNM : a.row < b.row;
  });
  return found;
}

std::vector<LegZones> ZonesOnRoute(const FlightPlan& plan, const NavDatabase& database) {
  std::vector<LegZones> legs;
  for (int row = 1; row < plan.RowCount(); ++row) {
    const PlanWaypoint& from = plan.Row(row - 1);
    const PlanWaypoint& to = plan.Row(row);
    legs.push_back({row, ZonesCrossed(database, {from.Lat, from.Lon}, {to.Lat, to.Lon})});
  }
  return legs;
}

std::string ZoneText(const AirspaceRec& zone) {
  const std::string_view given = zone.strClass.View();
  const bool known = given.size() == 1 && given.front() >= 'A' && given.front() <= 'G';
  std::string text = "Class: " + std::string(known ? given : unknownAirspaceClass);
  const auto add = [&](std::string_view head, std::string_view codePage) {
    if (!codePage.empty()) text += std::string(head) + CodePageToUtf8(codePage);
  };
  add("   ", zone.strCode.View());
  add(zone.strCode.Empty() ? "   " : " ", zone.strName.View());
  add("   ", zone.strLower.View());
  add(" - ", zone.strUpper.View());
  add("   ", zone.strUnit1.View());
  add(", ", zone.strUnit2.View());
  return text;
}
