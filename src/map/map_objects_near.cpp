#include "map/map_objects_near.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <set>

#include "base/code_page.h"
#include "map/airspace_kinds.h"
#include "map/airway_layer.h"
#include "map/geo_line.h"
#include "map/hover_sources.h"
#include "map/waypoint_layer.h"

namespace {

constexpr std::int16_t ilsRange = 200;
constexpr std::int16_t fixRange = 150;
constexpr double airwayDistance = 60;  // units

class ObjectList {
 public:
  ObjectList(const HoverQuestion& question, const MapSelection& present)
      : question(question), present(present) {}

  // With the kind and row picked out; airway is empty for anything but airways.
  void Add(SelectedObject type, std::int32_t row, std::string text, std::string_view airway = {}) {
    MapSelection selection = present;
    selection.SelectedObjectType = type;
    selection.SelectedObjectIndex = row;
    selection.SelectedAirway = airway;
    Append(std::move(text), std::move(selection));
  }

  void Append(std::string text, MapSelection selection) {
    if (objects.size() < maxMapObjects) objects.push_back({std::move(text), std::move(selection)});
  }

  const HoverQuestion& question;
  const MapSelection& present;
  std::vector<MapObject> objects;
};

// Every row of a table that is near and shown, as "Kind CODE Name".
template <class Rows, class Shown>
void AddPoints(ObjectList& list, SelectedObject type, std::string_view kind, const PlaceIndex& index,
               const Rows& rows, Shown&& shown) {
  VisitNear(list.question, index, rows, hoverRadius, [&](std::int32_t row, const auto& object) {
    if (!shown(object)) return;
    const std::string_view code = object.strCode.View();
    const std::string_view name = object.strName.View();
    list.Add(type, row, JoinedWords({kind, code, name == code ? std::string_view{} : name}));
  });
}

void AddNavaids(ObjectList& list) {
  const NavDatabase& database = list.question.database;
  const MapSwitches& switches = list.question.switches;
  const auto always = [](const auto&) { return true; };
  if (switches.mnuAirport) {
    AddPoints(list, SelectedObject::airport, "Airport", database.airportsByPlace, database.airports, always);
  }
  if (switches.mnuVOR)
    AddPoints(list, SelectedObject::vor, "VOR", database.vorsByPlace, database.vors, always);
  if (switches.mnuNDB)
    AddPoints(list, SelectedObject::ndb, "NDB", database.ndbsByPlace, database.ndbs, always);
}

// An ILS lies at its threshold, a runway's length or so from its airport. The
// pending ones follow the airports' in the numbering of the selection.
void AddIls(ObjectList& list) {
  const HoverQuestion& question = list.question;
  const NavDatabase& database = question.database;
  if (!question.switches.mnuAirport || !question.switches.mnuILS || question.RangeNM() > ilsRange) return;
  for (const std::int32_t row : database.airportsByPlace.Near(question.view.SearchBox(0))) {
    const AirportRec& airport = database.airports[static_cast<std::size_t>(row)];
    if (!question.view.InView(airport.sngLat, airport.sngLon, 0)) continue;
    const auto first = static_cast<std::int32_t>(airport.firstIls);
    const std::span<const IlsRec> all = database.Ils(airport);
    for (std::size_t i = 0; i < all.size(); ++i) {
      if (!question.Near(all[i].sngLat, all[i].sngLon, hoverRadius, hoverRadius)) continue;
      list.Add(SelectedObject::ils, first + static_cast<std::int32_t>(i),
               JoinedWords({"ILS", all[i].strCode.View(), airport.strCode.View(), all[i].strRwyID.View()}));
    }
  }
  const auto pendingFrom = static_cast<std::int32_t>(database.ils.size());
  VisitNear(question, database.pendingIlsByPlace, database.pendingIls, hoverRadius,
            [&](std::int32_t row, const IlsRec& ils) {
              list.Add(SelectedObject::ils, pendingFrom + row, JoinedWords({"ILS", ils.strCode.View()}));
            });
}

void AddWaypoints(ObjectList& list) {
  const NavDatabase& database = list.question.database;
  const MapSwitches& switches = list.question.switches;
  AddPoints(list, SelectedObject::intersection, "Int", database.intersectionsByPlace, database.intersections,
            [&](const IntersectionRec& row) { return IsShown(row, switches); });
  if (switches.mnuGPSFix && list.question.RangeNM() <= fixRange) {
    AddPoints(list, SelectedObject::fix, "Fix", database.fixesByPlace, database.fixes,
              [](const FixRec&) { return true; });
  }
}

void AddAirways(ObjectList& list, SelectedObject type, std::string_view kind,
                const std::vector<AirwaySegmentRec>& segments, const PlaceIndex& byEnds) {
  const HoverQuestion& question = list.question;
  const auto place = [&](std::int32_t row) {
    const IntersectionRec& end = question.database.intersections[static_cast<std::size_t>(row)];
    return Position{end.sngLat, end.sngLon};
  };
  std::set<std::string_view> named;
  std::vector<SurfaceLine> lines;
  for (const AirwaySegmentRec* segment : SegmentsInView(question.view, question.database, segments, byEnds)) {
    const std::string_view name = segment->strName.View();
    if (name.empty() || named.contains(name)) continue;
    lines.clear();
    AppendMapLine(question.projection, place(segment->lngFrom), place(segment->lngTo), lines);
    const bool passes = std::any_of(lines.begin(), lines.end(), [&](const SurfaceLine& line) {
      return DistanceToLine(line, question.x, question.y) < airwayDistance;
    });
    if (!passes) continue;
    named.insert(name);
    list.Add(type, static_cast<std::int32_t>(segment - segments.data()), JoinedWords({kind, name}), name);
  }
}

void AddAirspaces(ObjectList& list, Position pointer) {
  const NavDatabase& database = list.question.database;
  for (const std::int32_t row :
       database.airspacesByBox.Near({pointer.lat, pointer.lon, pointer.lat, pointer.lon})) {
    const AirspaceRec& airspace = database.airspaces[static_cast<std::size_t>(row)];
    if (!AirspaceIsShown(airspace, list.question.switches) || !ShapeHolds(airspace.points, pointer)) continue;
    MapSelection selection = list.present;
    const auto picked = std::find(selection.activeAirspaces.begin(), selection.activeAirspaces.end(), row);
    const bool present = picked != selection.activeAirspaces.end();
    if (present) {
      selection.activeAirspaces.erase(picked);
    } else {
      selection.activeAirspaces.push_back(row);
    }
    list.Append(JoinedWords({"Airspace", airspace.strName.View()}), std::move(selection));
  }
}

// The last shape of the file that holds the pointer: it is drawn above the others.
void AddOutline(ObjectList& list, Position pointer) {
  const WorldShapes& world = list.question.database.worldPolygons;
  std::int32_t found = -1;
  for (std::size_t row = 0; row < world.shapes.size(); ++row) {
    const WorldShapeRec& shape = world.shapes[row];
    if (pointer.lat < shape.sngBox2 || pointer.lat > shape.sngBox4) continue;
    const auto points = std::span(world.points).subspan(shape.firstPoint, shape.pointCount);
    if (ShapeHolds(points, pointer)) found = static_cast<std::int32_t>(row);
  }
  if (found < 0) return;
  MapSelection selection = list.present;
  selection.SelectedOutline = found;
  const bool water = world.shapes[static_cast<std::size_t>(found)].bytType == worldInlandWater;
  list.Append(water ? "Shore around this place" : "Coast around this place", std::move(selection));
}

}  // namespace

bool ShapeHolds(std::span<const Position> points, Position place) {
  // Longitudes run on across the date line, so the shape may lie whole turns
  // away from the place: three places are tested at once.
  constexpr std::array<double, 3> turns = {-360, 0, 360};
  std::array<bool, 3> inside{};
  double shift = 0;
  for (std::size_t i = 1; i <= points.size(); ++i) {
    const Position from = points[i - 1];
    const Position to = points[i % points.size()];
    const double fromLon = from.lon + shift;
    const double step = static_cast<double>(to.lon) - from.lon;
    // A full turn along a pole's edge is no short way round.
    if (std::abs(step) > 180 && std::abs(step) < 359) shift += step > 0 ? -360 : 360;
    if ((from.lat > place.lat) == (to.lat > place.lat)) continue;
    const double part =
        (static_cast<double>(place.lat) - from.lat) / (static_cast<double>(to.lat) - from.lat);
    const double crossing = fromLon + part * (to.lon + shift - fromLon);
    for (std::size_t turn = 0; turn < turns.size(); ++turn)
      if (crossing > place.lon + turns[turn]) inside[turn] = !inside[turn];
  }
  return inside[0] || inside[1] || inside[2];
}

std::vector<MapObject> MapObjectsNear(const HoverQuestion& question, const MapSelection& present) {
  ObjectList list(question, present);
  const NavDatabase& database = question.database;
  const MapSwitches& switches = question.switches;
  AddNavaids(list);
  AddIls(list);
  AddWaypoints(list);
  if (switches.mnuVictor) {
    AddAirways(list, SelectedObject::victorAirway, "Victor airway", database.victorAirways,
               database.victorAirwaysByEnds);
  }
  if (switches.mnuJet)
    AddAirways(list, SelectedObject::jetAirway, "Jet airway", database.jetAirways, database.jetAirwaysByEnds);
  const Position pointer{question.projection.YToLat(question.y), question.projection.XToLon(question.x)};
  AddAirspaces(list, pointer);
  if (switches.mnuCoastlines) AddOutline(list, pointer);
  return std::move(list.objects);
}

MapSelection ClearedSelection() {
  return {};
}
