#include "navdata/navi_databases.h"

#include "navdata/navaid_loader.h"
#include "navdata/world_loader.h"

namespace {

enum class WhenEmpty { goOn, endProcess };

struct FileStep {
  std::string_view name;
  std::string_view progress;  // empty: none
  bool inVersionFolder;
  WhenEmpty whenEmpty;
  bool (*parse)(std::span<const std::byte>, NavDatabase&);
  std::string_view counterText;  // such as "; taxicount = "; empty: none
  std::size_t (*rows)(const NavDatabase&);
};

using Bytes = std::span<const std::byte>;

bool ParseUserWaypointBytes(Bytes bytes, NavDatabase& db) {
  if (bytes.empty()) return true;
  const std::string_view text(reinterpret_cast<const char*>(bytes.data()), bytes.size());
  return ParseUserWaypoints(text, db.magneticVariation, db.userWaypoints);
}

// In the order in which they are read. Files below "\map" and the airways,
// navaids and airspaces serve both simulator versions.
const FileStep steps[] = {
    {"taxi.vlm", "...loading taxiways", true, WhenEmpty::goOn,
     [](Bytes b, NavDatabase& db) { return ParseTaxiways(b, db.taxiways); },
     "; taxicount = ", [](const NavDatabase& db) { return db.taxiways.size(); }},
    {"poly.vlm", "...loading polygons", true, WhenEmpty::goOn,
     [](Bytes b, NavDatabase& db) { return ParsePolygons(b, db.polygons); },
     "; polycount = ", [](const NavDatabase& db) { return db.polygons.size(); }},
    {"marker.vlm", "...loading markers", true, WhenEmpty::goOn,
     [](Bytes b, NavDatabase& db) { return ParseMarkers(b, db.markers); },
     "; markercount = ", [](const NavDatabase& db) { return db.markers.size(); }},
    {"msa.vlm", "...loading minimal safety altitude", false, WhenEmpty::goOn,
     [](Bytes b, NavDatabase& db) { return ParseMsa(b, db.msa); },
     "; msacount = ", [](const NavDatabase& db) { return db.msa.size(); }},
    {"dijinter.vlm", "...loading intersections", false, WhenEmpty::endProcess, ParseIntersections, "",
     nullptr},
    {"vicways.vlm", "...loading victor airways", false, WhenEmpty::endProcess,
     [](Bytes b, NavDatabase& db) { return ParseAirways(b, db.victorAirways); }, "", nullptr},
    {"jetways.vlm", "...loading jet airways", false, WhenEmpty::endProcess,
     [](Bytes b, NavDatabase& db) { return ParseAirways(b, db.jetAirways); }, "", nullptr},
    {"fixes.vlm", "...loading GPS fixes", false, WhenEmpty::endProcess, ParseFixes, "", nullptr},
    {"vor.vlm", "...loading VORs", false, WhenEmpty::endProcess, ParseVors, "", nullptr},
    {"ndb.vlm", "...loading NDBs", false, WhenEmpty::endProcess, ParseNdbs, "", nullptr},
    {"airspace.vlm", "...loading control zones", false, WhenEmpty::endProcess,
     [](Bytes b, NavDatabase& db) { return ParseAirspaces(b, db.airspaces); }, "", nullptr},
    {"userwp.txt", "", false, WhenEmpty::goOn, ParseUserWaypointBytes,
     "; usercount = ", [](const NavDatabase& db) { return db.userWaypoints.size(); }},
    {"worldpolygon.bin", "...loading world polygons", false, WhenEmpty::endProcess,
     [](Bytes b, NavDatabase& db) { return ParseWorldPolygons(b, db.worldPolygons); }, "", nullptr},
    {"worldline.bin", "...loading world lines", false, WhenEmpty::endProcess,
     [](Bytes b, NavDatabase& db) { return ParseWorldLines(b, db.worldLines); }, "", nullptr},
};

std::string_view FolderOf(const FileStep& step, const DatabaseLocation& location) {
  if (step.name.ends_with(".bin")) return "\\map\\";
  if (step.inVersionFolder) return location.versionFolder;
  return "\\database\\";
}

}  // namespace

LoadResult ReadNaviDatabases(const DatabaseLocation& location, LoadListener& listener,
                             NavDatabase& database) {
  LoadResult result;
  for (const FileStep& step : steps) {
    const DatabaseFile file = OpenDatabaseFile(location, FolderOf(step, location), step.name);
    if (file.IsEmpty() && step.whenEmpty == WhenEmpty::endProcess) {
      listener.WriteInfoLog(file.SizeLine());
      result.successful = false;
      result.emptyFile = file.SpacedName();
      return result;
    }
    if (!step.progress.empty()) {
      listener.ShowProgress(std::string(step.progress) + (step.inVersionFolder ? location.versionText : ""));
    }
    if (!step.parse(file.Bytes(), database)) {
      result.successful = false;
      listener.WriteInfoLog("Error ReadNaviDatabases with" + file.SpacedName());
    }
    std::string line = file.SizeLine();
    if (step.rows != nullptr) {
      line +=
          std::string(step.counterText) + std::to_string(static_cast<std::int64_t>(step.rows(database)) - 1);
    }
    listener.WriteInfoLog(line);
  }
  return result;
}
