#include "flightplan/navaid_route.h"

#include <gtest/gtest.h>

#include "flightplan/route_generation.h"
#include "tests/flightplan/drawn_world.h"

namespace {

// Six degrees along a meridian are 360 NM northward: the intersections are walked upward.
const std::string northward = "airport EDDA 50 8 0\nairport EDDB 56 8.001 0\n";

struct Chain : DrawnPlan {
  using DrawnPlan::DrawnPlan;
  NavaidKinds kinds;
  NavaidSector sector;
  bool Generate() { return GenerateNavaidRoute(plan, context, kinds, sector); }
};

TEST(NavaidRoute, ChainsWhatLiesOnTheWay) {
  Chain c(northward +
          "vor AAA 50.6 8.05\nvor OFF 50.1 9.5\nndb BBBB 51.3 8.06\nndb LO 51.35 8.01\nC 52 8.02\nvor DDD "
          "52.7 8.1\n"
          "vor EEE 53.4 8.11\nvor FFF 54.1 8.12\nvor GGG 54.8 8.1\n");
  ASSERT_TRUE(c.Generate());
  EXPECT_EQ(c.Codes(), "EDDA AAA BBBB C DDD EEE FFF GGG EDDB") << "OFF is aside, LO a locator";
  EXPECT_EQ(c.plan.RouteType, RouteKind::navaid);
  EXPECT_EQ(c.plan.RouteMethod, RouteGenerator::navaid);
  EXPECT_EQ(c.plan.Row(3).Sym, "Int");
  ASSERT_TRUE(c.Generate()) << "a second run begins anew";
  EXPECT_EQ(c.plan.RowCount(), 9);
}

TEST(NavaidRoute, UsesOnlyTheKindsThatAreOn) {
  Chain c(northward + "vor AAA 50.6 8.05\nndb BBBB 50.65 8.02\nC 50.7 8.01\n");
  c.kinds = {false, true, false};
  c.Generate();
  EXPECT_EQ(c.Codes(), "EDDA BBBB EDDB");
  c.kinds = {false, false, false};
  EXPECT_FALSE(c.Generate());
  EXPECT_EQ(c.messages.texts.back(),
            "You need to have at least one of these buttons selected:\n          VOR, NDB, Intersection");
  EXPECT_EQ(c.Codes(), "EDDA BBBB EDDB") << "the plan stays";
}

// One round within 50 NM; which of the candidates is taken.
TEST(NavaidRoute, PicksByDistanceUnlessOneIsAlignedAtAHandyDistance) {
  const struct {
    const char* name;
    const char* navaids;
    const char* pick;
  } cases[] = {
      // 40 NM straight ahead beats 48 NM aside.
      {"aligned", "vor ASIDE 50.78 8.3\nvor AHEAD 50.66667 8.001\n", "AHEAD"},
      // The aligned one is nearer than 30 NM: the last at least as far as the first wins, not the farthest.
      {"far", "vor FIRST 50.4 8.2\nvor FAR 50.8 8.3\nvor LAST 50.5 8.3\nvor NEAR 50.2 8.001\n", "LAST"},
      {"tie", "vor ONE 50.6 7.9\nvor ONE2 50.6 7.9\n", "ONE2"},
  };
  for (const auto& c : cases) {
    Chain chain(northward + c.navaids);
    chain.Generate();
    ASSERT_GE(chain.plan.RowCount(), 3) << c.name;
    EXPECT_EQ(chain.plan.Row(1).Code.Text(), c.pick) << c.name;
  }
}

TEST(NavaidRoute, CandidateLimitsAreStrict) {
  const struct {
    const char* navaid;
    bool taken;
  } cases[] = {
      {"vor A 50.0833 8.0001\n", false},  // below 5 NM
      {"vor A 50.0834 8.0001\n", true},  {"vor A 50.8333 8.0001\n", true},
      {"vor A 50.5 8\n", false},    // shares its longitude with the departure
      {"vor A 50.5 8.8\n", false},  // 45 degrees off
      {"vor A 50.5 8.4\n", true},
  };
  for (const auto& c : cases) {
    // The destination is near enough for the search to end behind its first round.
    Chain chain(std::string("airport EDDA 50 8 0\nairport EDDB 50.82 8.001 0\n") + c.navaid);
    chain.Generate();
    EXPECT_EQ(chain.plan.RowCount(), c.taken ? 3 : 2) << c.navaid;
  }
}

TEST(NavaidRoute, WalksTheIntersectionsByTheirRows) {
  // Both lie in the sector; northward the lower row is met first, southward the higher.
  const std::string nodes = "LOW 53 8.2\nHIGH 53.1 8.1\n";
  Chain north("airport EDDA 52.5 8 0\nairport EDDB 53.3 8.001 0\n" + nodes);
  north.Generate();
  EXPECT_EQ(north.Codes(), "EDDA LOW EDDB");
  Chain south("airport EDDA 53.7 8 0\nairport EDDB 52.9 8.001 0\n" + nodes);
  south.Generate();
  EXPECT_EQ(south.Codes(), "EDDA HIGH EDDB");
}

TEST(NavaidRoute, FillsOnlyTheSelectedLeg) {
  Chain c(northward + "vor AAA 50.6 8.05\nvor ZZZ 54.6 8.05\n");
  c.Add("Uwp", "ME", 54, 8.0005F);
  c.plan.SelectedRow = 1;
  c.Generate();
  EXPECT_EQ(c.Codes(), "EDDA ME ZZZ EDDB");
}

TEST(NavaidRoute, AnEmptyOceanIsNamedOnlyBeyond2000Miles) {
  Chain far("airport EDDA 0 0 0\nairport EDDB 40 0.001 0\n");
  EXPECT_FALSE(far.Generate());
  EXPECT_EQ(far.messages.texts.back(), "Insufficient number of navaids to create flightplan!");
  Chain near(northward);
  EXPECT_TRUE(near.Generate());
  EXPECT_TRUE(near.messages.texts.empty());
  EXPECT_EQ(near.Codes(), "EDDA EDDB");
}

}  // namespace
