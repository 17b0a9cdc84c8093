// Plans saved: names, folders, the order of the formats, and what one that fails leaves of the others.
#include "flightplan/save_plan.h"

#include <gtest/gtest.h>
#include <sys/resource.h>
#include <sys/stat.h>
#include <unistd.h>

#include <csignal>

#include "flightplan/formats/plan_formats.h"
#include "flightplan/known_plan_file.h"
#include "flightplan/plan_file_name.h"
#include "flightplan/plan_folders.h"
#include "flightplan/plan_preview.h"
#include "flightplan/recent_plans.h"
#include "tests/flightplan/plan_cases.h"
#include "tests/temporary_folder.h"

namespace {

namespace fs = std::filesystem;

constexpr std::int32_t own = 1 << 0;
constexpr std::int32_t radarContact = 1 << 1;
constexpr std::int32_t pmdg = 1 << 4;
constexpr std::int32_t levelD = 1 << 7;
constexpr std::int32_t projectMagenta = 1 << 9;
constexpr std::int32_t iFly = 1 << 11;

class SavedPlans : public testing::Test {
 protected:
  PlanSaving Saving(const std::string& simulator = {}) {
    return {flight.plan, flight.context, home, settings, simulator, casesClock, "2601"};
  }
  PlanSaved Save(const std::string& name, std::int32_t formats, const std::string& simulator = {}) {
    return SavePlan(Saving(simulator), {name, plans, formats});
  }
  std::string Read(const fs::path& file) { return folder.Read(file); }
  std::vector<std::string>& Told() { return flight.messages.texts; }

  TemporaryFolder folder;
  AppFolder home{folder.Path() / "home"};
  fs::path plans = folder.Path() / "plans";
  Settings settings;
  CasePlan flight{PlanCase::airwaysAndProcedures};
};

TEST_F(SavedPlans, EachTickedFormatGetsItsFileAndOneFailureStopsNoOther) {
  folder.Write("blocked", "a file where a folder should be");
  settings.RADCONPATH = (folder.Path() / "blocked").string() + "\\";
  const PlanSaved saved = Save(" trip.pln ", own | radarContact | projectMagenta);
  const fs::path magenta = home.Root() / "FSplan" / "PM" / "trip.pln";
  EXPECT_EQ(saved.ownFile, plans / "trip.pln");
  EXPECT_EQ(saved.written, (std::vector<fs::path>{plans / "trip.pln", magenta}));
  EXPECT_EQ(saved.failures, 1);
  ASSERT_EQ(Told().size(), 1u);
  EXPECT_TRUE(Told()[0].starts_with("The file for RadarContact could not be saved.\n\n" +
                                    (folder.Path() / "blocked").string() + ":"))
      << Told()[0];
  EXPECT_NE(Read("plans/trip.pln").find("[VLM]"), std::string::npos);
  EXPECT_EQ(Read(magenta).find("[VLM]"), std::string::npos);
  EXPECT_EQ(settings.FPSEL, own | radarContact | projectMagenta);
  EXPECT_EQ(settings.FPPATH09, plans.string() + "\\");
  EXPECT_EQ(settings.FPPATH10, "") << "of the other simulator";
}

TEST_F(SavedPlans, TheFirstFolderIsKeptForItsSimulator) {
  settings.FSX = -1;
  Save("a", own);
  plans = folder.Path() / "other";
  Save("b", own);
  EXPECT_EQ(settings.FPPATH10, (folder.Path() / "plans").string() + "\\");
  EXPECT_EQ(settings.FPPATH09, "");
  EXPECT_NE(Read("other/b.pln"), "");
}

TEST_F(SavedPlans, NoFormatTakesTheFileOfAnother) {
  settings.RADCONPATH = plans.string();
  PlanSaved saved = Save("trip", own | radarContact);
  EXPECT_EQ(saved.failures, 1);
  EXPECT_NE(Read("plans/trip.pln").find("[VLM]"), std::string::npos);
  ASSERT_EQ(Told().size(), 1u);
  EXPECT_TRUE(Told()[0].starts_with("The file for RadarContact could not be saved.\n\n" +
                                    (plans / "trip.pln").string()))
      << Told()[0];

  saved = Save("trip", radarContact);
  EXPECT_TRUE(saved.written.empty()) << "the plan would be lost";
  EXPECT_NE(Read("plans/trip.pln").find("[VLM]"), std::string::npos);
}

TEST_F(SavedPlans, AircraftOfTheSimulatorAreServedBelowItsFolder) {
  const fs::path simulator = folder.Path() / "FS9";
  folder.Write("FS9/SCENERY.CFG", "");
  folder.Write("FS9/pmdg/FlightPlans/old.rte", "");
  flight.messages.answer = false;
  const PlanSaved saved = Save("trip", ~0, simulator.string() + "\\");
  const auto first = [&](std::size_t i) { return saved.written.at(i); };
  EXPECT_EQ(first(0), simulator / "pmdg" / "FlightPlans" / "trip.rte");
  EXPECT_EQ(first(1), simulator / "Level-D Simulations" / "navdata" / "Flightplans" / "trip.rte");
  EXPECT_EQ(first(2), simulator / "ifly" / "747-400" / "navdata" / "fltplan" / "trip.fltplan");
  EXPECT_EQ(first(3), plans / "trip.pln");
  EXPECT_EQ(saved.failures, 0);
  EXPECT_EQ(saved.written.size(), PlanFormats().size()) << "every format has a place of its own";
  EXPECT_TRUE(fs::exists(home.Root() / "FSplan" / "XPlane" / "EDDFEDDM.fms"));
  EXPECT_TRUE(fs::exists(plans / "vlm.xsl")) << "beside trip.xml";
  EXPECT_EQ(Told(), (std::vector<std::string>{"Saving Flightplan include SID's and Star's for PMDG?",
                                              "Saving Flightplan include SID's and Star's for LevelD?"}));
  EXPECT_EQ(Read(first(0)).find("DEMAB"), std::string::npos) << "the SID was declined";
  EXPECT_NE(Read(first(2)).find("DEMAB"), std::string::npos) << "where nobody was asked it is there";
}

TEST_F(SavedPlans, WithoutTheSimulatorItsFormatsAreToldAndTheOthersWritten) {
  const PlanSaved saved = Save("trip", pmdg | levelD | iFly | own, (folder.Path() / "noFS").string());
  const fs::path fallback = home.Root() / "FSPlan";
  EXPECT_EQ(saved.written, (std::vector<fs::path>{fallback / "trip.rte", plans / "trip.pln"}));
  EXPECT_EQ(saved.failures, 2);
  ASSERT_EQ(Told().size(), 7u);
  EXPECT_EQ(Told()[0],
            "\nFlight plan cannot be saved because FS Path unknown!\n      Please specify FS Path in Options "
            "Window!");
  EXPECT_EQ(Told()[2], "Cannot find Flight Simulator path! PMDG file is written into: " + fallback.string());
  EXPECT_EQ(Told()[4],
            "Cannot find Flight Simulator path! LevelD file is written into: " + fallback.string());
  EXPECT_TRUE(Told()[5].starts_with("The file for LevelD could not be saved.")) << "PMDG's has its name";
  EXPECT_EQ(Told()[6], "Cannot find Flight Simulator path!");
}

TEST_F(SavedPlans, AnAirportWithoutRunwaysStopsTheFormatsThatNeedThem) {
  flight.plan = {};
  flight.Begin("EDDF", "EDXX");
  const PlanSaved saved = Save("trip", 1 << 5 | own);
  EXPECT_EQ(saved.written, std::vector<fs::path>{plans / "trip.pln"});
  EXPECT_EQ(Told(),
            std::vector<std::string>{"No flight plan can be filed for airports without runways (EDXX)"});
}

TEST_F(SavedPlans, WhatCannotBeWrittenLeavesTheOldFile) {
  Save("trip", own);
  const std::string before = Read("plans/trip.pln");
  flight.plan.SidName = "OTHER";

  const auto file = plans / "trip.pln";
  // Full: no file may grow beyond 100 bytes.
  rlimit limit{};
  getrlimit(RLIMIT_FSIZE, &limit);
  const rlimit small{100, limit.rlim_max};
  const auto oldHandler = std::signal(SIGXFSZ, SIG_IGN);
  setrlimit(RLIMIT_FSIZE, &small);
  const bool full = SaveOwnPlan(Saving(), file);
  setrlimit(RLIMIT_FSIZE, &limit);
  std::signal(SIGXFSZ, oldHandler);
  EXPECT_FALSE(full);

  // Read-only, also for the machine's administrator.
  const uid_t user = geteuid();
  chmod(folder.Path().c_str(), 0755);
  fs::permissions(plans, fs::perms(0555));
  if (user == 0 && seteuid(65534) != 0) GTEST_SKIP() << "the user cannot be changed here";
  const bool readOnly = SaveOwnPlan(Saving(), file);
  ASSERT_EQ(seteuid(user), 0);
  fs::permissions(plans, fs::perms::owner_all);
  EXPECT_FALSE(readOnly);

  ASSERT_EQ(Told().size(), 2u);
  for (const std::string& told : Told())
    EXPECT_TRUE(told.starts_with("The flight plan could not be saved.\n\n" + file.string() + ": ")) << told;
  EXPECT_EQ(Read("plans/trip.pln"), before);
  EXPECT_EQ(std::distance(fs::directory_iterator(plans), {}), 1) << "nothing half written stays";
}

TEST_F(SavedPlans, ANameThatIsNoFileNameWritesNothing) {
  EXPECT_FALSE(Save("   ", own).valid);
  EXPECT_EQ(Told().back(), "Please specify file name!");
  EXPECT_FALSE(Save("../trip", own).valid);
  EXPECT_FALSE(fs::exists(plans));
}

TEST(PlanNames, AreCleanedOrRefused) {
  struct Case {
    const char* typed;
    const char* base;
    bool refused;
  };
  const std::string tooLong(201, 'x');
  const Case cases[] = {
      {"EDDF-KJFK", "EDDF-KJFK", false},
      {" trip.PLN ", "trip", false},
      {"trip.fltplan", "trip", false},
      {"night .rte", "night", false},
      {"v1.2", "v1.2", false},
      {"London to Paris nr. 5", "London to Paris nr. 5", false},
      {"K\xc3\xb6ln-\xc3\x85lesund", "K\xc3\xb6ln-\xc3\x85lesund", false},
      {"", "", true},
      {".pln", ".pln", true},
      {"..", "..", true},
      {"a/b", "a/b", true},
      {"a\\b", "a\\b", true},
      {"a<b>", "a<b>", true},
      {"a\nb", "a\nb", true},
      {"a\xff", "a\xff", true},
      {tooLong.c_str(), tooLong.c_str(), true},
  };
  for (const Case& c : cases) {
    EXPECT_EQ(PlanBaseName(c.typed), c.base) << c.typed;
    EXPECT_EQ(!PlanNameFault(c.base).empty(), c.refused) << c.typed;
  }
}

TEST(PlanFolders, AreReadInEveryWritingAndStoredInOne) {
  const TemporaryFolder folder;
  const AppFolder home(folder.Path() / "home");
  fs::create_directories(home.Root() / "FSplan" / "RC");
  fs::create_directories(folder.Path() / "Plans");
  const std::string root = home.Root().string();
  const std::string outside = (folder.Path() / "Plans").string();
  struct Case {
    std::string stored;
    fs::path folder;
  };
  const Case cases[] = {
      {"", {}},
      {"\\fsplan\\rc\\", home.Root() / "FSplan" / "RC"},
      {root + "\\fsplan\\RC", home.Root() / "FSplan" / "RC"},
      {root + "/FSPLAN/new\\", home.Root() / "FSplan" / "new"},
      {outside + "\\", outside},
      {outside + "/", outside},
      {outside + "\\deep\\er", fs::path(outside) / "deep" / "er"},
      // The program's folder is not the beginning of its neighbour's name.
      {root + "2", root + "2"},
  };
  for (const Case& c : cases)
    EXPECT_EQ(FolderOf(home, c.stored), c.folder) << c.stored;
  EXPECT_EQ(StoredFolder("/a/b"), "/a/b\\");
  EXPECT_EQ(StoredFolder("/a/b/"), "/a/b\\");
  EXPECT_TRUE(CanBeStored("/K\xc3\xb6ln"));
  EXPECT_FALSE(CanBeStored("/\xd0\x96")) << "not in the code page";
  EXPECT_FALSE(CanBeStored(std::string(257, 'x')));
}

TEST(PlanFolders, TheSimulatorIsWhereItsSceneryIs) {
  const TemporaryFolder folder;
  const AppFolder home(folder.Path());
  EXPECT_FALSE(CheckIfFSPathValid(home, ""));
  EXPECT_FALSE(CheckIfFSPathValid(home, (folder.Path() / "FSX").string()));
  folder.Write("FSX/Scenery.CFG", "");
  for (const char* end : {"", "\\", "/"})
    EXPECT_TRUE(CheckIfFSPathValid(home, (folder.Path() / "FSX").string() + end)) << end;
}

TEST_F(SavedPlans, ThePlanIsModifiedWhenItDiffersFromItsFile) {
  const NavDatabase& database = flight.world.database;
  KnownPlanFile known;
  EXPECT_EQ(known.Name(), "Unspecified");
  EXPECT_TRUE(known.Modified(flight.plan, database)) << "never saved";
  known.Took(flight.plan, database, plans / "trip.pln");
  EXPECT_EQ(known.Name(), "trip");
  EXPECT_FALSE(known.Modified(flight.plan, database));
  FlightPlan changed = flight.plan;
  changed.Row(2).Lat += 0.001F;
  EXPECT_TRUE(known.Modified(changed, database));
  changed.MissingWaypoints = true;
  EXPECT_FALSE(known.Modified(changed, database)) << "it may not be saved";

  known.Follow(changed);
  EXPECT_EQ(known.Name(), "trip");
  flight.Begin("EDDF", "EDDK");
  known.Follow(flight.plan);
  EXPECT_EQ(known.Name(), "Unspecified") << "another flight must not go into the file";
  EXPECT_FALSE(known.Modified(flight.plan, database)) << "two airports are no loss";
  EXPECT_FALSE(KnownPlanFile().Modified(FlightPlan{}, database));
}

TEST(RecentPlans, TheLatestIsFirstAndEachIsThereOnce) {
  Settings settings;
  for (const char* file : {"/a.pln", "/b.pln", "/c.pln", "/x/../b.pln", "relative.pln"})
    RememberPlan(settings, file);
  EXPECT_EQ(RecentPlans(settings), (std::vector<fs::path>{"/b.pln", "/c.pln", "/a.pln"}));
  for (const char* file : {"/d.pln", "/e.pln", "/f.pln"})
    RememberPlan(settings, file);
  EXPECT_EQ(settings.RECENT5, "/c.pln") << "the oldest falls off";
  ForgetPlan(settings, "/e.pln");
  RememberPlan(settings, "/" + std::string(300, 'x') + ".pln");
  EXPECT_EQ(RecentPlans(settings), (std::vector<fs::path>{"/f.pln", "/d.pln", "/b.pln", "/c.pln"}));
}

TEST_F(SavedPlans, AFileIsToldBeforeItIsOpened) {
  flight.plan.PlanType = "VFR";
  Save("trip", own);
  const PlanPreview preview = PreviewPlan(flight.context, Read("plans/trip.pln"));
  EXPECT_TRUE(preview.valid);
  EXPECT_EQ(preview.title, "EDDF Frankfurt Main \xe2\x80\x93 EDDM Munich");
  EXPECT_NE(preview.figures.find(" NM, 5 waypoints, FL 250, VFR"), std::string::npos) << preview.figures;
  EXPECT_EQ(preview.route.find("EDDF DEMAB5N"), 0u) << preview.route;
  EXPECT_EQ(PreviewPlan(flight.context, "[Flightplan]\r\n").title,
            "Sorry! This is not a valid VLM flight plan!");
  EXPECT_TRUE(Told().empty()) << "looking disturbs nobody";
}

}  // namespace
