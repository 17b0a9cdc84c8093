#include "flightplan/airway_search.h"

#include <gtest/gtest.h>

#include <cmath>
#include <functional>
#include <random>
#include <sstream>

#include "tests/flightplan/drawn_world.h"

namespace {

std::string Way(const DrawnWorld& world, const AirwaySearch& search, int node) {
  std::string way;
  for (const AirwaySearch::Step& step : search.PathTo(node)) {
    if (!step.SearchAirway.Empty()) way += " " + step.SearchAirway.Text();
    way += (way.empty() ? "" : " ") + world.Code(step.node);
  }
  return way;
}

struct SearchCase {
  const char* name;
  const char* drawing;
  char level;
  const char* way;  // from A to Z; empty: none
  float cost;
};

const SearchCase searchCases[] = {
    {"one link", "A --12-- Z V1", 'V', "A V1 Z", 12},
    {"more links but shorter", "A --30-- Z V1\nA --10-- B V2\nB --10-- Z V3", 'V', "A V2 B V3 Z", 20},
    {"found again by a shorter way",
     "A --20-- C V1\nC --10-- Z V1\nA --5-- B V2\nB --5-- C V2\nA --50-- Z V3", 'V', "A V2 B V2 C V1 Z", 20},
    {"against a one-way link", "Z --12-> A V1", 'V', "", 0},
    {"along a one-way link", "A --12-> Z V1", 'V', "A V1 Z", 12},
    {"low network only", "A ==12== Z UL1\nA --30-- Z V1", 'V', "A V1 Z", 30},
    {"high network only", "A ==12== Z UL1\nA --5-- Z V1", 'J', "A UL1 Z", 12},
    {"no link on the network", "A ==12== Z UL1", 'V', "", 0},
    {"two parts", "A --12-- B V1\nC --12-- Z V1", 'V', "", 0},
    {"of equal ways the first relaxed stays", "A --10-- B V1\nA --10-- C V2\nC --10-- Z V2\nB --10-- Z V1",
     'V', "A V1 B V1 Z", 20},
    {"of equal links the first stays", "A --10-> Z V1\nA --10-> Z V2", 'V', "A V1 Z", 10},
    {"a later link that is shorter", "A --10-> Z V1\nA --9.5-> Z V2", 'V', "A V2 Z", 9.5},
    {"a length that is no number", "A --nan-> Z V1\nA --9-> Z V2", 'V', "A V2 Z", 9},
    {"links of no length", "A --0-- B V1\nB --0-- Z V1", 'V', "A V1 B V1 Z", 0},
};

TEST(AirwaySearch, FindsTheShortestWay) {
  for (const SearchCase& c : searchCases) {
    SCOPED_TRACE(c.name);
    DrawnWorld world(c.drawing);
    const int start = world.Node("A");
    const int goal = world.Node("Z");
    AirwaySearch search(world.database);
    const int end = search.ShortestPathToNode(start, c.level, goal);
    if (*c.way == '\0') {
      EXPECT_EQ(end, -start);
      EXPECT_TRUE(search.PathTo(goal).empty());
    } else {
      ASSERT_EQ(end, goal);
      EXPECT_EQ(Way(world, search, end), c.way);
      EXPECT_EQ(search.SearchCost(end), c.cost);
    }
  }
}

TEST(AirwaySearch, TellsTheLimitsOfEachLink) {
  DrawnWorld world("A --12-- B V1 FL100-FL200\nB --12-- Z V2 4500-FL90");
  AirwaySearch search(world.database);
  const auto path = search.PathTo(search.ShortestPathToNode(world.Node("A"), 'V', world.Node("Z")));
  ASSERT_EQ(path.size(), 3u);
  EXPECT_EQ(path[0].SearchMinAlt, 0);
  EXPECT_EQ(path[1].SearchMinAlt, 10000);
  EXPECT_EQ(path[1].SearchMaxAlt, 20000);
  EXPECT_EQ(path[2].SearchMinAlt, 4500);
  EXPECT_EQ(path[2].SearchMaxAlt, 9000);
}

TEST(AirwaySearch, EndsAtTheFirstSettledNodeWithinTheRadius) {
  // B is nearer to the goal at 0, 5, but C is settled first; A lies within too.
  const char* drawing =
      "A 0 4.5\nB 0 4.9\nC 0 4.2\nD 0 3.9\n"
      "A --10-- D V1\nD --10-- C V1\nA --50-- B V2";
  DrawnWorld world(drawing);
  AirwaySearch search(world.database);
  EXPECT_EQ(world.Code(search.ShortestPathToPosition(world.Node("A"), 'V', 0, 5, 60)), "C");
  EXPECT_EQ(world.Code(search.ShortestPathToPosition(world.Node("A"), 'V', 0, 5, 20)), "B");
  EXPECT_EQ(search.ShortestPathToPosition(world.Node("A"), 'V', 0, 5, 3), -world.Node("A"));
  EXPECT_EQ(world.Code(search.ShortestPathToPosition(world.Node("A"), 'V', 0, 5, 20000)), "D");
}

TEST(AirwaySearch, CountsANodeOnTheCircle) {
  DrawnWorld world("A 0 0\nB 10 20\nA --10-- B V1");
  AirwaySearch search(world.database);
  const float radius = GreatCircleDistance(10, 20, 12, 21);
  EXPECT_EQ(search.ShortestPathToPosition(1, 'V', 12, 21, radius), 2);
  EXPECT_EQ(search.ShortestPathToPosition(1, 'V', 12, 21, std::nextafter(radius, 0.0f)), -1);
}

TEST(AirwaySearch, SeesAcrossTheDateLineAndThePole) {
  DrawnWorld world("A 0 0\nB -17 -179.9\nC 89.5 20\nA --10-- B V1\nA --20-- C V1");
  AirwaySearch search(world.database);
  EXPECT_EQ(search.ShortestPathToPosition(1, 'V', -17, 179.9f, 35), 2);
  EXPECT_EQ(search.ShortestPathToPosition(1, 'V', 89.6f, -160, 60), 3);
}

TEST(AirwaySearch, RepeatsItselfAndForgets) {
  DrawnWorld world("A --12-- B V1\nB --12-- Z V1\nC --3-- Z V2\nA --1-- C V2");
  AirwaySearch search(world.database);
  for (int i = 0; i < 3; ++i) {
    EXPECT_EQ(Way(world, search, search.ShortestPathToNode(world.Node("A"), 'V', world.Node("Z"))),
              "A V2 C V2 Z");
    EXPECT_EQ(Way(world, search, search.ShortestPathToNode(world.Node("B"), 'V', world.Node("Z"))), "B V1 Z");
    EXPECT_EQ(search.ShortestPathToNode(world.Node("A"), 'J', world.Node("Z")), -world.Node("A"));
    EXPECT_TRUE(search.PathTo(world.Node("Z")).empty());
  }
}

TEST(AirwaySearch, IgnoresLinksThatLeadNowhere) {
  DrawnWorld world("A --1-> B V1\nA --2-> C V1\nA --3-> D V1\nA --9-> Z V1");
  world.database.lowConnections[0].lngNext = 0;
  world.database.lowConnections[1].lngNext = -7;
  world.database.lowConnections[2].lngNext = 40001;
  AirwaySearch search(world.database);
  EXPECT_EQ(Way(world, search, search.ShortestPathToNode(world.Node("A"), 'V', world.Node("Z"))), "A V1 Z");
}

TEST(AirwaySearch, RefusesAStartThatIsNoNode) {
  DrawnWorld world("A --1-> B V1");
  AirwaySearch search(world.database);
  for (const int start : {0, -1, 3, 40001}) {
    EXPECT_THROW(search.ShortestPathToNode(start, 'V', 1), std::out_of_range) << start;
  }
}

// A node with many neighbours that have many neighbours each.
std::string Fan(int width, int leaves) {
  std::string drawing;
  for (int i = 0; i < width; ++i) {
    const std::string middle = "M" + std::to_string(i);
    drawing += "A --1-> " + middle + " V1\n";
    for (int j = 0; j < leaves; ++j)
      drawing += middle + " --1-> L" + std::to_string(i * leaves + j) + " V1\n";
  }
  return drawing;
}

TEST(AirwaySearch, EndsWithAFullHeap) {
  // After k settled neighbours the heap holds width - k + k * leaves entries.
  DrawnWorld fits(Fan(191, 120));
  AirwaySearch search(fits.database);
  EXPECT_EQ(search.ShortestPathToNode(fits.Node("A"), 'V', -1), -fits.Node("A"));
  DrawnWorld tooMany(Fan(200, 120));
  AirwaySearch overfull(tooMany.database);
  EXPECT_THROW(overfull.ShortestPathToNode(tooMany.Node("A"), 'V', -1), std::length_error);
  // The search is whole again behind the failure.
  EXPECT_EQ(overfull.ShortestPathToNode(tooMany.Node("A"), 'V', tooMany.Node("M7")), tooMany.Node("M7"));
}

// The least cost of every node, by relaxing all links until nothing changes.
std::vector<float> LeastCosts(const NavDatabase& database, int start) {
  std::vector<float> cost(database.intersections.size(), AirwaySearch::unreachedCost);
  cost[static_cast<std::size_t>(start)] = 0;
  for (bool changed = true; changed;) {
    changed = false;
    for (std::size_t node = 1; node < cost.size(); ++node) {
      if (cost[node] >= AirwaySearch::unreachedCost) continue;
      for (const ConnectionRec& link : database.LowAlt(database.intersections[node])) {
        float& target = cost[static_cast<std::size_t>(link.lngNext)];
        if (cost[node] + link.sngDistance < target) {
          target = cost[node] + link.sngDistance;
          changed = true;
        }
      }
    }
  }
  return cost;
}

// 120 nodes around the date line with random links. detour(great circle
// distance) is a link's length.
template <class Detour>
DrawnWorld RandomWorld(std::mt19937& random, const Detour& detour) {
  std::uniform_real_distribution<float> lat(-60, 80), lon(130, 230);
  std::vector<Position> places(120);
  std::ostringstream drawing;
  for (std::size_t i = 0; i < places.size(); ++i) {
    places[i] = {lat(random), lon(random)};
    if (places[i].lon > 180) places[i].lon -= 360;
    drawing << "N" << i << " " << places[i].lat << " " << places[i].lon << "\n";
  }
  for (int link = 0; link < 350; ++link) {
    const std::size_t from = random() % places.size();
    const std::size_t to = random() % places.size();
    const Position &a = places[from], &b = places[to];
    drawing << "N" << from << " --" << detour(GreatCircleDistance(a.lat, a.lon, b.lat, b.lon))
            << (random() % 3 == 0 ? "->" : "--") << " N" << to << " V1\n";
  }
  return DrawnWorld(drawing.str());
}

TEST(AirwaySearch, FindsTheLeastCostOnRandomGraphs) {
  std::mt19937 random(20090810);
  std::uniform_real_distribution<float> any(0, 1);
  const std::function<float(float)> detours[] = {
      [](float distance) { return distance; },                          // as the crow flies
      [&](float distance) { return distance * (1 + any(random)); },     // with bends
      [](float distance) { return std::floor(distance / 100) * 100; },  // shorter, and full of ties
      [&](float) { return std::floor(any(random) * 40); },              // without regard to the places
  };
  int routes = 0;
  for (int round = 0; round < 40; ++round) {
    const DrawnWorld world = RandomWorld(random, detours[round % 4]);
    const auto& database = world.database;
    const std::vector<float> cost = LeastCosts(database, 1);
    AirwaySearch search(database);
    for (int goal = 2; goal < static_cast<int>(cost.size()); ++goal) {
      const IntersectionRec& at = database.intersections[static_cast<std::size_t>(goal)];
      const float radius = any(random) * 600;
      float least = AirwaySearch::unreachedCost;
      for (std::size_t node = 2; node < cost.size(); ++node) {
        const IntersectionRec& other = database.intersections[node];
        const float distance = GreatCircleDistance(other.sngLat, other.sngLon, at.sngLat, at.sngLon);
        if (distance <= radius) least = std::min(least, cost[node]);
      }
      const int near = search.ShortestPathToPosition(1, 'V', at.sngLat, at.sngLon, radius);
      ASSERT_EQ(near > 0 ? search.SearchCost(near) : AirwaySearch::unreachedCost, least);
      routes += near > 0 ? 1 : 0;
      const int end = search.ShortestPathToNode(1, 'V', goal);
      ASSERT_EQ(end > 0 ? search.SearchCost(end) : AirwaySearch::unreachedCost,
                cost[static_cast<std::size_t>(goal)]);
    }
  }
  EXPECT_GT(routes, 2000);
}

TEST(ParseAltitude, ReadsLevelsAndFeet) {
  const struct {
    const char* text;
    int feet;
  } cases[] = {{"FL180", 18000}, {"FL095", 9500}, {" FL60", 6000}, {"4500", 4500}, {"04500", 4500},
               {"", 0},          {"FL", 0},       {"UNL", 0},      {"0", 0},       {"FL-10", -1000}};
  for (const auto& c : cases)
    EXPECT_EQ(ParseAltitude(c.text), c.feet) << c.text;
}

}  // namespace
