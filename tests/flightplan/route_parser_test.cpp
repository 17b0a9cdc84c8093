#include "flightplan/route_parser.h"

#include <gtest/gtest.h>

#include "flightplan/route_string.h"
#include "tests/flightplan/drawn_world.h"

namespace {

const std::string drawing =
    "airport EDDA 50 8 0\nairport EDDB 50 14 0\n"
    "A 50 9\nB 50 10\nC 50 11\nD 50 12\nE 50 13\nF 51 11\n"
    "A --38-- B V1 FL60-FL200\nB --38-- C V1 FL70-FL210\nC --38-- D V1 FL80-FL220\nC --60-- F V2\n"
    "C ==38=> D UJ 25000-45000\nD ==38=> E UJ FL250-FL450\n"
    "vor D 50.5 12\nndb SAME 50 8.9\nvor SAME 50 8.9\nfix SAME 50 8.95\nvor TWIN 10 10\nvor TWIN 50 9.2\n";

struct Parsed : DrawnPlan {
  explicit Parsed(const char* text) : DrawnPlan(drawing) { complete = ParseRoute(plan, context, text); }
  std::string Airways() const {
    std::string names;
    for (const PlanWaypoint& row : plan.rows)
      names += "[" + row.Airway.Text() + "]";
    return names;
  }
  bool complete;
};

TEST(ParseRoute, ReadsWords) {
  const struct {
    const char* text;
    const char* codes;
    const char* airways;
  } cases[] = {
      {"EDDA EDDB", "EDDA EDDB", "[][]"},
      {"EDDA A V1 D EDDB", "EDDA A B C D EDDB", "[][][V1][V1][V1][]"},
      {"EDDA D V1 A EDDB", "EDDA D C B A EDDB", "[][][V1][V1][V1][]"},
      // An airway that begins where another ends.
      {"EDDA A V1 C UJ E EDDB", "EDDA A B C D E EDDB", "[][][V1][V1][UJ][UJ][]"},
      {"EDDA A V1 B EDDB", "EDDA A B EDDB", "[][][V1][]"},
      {"edda,dct a/v1;c   dct eddb!", "EDDA A B C EDDB", "[][][V1][V1][]"},
      // Words that name nothing; an airport between is none; an airway not at its fix.
      {"EDDA DCT ABCDE1X A EDDB B UJ EDDB", "EDDA A B EDDB", "[][][][]"},
      // The nearest of an ident: on equal distance the VOR before the NDB.
      {"EDDA SAME TWIN EDDB", "EDDA SAME TWIN EDDB", "[][][][]"},
  };
  for (const auto& c : cases) {
    const Parsed p(c.text);
    EXPECT_TRUE(p.complete) << c.text;
    EXPECT_EQ(p.Codes(), c.codes) << c.text;
    EXPECT_EQ(p.Airways(), c.airways) << c.text;
    EXPECT_TRUE(p.messages.texts.empty()) << c.text;
    EXPECT_TRUE(p.plan.PlanFiled);
    EXPECT_EQ(p.plan.RouteType, RouteKind::navaid);
  }
  const Parsed same("EDDA SAME TWIN EDDB");
  EXPECT_EQ(same.plan.Row(1).Sym, "VOR");
  EXPECT_EQ(same.plan.Row(2).DbIndex, 3) << "the nearer of two";
}

TEST(ParseRoute, GivesTheLegsTheirLimits) {
  const Parsed p("EDDA A V1 C UJ D EDDB");
  const std::vector<std::pair<std::int32_t, std::int32_t>> limits = {
      {-1, -1}, {-1, -1}, {6000, 20000}, {7000, 21000}, {25000, 45000}, {-1, -1}};
  for (int row = 0; row < p.plan.RowCount(); ++row) {
    EXPECT_EQ(p.plan.Row(row).AirwayMinAlt, limits[static_cast<std::size_t>(row)].first) << row;
    EXPECT_EQ(p.plan.Row(row).AirwayMaxAlt, limits[static_cast<std::size_t>(row)].second) << row;
  }
}

TEST(ParseRoute, SaysWhatIsMissing) {
  const struct {
    const char* text;
    const char* message;
    const char* codes;
  } cases[] = {
      {"XXXX A EDDB", "Invalid String! Departure airport missing!", ""},
      {"EDDA A XXXX", "Invalid String! Destination airport missing!", ""},
      {"EDDA A V1 F EDDB", "F is not on airway V1\nFlightplan cannot be completed!", "EDDA A F EDDB"},
      // One way only.
      {"EDDA E UJ C EDDB", nullptr, "EDDA E C EDDB"},
      {"EDDA D UJ C EDDB", "C is not on airway UJ\nFlightplan cannot be completed!", "EDDA D C EDDB"},
      {"EDDA A V1 EDDB", "EDDB is not on airway V1\nFlightplan cannot be completed!", "EDDA A EDDB"},
  };
  for (const auto& c : cases) {
    const Parsed p(c.text);
    EXPECT_EQ(p.complete, c.message == nullptr) << c.text;
    EXPECT_EQ(p.Codes(), c.codes) << c.text;
    if (c.message == nullptr) continue;
    ASSERT_EQ(p.messages.texts.size(), 1u) << c.text;
    EXPECT_EQ(p.messages.texts[0], c.message);
    for (const PlanWaypoint& row : p.plan.rows)
      EXPECT_TRUE(row.Airway.Empty()) << c.text << ": no leg keeps an airway that was not joined";
  }
}

TEST(ParseRoute, AFixThatIsANavaidEndsTheAirway) {
  DrawnPlan p(
      "airport EDDA 50 8 0\nairport EDDB 50 14 0\nA 49.9 9\nFFM 50.0003 10\nA --38-- FFM V1\nvor FFM 50 "
      "10\n");
  EXPECT_TRUE(ParseRoute(p.plan, p.context, "EDDA A V1 FFM EDDB"));
  EXPECT_EQ(p.plan.Row(2).Sym, "VOR");
  EXPECT_EQ(p.plan.Row(2).Airway, "V1");
}

TEST(ParseRoute, ReadsBackWhatThePlanWrites) {
  for (const char* text : {"EDDA A V1 D EDDB", "EDDA A V1 C UJ E EDDB", "EDDA SAME TWIN EDDB"}) {
    const Parsed p(text);
    EXPECT_EQ(RouteStringFromPlan(p.plan), text);
  }
}

TEST(ParseRoute, FindsItsWayWhereAnAirwayForks) {
  DrawnPlan p(
      "airport EDDA 50 8 0\nairport EDDB 50 14 0\nA 50 9\nB 50 10\nSPUR 51 10\nC 50 11\nD 50 12\n"
      "A --38-- B R1\nB --60-- SPUR R1\nB --38-- C R1\nC --38-- D R1\n");
  EXPECT_TRUE(ParseRoute(p.plan, p.context, "EDDA A R1 D EDDB"));
  EXPECT_EQ(p.Codes(), "EDDA A B C D EDDB");
}

TEST(ParseRoute, TakesTheLevelOfAnAirwayThatLeadsThere) {
  DrawnPlan p(
      "airport EDDA 50 8 0\nairport EDDB 50 14 0\nA 50 9\nB 50 10\nC 50 11\n"
      "A --38-- B R1 FL50-FL100\nA ==38== B R1 FL250-FL460\nB ==38== C R1 FL250-FL460\n");
  EXPECT_TRUE(ParseRoute(p.plan, p.context, "EDDA A R1 C EDDB"));
  EXPECT_EQ(p.Codes(), "EDDA A B C EDDB");
  EXPECT_EQ(p.plan.Row(2).AirwayMinAlt, 25000);
}

TEST(ParseRoute, ARingDoesNotHoldItUp) {
  DrawnPlan p(
      "airport EDDA 50 8 0\nairport EDDB 50 14 0\nA 50 9\nB 50 10\nC 51 10\nX 49 9\n"
      "A ==1=> B R1\nB ==1=> C R1\nC ==1=> A R1\n");
  EXPECT_FALSE(ParseRoute(p.plan, p.context, "EDDA A R1 X EDDB"));
  EXPECT_EQ(p.Codes(), "EDDA A X EDDB");
}

}  // namespace
