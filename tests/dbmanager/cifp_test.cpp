#include <gtest/gtest.h>

#include <cmath>

#include "dbmanager/build_database.h"
#include "dbmanager/cifp_files.h"
#include "dbmanager/source_error.h"
#include "flightplan/procedure_file.h"
#include "small_sources.h"

namespace {

// One leg as its file writes it: sequence, route type, name and transition,
// fix with region, section and subsection, then the fields by their names.
struct Leg {
  std::string head, fix, terminator;
  std::string turn = "", navaid = "", theta = "", rho = "", course = "", distance = "";
  std::string altitudes = " , , ", speed = " , ";  // kind, first, second; kind, knots

  std::string Text() const {
    return head + "," + (fix.empty() ? " , , , " : fix) + ",    ," + turn + ",   ," + terminator + ", ," +
           (navaid.empty() ? " , , , " : navaid) + ", ," + theta + "," + rho + "," + course + "," + distance +
           "," + altitudes + ", ," + speed + ",    ,   , , , , , ,0,N,S;\r\n";
  }
};

const std::string sources[] = {
    // fixes: GAMMA twice in the region, a terminal fix of two airports
    "1101 Version - data cycle 2401\n\n"
    "50.0 9.0 ALPHA ENRT ED 1\n50.0 10.0 BRAVO ENRT ED 1\n51.0 10.0 DELTA ENRT ED 1\n"
    "49.0 10.0 ECHOO ENRT ED 1\n10.0 10.0 ALPHA ENRT FN 1\n50.2 8.6 TERMI EDDX ED 1\n"
    "50.3 8.4 TERMI EDDF ED 1\n99\n",
    "1100 Version - data cycle 2401\n\n"
    "3 50.0 8.5 300 11420 60 0.0 FFM ENRT ED FRANKFURT VOR-DME\n"
    "2 50.1 8.1 300 400 25 0.0 FFM ENRT ED FRANKFURT NDB\n"
    "4 50.05 8.45 360 11155 18 249.5 IFFM EDDF ED 25L ILS-cat-III\n99\n"};

const std::string runways =
    "RWY:RW07L ,     ,      ,00364, ,    ,0,   ;N50000000,E008000000,0000;\n"
    "RWY:RW07R ,     ,      ,00364, ,    ,0,   ;N49593000,E008000000,0000;\n"
    "RWY:RW25L ,     ,      ,00364, ,IFFM,3,   ;N50000000,E008060000,0000;\n"
    "RWY:RW25R ,     ,      ,00364, ,    ,0,   ;N50003000,E008060000,0000;\n";

const std::string alpha = "ALPHA,ED,E,A", bravo = "BRAVO,ED,E,A", delta = "DELTA,ED,E,A",
                  echo = "ECHOO,ED,E,A", ffm = "FFM,ED,D, ";

struct Made {
  explicit Made(const std::string& text) {
    Rejects ofSources;
    LineReader fixLines("earth_fix.dat", sources[0]), navLines("earth_nav.dat", sources[1]);
    const FixData fixes = ReadFixDat(fixLines, ofSources);
    const CifpPlaces places(fixes, ReadNavDat(navLines, ofSources));
    const CifpAirport airport = ReadCifpAirport("EDDF.dat", text, rejects);
    AppendProcedures(
        "EDDF", "EDDF.dat", airport, places, [](SourcePosition) { return 4.0; }, files, rejects);
  }

  std::vector<SidStarEntry> Entries(bool star = false) const {
    return ParseProcedures(star ? files.star : files.sid, "EDDF").entries;
  }
  // "07L NAME: CA ALPHA ...", one line for each entry.
  std::string Lines(bool star = false) const {
    std::string lines;
    for (const SidStarEntry& entry : Entries(star)) {
      lines += entry.Runway.Text() + " " + entry.Name.Text() + ":";
      for (const ProcedureStep& step : entry.Steps)
        lines += " " + (step.Code.Empty() ? step.Type.Text() : step.Code.Text());
      lines += "\n";
    }
    return lines;
  }

  ProcedureFiles files;
  Rejects rejects;
};

TEST(Cifp, PartsBecomeAnEntryForEachRunwayAndTransition) {
  const struct {
    const char* what;
    bool star;
    std::string text, lines;
  } cases[] = {
      {"two runway transitions, a common part, two enroute transitions", false,
       Leg{"SID:010,4,ONE1A,RW25L", "", "CA"}.Text() + Leg{"SID:020,4,ONE1A,RW25L", alpha, "DF"}.Text() +
           Leg{"SID:010,4,ONE1A,RW07B", "", "VA"}.Text() + Leg{"SID:020,4,ONE1A,RW07B", alpha, "DF"}.Text() +
           Leg{"SID:010,5,ONE1A,ALL", alpha, "IF"}.Text() + Leg{"SID:020,5,ONE1A,ALL", bravo, "TF"}.Text() +
           Leg{"SID:010,6,ONE1A,DELTA", bravo, "IF"}.Text() +
           Leg{"SID:020,6,ONE1A,DELTA", delta, "TF"}.Text() +
           Leg{"SID:010,6,ONE1A,ECHOO", bravo, "IF"}.Text() + Leg{"SID:020,6,ONE1A,ECHOO", echo, "TF"}.Text(),
       "07L ONE1A: VA ALPHA BRAVO\n07L ONE1A.DELTA: VA ALPHA BRAVO DELTA\n"
       "07L ONE1A.ECHOO: VA ALPHA BRAVO ECHOO\n07R ONE1A: VA ALPHA BRAVO\n"
       "07R ONE1A.DELTA: VA ALPHA BRAVO DELTA\n07R ONE1A.ECHOO: VA ALPHA BRAVO ECHOO\n"
       "25L ONE1A: CA ALPHA BRAVO\n25L ONE1A.DELTA: CA ALPHA BRAVO DELTA\n"
       "25L ONE1A.ECHOO: CA ALPHA BRAVO ECHOO\n"},
      {"any runway", false, Leg{"SID:010,2,ANY1X,ALL", alpha, "DF"}.Text(), "00 ANY1X: ALPHA\n"},
      {"a common part for each runway, one for the others", false,
       Leg{"SID:010,5,OWN1X,RW25L", alpha, "DF"}.Text() + Leg{"SID:010,5,OWN1X,ALL", bravo, "DF"}.Text(),
       "25L OWN1X: ALPHA\n00 OWN1X: BRAVO\n"},
      {"a runway's own part before that of the parallels", false,
       Leg{"SID:010,1,PAR1X,RW25B", alpha, "DF"}.Text() + Leg{"SID:010,1,PAR1X,RW25R", bravo, "DF"}.Text(),
       "25L PAR1X: ALPHA\n25R PAR1X: BRAVO\n"},
      {"vectors to a transition, no common part", false,
       Leg{"SID:010,T,VEC1,RW25L", "", "VA"}.Text() + Leg{"SID:020,T,VEC1,RW25L", "", "VM"}.Text() +
           Leg{"SID:010,V,VEC1,DELTA", delta, "IF"}.Text(),
       "25L VEC1: VA VM\n25L VEC1.DELTA: VA VM DELTA\n"},
      {"only enroute transitions", false, Leg{"SID:010,3,TRA1,DELTA", delta, "IF"}.Text(),
       "00 TRA1.DELTA: DELTA\n"},
      {"an arrival runs the other way", true,
       Leg{"STAR:010,1,ARR1,DELTA", delta, "IF"}.Text() + Leg{"STAR:020,1,ARR1,DELTA", bravo, "TF"}.Text() +
           Leg{"STAR:010,2,ARR1,ALL", bravo, "IF"}.Text() + Leg{"STAR:020,2,ARR1,ALL", alpha, "TF"}.Text() +
           Leg{"STAR:010,3,ARR1,RW25B", alpha, "IF"}.Text() + Leg{"STAR:020,3,ARR1,RW25B", ffm, "TF"}.Text(),
       "25L ARR1: BRAVO ALPHA FFM\n25L ARR1.DELTA: DELTA BRAVO ALPHA FFM\n"
       "25R ARR1: BRAVO ALPHA FFM\n25R ARR1.DELTA: DELTA BRAVO ALPHA FFM\n"},
      {"legs in the order of their numbers", false,
       Leg{"SID:020,2,SEQ1,ALL", bravo, "TF"}.Text() + Leg{"SID:010,2,SEQ1,ALL", alpha, "IF"}.Text(),
       "00 SEQ1: ALPHA BRAVO\n"},
      {"approaches and other data are passed over", false,
       "APPCH:010,I,I25L,,ALPHA,ED,E,A\nPRDAT:\n\n" + Leg{"SID:010,2,ANY1X,ALL", alpha, "DF"}.Text(),
       "00 ANY1X: ALPHA\n"},
      {"a hold and a leg that leaves its fix name it once", true,
       Leg{"STAR:010,2,HLD1,ALL", alpha, "IF"}.Text() + Leg{"STAR:020,2,HLD1,ALL", alpha, "HM"}.Text() +
           Leg{"STAR:030,2,HLD1,ALL", bravo, "TF"}.Text() + Leg{"STAR:040,2,HLD1,ALL", bravo, "FM"}.Text() +
           Leg{"STAR:050,2,HLD1,ALL", delta, "FA"}.Text(),
       "00 HLD1: ALPHA HM BRAVO FM DELTA FA\n"},
  };
  for (const auto& c : cases) {
    const Made made(c.text + runways);
    EXPECT_EQ(made.Lines(c.star), c.lines) << c.what;
    EXPECT_EQ(RejectTexts(made.rejects), "") << c.what;
    EXPECT_TRUE(made.Entries(!c.star).empty()) << c.what;
  }
  // Parallels that the airport does not list are left and right.
  EXPECT_EQ(Made(Leg{"SID:010,1,PAR1X,RW09B", alpha, "DF"}.Text()).Lines(),
            "09L PAR1X: ALPHA\n09R PAR1X: ALPHA\n");
}

TEST(Cifp, FixesAreThoseOfTheirSectionAndRegion) {
  const struct {
    const char* fix;
    float lat, lon;
  } cases[] = {
      {"ALPHA,ED,E,A", 50, 9},        {"ALPHA,FN,E,A", 10, 10},    {"TERMI,ED,P,C", 50.3F, 8.4F},
      {"FFM,ED,D, ", 50, 8.5F},       {"FFM,ED,D,B", 50.1F, 8.1F}, {"FFM,ED,P,N", 50.1F, 8.1F},
      {"IFFM,ED,P,I", 50.05F, 8.45F}, {"RW25L,ED,P,G", 50, 8.1F},  {"EDDF,ED,P,A", 50, 8.05F},
      {"FFM,ED,X,Y", 50.1F, 8.1F},    {"ALPHA,ED,P,C", 50, 9},
  };
  for (const auto& c : cases) {
    const Made made(Leg{"SID:010,2,ONE,ALL", c.fix, "DF"}.Text() + runways);
    ASSERT_EQ(made.Entries().size(), 1u) << c.fix << RejectTexts(made.rejects);
    EXPECT_NEAR(made.Entries()[0].Steps[0].Lat, c.lat, 1e-5) << c.fix;
    EXPECT_NEAR(made.Entries()[0].Steps[0].Lon, c.lon, 1e-5) << c.fix;
  }
}

TEST(Cifp, StepsCarryTheirFigures) {
  const struct {
    Leg leg;
    const char* text;
    int value;
    float track, distance, altitude, dme;
  } cases[] = {
      {{"", "", "CA", "", "", "", "", "2490", "", "+,00800, "}, "+800", 0, 249, 0, 800, 0},
      {{"", ffm, "CF", "R", ffm, "1200", "0105", "3050", "0160", "+,FL100, ", "-,250"},
       "R @FFM +FL100 -250KT",
       1200,
       305,
       16,
       10000,
       10.5F},
      {{"", "", "CD", "", ffm, "0000", "", "0700", "0035"}, "@FFM", 3600, 70, 0, 0, 3.5F},
      {{"", alpha, "TF", "", ffm, "0900", "0105", "", "0385", "B,FL140,05000"},
       "+5000-FL140",
       0,
       86,
       38.5F,
       5000,
       0},
      {{"", alpha, "TF", "", "", "", "", "090T", "0385", "-,FL090, ", "+,180"},
       "-FL090 +180KT",
       0,
       86,
       38.5F,
       9000,
       0},
      {{"", alpha, "TF", "L", "", "", "", "", "0385", " ,05000, ", " ,210"},
       "L 5000 210KT",
       0,
       86,
       38.5F,
       5000,
       0},
      {{"", alpha, "CF", "L", ffm, "", "", "0860", "0385", "B,FL140,FL100", "-,210"},
       "L @FFM +FL100-FL140",
       0,
       86,
       38.5F,
       10000,
       0},  // the speed has no room
      {{"", "", "VM", "", "", "", "", "2705", "T010", "C,FL100,03000"}, "+3000", 0, 270.5F, 0, 3000, 0},
  };
  for (const auto& c : cases) {
    Leg leg = c.leg;
    leg.head = "SID:010,1,ONE,RW07L";
    const Made made(leg.Text() + runways);
    ASSERT_EQ(made.Entries().size(), 1u);
    const ProcedureStep step = made.Entries()[0].Steps.at(0);
    EXPECT_EQ(step.Text.View(), c.text);
    EXPECT_EQ(step.Value, c.value) << c.text;
    EXPECT_NEAR(step.Track, c.track, 0.5) << c.text;
    EXPECT_NEAR(step.Distance, c.distance, 0.2) << c.text;
    EXPECT_EQ(step.Altitude, c.altitude) << c.text;
    EXPECT_NEAR(step.Dme, c.dme, 0.001) << c.text;
  }
}

TEST(Cifp, ALegWithoutAFixStandsWhereItsTrackLeads) {
  // Due north over the ground: 356 magnetic at 4 degrees east.
  const Made made(Leg{"SID:010,1,ONE,RW07L", "", "CA", "", "", "", "", "0700"}.Text() +
                  Leg{"SID:020,1,ONE,RW07L", "", "FC", "", "", "", "", "3560", "0300"}.Text() +
                  Leg{"SID:030,1,ONE,RW07L", "", "VM", "", "", "", "", "3560"}.Text() + runways);
  const auto steps = made.Entries().at(0).Steps;
  EXPECT_NEAR(steps[0].Lat, 50, 1e-5) << "no length: at the threshold";
  EXPECT_NEAR(steps[1].Lat, 50.5, 1e-3);
  EXPECT_NEAR(steps[1].Lon, 8, 1e-3);
  EXPECT_EQ(steps[2].Lat, steps[1].Lat);

  const Made noRunways(Leg{"SID:010,1,ONE,RW07L", "", "CA"}.Text() +
                       Leg{"SID:020,1,ONE,RW07L", alpha, "DF"}.Text());
  EXPECT_EQ(noRunways.Entries().at(0).Steps[0].Lon, 9) << "the first place that is known, never 0/0";
}

TEST(Cifp, WhatCannotBeUsedIsTold) {
  const std::string good = Leg{"SID:090,2,GOOD,ALL", alpha, "DF"}.Text();
  const struct {
    std::string line, reason;
  } cases[] = {
      {"SID:010,2,SHORT,ALL\n", "EDDF.dat:2: too few fields\n"},
      {Leg{"SID:xx,2,BAD,ALL", alpha, "DF"}.Text(), "EDDF.dat:2: no sequence number\n"},
      {Leg{"SID:010,8,BAD,ALL", alpha, "DF"}.Text(), "EDDF.dat:2: unknown route type\n"},
      {Leg{"STAR:010,T,BAD,ALL", alpha, "DF"}.Text(), "EDDF.dat:2: unknown route type\n"},
      {Leg{"SID:010,2,,ALL", alpha, "DF"}.Text(), "EDDF.dat:2: no name that fits\n"},
      {Leg{"SID:010,2,BAD,ALL", alpha, ""}.Text(), "EDDF.dat:2: no path terminator\n"},
      {Leg{"SID:010,2,BAD,ALL", "ALPHA,XX,E,A", "DF"}.Text(),
       "EDDF.dat:2: no fix ALPHA in region XX\nEDDF.dat:0: BAD: no place is known\n"},
      {Leg{"SID:010,2,BAD,ALL", "", "VM"}.Text(), "EDDF.dat:0: BAD: no place is known\n"},
      {"SIT:010\n", "EDDF.dat:2: neither SID, STAR, APPCH nor RWY\n"},
      {"RWY:RW07L,,,00364\n", "EDDF.dat:2: a runway without a position\n"},
      {"RWY:RW07L;N50600000,E008000000;\n", "EDDF.dat:2: a runway without a position\n"},
      {"RWY:07L;N50000000,E008000000;\n", "EDDF.dat:2: no runway RWnn\n"},
  };
  for (const auto& c : cases) {
    const Made made(good + c.line);
    EXPECT_EQ(RejectTexts(made.rejects), c.reason);
    EXPECT_EQ(made.Lines(), "00 GOOD: ALPHA\n") << c.line;
  }
  for (const int count : {255, 256}) {
    std::string legs;
    for (int i = 0; i < count; ++i)
      legs += Leg{"SID:" + std::to_string(i) + ",2,LONG,ALL", i % 2 == 0 ? alpha : bravo, "TF"}.Text();
    const Made made(legs);
    EXPECT_EQ(RejectTexts(made.rejects), count > 255 ? "EDDF.dat:0: LONG: more than 255 steps\n" : "");
  }
}

struct Installation {
  Installation() {
    folder.Write("xp/Resources/default data/CIFP/EDDF.dat", Leg{"SID:010,2,ANY1X,ALL", alpha, "DF"}.Text());
    folder.Write("xp/Resources/default data/CIFP/readme.txt", "no airport");
    folder.Write("xp/Resources/default data/earth_fix.dat", sources[0]);
    folder.Write("xp/Resources/default data/earth_nav.dat", sources[1]);
  }
  TemporaryFolder folder;
};

TEST(Cifp, TheInstallationIsFoundFromEachOfItsFolders) {
  const Installation made;
  const auto& path = made.folder.Path();
  for (const char* given : {"xp", "xp/", "xp/Resources/default data", "xp/Resources/default data/CIFP",
                            "xp/Resources/default data/CIFP/"}) {
    const CifpSources found = FindCifpSources(path / given);
    ASSERT_EQ(found.airports.size(), 1u) << given;
    EXPECT_EQ(found.airports[0].filename(), "EDDF.dat");
    EXPECT_EQ(found.fixes.filename(), "earth_fix.dat");
  }
  // Newer procedures that the pilot has added come first; the fixes may be the simulator's own.
  made.folder.Write("xp/Custom Data/CIFP/EGLL.dat", "");
  const CifpSources custom = FindCifpSources(path / "xp");
  EXPECT_EQ(custom.airports[0].filename(), "EGLL.dat");
  EXPECT_TRUE(std::filesystem::exists(custom.fixes));
  made.folder.Write("xp/Custom Data/earth_fix.dat", sources[0]);
  EXPECT_EQ(FindCifpSources(path / "xp").fixes, path / "xp/Custom Data/earth_fix.dat");

  made.folder.Write("alone/EDDF.dat", "");
  std::filesystem::create_directories(path / "empty");
  for (const char* given : {"none", "empty", "alone"})
    EXPECT_THROW(FindCifpSources(path / given), BuildError) << given;
}

TEST(Cifp, TheTwoFilesJoinTheDatabaseThatIsThere) {
  const Installation made;
  const SmallSources small;
  const TemporaryFolder home;
  home.Write("database/vor.vlm", "kept");
  BuildOptions options;
  options.home = home.Path();
  options.dataFolder = small.Path();
  options.cifp = made.folder.Path() / "xp";
  options.date = {2026, 1, 1};
  BuildReport report;
  const auto goOn = [](std::string_view, double) { return true; };
  ASSERT_TRUE(BuildProcedures(options, goOn, report)) << report.failure;
  EXPECT_EQ(home.Read("database/vor.vlm"), "kept");
  EXPECT_EQ(home.Read("database/sid.vlm").size(), 56u + 61u);
  EXPECT_TRUE(std::filesystem::exists(home.Path() / "database/star.vlm"));
  EXPECT_EQ(report.files, 2u);

  home.Write("database/sid.vlm", "old");
  options.cifp = made.folder.Path() / "none";
  EXPECT_FALSE(BuildProcedures(options, goOn, report));
  EXPECT_EQ(home.Read("database/sid.vlm"), "old") << "what fails changes nothing";
  options.cifp = made.folder.Path() / "xp";
  const auto stop = [](std::string_view, double done) { return done < 0.5; };
  EXPECT_FALSE(BuildProcedures(options, stop, report));
  EXPECT_EQ(home.Read("database/sid.vlm"), "old");

  // A whole build takes them in too.
  report = {};
  ASSERT_TRUE(BuildDatabase(options, goOn, report)) << report.failure;
  EXPECT_EQ(home.Read("database/sid.vlm").size(), 56u + 61u);
}

}  // namespace
