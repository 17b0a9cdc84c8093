// Radio navaids, intersections, fixes and the pilot's own waypoints under the
// pointer.
#include <algorithm>
#include <span>

#include "base/code_page.h"
#include "base/numbers.h"
#include "map/hover_sources.h"
#include "map/pointer_panel.h"

namespace {

// The name, if it says more than the code.
std::string_view OwnName(std::string_view code, std::string_view name) {
  return name == code ? std::string_view{} : name;
}

void AddAirways(std::string_view kind, std::span<const ConnectionRec> connections, HoverLines& lines) {
  std::vector<std::string_view> names;
  for (const ConnectionRec& connection : connections) {
    const std::string_view name = connection.strAirway.View();
    if (!name.empty() && std::find(names.begin(), names.end(), name) == names.end()) names.push_back(name);
  }
  if (names.empty()) return;
  std::string text(kind);
  for (std::size_t i = 0; i < names.size(); ++i)
    text += (i == 0 ? "" : ", ") + CodePageToUtf8(names[i]);
  lines.push_back({text});
}

}  // namespace

void FindVors(const HoverQuestion& question, HoverLines& lines) {
  const Position reference = MapReference(question.view, question.connected);
  VisitNear(
      question, question.database.vorsByPlace, question.database.vors, hoverRadius,
      [&](std::int32_t, const VorRec& vor) {
        std::string heading = JoinedWords({"VOR", vor.strCode.View(), vor.strName.View()});
        if (!vor.strType.Empty() && vor.strType != "VOR")
          heading += " (" + CodePageToUtf8(vor.strType.View()) + ")";
        const float bearing = GreatCircleCourse(vor.sngLat, vor.sngLon, reference.lat, reference.lon);
        const float distance = GreatCircleDistance(vor.sngLat, vor.sngLon, reference.lat, reference.lon);
        lines.push_back({heading, true});
        lines.push_back({FormatPicture(vor.sngFrequency, "###.00") + " MHz"});
        lines.push_back({question.PositionLine(vor.sngLat, vor.sngLon)});
        lines.push_back(
            {"Radial: " + std::to_string(WholeMagneticBearing(bearing, question.view.MapMagVar)) + "°"});
        lines.push_back({"DME: " + FormatPicture(distance, " ###0.0") + " NM"});
      });
}

void FindNdbs(const HoverQuestion& question, HoverLines& lines) {
  VisitNear(question, question.database.ndbsByPlace, question.database.ndbs, hoverRadius,
            [&](std::int32_t, const NdbRec& ndb) {
              lines.push_back({JoinedWords({"NDB", ndb.strCode.View(), ndb.strName.View()}), true});
              lines.push_back({FormatPicture(ndb.sngFrequency, "###.00") + " kHz"});
              lines.push_back({question.PositionLine(ndb.sngLat, ndb.sngLon)});
            });
}

void FindIntersections(const HoverQuestion& question, HoverLines& lines) {
  const NavDatabase& database = question.database;
  VisitNear(question, database.intersectionsByPlace, database.intersections, hoverRadius,
            [&](std::int32_t, const IntersectionRec& row) {
              const std::string_view code = row.strCode.View();
              if (code.empty()) return;  // a row that the file does not name
              lines.push_back({JoinedWords({"Int", code, OwnName(code, row.strName.View())}), true});
              lines.push_back({question.PositionLine(row.sngLat, row.sngLon)});
              AddAirways("Victor: ", database.LowAlt(row), lines);
              AddAirways("Jet: ", database.HighAlt(row), lines);
            });
}

void FindFixes(const HoverQuestion& question, HoverLines& lines) {
  VisitNear(question, question.database.fixesByPlace, question.database.fixes, hoverRadius,
            [&](std::int32_t, const FixRec& row) {
              const std::string_view code = row.strCode.View();
              lines.push_back({JoinedWords({"Fix", code, OwnName(code, row.strName.View())}), true});
              lines.push_back({question.PositionLine(row.sngLat, row.sngLon)});
            });
}

void FindUserWaypoints(const HoverQuestion& question, HoverLines& lines) {
  VisitNear(question, question.database.userWaypointsByPlace, question.database.userWaypoints, hoverRadius,
            [&](std::int32_t, const UserWaypointRec& row) {
              const std::string_view code = row.strCode.View();
              lines.push_back({JoinedWords({code, OwnName(code, row.strName.View())}), true});
              lines.push_back({question.PositionLine(row.sngLat, row.sngLon)});
            });
}
