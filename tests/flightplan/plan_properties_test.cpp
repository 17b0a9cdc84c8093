// What holds for any plan and any world: a plan that was changed at random is
// the plan that its rows make, and the indexes find the routes that a walk over
// the whole tables finds.
#include <gtest/gtest.h>

#include <random>
#include <sstream>

#include "flightplan/airway_route.h"
#include "flightplan/plan_history.h"
#include "flightplan/procedures.h"
#include "flightplan/route_generation.h"
#include "tests/flightplan/drawn_world.h"
#include "tests/flightplan/plain_builders.h"

namespace {

class Dice {
 public:
  explicit Dice(unsigned seed) : engine(seed) {}
  int Below(int limit) { return static_cast<int>(engine() % static_cast<unsigned>(limit)); }
  float Between(float low, float high) {
    return low + (high - low) * static_cast<float>(engine()) / static_cast<float>(std::mt19937::max());
  }
  std::mt19937 engine;
};

// A plan under random changes of every kind.
class ChangedPlan : public DrawnPlan {
 public:
  explicit ChangedPlan(unsigned seed)
      : DrawnPlan(
            "airport EDDA 45 0 0\nairport EDDB 45 20 300\n"
            "A 45.1 1\nB 45.2 6\nC 45 12\nZ 45 19\nA --210-- B V1\nB --250-- C V1\nC --300-- Z V2\n"
            "vor VAA 45.2 2\nvor VBB 45.1 3.5\n"),
        dice(seed) {
    history.Changed(plan);
  }

  void Change() {
    switch (dice.Below(8)) {
      case 0:
      case 1:
        return Insert();
      case 2:
        if (plan.RowCount() > 2) DeleteWaypoint(plan, context, 1 + dice.Below(plan.RowCount() - 2), true);
        return;
      case 3:
        return Procedure();
      case 4:
        plan.SelectedRow = 0;
        GenerateAirwayRoute(plan, context, search, AirwayNetwork::lowAltitude);
        return;
      case 5:
        DeleteTableRow(plan, context, dice.Below(plan.RowCount()));
        return;
      default:
        return dice.Below(2) == 0 ? history.Undo(plan) : history.Redo(plan);
    }
  }

  // Of the same rows, one behind the other.
  FlightPlan Anew() const {
    FlightPlan anew;
    SetDepartureAndDestination(anew, context, plan.DepartureIndex, plan.DestinationIndex);
    for (int row = 1, after = 0; row < plan.DestinationRow(); ++row)
      InsertWaypoint(anew, context, after, plan.Row(row), false);
    anew.Row(anew.DestinationRow()).Airway = plan.rows.back().Airway;
    anew.Row(anew.DestinationRow()).AirwayMinAlt = plan.rows.back().AirwayMinAlt;
    anew.Row(anew.DestinationRow()).AirwayMaxAlt = plan.rows.back().AirwayMaxAlt;
    RecomputePlan(anew, context);
    return anew;
  }

  PlanHistory history;
  Dice dice;
  AirwaySearch search{world.database};

 private:
  void Insert() {
    PlanWaypoint row;
    row.Sym = "Uwp";
    row.Code = dice.Below(3) == 0 ? std::string("Fix 99") : "P" + std::to_string(dice.Below(5));
    row.Lat = dice.Between(40, 50);
    row.Lon = dice.Between(0, 20);
    // Behind the departure's procedure and before the arrival's.
    int after = plan.SidRows() + dice.Below(plan.RowCount() - 1 - plan.SidRows() - plan.StarRows());
    if (plan.RowCount() < 40) InsertWaypoint(plan, context, after, row, true);
  }

  void Procedure() {
    SidStarEntry entry;
    entry.Name = "PROC" + std::to_string(dice.Below(3));
    for (const char* code : {"A", "B"}) {
      ProcedureStep step;
      const IntersectionRec& node = world.database.intersections[static_cast<std::size_t>(world.Node(code))];
      step.Code = std::string_view(code);
      step.Lat = node.sngLat;
      step.Lon = node.sngLon;
      step.Link = FindStepLink(step, world.database);
      entry.Steps.push_back(step);
    }
    switch (dice.Below(4)) {
      case 0:
        return ApplySid(plan, context, entry);
      case 1:
        return ApplyStar(plan, context, entry);
      case 2:
        return DeleteSid(plan, context);
      default:
        return DeleteStar(plan, context);
    }
  }
};

TEST(AnyPlan, IsThePlanOfItsRows) {
  for (unsigned seed = 1; seed <= 8; ++seed) {
    ChangedPlan p(seed);
    for (int change = 0; change < 150; ++change) {
      p.Change();
      // Beyond the first state there is no plan.
      if (p.plan.RowCount() == 0) p.history.Redo(p.plan);
      p.history.Changed(p.plan);
      const FlightPlan anew = p.Anew();
      SCOPED_TRACE("seed " + std::to_string(seed) + ", change " + std::to_string(change) + ": " + p.Codes());
      ASSERT_EQ(p.plan.rows, anew.rows);
      ASSERT_EQ(p.plan.TotalDistance, anew.TotalDistance);
      ASSERT_EQ(p.plan.TotalMinutes, anew.TotalMinutes);
      ASSERT_EQ(p.plan.CruiseFL, anew.CruiseFL);
      ASSERT_EQ(p.plan.Westbound, anew.Westbound);
      ASSERT_EQ(ShowEta(p.plan), ShowEta(anew));
      ASSERT_EQ(ShowEta(p.plan).back(), p.plan.TotalMinutes);
      for (int row = 1; row < p.plan.DestinationRow(); ++row) {
        const std::string code = p.plan.Row(row).Code.Text();
        if (code.starts_with("Fix")) {
          ASSERT_EQ(std::stoi(code.substr(4)), row);
        }
      }
    }
  }
}

TEST(AnyPlan, IsUndoneToItsBeginningAndRedoneToItsEnd) {
  for (unsigned seed = 1; seed <= 8; ++seed) {
    ChangedPlan p(seed);
    const FlightPlan first = p.plan;
    for (int change = 0; change < 150; ++change) {
      p.Change();
      if (p.plan.RowCount() == 0) p.history.Redo(p.plan);
      p.history.Changed(p.plan);
    }
    while (p.history.CanRedo())
      p.history.Redo(p.plan);
    FlightPlan last = p.plan;
    last.SelectedRow = 0;  // no part of what is kept
    std::vector<FlightPlan> states;
    while (p.history.CanUndo()) {
      p.history.Undo(p.plan);
      states.push_back(p.plan);
    }
    EXPECT_EQ(p.plan.RowCount(), 0) << "before the airports were chosen";
    p.history.Redo(p.plan);
    EXPECT_EQ(p.plan, first);
    while (p.history.CanRedo())
      p.history.Redo(p.plan);
    EXPECT_EQ(p.plan, last);
    for (auto state = states.begin(); p.history.CanUndo() && state != states.end(); ++state) {
      p.history.Undo(p.plan);
      ASSERT_EQ(p.plan, *state) << "the way back is the same each time";
    }
  }
}

// Fixes and navaids strewn over the North Atlantic, many of one name, with
// airways along and across.
DrawnWorld StrewnWorld(Dice& dice) {
  std::ostringstream drawing;
  drawing << "airport EDDA " << dice.Between(44, 56) << " -1 0\nairport EDDC " << dice.Between(44, 56)
          << " -12 0\nairport EDDB " << dice.Between(44, 56) << ' ' << dice.Between(-26, -20) << " 0\n";
  std::vector<Position> places;
  for (int i = 0; i < 60; ++i) {
    places.push_back({dice.Between(42, 58), dice.Between(-28, 2)});
    drawing << 'N' << i << ' ' << places.back().lat << ' ' << places.back().lon << '\n';
  }
  for (int i = 0; i < 25; ++i)
    drawing << (i % 2 == 0 ? "vor N" : "ndb N") << dice.Below(70) << ' ' << dice.Between(42, 58) << ' '
            << dice.Between(-28, 2) << '\n';
  for (int i = 0; i < 25; ++i)
    drawing << "fix N" << dice.Below(90) << ' ' << dice.Between(42, 58) << ' ' << dice.Between(-28, 2)
            << '\n';
  for (int i = 0; i < 260; ++i) {
    const auto from = static_cast<std::size_t>(dice.Below(60)), to = static_cast<std::size_t>(dice.Below(60));
    const float distance =
        GreatCircleDistance(places[from].lat, places[from].lon, places[to].lat, places[to].lon);
    if (from == to || distance > 450) continue;
    const bool high = dice.Below(2) == 0;
    drawing << 'N' << from << (high ? " ==" : " --") << distance * dice.Between(1, 1.3F)
            << (dice.Below(4) == 0 ? (high ? "=> " : "-> ") : (high ? "== " : "-- ")) << 'N' << to << " W"
            << dice.Below(8) << " FL100-FL300\n";
  }
  return DrawnWorld(drawing.str());
}

std::string AnyWords(Dice& dice) {
  std::string text;
  for (int word = 0; word < 6; ++word) {
    text += " N" + std::to_string(dice.Below(95));
    if (dice.Below(2) == 0) text += " W" + std::to_string(dice.Below(8));
  }
  return text;
}

// From fix to fix, up to three links at a time along one airway.
std::string WordsAlongAirways(Dice& dice, const DrawnWorld& world) {
  const char level = dice.Below(2) == 0 ? 'V' : 'J';
  int node = 1 + dice.Below(60);
  std::string text = " " + world.Code(node);
  for (int part = 0; part < 4; ++part) {
    std::string airway;
    for (int link = 0; link < 3; ++link) {
      const auto links = NetworkLinks(world.database, node, level);
      if (links.empty()) break;
      const ConnectionRec& next = links[static_cast<std::size_t>(dice.Below(static_cast<int>(links.size())))];
      if (!airway.empty() && next.strAirway != airway) break;
      airway = next.strAirway.Text();
      node = next.lngNext;
    }
    if (!airway.empty()) text += " " + airway + " " + world.Code(node);
  }
  return text;
}

struct Compared {
  explicit Compared(const DrawnWorld& world) : context{world.database, aircraft, messages, 8.5} {
    SetDepartureAndDestination(own, context, 0, 2);
    SetDepartureAndDestination(plain, context, 0, 2);
  }
  AircraftRec aircraft = SlowTwin();
  HeardMessages messages;
  PlanContext context;
  FlightPlan own, plain;
};

TEST(AnyWorld, HasTheRoutesThatAWalkOverItsTablesFinds) {
  int airwayRoutes = 0, navaidRows = 0, joined = 0;
  for (unsigned seed = 1; seed <= 24; ++seed) {
    SCOPED_TRACE("seed " + std::to_string(seed));
    Dice dice(seed);
    const DrawnWorld world = StrewnWorld(dice);
    AirwaySearch search(world.database);
    for (const char level : {'V', 'J'}) {
      Compared c(world);
      int row = 0;
      const bool found = CreateAirwayRoute(c.own, c.context, search, level, row);
      ASSERT_EQ(found, PlainAirwayBuilder(c.plain, c.context, level).Run(0));
      ASSERT_EQ(c.own.rows, c.plain.rows);
      airwayRoutes += found ? 1 : 0;
    }
    for (const NavaidKinds& kinds :
         {NavaidKinds{}, NavaidKinds{true, false, false}, NavaidKinds{false, false, true}}) {
      Compared c(world);
      const NavaidSector sector{30 + dice.Below(120), 10 + dice.Below(50), dice.Below(2) == 0};
      int row = 0;
      ASSERT_EQ(CreateNavaidRoute(c.own, c.context, kinds, sector, row),
                PlainNavaidBuilder(c.plain, c.context, kinds, sector).Run());
      ASSERT_EQ(c.own.rows, c.plain.rows);
      navaidRows += c.own.RowCount() - 2;
    }
    for (int string = 0; string < 10; ++string) {
      Compared c(world);
      const std::string text =
          "EDDA" + (string % 2 == 0 ? AnyWords(dice) : WordsAlongAirways(dice, world)) + " EDDB";
      const bool complete = ParseRoute(c.own, c.context, text);
      ASSERT_EQ(complete, PlainRouteReader(c.plain, c.context).Run(text)) << text;
      ASSERT_EQ(c.own.rows, c.plain.rows) << text;
      for (const PlanWaypoint& waypoint : c.own.rows)
        joined += waypoint.HasAirway() ? 1 : 0;
    }
  }
  // The worlds are such that much is found.
  EXPECT_GT(airwayRoutes, 10);
  EXPECT_GT(navaidRows, 100);
  EXPECT_GT(joined, 40);
}

}  // namespace
