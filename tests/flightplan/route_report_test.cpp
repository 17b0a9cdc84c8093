#include "flightplan/route_report.h"

#include <gtest/gtest.h>

#include "flightplan/route_generation.h"
#include "flightplan/route_parser.h"
#include "tests/flightplan/drawn_world.h"

namespace {

using Lines = std::vector<std::string>;

struct Reported : DrawnPlan {
  using DrawnPlan::DrawnPlan;
  AirwaySearch search{world.database};
  RouteReport report;
  PlanContext reporting{world.database, aircraft, messages, 8.5, &report};

  const Lines& Low() {
    GenerateAirwayRoute(plan, reporting, search, AirwayNetwork::lowAltitude);
    return report.lines;
  }
};

// Sixty miles a degree along the equator.
const std::string airports = "airport EDDA 0 0 0\nairport EDDB 0 10 0\n";

TEST(RouteReport, SaysWhyTheAirwayBuilderFailed) {
  const struct {
    const char* name;
    const char* fixes;
    Lines lines;
  } cases[] = {
      {"a route is no news", "A 0 0.3\nZ 0 9.8\nA --570-- Z V1\n", {}},
      {"no fix near the departure",
       "A 0 6\nZ 0 9.8\nA --228-- Z V1\n",
       {"Low altitude route EDDA to EDDB: no fix of the low network within 290 NM of EDDA; the nearest is A, "
        "360 NM from it"}},
      {"the network leads away",
       "A 0 0.3\nB 0 -3\nA --198-> B V1\n",
       {"Low altitude route EDDA to EDDB: 1 fix of the low network within 290 NM of EDDA, none of which "
        "has "
        "a link within 60° of the course 090°"}},
      {"only the high network",
       "A 0 0.3\nZ 0 9.8\nA ==570== Z UV1\n",
       {"Low altitude route EDDA to EDDB: no fix of the low network within 290 NM of EDDA; there is none at "
        "all"}},
      {"no fix near the destination",
       "A 0 0.3\nB 0 1\nA --42-- B V1\n",
       {"Low altitude route EDDA to EDDB: no fix of the low network between 5 and 485 NM of EDDB; the "
        "nearest "
        "is B, 540 NM from it"}},
      {"the network ends under way",
       "A 0 0.3\nB 0 3\nA --162-- B V1\nY 0 9\nZ 0 9.8\nY --48-- Z V2\n",
       {"Low altitude route EDDA to EDDB: the search from A (found within 30 NM of EDDA) reaches 2 fixes of "
        "the low network, none within 35 NM of EDDB, and the network ends there; the nearest is B, 420 NM "
        "from "
        "it",
        "Low altitude route EDDA to EDDB: 1 fix lies within 35 NM of EDDB, links from outside lead to 1 of "
        "them",
        "Low altitude route EDDA to EDDB: given up after 15 tries, the radius for an entry grown from 30 to "
        "310 NM"}},
  };
  for (const auto& c : cases) {
    Reported r(airports + c.fixes);
    EXPECT_EQ(r.Low(), c.lines) << c.name;
  }
}

TEST(RouteReport, SaysWhyTheChainOfNavaidsEnded) {
  const auto linesOf = [](const std::string& drawing) {
    Reported r(drawing);
    GenerateNavaidRoute(r.plan, r.reporting, {}, {});
    return r.report.lines;
  };
  EXPECT_EQ(linesOf(airports + "vor AAA 0.01 0.8\nvor BBB 0.02 1.5\n"), Lines{})
      << "a chain that ends for want of navaids within 2000 NM is one";
  EXPECT_EQ(
      linesOf("airport EDDA 0 0 0\nairport EDDB 0 40 0\n"),
      (Lines{"Navaid route EDDA to EDDB: nothing to choose from up to 2450 NM of EDDA within 30° of the "
             "course 090°"}));
  EXPECT_EQ(linesOf("airport EDDA 0 0 0\nairport EDDB 0 0.5 0\n"),
            (Lines{"Navaid route EDDA to EDDB: none taken, the goal lies within the radius of 100 NM"}));
}

TEST(RouteReport, NamesTheWordsOfARouteStringThatWereOfNoUse) {
  Reported r(
      airports +
      "A 0 1\nB 0 3\nC 0 6\nD 0.5 6\nE 0 8\nA --120-- B V1\nB --180-- C V1\nE ==60== C UV2\nfix LONE 0 5\n");
  EXPECT_FALSE(ParseRoute(r.plan, r.reporting, "EDDA DCT A V1 D V1 LONE EDDB"));
  EXPECT_EQ(r.report.lines,
            (Lines{"Route string: word 2 'DCT' names nothing in the database, passed over",
                   "Route string: word 6 'V1' is an airway, but the word in front of it is no intersection "
                   "that it leaves, passed over",
                   "Route string: D is not on airway V1; on the low network it leads from A to C (2 legs)"}));
  r.report.lines.clear();
  EXPECT_FALSE(ParseRoute(r.plan, r.reporting, "EDDA B V1 LONE EDDB"));
  EXPECT_EQ(
      r.report.lines,
      (Lines{"Route string: LONE is not on airway V1, there is no intersection at its place; on the low "
             "network it leads from B to A (1 leg) and C (1 leg)"}));
}

}  // namespace
