#include "dbmanager/build_database.h"

#include <gtest/gtest.h>

#include <map>

#include "base/app_folder.h"
#include "navdata/airport_loader.h"
#include "navdata/navi_databases.h"
#include "small_sources.h"

namespace {

namespace fs = std::filesystem;

bool GoOn(std::string_view, double) {
  return true;
}

BuildOptions Options(const fs::path& home, const fs::path& data) {
  BuildOptions options;
  options.home = home;
  options.dataFolder = data;
  options.date = {2026, 1, 1};
  return options;
}

// Every file below a folder with its contents, but the manager's lock.
std::map<std::string, std::string> Contents(const TemporaryFolder& folder) {
  std::map<std::string, std::string> contents;
  for (const auto& entry : fs::recursive_directory_iterator(folder.Path())) {
    const std::string name = entry.path().lexically_relative(folder.Path()).string();
    if (name != ".database-manager.lock")
      contents[name] = entry.is_regular_file() ? folder.Read(name) : "folder";
  }
  return contents;
}

class QuietListener : public LoadListener {
 public:
  void ShowProgress(std::string_view) override {}
  void WriteInfoLog(std::string_view) override {}
};

TEST(BuildDatabase, TheLoadersReadWhatItWrote) {
  const SmallSources sources;
  const TemporaryFolder home;
  BuildReport report;
  ASSERT_TRUE(BuildDatabase(Options(home.Path(), sources.Path()), GoOn, report)) << report.failure;
  EXPECT_EQ(RejectTexts(report.rejects), "");
  EXPECT_EQ(report.cycle, "2013.10");
  for (const char* version : {"FS09", "FS10"}) {
    NavDatabase database;
    QuietListener listener;
    const DatabaseLocation location{AppFolder(home.Path()), std::string("\\database\\") + version + "\\", ""};
    LoadResult result = ReadAirports(location, listener, database);
    EXPECT_TRUE(result.successful && !result.emptyFile) << result.emptyFile.value_or("");
    result = ReadNaviDatabases(location, listener, database);
    EXPECT_TRUE(result.successful && !result.emptyFile) << result.emptyFile.value_or("");
    ASSERT_EQ(database.AirportCount(), 1);
    EXPECT_EQ(database.Runways(database.airports[0])[0].strIlsCodeRecip, "IFCW");
    EXPECT_EQ(database.airports[0].strCountry, "Germany");
    EXPECT_EQ(database.vors.size(), 1u);
    EXPECT_EQ(database.ndbs.size(), 1u);
    EXPECT_EQ(database.fixes.size(), 1u);
    EXPECT_EQ(database.lngIntersections, 2);
    EXPECT_EQ(database.victorAirways.size() + database.jetAirways.size(), 2u);
    EXPECT_EQ(database.airspaces.size(), 1u);
    EXPECT_EQ(database.polygons.size(), 4u);
    EXPECT_EQ(database.markers.size(), 1u);
    EXPECT_EQ(database.worldPolygons.shapes.size(), 2u);
    EXPECT_EQ(database.worldLines.shapes.size(), 1u);
  }
  EXPECT_EQ(home.Read("database/AIRAC.INI"), "AIRAC 2013.10\r\n");
  EXPECT_EQ(home.Read("database/WxStation.txt"), "EDDF,50.04000,8.55999\r\n");
  EXPECT_EQ(home.Read("magvar09.qtr").size(), 130320u);
  EXPECT_EQ(home.Read("magvar09.qtr"), home.Read("magvar10.qtr"));
  EXPECT_EQ(home.Read("VLM_intro.bmp"), "BM picture");
  EXPECT_NE(home.Read("user/aircraft.vlm").find("\r\n12,\"Boeing 747-400\","), std::string::npos);
}

TEST(BuildDatabase, KeepsThePilotsFiles) {
  const SmallSources sources;
  const TemporaryFolder home;
  home.Write("database/userwp.txt", "VLMUSERDB\n");
  home.Write("database/UserObj.txt", "mine");
  home.Write("database/FS10/notes/note.txt", "note");
  home.Write("database/VOR.VLM", "old, in capitals");
  home.Write("database/sid.vlm", "procedures");
  home.Write("user/aircraft.vlm", "1,Mine");
  home.Write("vlm.ini", "[Common]");
  BuildReport report;
  ASSERT_TRUE(BuildDatabase(Options(home.Path(), sources.Path()), GoOn, report)) << report.failure;
  EXPECT_EQ(home.Read("database/userwp.txt"), "VLMUSERDB\n");
  EXPECT_EQ(home.Read("database/UserObj.txt"), "mine");
  EXPECT_EQ(home.Read("database/FS10/notes/note.txt"), "note");
  EXPECT_EQ(home.Read("database/sid.vlm"), "procedures");
  EXPECT_EQ(home.Read("user/aircraft.vlm"), "1,Mine");
  EXPECT_EQ(home.Read("vlm.ini"), "[Common]");
  EXPECT_FALSE(fs::exists(home.Path() / "database/VOR.VLM"));
  EXPECT_EQ(home.Read("database/vor.vlm").size(), 56u);
}

TEST(BuildDatabase, AnythingThatFailsLeavesTheOldDatabase) {
  const SmallSources sources;
  const TemporaryFolder home;
  BuildReport first;
  ASSERT_TRUE(BuildDatabase(Options(home.Path(), sources.Path()), GoOn, first)) << first.failure;
  home.Write("database/userwp.txt", "VLMUSERDB\n");
  const auto before = Contents(home);

  const auto fails = [&](const char* file, const std::string& contents, const std::string& reason) {
    const std::string good = sources.Folder().Read(file);
    sources.Folder().Write(file, contents);
    BuildReport report;
    EXPECT_FALSE(BuildDatabase(Options(home.Path(), sources.Path()), GoOn, report)) << file;
    EXPECT_NE(report.failure.find(reason), std::string::npos) << report.failure;
    EXPECT_EQ(Contents(home), before) << file;
    sources.Folder().Write(file, good);
  };
  const auto cut = [&](const char* file) {
    const std::string whole = sources.Folder().Read(file);
    return whole.substr(0, whole.size() - 4);
  };
  for (const char* file : {"apt.dat", "nav.dat", "fix.dat", "awy.dat"}) {
    fails(file, cut(file), "closing row");
    fails(file, "<html>not found</html>", "does not begin");
  }
  fails("land-50m.json", cut("land-50m.json"), "land-50m.json");
  fails("wmm2025.txt", "1 0 1 2 3 4\n", "coefficients are missing");
  fails("apt.dat", WithHead("1000", "1 0 1 0 AAAA No tower\n15 50 8 0 Ramp\n99\n"), "no airspace");
}

TEST(BuildDatabase, CancelsAtEveryStep) {
  const SmallSources sources;
  const TemporaryFolder home;
  BuildReport first;
  int calls = 0;
  double lastDone = -1;
  ASSERT_TRUE(BuildDatabase(
      Options(home.Path(), sources.Path()),
      [&](std::string_view, double done) {
        EXPECT_GE(done, lastDone);
        lastDone = done;
        return ++calls > 0;
      },
      first));
  EXPECT_EQ(lastDone, 1);
  const auto before = Contents(home);
  // The last call comes when all is done.
  for (int stop = 1; stop < calls; stop += stop < 12 ? 1 : 37) {
    BuildReport report;
    int call = 0;
    EXPECT_FALSE(BuildDatabase(
        Options(home.Path(), sources.Path()), [&](std::string_view, double) { return ++call < stop; },
        report));
    EXPECT_EQ(report.failure, "cancelled");
    EXPECT_EQ(Contents(home), before) << stop;
  }
}

TEST(BuildDatabase, OpenAirReplacesTheApproximateZones) {
  const SmallSources sources;
  sources.Folder().Write("air.txt", "AC R\nAN One\nV X=50:00:00 N 008:00:00 E\nDC 5\nAC Q\nAN Two\nDC 5\n");
  const TemporaryFolder home;
  BuildOptions options = Options(home.Path(), sources.Path());
  options.openAir = {sources.Path() / "air.txt"};
  BuildReport report;
  ASSERT_TRUE(BuildDatabase(options, GoOn, report)) << report.failure;
  const std::string file = home.Read("database/airspace.vlm");
  EXPECT_NE(file.find("One"), std::string::npos);
  EXPECT_EQ(file.find("approximate"), std::string::npos);
  EXPECT_EQ(report.rejects.Count(), 2u);
}

TEST(BuildDatabase, CustomSceneryReplacesDefaultAirportsInPlace) {
  const SmallSources sources;
  const TemporaryFolder plane, home;
  const std::string inPack = "Earth nav data/apt.dat";
  plane.Write("Global Scenery/Global Airports/" + inPack,
              WithHead("1200", SmallSources::Airport("AAAA", "Default") +
                                   SmallSources::Airport("BBBB", "Default") + "99\n"));
  plane.Write("Custom Scenery/High/" + inPack, WithHead("1100", SmallSources::Airport("AAAA", "High")));
  plane.Write("Custom Scenery/Low/" + inPack,
              WithHead("1100", SmallSources::Airport("AAAA", "Low") + SmallSources::Airport("CCCC", "Low")));
  plane.Write("Custom Scenery/Off/" + inPack, WithHead("1100", SmallSources::Airport("BBBB", "Off")));
  plane.Write(
      "Custom Scenery/scenery_packs.ini",
      "I\n1000 Version\nSCENERY\n\nSCENERY_PACK Custom Scenery/High/\r\nSCENERY_PACK Custom Scenery/Low/\n"
      "SCENERY_PACK_DISABLED Custom Scenery/Off/\n");
  for (const char* name : {"nav", "fix", "awy"}) {
    fs::create_directories(plane.Path() / "Resources/default data");
    fs::copy_file(sources.Path() / (std::string(name) + ".dat"),
                  plane.Path() / "Resources/default data" / ("earth_" + std::string(name) + ".dat"));
  }
  plane.Write("Custom Data/earth_fix.dat",
              WithHead("1100", "51 9 ALONE ENRT ED\n52 9 OTHER ENRT ED\n53 9 THIRD ENRT ED\n99\n"));
  BuildOptions options = Options(home.Path(), sources.Path());
  options.source = SourceKind::xPlane;
  options.sourceFolder = plane.Path();
  BuildReport report;
  ASSERT_TRUE(BuildDatabase(options, GoOn, report)) << report.failure;
  NavDatabase database;
  const std::string bytes = home.Read("database/FS09/airport.vlm");
  EXPECT_TRUE(ParseAirports(std::as_bytes(std::span(bytes)), database));
  std::string airports;
  for (std::int32_t i = 0; i < database.AirportCount(); ++i) {
    const AirportRec& airport = database.airports[static_cast<std::size_t>(i)];
    airports += airport.strCode.Text() + " " + airport.strName.Text() + "\n";
  }
  EXPECT_EQ(airports, "AAAA High\nBBBB Default\nCCCC Low\n");
  EXPECT_EQ(home.Read("database/fixes.vlm").size(), 3u * 48);  // of Custom Data
}

TEST(FormatReport, ShowsTwentyRejectedLinesAndCountsAll) {
  BuildReport report;
  for (std::size_t i = 1; i <= 25; ++i)
    report.rejects.Add("nav.dat", i, "no position");
  const std::string text = FormatReport(report);
  EXPECT_NE(text.find("Rejected lines: 25\n"), std::string::npos);
  EXPECT_NE(text.find("nav.dat, line 20: no position\n  and 5 more\n"), std::string::npos);
  EXPECT_EQ(text.find("line 21"), std::string::npos);
}

// The data that the project ships, whole.
TEST(BuildBundledDatabase, HoldsTheWholeSource) {
  const TemporaryFolder home;
  BuildReport report;
  ASSERT_TRUE(BuildBundledDatabase(home.Path(), fs::path(VELMORA_SOURCE_DIR) / "data", GoOn, report))
      << report.failure;
  std::map<std::string, std::size_t> written;
  for (const BuildReport::Row& row : report.rows)
    written[row.what] = row.written;
  EXPECT_EQ(written["airports"], 34074u);
  EXPECT_EQ(written["runways"], 41980u);
  EXPECT_EQ(written["frequencies"], 22134u);
  EXPECT_EQ(written["VOR, TACAN, DME"], 3720u + 396u + 287u);
  EXPECT_EQ(written["NDB"], 7099u);
  EXPECT_EQ(written["ILS, localizers"], 3202u + 299u);
  EXPECT_EQ(written["airway points"] + written["fixes"], 30130u + 94910u);
  // One segment for each name between "-", names with blanks among them.
  EXPECT_EQ(written["airway segments"], 40770u + 35875u);
  EXPECT_LT(report.rejects.Count(), 20u);
}

}  // namespace
