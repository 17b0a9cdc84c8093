#include "map/hover.h"

#include <gtest/gtest.h>

#include <random>

#include "tests/map/hover_world.h"

namespace {

// The view's centre lies at 5662.5, 3500; a place on it is floored to 5662, 3500.
constexpr float placeX = 5662;
constexpr float placeY = 3500;

TEST(HoverRest, SearchesAfterOneRestPeriod) {
  HoverRest rest;
  EXPECT_EQ(rest.Tick(10, 20), HoverTick::close);
  EXPECT_EQ(rest.Tick(10, 20), HoverTick::search);
  EXPECT_EQ(rest.Tick(10, 20), HoverTick::search);
  EXPECT_EQ(rest.Tick(10, 21), HoverTick::close);
  EXPECT_EQ(rest.Tick(10, 21), HoverTick::search);
  rest.Forget();
  EXPECT_EQ(rest.Tick(10, 21), HoverTick::close);
}

TEST(HoverEngine, SourcesOfOtherFloorsTakeTheirPlace) {
  std::vector<HoverSource> sources = DatabaseHoverSources();
  const auto always = [](const HoverQuestion&) { return true; };
  const auto nothing = [](const HoverQuestion&, std::vector<HoverLine>&) {};
  sources.insert(sources.begin(), {HoverPlace::networkAircraft, "network", always, nothing});
  sources.insert(sources.begin(), {HoverPlace::onlineStations, "stations", always, nothing});
  std::vector<int> places;
  for (const HoverSource& source : InSearchOrder(sources))
    places.push_back(static_cast<int>(source.place));
  EXPECT_EQ(places, (std::vector<int>{1, 2, 6, 7, 8, 9, 10, 12, 14, 15, 18}));
}

TEST(HoverEngine, HoldsAHundredLines) {
  const HoverWorld world;
  std::vector<HoverSource> sources;
  for (int i = 0; i < 3; ++i) {
    sources.push_back({HoverPlace::airports, "many", [](const HoverQuestion&) { return true; },
                       [](const HoverQuestion&, std::vector<HoverLine>& lines) {
                         for (int line = 0; line < 40; ++line)
                           lines.push_back({std::to_string(line)});
                       }});
  }
  const auto lines = FindUnderPointer(world.Question(0, 0), sources);
  ASSERT_EQ(lines.size(), maxHoverLines);
  EXPECT_EQ(lines.back().text, "19");
}

// One object at the centre; the box opens just inside its radius and not on it.
TEST(HoverRadii, AreStrict) {
  struct Case {
    const char* what;
    void (*put)(NavDatabase&);
    int row;
    float radius;
  };
  const Case cases[] = {
      {"airport", [](NavDatabase& d) { PutAirport(d, 50, 8, "EDDF"); }, 9, 100},
      {"VOR", [](NavDatabase& d) { d.vors.push_back(VorAt(50, 8, "FFM")); }, 9, 100},
      {"NDB", [](NavDatabase& d) { d.ndbs.push_back(NdbAt(50, 8, "FR")); }, 9, 100},
      {"intersection", [](NavDatabase& d) { PutIntersection(d, 50, 8, "RID"); }, 9, 100},
      {"fix", [](NavDatabase& d) { d.fixes.push_back(FixAt(50, 8, "DF401")); }, 9, 100},
      {"user waypoint", [](NavDatabase& d) { d.userWaypoints.push_back(UserAt(50, 8, "HOME")); }, 9, 100},
      {"airspace", [](NavDatabase& d) { d.airspaces.push_back(AirspaceAt(50, 8, "CTR", 1)); }, 9, 100},
      {"parking", [](NavDatabase& d) { d.parkings.push_back(ParkingAt(50, 8)); }, 4, 75},
  };
  for (const Case& c : cases) {
    HoverWorld world(c.row);
    c.put(world.database);
    world.Index();
    const auto hit = [&](float dx, float dy) { return !world.Find(placeX + dx, placeY + dy).empty(); };
    EXPECT_TRUE(hit(0, 0)) << c.what;
    EXPECT_TRUE(hit(c.radius - 0.1F, 0)) << c.what;
    EXPECT_FALSE(hit(c.radius, 0)) << c.what << ": exactly on the radius is not near";
    EXPECT_TRUE(hit(0, c.radius - 0.1F)) << c.what;
    EXPECT_FALSE(hit(0, c.radius)) << c.what;
    EXPECT_FALSE(hit(-c.radius, 0)) << c.what;
    EXPECT_FALSE(hit(0, -c.radius)) << c.what;
    EXPECT_TRUE(hit(1 - c.radius, 1 - c.radius)) << c.what << ": the corners belong to it";
  }
}

TEST(HoverConditions, SwitchesAndRanges) {
  struct Case {
    const char* why;
    HoverPlace place;
    int row;
    void (*set)(MapSwitches&, bool& planShown);
    bool shown;
  };
  const Case cases[] = {
      {"airports", HoverPlace::airports, 19, [](MapSwitches&, bool&) {}, true},
      {"airports beyond 2000 NM", HoverPlace::airports, 20, [](MapSwitches&, bool&) {}, false},
      {"without codes", HoverPlace::airports, 9, [](MapSwitches& s, bool&) { s.btnIcao = false; }, false},
      {"airports off", HoverPlace::airports, 9, [](MapSwitches& s, bool&) { s.mnuAirport = false; }, false},
      {"VOR at 2000 NM", HoverPlace::vors, 19, [](MapSwitches&, bool&) {}, true},
      {"VOR beyond", HoverPlace::vors, 20, [](MapSwitches&, bool&) {}, false},
      {"NDB beyond", HoverPlace::ndbs, 20, [](MapSwitches&, bool&) {}, false},
      {"intersections by the jet airways", HoverPlace::intersections, 9,
       [](MapSwitches& s, bool&) { s.mnuVictor = s.mnuIntersection = false; }, true},
      {"intersections with nothing on", HoverPlace::intersections, 9,
       [](MapSwitches& s, bool&) { s.mnuVictor = s.mnuJet = s.mnuIntersection = false; }, false},
      {"intersections by the plan", HoverPlace::intersections, 9,
       [](MapSwitches& s, bool& plan) {
         s.mnuVictor = s.mnuJet = s.mnuIntersection = false;
         plan = true;
       },
       true},
      {"fixes at 150 NM", HoverPlace::fixes, 10, [](MapSwitches&, bool&) {}, true},
      {"fixes at 200 NM", HoverPlace::fixes, 11, [](MapSwitches&, bool&) {}, false},
      {"user waypoints at 200 NM", HoverPlace::userWaypoints, 11, [](MapSwitches&, bool&) {}, false},
      {"sun times", HoverPlace::sunTimes, 9, [](MapSwitches&, bool&) {}, true},
      {"sun times off", HoverPlace::sunTimes, 9, [](MapSwitches& s, bool&) { s.mnuSunrise = false; }, false},
      {"parking at 10 NM", HoverPlace::parkings, 4, [](MapSwitches&, bool&) {}, true},
      {"parking at 20 NM", HoverPlace::parkings, 5, [](MapSwitches&, bool&) {}, false},
  };
  for (const Case& c : cases) {
    HoverWorld world(c.row);
    HoverQuestion question = world.Question(0, 0);
    c.set(world.switches, question.planShown);
    for (const HoverSource& source : DatabaseHoverSources()) {
      if (source.place != c.place) continue;
      EXPECT_EQ(source.shown(question), c.shown) << c.why;
    }
  }
}

TEST(HoverOrder, EveryHitExtendsTheBoxInTheOrderOfTheList) {
  HoverWorld world(4);
  NavDatabase& d = world.database;
  PutAirport(d, 50, 8, "EDDF");
  d.vors.push_back(VorAt(50, 8, "FFM"));
  d.vors.push_back(VorAt(50, 8, "AAA"));
  d.ndbs.push_back(NdbAt(50, 8, "FR"));
  PutIntersection(d, 50, 8, "RID");
  d.fixes.push_back(FixAt(50, 8, "DF401"));
  d.userWaypoints.push_back(UserAt(50, 8, "HOME"));
  d.airspaces.push_back(AirspaceAt(50, 8, "Frankfurt", 1));
  d.parkings.push_back(ParkingAt(50, 8));
  world.Index();
  EXPECT_EQ(
      Headings(world.Find(placeX, placeY)),
      (std::vector<std::string>{"EDDF Airport", "VOR FFM Name", "VOR AAA Name", "NDB FR Name", "Int RID",
                                "Fix DF401", "HOME Name", "Sun EDDF", "Name: Frankfurt", "Gate A 7"}));
}

// The same answers with the place indexes and with walks over the whole tables.
TEST(HoverSearch, TheIndexFindsWhatAWalkFinds) {
  HoverWorld indexed;
  HoverWorld walked;
  FillRandomly(indexed.database, 7);
  FillRandomly(walked.database, 7);
  indexed.Index();
  walked.Index();
  walked.WalkWholeTables();
  std::mt19937 random(11);
  std::uniform_real_distribution<float> x(0, 11325);
  std::uniform_real_distribution<float> y(0, 7000);
  std::uniform_int_distribution<int> row(2, 21);
  std::size_t hits = 0;
  for (int round = 0; round < 300; ++round) {
    // Centres where the rows are: around the date line, the poles and Frankfurt.
    const Position centre = RandomPlace(random);
    const MapView view = MapView::At(centre.lat, centre.lon, row(random));
    for (int pointer = 0; pointer < 4; ++pointer) {
      const float px = pointer == 0 ? 5662 : x(random);
      const float py = pointer == 0 ? 3500 : y(random);
      indexed.view = walked.view = view;
      indexed.view.UpdateVisibilityBox();
      walked.view.UpdateVisibilityBox();
      const auto found = indexed.Find(px, py);
      hits += found.size();
      ASSERT_EQ(found, walked.Find(px, py)) << "centre " << centre.lat << ", " << centre.lon << " row "
                                            << view.ZoomIndex << " pointer " << px << ", " << py;
    }
  }
  EXPECT_GT(hits, 3000u) << "the pointer must have met something";
}

}  // namespace
