// Plan files read back: what was written comes back, what is broken is told.
#include "flightplan/plan_reader.h"

#include <gtest/gtest.h>

#include "flightplan/plan_file.h"
#include "flightplan/plan_legs.h"
#include "flightplan/start_positions.h"
#include "tests/flightplan/drawn_world.h"

namespace {

// Over the date line, with every kind of row.
struct StoredPlan : DrawnPlan {
  StoredPlan()
      : DrawnPlan(
            "airport NFFN -17.75 177.5 59\n"
            "airport NSFA -13.75 -172 58\n"
            "vor NN -17.5 177.25\n"
            "ndb TV -16.75 -179.75\n"
            "A -17.25 178.5\n"
            "B -16.5 179.75\n"
            "B --12-- A R1 FL100-FL200\n"
            "fix GPSFX -15.25 -175.5\n"
            "vor NN 50 8\n") {
    for (auto& intersection : world.database.intersections)
      if (intersection.strCode == "B") intersectionB = &intersection;
    Add("VOR", "NN", -17.5f, 177.25f, RowKind::sid).DbIndex = 0;
    Add("Int", "A", -17.25f, 178.5f).DbIndex = 1;
    PlanWaypoint& b = Add("Int", "B", -16.5f, 179.75f);
    b.Airway = "R1";
    b.AirwayMinAlt = 10000;
    b.AirwayMaxAlt = 20000;
    b.DbIndex = 2;
    Add("NDB", "TV", -16.75f, -179.75f).DbIndex = 0;
    Add("Fix", "Fix 99", -16, -177.5f).Name = "Fix 99";
    Add("Uwp", "WP01", -15.5f, -176.5f).Name = "Caf\xe9";
    Add("Fix", "GPSFX", -15.25f, -175.5f, RowKind::star).DbIndex = 0;
    plan.SidName = "NADI1A";
    plan.StarName = "FALE2B";
    RecomputePlan(plan, context);
  }

  PlanReading Read(const std::string& text) {
    read = {};
    messages.texts.clear();
    return ReadPlan(read, context, text);
  }
  std::string Text() const { return WritePlan(plan, world.database, PlanFormat::FS); }

  IntersectionRec* intersectionB = nullptr;
  FlightPlan read;
};

std::string With(std::string text, const std::string& what, const std::string& by) {
  const std::size_t at = text.find(what);
  if (at == std::string::npos) throw std::logic_error("not in the file: " + what);
  return text.replace(at, what.size(), by);
}

TEST(PlanReader, WhatWasWrittenComesBack) {
  StoredPlan stored;
  const PlanReading reading = stored.Read(stored.Text());
  ASSERT_TRUE(reading.valid);
  EXPECT_TRUE(reading.problems.empty());
  EXPECT_TRUE(stored.messages.texts.empty());
  ASSERT_EQ(stored.read.RowCount(), stored.plan.RowCount());
  for (int i = 0; i < stored.plan.RowCount(); ++i) {
    const PlanWaypoint& read = stored.read.Row(i);
    const PlanWaypoint& written = stored.plan.Row(i);
    SCOPED_TRACE(written.Code.Text());
    EXPECT_EQ(read.Code, written.Code);
    EXPECT_EQ(read.Sym, written.Sym);
    EXPECT_EQ(read.Name, written.Name);
    EXPECT_EQ(read.Kind, written.Kind);
    EXPECT_EQ(read.Airway, written.Airway);
    EXPECT_EQ(read.AirwayMinAlt, written.AirwayMinAlt);
    EXPECT_EQ(read.AirwayMaxAlt, written.AirwayMaxAlt);
    EXPECT_EQ(read.Lat, written.Lat);
    EXPECT_EQ(read.Lon, written.Lon);
    EXPECT_FLOAT_EQ(read.Dist, written.Dist);
    EXPECT_NEAR(read.Course, written.Course, 0.0001);
    EXPECT_FLOAT_EQ(read.EET, written.EET);
  }
  EXPECT_EQ(stored.read.SidName, "NADI1A");
  EXPECT_EQ(stored.read.StarName, "FALE2B");
  EXPECT_EQ(stored.read.SidRows(), 1);
  EXPECT_EQ(stored.read.StarRows(), 1);
  EXPECT_EQ(stored.read.TotalDistance, stored.plan.TotalDistance);
  EXPECT_EQ(stored.read.TotalMinutes, stored.plan.TotalMinutes);
  EXPECT_TRUE(stored.read.PlanFiled && stored.read.CanSave);
  EXPECT_EQ(stored.read.RouteType, RouteKind::direct) << "whatever the file held";
  // Written again it is the same file, but for the type of the route.
  EXPECT_EQ(
      With(With(WritePlan(stored.read, stored.world.database, PlanFormat::FS), "routetype=0", "routetype=1"),
           "RouteType=0", "RouteType=1"),
      stored.Text());
}

TEST(PlanReader, KnowsItsOwnFiles) {
  EXPECT_TRUE(IsOwnPlan("[VLM]"));
  EXPECT_TRUE(IsOwnPlan("[Flightplan]\ntitle=A [VLM] B\n[VLM]\n"));
  EXPECT_TRUE(IsOwnPlan("x\r[VLM"));
  EXPECT_FALSE(IsOwnPlan("[Flightplan]\ntitle=A [VLM] B\n"));
  EXPECT_FALSE(IsOwnPlan("<gpx/>"));
}

TEST(PlanReader, HeaderKeysComeBack) {
  StoredPlan stored;
  NavDatabase& database = stored.world.database;
  RunwayRec runway;
  runway.strRwyID = std::string_view("02");
  runway.strRwyIDRecip = std::string_view("20");
  runway.sngLat = -17.75f;
  runway.sngLon = 177.5f;
  runway.sngHeading = 24;
  runway.intLength = 7000;
  database.runways.push_back(runway);
  database.airports[0].firstRunway = 0;
  database.airports[0].lngRunways = 1;
  const auto starts = StartPositions(database, 0);
  ASSERT_EQ(starts.size(), 2u);
  SetStartPosition(stored.plan, stored.context, &starts[1]);
  SetAlternate(stored.plan, stored.context, 0);
  stored.plan.PlanType = "VFR";
  ASSERT_TRUE(stored.Read(stored.Text()).valid);
  EXPECT_EQ(stored.read.DepartureID, "20");
  EXPECT_EQ(stored.read.DepartureNum, 2);
  EXPECT_EQ(stored.read.DepartureType, "Rwy");
  EXPECT_EQ(stored.read.DepartureLat, stored.plan.DepartureLat);
  EXPECT_EQ(stored.read.DepartureHeading, stored.plan.DepartureHeading);
  EXPECT_EQ(stored.read.AlternateIndex, 0);
  EXPECT_EQ(stored.read.PlanType, "VFR");
}

TEST(PlanReader, BrokenFilesAreToldAndTakeNothingElse) {
  StoredPlan stored;
  const std::string text = stored.Text();
  struct Case {
    const char* what;
    std::string text;
    int rows;  // 0: refused
    std::string message;
    std::size_t problems;
  };
  const std::vector<Case> cases = {
      {"empty", "", 0, " Sorry! This is not a valid VLM flight plan!", 0},
      {"the simulator's own plan", WritePlan(stored.plan, stored.world.database, PlanFormat::RC), 0,
       " Sorry! This is not a valid VLM flight plan!", 0},
      {"unknown departure", With(text, "DepartAPCode=NFFN", "DepartAPCode=XXXX"), 0,
       "XXXX is not in currently loaded database!", 0},
      {"unknown destination", With(text, "DestAPCode=NSFA", "DestAPCode=YYYY"), 0,
       "YYYY is not in currently loaded database!", 0},
      {"cut in the middle of a row", text.substr(0, text.find("WP=5") + 20), 6, "", 1},
      {"a row that is no number", With(text, "WP=3,", "WP=x,"), 8, "", 1},
      {"a row beyond the last", With(text, "WP=3,", "WP=501,"), 8, "", 1},
      {"a comma within a name", With(text, ",Caf\xe9,", ",Caf\xe9, north,"), 8, "", 1},
      {"a place off the earth", With(text, "-17.2500,178.5000", "-97.2500,178.5000"), 8, "", 1},
      {"line feeds alone, in any order",
       "[VLM]\nWP=2,Int,B,B,-16.5,179.75,0,0,0,1,2\nWP=1,Int,A,A,-17.25,178.5,0,0,0,1,1\nDestAPCode=NSFA\n"
       "DepartAPCode=NFFN",
       4, "", 0},
  };
  for (const Case& c : cases) {
    SCOPED_TRACE(c.what);
    const PlanReading reading = stored.Read(c.text);
    EXPECT_EQ(reading.valid, c.rows > 0);
    EXPECT_EQ(stored.read.RowCount(), c.rows);
    EXPECT_EQ(reading.problems.size(), c.problems);
    EXPECT_EQ(stored.messages.texts,
              c.message.empty() ? std::vector<std::string>{} : std::vector<std::string>{c.message});
  }
  stored.read = stored.plan;
  ReadPlan(stored.read, stored.context, "no plan at all");
  EXPECT_EQ(stored.read, stored.plan) << "a file that is not ours changes nothing";
}

TEST(PlanReader, WaypointsOfAnotherDatabase) {
  struct Case {
    const char* what;
    void (*change)(StoredPlan&);
    bool missing;
  };
  const Case cases[] = {
      {"moved within its degree", [](StoredPlan& s) { s.intersectionB->sngLat = -16.9f; }, false},
      {"moved into the next degree", [](StoredPlan& s) { s.intersectionB->sngLat = -17.0f; }, true},
      {"another kind of object",
       [](StoredPlan& s) {
         for (PlanWaypoint& row : s.plan.rows)
           if (row.Code == "TV") row.Sym = std::string_view("VOR");
       },
       true},
      {"a user's own position is never missing",
       [](StoredPlan& s) {
         for (PlanWaypoint& row : s.plan.rows)
           if (row.Sym == "Uwp") row.Code = std::string_view("ELSE");
       },
       false},
  };
  for (const Case& c : cases) {
    SCOPED_TRACE(c.what);
    StoredPlan stored;
    c.change(stored);
    const PlanReading reading = stored.Read(stored.Text());
    EXPECT_TRUE(reading.valid);
    EXPECT_EQ(stored.read.RowCount(), 9) << "it is shown in each case";
    EXPECT_EQ(stored.read.MissingWaypoints, c.missing);
    EXPECT_EQ(reading.problems.size(), c.missing ? 1u : 0u);
    if (c.missing) {
      EXPECT_EQ(
          stored.messages.texts.back(),
          "Some waypoints are missing in current database!\n      Flight plan cannot be modified or saved!");
    }
  }
}

}  // namespace
