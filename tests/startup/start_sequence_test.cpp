#include "startup/start_sequence.h"

#include <gtest/gtest.h>

#include <sstream>

#include "startup/world_load.h"
#include "tests/startup/small_home.h"

namespace {

class FakeView : public StartView {
 public:
  void ShowIntro(const std::filesystem::path& file, std::string_view version) override {
    picture = file.filename().string();
    versionLine = version;
  }
  void ShowProgress(std::string_view text) override { progress.emplace_back(text); }
  void HideProgress() override { progress.emplace_back("(hidden)"); }
  void ShowAirac(std::string_view cycle) override { airac = cycle; }
  void ShowBusyPointer(bool) override {}
  void HideIntro() override {}
  bool OfferBundledDatabase() override {
    ++offers;
    return false;
  }

  std::string picture, versionLine, airac;
  std::vector<std::string> progress;
  int offers = 0;
};

class FakeMessages : public MessageBox {
 public:
  void Show(std::string_view text, MessageIcon) override { texts.emplace_back(text); }
  bool AskYesNo(std::string_view, MessageIcon) override { return false; }
  std::vector<std::string> texts;
};

struct Start {
  explicit Start(const SmallHome& home, std::string_view commandLine = "") : session(AppFolder(home.Path())) {
    outcome = RunStartSequence(session, commandLine, view, messages);
    log = home.Folder().Read("VLM_Info.log");
  }

  Session session;
  FakeView view;
  FakeMessages messages;
  StartOutcome outcome;
  std::string log;
};

// The log's lines that tell of a step.
std::vector<std::string> Steps(const std::string& log) {
  std::vector<std::string> steps;
  std::istringstream lines(log);
  for (std::string line; std::getline(lines, line);) {
    if (line.find(" successful (") != std::string::npos) steps.push_back(line);
  }
  return steps;
}

constexpr const char* databasesMissing =
    " missing or incomplete!\n\n"
    "Please choose different FS version or run Database Manager first!";

}  // namespace

TEST(StartSequence, StepsAndProgressComeInTheirOrder) {
  const SmallHome home;
  const Start start(home);
  EXPECT_EQ(start.outcome, StartOutcome::showAirportSelection);
  EXPECT_TRUE(start.messages.texts.empty()) << start.messages.texts.front();
  const std::vector<std::string> steps = {"ReadIni successful (True)",
                                          "SetFSVersion successful (True)",
                                          "SetCurrentFSPath successful (True)",
                                          "SetFlightplanFolders successful (True)",
                                          "DecryptIvaoPWord successful (True)",
                                          "ReadAirac successful (True)",
                                          "ReadAircraft successful (True)",
                                          "Initializing counters successful (True)",
                                          "Opening MagVar file successful (True)",
                                          "Reading airports successful (True)",
                                          "Reading pending ILS successful (True)",
                                          "ReadNaviDatabases successful (True)",
                                          "ReassignILSCoords successful (True)",
                                          "LoadFuelNames successful (True)",
                                          "LoadGateNames successful (True)",
                                          "LoadGateType successful (True)",
                                          "LoadFreqTypes successful (True)",
                                          "LoadSurfaceNames successful (True)",
                                          "ReadOnlineDatabases successful (False)",
                                          "Check4OnlineFiles successful (True)",
                                          "Check4SidStarFiles successful (True)",
                                          "Check4WeatherFile successful (True)",
                                          "ReadUserObjects successful (True)"};
  EXPECT_EQ(Steps(start.log), steps);
  EXPECT_NE(start.log.find("\nApplication path: " + home.Path().string() + "\n"), std::string::npos);
  EXPECT_NE(start.log.find("\nils.vlm no pending ILS exist\n"), std::string::npos);
  EXPECT_NE(start.log.find("\nLogFile written successfully\nLogfile Closed  at: "), std::string::npos);
  const std::vector<std::string> progress = {"...loading airports for Flight Simulator 2004",
                                             "...loading taxiways for Flight Simulator 2004",
                                             "...loading polygons for Flight Simulator 2004",
                                             "...loading markers for Flight Simulator 2004",
                                             "...loading minimal safety altitude",
                                             "...loading intersections",
                                             "...loading victor airways",
                                             "...loading jet airways",
                                             "...loading GPS fixes",
                                             "...loading VORs",
                                             "...loading NDBs",
                                             "...loading control zones",
                                             "...loading world polygons",
                                             "...loading world lines",
                                             "(hidden)"};
  EXPECT_EQ(start.view.progress, progress);
  EXPECT_EQ(start.view.airac, "2013.10");
  EXPECT_EQ(start.view.picture, "VLM_intro.bmp");
  EXPECT_EQ(start.session.aircraft.Name, "Jet");
  EXPECT_EQ(start.session.database.FindAirportByCode("EDDM"), 1);
  EXPECT_EQ(start.view.offers, 0);
  EXPECT_NE(home.Folder().Read("VLM_Protocol.log").find("Version 8.6"), std::string::npos);
}

TEST(StartSequence, DirectConnectGoesToTheMap) {
  const SmallHome home;
  home.Folder().Write("vlm.ini", "[User]\nDIRCON=1\n");
  EXPECT_EQ(Start(home).outcome, StartOutcome::showMap);
}

TEST(StartSequence, WhichDatabaseIsLoaded) {
  const struct {
    const char* name;
    bool has2004, hasX;
    int setting;
    const char* commandLine;
    int loaded;  // 0, -1, or 1: the process ends
  } cases[] = {{"both, setting 2004", true, true, 0, "", 0},
               {"both, setting X", true, true, -1, "", -1},
               {"only X, setting 2004", false, true, 0, "", -1},
               {"only 2004, setting X", true, false, -1, "", 1},
               {"0 on the command line", true, true, -1, "0", 0},
               {"1 wins over 0", true, true, 0, "01", -1},
               {"1 without X", true, false, 0, "1", 1}};
  for (const auto& c : cases) {
    SCOPED_TRACE(c.name);
    const SmallHome home;
    if (!c.has2004) home.Remove("database/FS09/airport.vlm");
    if (!c.hasX) home.Remove("database/FS10/airport.vlm");
    home.Folder().Write("vlm.ini", "[Fs]\nFSX=" + std::to_string(c.setting) + "\n");
    const Start start(home, c.commandLine);
    EXPECT_EQ(start.outcome == StartOutcome::ended, c.loaded == 1);
    if (c.loaded == 1) {
      ASSERT_EQ(start.messages.texts.size(), 1u);
      EXPECT_EQ(start.messages.texts[0],
                std::string("     Databases for Flight Simulator X") + databasesMissing);
      EXPECT_NE(start.log.find("\nExit in SetFSVersion\nLogfile Closed"), std::string::npos);
    } else {
      EXPECT_EQ(start.session.settings.FSX, c.loaded);
      EXPECT_TRUE(start.messages.texts.empty());
    }
  }
}

TEST(StartSequence, MissingAndEmptyFiles) {
  const struct {
    const char* file;
    const char* message;  // null: none
    const char* logLine;
    bool ends;
  } cases[] = {
      {"database/FS09/region.vlm",
       "            You have to run the Database Manager first!!        \nFile region.vlm missing or zero "
       "bytes! "
       "Check VLM_Info.log for details!",
       "Exit in ErrorFileEmpty\n", true},
      {"database/vor.vlm", " File vor.vlm missing or zero bytes!  \n Check VLM_Info.log for details!",
       "Exit in ErrorFileEmpty with vor.vlm \n", true},
      {"map/worldline.bin", " File worldline.bin missing or zero bytes!  \n Check VLM_Info.log for details!",
       "Exit in ErrorFileEmpty with worldline.bin \n", true},
      {"magvar10.qtr",
       "Velmora file and folder structure incomplete!\n     Check installation or location of program file!\n"
       "                   Program will abort now!",
       "magvar10.qtr\n", true},
      {"database/star.vlm", " SID and/or STAR files missing!  \n SID/STAR features unavailable!",
       "Check4SidStarFiles successful (False)\n", false},
      {"database/WxStation.txt",
       " Weather Station file corrupt or missing!  \n      Weather features unavailable!",
       "Check4WeatherFile successful (False)\n", false},
      {"database/AIRAC.INI", nullptr, "No AIRAC cycle installed!\n", false},
      {"user/aircraft.vlm", nullptr, "ReadAircraft successful (False)\n", false}};
  for (const bool removed : {true, false}) {
    for (const auto& c : cases) {
      SCOPED_TRACE(std::string(c.file) + (removed ? " removed" : " emptied"));
      if (!removed && std::string_view(c.file).starts_with("magvar"))
        continue;  // its presence alone is tested
      const SmallHome home;
      home.Remove(c.file);
      if (!removed) home.Folder().Write(c.file, "");
      const Start start(home);
      EXPECT_EQ(start.outcome == StartOutcome::ended, c.ends);
      ASSERT_EQ(start.messages.texts.size(), c.message == nullptr ? 0u : 1u);
      if (c.message != nullptr) {
        EXPECT_EQ(start.messages.texts[0], c.message);
      }
      EXPECT_NE(start.log.find(c.logLine), std::string::npos) << start.log;
      EXPECT_NE(start.log.find("Logfile Closed"), std::string::npos);
    }
  }
}

TEST(StartSequence, ACutOffFileIsLoggedAndTheStartGoesOn) {
  const SmallHome home;
  home.Folder().Write("database/vor.vlm", home.Folder().Read("database/vor.vlm") + "cut");
  const Start start(home);
  EXPECT_NE(start.outcome, StartOutcome::ended);
  EXPECT_NE(start.log.find("\nError ReadNaviDatabases with vor.vlm \n"), std::string::npos);
  EXPECT_NE(start.log.find("\nReadNaviDatabases successful (False)\n"), std::string::npos);
  EXPECT_EQ(start.session.database.vors.size(), 1u);
}

TEST(StartSequence, WithoutAnyDatabaseTheBundledOneIsOfferedFirst) {
  const SmallHome home;
  home.Remove("database");
  const Start start(home);
  EXPECT_EQ(start.view.offers, 1);
  EXPECT_EQ(start.outcome, StartOutcome::ended);
  ASSERT_EQ(start.messages.texts.size(), 1u);
  EXPECT_EQ(start.messages.texts[0],
            std::string("     Databases for Flight Simulator 2004") + databasesMissing);
  EXPECT_TRUE(std::filesystem::is_directory(home.Path() / "database/FS10"));
}

TEST(LoadWorld, NamesTheMissingFileAndTheCommand) {
  const SmallHome home;
  EXPECT_EQ(LoadWorld(AppFolder(home.Path())).error, "");
  home.Remove("database/ndb.vlm");
  const std::string error = LoadWorld(AppFolder(home.Path())).error;
  EXPECT_NE(error.find("ndb.vlm"), std::string::npos) << error;
  EXPECT_NE(error.find("velmora-dbmanager --home " + home.Path().string() + " --bundled"), std::string::npos)
      << error;
}
