#include "cli/commands.h"

#include <gtest/gtest.h>

#include "tests/startup/small_home.h"

namespace {

struct CommandRun {
  int exitCode;
  std::string out;
  std::string err;
  Json Document() const { return Json::parse(out); }
};

template <class Command>
CommandRun Capture(const Command& command) {
  testing::internal::CaptureStdout();
  testing::internal::CaptureStderr();
  const int code = command();
  // In this order: standard output, standard error.
  std::string out = testing::internal::GetCapturedStdout();
  return {code, std::move(out), testing::internal::GetCapturedStderr()};
}

CliOptions JsonFor(const SmallHome& home) {
  return {AppFolder(home.Path()), std::nullopt, true};
}

}  // namespace

TEST(Cli, InfoCountsTheRowsInUse) {
  const SmallHome home;
  const CommandRun run = Capture([&] { return RunInfo(JsonFor(home)); });
  ASSERT_EQ(run.exitCode, exitDone) << run.err;
  const Json document = run.Document();
  EXPECT_EQ(document["fsVersion"], "2004");
  EXPECT_EQ(document["airac"], "2013.10");
  EXPECT_EQ(document["tables"]["airports"], 2);
  EXPECT_EQ(document["tables"]["intersections"], 1);
  EXPECT_EQ(document["tables"]["worldPolygons"], 1);
}

TEST(Cli, AMissingFileIsNamedWithTheCommandThatBuildsOne) {
  const SmallHome home;
  home.Remove("database/vor.vlm");
  const CommandRun run = Capture([&] { return RunFind(JsonFor(home), "EDDF"); });
  EXPECT_EQ(run.exitCode, exitNotDone);
  EXPECT_TRUE(run.out.empty());
  EXPECT_NE(run.err.find("vor.vlm"), std::string::npos);
  EXPECT_NE(run.err.find("--bundled"), std::string::npos);
}

TEST(Cli, FindListsEveryKindAndTakesSmallLetters) {
  const SmallHome home;
  const struct {
    const char *ident, *kind;
  } cases[] = {
      {"eddf", "airport"}, {"TABUM", "intersection"}, {"FFM", "VOR"}, {"fr", "NDB"}, {"FIXED", "fix"}};
  for (const auto& c : cases) {
    const CommandRun run = Capture([&] { return RunFind(JsonFor(home), c.ident); });
    ASSERT_EQ(run.exitCode, exitDone) << c.ident;
    EXPECT_EQ(run.Document()[0]["kind"], c.kind);
  }
  const CommandRun none = Capture([&] { return RunFind(JsonFor(home), "NOPE"); });
  EXPECT_EQ(none.exitCode, exitNotDone);
  EXPECT_EQ(none.Document(), Json::array());
}

TEST(Cli, CourseRefusesPositionsOffTheGlobe) {
  const CliOptions options{AppFolder("/"), std::nullopt, true};
  EXPECT_EQ(Capture([&] { return RunCourse(options, {91, 0, 0, 0}); }).exitCode, exitWrongUsage);
  EXPECT_EQ(Capture([&] { return RunCourse(options, {0, 0, 0, -181}); }).exitCode, exitWrongUsage);
  const CommandRun good = Capture([&] { return RunCourse(options, {0, 179.5, 0, -179.5}); });
  EXPECT_NEAR(good.Document()["distanceNM"].get<double>(), 60, 0.001);
}

TEST(Cli, AFloatPrintsTheFewestDigitsThatReadBack) {
  EXPECT_EQ(JsonNumber(8.57F).dump(), "8.57");
  EXPECT_EQ(JsonNumber(110.3F).dump(), "110.3");
  EXPECT_EQ(JsonNumber(-0.0F).dump(), "0");
  EXPECT_EQ(JsonNumber(std::nanf("")).dump(), "null");
}

TEST(Cli, ARouteStringMayNameItsAirportsOrNot) {
  const SmallHome home;
  for (const char* route : {"", "DCT", "EDDF DCT EDDM", "eddf eddm"}) {
    PlanRequest request;
    request.departure = "EDDF";
    request.destination = "EDDM";
    request.mode = PlanMode::route;
    request.route = route;
    request.alternate = "EDDF";
    const CommandRun run = Capture([&] { return RunPlan(JsonFor(home), request); });
    ASSERT_EQ(run.exitCode, exitDone) << route << run.err;
    EXPECT_EQ(run.Document()["routeString"], "EDDF EDDM") << route;
    EXPECT_EQ(run.Document()["alternate"], "EDDF") << route;
    request.sid = "NONE1A";
    EXPECT_EQ(Capture([&] { return RunPlan(JsonFor(home), request); }).exitCode, exitNotDone)
        << "there are no procedures";
  }
}

TEST(Cli, APlanIsPrintedAndSavedOrToldWhyNot) {
  const SmallHome home;
  PlanRequest request;
  request.departure = "EDDF";
  request.destination = "eddm";
  request.aircraft = 1;
  request.files.saveAs = (home.Path() / "direct.pln").string();
  const CommandRun direct = Capture([&] { return RunPlan(JsonFor(home), request); });
  ASSERT_EQ(direct.exitCode, exitDone) << direct.err;
  EXPECT_EQ(direct.Document()["aircraft"]["name"], "Slow");
  EXPECT_EQ(direct.Document()["legs"].size(), 2u);
  EXPECT_EQ(home.Folder().Read("direct.pln").rfind("[Flightplan]\r\n", 0), 0u);

  request.files.saveAs = (home.Path() / "no/folder/x.pln").string();
  EXPECT_EQ(Capture([&] { return RunPlan(JsonFor(home), request); }).exitCode, exitNotDone);

  // The small world has no airways: the message is told and nothing is saved.
  request.destination = "EDDM";
  request.mode = PlanMode::highAltitude;
  request.aircraft.reset();
  request.files.saveAs = (home.Path() / "high.pln").string();
  const CommandRun high = Capture([&] { return RunPlan(JsonFor(home), request); });
  EXPECT_EQ(high.exitCode, exitNotDone);
  EXPECT_FALSE(high.Document()["messages"].empty());
  EXPECT_FALSE(std::filesystem::exists(home.Path() / "high.pln"));

  for (const char* unknown : {"XXXX", "AFIL", "ZZZZ", ""}) {
    request.destination = unknown;
    EXPECT_EQ(Capture([&] { return RunPlan(JsonFor(home), request); }).exitCode, exitNotDone) << unknown;
  }
}

TEST(Cli, ASavedPlanIsOpenedAndSavedAgain) {
  const SmallHome home;
  PlanRequest request;
  request.departure = "EDDF";
  request.destination = "EDDM";
  request.files.saveAs = (home.Path() / "first.pln").string();
  const CommandRun made = Capture([&] { return RunPlan(JsonFor(home), request); });
  OpenRequest open;
  open.file = request.files.saveAs;
  open.files.saveAs = (home.Path() / "second.pln").string();
  const CommandRun opened = Capture([&] { return RunOpen(JsonFor(home), open); });
  ASSERT_EQ(opened.exitCode, exitDone) << opened.err;
  EXPECT_EQ(opened.Document(), made.Document());
  EXPECT_EQ(home.Folder().Read("second.pln"), home.Folder().Read("first.pln"));

  home.Folder().Write("theirs.pln", "[Flightplan]\r\ntype=IFR\r\n");
  for (const char* refused : {"theirs.pln", "missing.pln"}) {
    open = OpenRequest{};
    open.file = (home.Path() / refused).string();
    const CommandRun run = Capture([&] { return RunOpen(JsonFor(home), open); });
    EXPECT_EQ(run.exitCode, exitNotDone);
    EXPECT_TRUE(run.out.empty());
    EXPECT_NE(run.err.find(refused), std::string::npos);
  }
}

TEST(Cli, APlanOfAnotherProgramIsOpened) {
  const SmallHome home;
  home.Folder().Write("theirs.fms",
                      "I\n3 version\n0\n3\n1 EDDF 0 50.03 8.57\n11 NOWHR 0 49 10\n1 EDDM 0 48.35 11.79\n");
  OpenRequest open;
  open.file = (home.Path() / "theirs.fms").string();
  open.files.saveAs = (home.Path() / "ours.pln").string();
  const CommandRun run = Capture([&] { return RunOpen(JsonFor(home), open); });
  ASSERT_EQ(run.exitCode, exitDone) << run.err;
  const Json document = run.Document();
  ASSERT_EQ(document["legs"].size(), 3U);
  EXPECT_EQ(document["legs"][1]["sym"], "Uwp");
  ASSERT_EQ(document["messages"].size(), 1U);
  EXPECT_NE(run.err.find(document["messages"][0].get<std::string>()), std::string::npos);
  open = OpenRequest{};
  open.file = (home.Path() / "ours.pln").string();
  const Json again = Capture([&] { return RunOpen(JsonFor(home), open); }).Document();
  ASSERT_EQ(again["legs"].size(), 3U);
  for (const char* key : {"sym", "code", "name", "lat", "lon"})
    EXPECT_EQ(again["legs"][1][key], document["legs"][1][key]) << key;
  EXPECT_TRUE(again["messages"].empty());
}

TEST(Cli, APlanIsExportedFormatByFormat) {
  const SmallHome home;
  PlanRequest request;
  request.departure = "EDDF";
  request.destination = "EDDM";
  const auto plan = [&](std::vector<std::string> formats, const std::string& folder) {
    request.files.formats = std::move(formats);
    request.files.out = (home.Path() / folder).string();
    return Capture([&] { return RunPlan(JsonFor(home), request); });
  };
  EXPECT_EQ(plan({"radarcontact", "Velmora"}, ".").exitCode, exitDone);
  // In the order of writing; the second of one ending says what it is.
  EXPECT_NE(home.Folder().Read("EDDFEDDM.pln").find("[VLM]"), std::string::npos);
  EXPECT_EQ(home.Folder().Read("EDDFEDDM.radarcontact.pln").find("[VLM]"), std::string::npos);
  EXPECT_FALSE(home.Folder().Read("EDDFEDDM.radarcontact.pln").empty());

  const CommandRun unknown = plan({"velmora", "nosuch"}, ".");
  EXPECT_EQ(unknown.exitCode, exitWrongUsage);
  EXPECT_NE(unknown.err.find("there is no format nosuch"), std::string::npos);
  EXPECT_NE(unknown.err.find("radarcontact"), std::string::npos);

  const CommandRun nowhere = plan({"velmora", "radarcontact"}, "no/folder");
  EXPECT_EQ(nowhere.exitCode, exitNotDone);
  for (const char* file : {"EDDFEDDM.pln", "EDDFEDDM.radarcontact.pln"})
    EXPECT_NE(nowhere.err.find(file), std::string::npos) << "each is tried";
}
