#include <gtest/gtest.h>

#include <cmath>

#include "flightplan/procedure_chart.h"
#include "flightplan/procedure_layer.h"
#include "tests/flightplan/drawn_world.h"
#include "tests/map/recording_surface.h"

namespace {

ProcedureStep Step(const char* type, const char* code, Position place, float track = 0, float distance = 0,
                   const char* text = "") {
  ProcedureStep step;
  step.Type = std::string_view(type);
  step.Code = std::string_view(code);
  step.Lat = place.lat;
  step.Lon = place.lon;
  step.Track = track;
  step.Distance = distance;
  step.Text = std::string_view(text);
  return step;
}

ProcedureStep AtDme(ProcedureStep step, int radial, float dme) {
  step.Value = static_cast<std::int16_t>(radial * 10);
  step.Dme = dme;
  return step;
}

ProcedureStep UpTo(ProcedureStep step, float feet) {
  step.Altitude = feet;
  return step;
}

// "0.00 0.00 > 0.00 1.00, ...", vectored legs with ~.
std::string Legs(const std::vector<ProcedureStep>& steps, const std::optional<RunwayStart>& start = {}) {
  std::string text;
  for (const ProcedureLeg& leg : PathOf(steps, start, MagneticVariationGrid()).legs) {
    std::array<char, 96> line{};
    std::snprintf(line.data(), line.size(), "%s%.2f %.2f %s %.2f %.2f", text.empty() ? "" : ", ",
                  std::abs(leg.from.lat) < 0.005 ? 0.0 : leg.from.lat, leg.from.lon, leg.vectored ? "~" : ">",
                  std::abs(leg.to.lat) < 0.005 ? 0.0 : leg.to.lat, leg.to.lon);
    text += line.data();
  }
  return text;
}

TEST(ProcedurePath, GoesToPlacesOrAlongTracks) {
  const Position home{0, 10};
  const RunwayStart east{home, 90, 2};
  const auto start = std::optional(east);
  const struct {
    const char* what;
    std::vector<ProcedureStep> steps;
    std::optional<RunwayStart> from;
    const char* legs;
  } cases[] = {
      {"over the runway, then to the fix",
       {Step("DF", "A", {1, 11})},
       start,
       "0.00 10.00 > 0.00 10.05, 0.00 10.05 > 1.00 11.00"},
      {"an altitude is reached at 500 ft a mile",
       {UpTo(Step("CA", "", home, 90), 3000)},
       start,
       "0.00 10.00 > 0.00 10.10"},
      {"a low altitude still shows", {UpTo(Step("CA", "", home, 90), 100)}, start, "0.00 10.00 > 0.00 10.02"},
      {"a length that the file has worked out",
       {Step("FC", "", {0, 11}, 90, 60)},
       start,
       "0.00 10.00 > 0.00 10.05, 0.00 10.05 > 0.00 11.00"},
      {"vectors, and what comes behind them",
       {Step("VM", "", home, 0), Step("IF", "A", {1, 11})},
       start,
       "0.00 10.00 ~ 0.05 10.00, 0.05 10.00 ~ 1.00 11.00"},
      {"a heading meets the course into the next fix",
       {Step("VI", "", home, 0), Step("CF", "A", {0.5F, 11}, 90)},
       start,
       "0.00 10.00 > 0.50 10.00, 0.50 10.00 > 0.50 11.00"},
      {"it would be met behind the fix",
       {Step("VI", "", home, 0), Step("CF", "A", {0.5F, 11}, 270)},
       start,
       "0.00 10.00 > 0.05 10.00, 0.05 10.00 > 0.50 11.00"},
      {"a hold is no leg", {Step("IF", "A", {1, 11}), Step("HM", "", {1, 11}, 90)}, {}, ""},
      {"steps off the map are passed over",
       {Step("IF", "A", {1, 11}), Step("TF", "B", {NAN, 0}), Step("TF", "C", {1, 400}),
        Step("TF", "D", {1, 12})},
       {},
       "1.00 11.00 > 1.00 12.00"},
  };
  for (const auto& c : cases)
    EXPECT_EQ(Legs(c.steps, c.from), c.legs) << c.what;
}

struct Airfield : DrawnPlan {
  Airfield()
      : DrawnPlan(
            "airport EDDA 0 10 0\nairport EDDB 0 20 0\nINT 0 10.5\nvor VOR 1 11\nndb NDB 1 12\nfix FIX 1 "
            "13\n") {
    RunwayRec runway;
    runway.strRwyID = "09L";
    runway.strRwyIDRecip = "27R";
    runway.sngLat = 0;
    runway.sngLon = 10;
    runway.sngHeading = 90;
    runway.intLength = 12152;  // 2 NM
    runway.strIlsCodeRecip = "IAB";
    RunwayRec pad;
    pad.strRwyID = "00H";
    world.database.runways = {runway, pad};
    for (AirportRec& airport : world.database.airports) {
      airport.lngRunways = 2;
      airport.firstRunway = 0;
    }
  }
};

SidStarEntry Entry(const char* runway, const char* name, std::vector<ProcedureStep> steps) {
  SidStarEntry entry;
  entry.Runway = std::string_view(runway);
  entry.Name = std::string_view(name);
  entry.Steps = std::move(steps);
  return entry;
}

TEST(ProcedurePath, RunwayEndsAreFoundByEitherName) {
  const Airfield field;
  const auto west = RunwayEnd(field.world.database, 0, "9L"),
             east = RunwayEnd(field.world.database, 0, "27R");
  ASSERT_TRUE(west && east);
  EXPECT_NEAR(west->threshold.lon, 10 - 1 / 60.0, 1e-4);
  EXPECT_NEAR(west->heading, 90, 1e-3);
  EXPECT_NEAR(east->threshold.lon, 10 + 1 / 60.0, 1e-4);
  EXPECT_NEAR(east->heading, 270, 1e-3);
  EXPECT_FALSE(RunwayEnd(field.world.database, 0, "18"));
  EXPECT_FALSE(RunwayEnd(field.world.database, -1, "09L"));
}

TEST(ProcedureText, TurnsHaveASide) {
  const std::pair<double, const char*> cases[] = {{0, "right"},  {10, "right"},   {-10, "left"},
                                                  {200, "left"}, {-200, "right"}, {350, "left"}};
  for (const auto& [change, side] : cases)
    EXPECT_EQ(TurnSide(change), side) << change;
}

TEST(ProcedureText, DeparturesReadAsFlown) {
  const Airfield field;
  const Position home{0, 10};
  const struct {
    std::vector<ProcedureStep> steps;
    const char* text;
  } cases[] = {
      {{}, ""},
      {{AtDme(Step("CD", "", home, 90, 0, "@VOR"), 245, 2), Step("DF", "INT", {0, 10.5F}, 30)},
       "Climb straight ahead until crossing VOR R-245 (2.0 DME), turn left, 030° toward INT Intersection"},
      {{AtDme(Step("CD", "", home, 90, 0, "@VOR"), 360, 12.5F), Step("DF", "FIX", {1, 13}, 80, 0, "R +3000")},
       "Climb straight ahead until crossing VOR R-360 (12.5 DME), turn right, 080° toward FIX Fix"},
      {{UpTo(Step("CA", "", home, 90, 0, "+900"), 900), Step("CF", "NDB", {1, 12}, 100, 0, "R"),
        Step("TF", "INT", {0, 10.5F}, 359.7F)},
       "On track 090°  to 900 ft, turn right, 100° track to NDB, 360° toward INT Intersection"},
      {{Step("DF", "VOR", {1, 11}, 45), Step("VI", "", {1, 11}, 120),
        AtDme(Step("CF", "FIX", {1, 13}, 90, 0, "@VOR"), 90, 60)},
       "On track 045°  to VOR. On track 120° , intercept VOR R-090 inbound towards FIX"},
      {{Step("IF", "INT", {0, 10.5F}), Step("CF", "VOR", {1, 11}, 30)},
       "On track 360°  to INT, intercept VOR R-210 inbound towards VOR"},
      {{Step("VM", "", home, 90)}, "On track 090°  to radar vectors"},
      {{Step("DF", "NOWH", {2, 2}, 90), Step("TF", "ELSE", {3, 3}, 80)},
       "On track 090°  to NOWH. On track 080°  to ELSE"},
  };
  for (const auto& c : cases)
    EXPECT_EQ(DepartureText(Entry("09L", "X", c.steps), field.world.database), c.text);
  EXPECT_EQ(DepartureText(Entry("09L", "X", {AtDme(Step("CD", "", home, 90, 0, "@VOR"), 245, 2)}),
                          field.world.database, SentenceStart::small),
            "climb straight ahead until crossing VOR R-245 (2.0 DME)");
}

TEST(ProcedureText, ArrivalsReadAsFlown) {
  const std::optional<LandingRunway> ils = LandingRunway{"27R", 270, true},
                                     plain = LandingRunway{"27R", 270, false};
  const std::vector<ProcedureStep> through = {Step("IF", "FIX", {1, 13}),
                                              Step("TF", "NDB", {1, 12}, 268, 59.6F),
                                              Step("TF", "INT", {0, 10.5F}, 200, 80)};
  std::vector<ProcedureStep> straight = through;
  straight.push_back(Step("HM", "", {0, 10.5F}, 90));
  straight.push_back(Step("FM", "", {0, 10.5F}, 281));
  const struct {
    std::vector<ProcedureStep> steps;
    std::optional<LandingRunway> runway;
    const char* text;
  } cases[] = {
      {through, ils,
       "leave FIX heading 268°; after 60nm  turn left, leave NDB heading 200°; until intercepting localizer"},
      {through, plain,
       "leave FIX heading 268°; after 60nm  turn left, leave NDB heading 200°; to final fix "},
      {through, std::nullopt,
       "leave FIX heading 268°; after 60nm  turn left, leave NDB heading 200°; to final fix "},
      {straight, ils,
       "leave FIX heading 268°; after 60nm  turn left, leave NDB heading 200°; after 80nm  turn right, "
       "leave INT heading 281°; until intercepting localizer. Fly straight in Rwy 27R"},
      {{Step("IF", "FIX", {1, 13})}, ils, "Fly straight in Rwy 27R"},
      {{}, std::nullopt, ""},
  };
  for (const auto& c : cases)
    EXPECT_EQ(ArrivalText(Entry("27R", "X", c.steps), c.runway), c.text);
}

TEST(ProcedureChart, ShowsOneRunwaysProcedures) {
  const Airfield field;
  std::vector<SidStarEntry> entries = {Entry("27R", "WEST", {Step("DF", "INT", {0, 9}, 270)}),
                                       Entry("09L", "EAST", {Step("DF", "INT", {0, 10.5F}, 90)}),
                                       Entry("00", "ANY", {Step("DF", "FAR", {4, 10}, 360)})};
  std::vector<std::string> texts;
  for (const RunwayChoice& choice : RunwayChoices(field.world.database, 0))
    texts.push_back(choice.ListText());
  EXPECT_EQ(texts, (std::vector<std::string>{"09L  (12152ft)", "27R  (12152ft)"}))
      << "a helipad is no runway";

  ProcedureChart chart(field.world.database, ProcedureKind::sid, 0, entries);
  chart.ShowRunway("09L");
  ASSERT_EQ(chart.Shown().size(), 2u);
  EXPECT_EQ(chart.Shown()[0].Name, "EAST");
  EXPECT_EQ(chart.Shown()[1].Name, "ANY");
  EXPECT_EQ(chart.Heading(), "Departure for EDDA Rwy 09L");
  EXPECT_EQ(chart.Text(), "");
  chart.Pick(1);
  EXPECT_EQ(chart.Text(), "On track 360°  to FAR");
  for (const int none : {-1, 2}) {
    chart.Pick(none);
    EXPECT_EQ(chart.Picked(), -1);
  }
  PutRunwayFirst(entries, "9L");
  EXPECT_EQ(entries[0].Name, "EAST");
  EXPECT_EQ(entries[2].Name, "WEST");
}

TEST(ProcedureChart, FitsEverythingOntoItsPage) {
  const std::pair<Position, Position> cases[] = {{{0, 10}, {4, 10}},
                                                 {{0, 10}, {0.1F, 10}},
                                                 {{0, 10}, {-3, 16}},
                                                 {{50, 8}, {62, 30}},
                                                 {{0, 179.5F}, {1, -178}}};
  for (const auto& [home, far] : cases) {
    Airfield field;
    field.world.database.airports[0].sngLat = home.lat;
    field.world.database.airports[0].sngLon = home.lon;
    ProcedureChart chart(field.world.database, ProcedureKind::sid, 0,
                         {Entry("00", "ANY", {Step("DF", "FAR", far, 360)})});
    chart.ShowRunway("18");
    MapView view;
    const SurfacePoint page{9000, 6000};
    chart.FitView(view, page);
    for (const Position place : {far, home}) {
      EXPECT_NEAR(view.LonToX(place.lon), mapScaleWidth / 2.0, page.x / 2) << far.lat;
      EXPECT_NEAR(view.LatToY(place.lat), mapScaleHeight / 2.0, page.y / 2) << far.lat;
    }
  }
}

TEST(ProcedureLayer, DrawsWhatThePlanHas) {
  Airfield field;
  const auto lines = [&](bool sidOn, bool starOn) {
    RecordingSurface surface;
    modDeclutter labels;
    MapView view = MapView::At(0, 10.5F, 9);
    MapSwitches switches;
    switches.mnuDisplaySid = sidOn;
    switches.mnuDisplayStar = starOn;
    DrawMap({view, labels, field.world.database, Settings(), switches, {}},
            InDrawingOrder(ProcedureLayers(field.plan)), surface);
    return surface.Count("line");
  };
  EXPECT_EQ(lines(true, true), 0) << "no procedure, no line";
  field.plan.DepartureID = "09L";
  ApplySid(field.plan, field.context, Entry("09L", "EAST", {Step("DF", "INT", {0, 10.5F}, 90)}));
  ApplyStar(field.plan, field.context,
            Entry("00", "IN", {Step("IF", "NDB", {1, 12}), Step("TF", "VOR", {1, 11}, 270)}));
  const int both = lines(true, true);
  EXPECT_GT(lines(true, false), 0);
  EXPECT_GT(lines(false, true), 0);
  EXPECT_EQ(lines(true, false) + lines(false, true), both);
}

}  // namespace
