#include "startup/world_load.h"

#include "navdata/airport_loader.h"
#include "navdata/ils_positions.h"
#include "navdata/navi_databases.h"
#include "settings/settings_file.h"
#include "startup/fs_version.h"

namespace {

class SilentListener : public LoadListener {
 public:
  void ShowProgress(std::string_view) override {}
  void WriteInfoLog(std::string_view) override {}
};

std::string MissingText(const AppFolder& home, std::string_view file) {
  return std::string(Trimmed(file)) + " is missing or empty below " + home.Root().string() +
         "; build the database with: velmora-dbmanager --home " + home.Root().string() + " --bundled";
}

FSVersion Choose(const AppFolder& home, std::optional<std::int16_t> wanted) {
  if (wanted) return {*wanted, IsDatabaseUsable(home, *wanted)};
  return ChooseFSVersion(home, "", ReadIni(home).settings.FSX);
}

}  // namespace

WorldLoad LoadWorld(const AppFolder& home, std::optional<std::int16_t> blnFSX) {
  WorldLoad world;
  const FSVersion version = Choose(home, blnFSX);
  world.blnFSX = version.blnFSX;
  const auto grid = ReadWholeFile(home.Resolve(MagVarFileName(version.blnFSX)));
  const DatabaseLocation location = LocationOf(home, version.blnFSX);
  if (!version.usable) {
    world.error = MissingText(home, location.versionFolder + "airport.vlm");
    return world;
  }
  if (!grid || grid->Bytes().empty()) {
    world.error = MissingText(home, MagVarFileName(version.blnFSX).substr(1));
    return world;
  }
  world.database.magneticVariation = MagneticVariationGrid::FromBytes(grid->Bytes());
  SilentListener listener;
  const LoadResult airports = ReadAirports(location, listener, world.database);
  if (airports.emptyFile) {
    world.error = MissingText(home, *airports.emptyFile);
    return world;
  }
  const bool pending = ReadPendingIls(location, listener, world.database);
  const LoadResult others = ReadNaviDatabases(location, listener, world.database);
  if (others.emptyFile) {
    world.error = MissingText(home, *others.emptyFile);
    return world;
  }
  ReassignILSCoords(world.database);
  BuildIndexes(world.database);
  world.complete = airports.successful && pending && others.successful;
  return world;
}
