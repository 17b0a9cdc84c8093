#include "dbmanager/source_files.h"

#include <gtest/gtest.h>

#include "dbmanager/source_error.h"
#include "small_sources.h"

namespace {

namespace fs = std::filesystem;

TEST(FindSourceFiles, NamesTheFileThatIsMissing) {
  for (const char* name :
       {"apt.dat", "awy.dat", "metar.dat", "countries-50m.json", "wmm2025.txt", "VLM_intro.bmp"}) {
    const SmallSources sources;
    fs::remove(sources.Path() / name);
    try {
      FindSourceFiles(SourceKind::bundled, "", sources.Path());
      FAIL() << name;
    } catch (const BuildError& error) {
      EXPECT_NE(std::string(error.what()).find(name), std::string::npos) << error.what();
    }
  }
}

TEST(FindSourceFiles, FlightGearFolderWithPackedFiles) {
  const SmallSources sources;
  const TemporaryFolder folder;
  for (const char* name : {"Airports/apt.dat.gz", "Airports/metar.dat.gz", "Navaids/nav.dat",
                           "Navaids/fix.dat.gz", "Navaids/awy.dat.gz"}) {
    folder.Write(name, "x");
  }
  const SourceFiles files = FindSourceFiles(SourceKind::flightGear, folder.Path(), sources.Path());
  EXPECT_EQ(files.airports.at(0), folder.Path() / "Airports/apt.dat.gz");
  EXPECT_EQ(files.navaids, folder.Path() / "Navaids/nav.dat");
  EXPECT_EQ(files.weatherStations, folder.Path() / "Airports/metar.dat.gz");
  EXPECT_EQ(files.land, sources.Path() / "land-50m.json");
  EXPECT_THROW(FindSourceFiles(SourceKind::xPlane, folder.Path(), sources.Path()), BuildError);
}

TEST(FindSourceFiles, PacksThatTheListDoesNotNameWin) {
  const SmallSources sources;
  const TemporaryFolder folder;
  for (const char* name : {"earth_nav.dat", "earth_fix.dat", "earth_awy.dat"}) {
    folder.Write(fs::path("Resources/default data") / name, "x");
  }
  folder.Write("Custom Data/earth_awy.dat", "x");
  folder.Write("Resources/default scenery/default apt dat/Earth nav data/apt.dat", "x");
  folder.Write("Custom Scenery/Fresh/Earth nav data/apt.dat", "x");
  folder.Write("Custom Scenery/Listed/Earth nav data/apt.dat", "x");
  folder.Write("Custom Scenery/scenery_packs.ini",
               "SCENERY_PACK Custom Scenery/Listed/\nSCENERY_PACK Custom Scenery/Gone/\n");
  const SourceFiles files = FindSourceFiles(SourceKind::xPlane, folder.Path(), sources.Path());
  EXPECT_EQ(files.airways, folder.Path() / "Custom Data/earth_awy.dat");
  EXPECT_EQ(files.fixes, folder.Path() / "Resources/default data/earth_fix.dat");
  ASSERT_EQ(files.airports.size(), 3u);
  EXPECT_EQ(files.airports[1], folder.Path() / "Custom Scenery/Listed/Earth nav data/apt.dat");
  EXPECT_EQ(files.airports[2], folder.Path() / "Custom Scenery/Fresh/Earth nav data/apt.dat");
}

}  // namespace
