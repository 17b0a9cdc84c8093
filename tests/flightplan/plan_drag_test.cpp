#include "flightplan/plan_drag.h"

#include <gtest/gtest.h>

#include <cmath>
#include <stdexcept>

#include "flightplan/plan_legs.h"
#include "tests/flightplan/drawn_world.h"
#include "tests/map/recording_surface.h"

namespace {

MapView ViewAt(float lat, float lon, std::int16_t zoomIndex) {
  MapView view = MapView::At(lat, lon, zoomIndex);
  view.UpdateVisibilityBox();
  return view;
}

SurfacePoint On(const MapView& view, double lat, double lon) {
  return {static_cast<float>(view.LonToX(static_cast<float>(lon))),
          static_cast<float>(view.LatToY(static_cast<float>(lat)))};
}

// EDDA, a SID row, three enroute rows, a STAR row, EDDB along the equator.
struct PulledPlan : DrawnPlan {
  PulledPlan() : DrawnPlan("airport EDDA 0 0 0\nairport EDDB 0 6 0") {
    Add("Int", "S1", 0, 1, RowKind::sid);
    Add("Int", "A", 0, 2);
    Add("VOR", "B", 0, 3).Airway = std::string_view("V1");
    Add("Int", "C", 0, 4).Airway = std::string_view("V1");
    Add("Int", "T1", 0, 5, RowKind::star);
    RecomputePlan(plan, context);
  }
};

TEST(PlanUnder, FindsWaypointsBeforeLegs) {
  const PulledPlan drawn;
  const MapView view = ViewAt(0, 3, 13);  // 1050 units a degree
  const struct {
    const char* name;
    double lat, lon;
    PlanPart part;
    int row;
    bool movable;
    const char* why;
  } cases[] = {
      {"on a waypoint", 0, 2, PlanPart::waypoint, 2, true, ""},
      {"near it", 0.05, 2.05, PlanPart::waypoint, 2, true, ""},
      {"just outside, still on the leg", 0, 2.1, PlanPart::leg, 3, true, ""},
      {"above the leg", 0.07, 2.5, PlanPart::leg, 3, true, ""},
      {"too far above", 0.08, 2.5, PlanPart::none, -1, false, ""},
      {"the departure", 0, 0, PlanPart::waypoint, 0, false, "The departure is chosen with Airports"},
      {"the destination", 0, 6, PlanPart::waypoint, 6, false, "The destination is chosen with Airports"},
      {"a row of the SID", 0, 1, PlanPart::waypoint, 1, false,
       "Part of the SID: it changes only with the whole procedure"},
      {"the leg into it", 0, 0.5, PlanPart::leg, 1, false,
       "Part of the SID: it changes only with the whole procedure"},
      {"the leg behind the SID", 0, 1.5, PlanPart::leg, 2, true, ""},
      {"the leg before the STAR", 0, 4.5, PlanPart::leg, 5, true, ""},
      {"a row of the STAR", 0, 5, PlanPart::waypoint, 5, false,
       "Part of the STAR: it changes only with the whole procedure"},
      {"the leg behind it", 0, 5.5, PlanPart::leg, 6, false,
       "Part of the STAR: it changes only with the whole procedure"},
      {"off the plan", 1, 7, PlanPart::none, -1, false, ""},
  };
  for (const auto& c : cases) {
    const PlanHit hit = PlanUnder(drawn.plan, view.CurrentProjection(), On(view, c.lat, c.lon), 80);
    EXPECT_EQ(hit.part, c.part) << c.name;
    EXPECT_EQ(hit.row, c.row) << c.name;
    EXPECT_EQ(hit.movable, c.movable) << c.name;
    EXPECT_EQ(WhyFixed(drawn.plan, hit), c.why) << c.name;
  }
  FlightPlan fixed = drawn.plan;
  fixed.MissingWaypoints = true;
  const PlanHit hit = PlanUnder(fixed, view.CurrentProjection(), On(view, 0, 2), 80);
  EXPECT_FALSE(hit.movable);
  EXPECT_EQ(WhyFixed(fixed, hit), "A plan with missing waypoints cannot be changed");
  EXPECT_EQ(PlanUnder(FlightPlan(), view.CurrentProjection(), {0, 0}, 80).part, PlanPart::none);
}

TEST(PlanUnder, ALegIsWhereItIsDrawn) {
  DrawnPlan drawn("airport EDDF 50 8 0\nairport KJFK 40 -74 0");
  const MapView view = ViewAt(50, -30, 19);
  const Position top = {54.2F, -30};  // about the middle of the great circle
  Position crest = top;
  for (float lat = 45; lat < 60; lat += 0.05F) {
    const PlanHit hit = PlanUnder(drawn.plan, view.CurrentProjection(), On(view, lat, -30), 5);
    if (hit.part == PlanPart::leg) crest.lat = lat;
  }
  EXPECT_NEAR(crest.lat, top.lat, 1.5) << "far north of the straight line, which is at 46";
  // Across the date line, seen from both sides.
  DrawnPlan pacific("airport RJAA 0 170 0\nairport KLAX 0 -170 0");
  for (const float centre : {172.0F, -172.0F}) {
    const MapView side = ViewAt(0, centre, 15);
    EXPECT_EQ(
        PlanUnder(pacific.plan, side.CurrentProjection(), On(side, 0, centre > 0 ? 175 : -175), 40).part,
        PlanPart::leg);
  }
}

TEST(ShownWaypointAt, TakesTheNearestThatTheMapShows) {
  const DrawnWorld world(
      "airport EDDA 0 0 0\nvor VVV 0 1\nndb NNN 0 1\nfix FFF 0 1.01\n"
      "A 0 1.02\nB 0 1.04\nA --1-- B V1 FL60-FL100\nC 0 1.005\nD 0 1.1\nC ==6=> D J1 FL250-FL400\n");
  using Flags = MapSwitches;
  const struct {
    const char* name;
    double lon;
    std::vector<bool Flags::*> off, on;
    std::int16_t zoomIndex;
    std::int32_t radius;
    const char* found;
  } cases[] = {
      {"equally near: the VOR first", 1, {}, {}, 9, 100, "VVV"},
      {"then the NDB", 1, {&Flags::mnuVOR}, {}, 9, 100, "NNN"},
      {"of the intersections the nearest", 1.03, {}, {}, 9, 100, "A"},
      {"none of a layer that is off", 1.0, {&Flags::mnuVOR, &Flags::mnuNDB, &Flags::mnuJet}, {}, 9, 100, "A"},
      {"fixes only when they are shown", 1.01, {&Flags::mnuJet}, {&Flags::mnuGPSFix}, 9, 100, "FFF"},
      {"and not from afar",
       1.01,
       {&Flags::mnuJet, &Flags::mnuVictor, &Flags::mnuVOR, &Flags::mnuNDB},
       {&Flags::mnuGPSFix},
       11,
       100,
       ""},
      {"navaids not from the farthest", 1.0, {&Flags::mnuJet, &Flags::mnuVictor}, {}, 20, 100, ""},
      {"airports never", 0, {}, {}, 9, 100, ""},
      {"just within the radius", 0.977, {}, {}, 9, 100, "VVV"},
      {"just out of it", 0.976, {}, {}, 9, 100, ""},
      {"nothing there", 3, {}, {}, 9, 100, ""},
  };
  Settings settings;
  for (const auto& c : cases) {
    MapSwitches switches;
    for (const auto flag : c.off)
      switches.*flag = false;
    for (const auto flag : c.on)
      switches.*flag = true;
    const MapView view = ViewAt(0, 1, c.zoomIndex);
    const SurfacePoint point = On(view, 0, c.lon);
    const auto found = ShownWaypointAt({.view = view,
                                        .database = world.database,
                                        .settings = settings,
                                        .switches = switches,
                                        .x = point.x,
                                        .y = point.y},
                                       c.radius);
    EXPECT_EQ(found ? found->Code.Text() : "", c.found) << c.name;
    if (!found) continue;
    EXPECT_FALSE(found->HasAirway()) << c.name;
    EXPECT_GE(found->DbIndex, 0) << c.name;
  }
}

PlanWaypoint Target(const char* code, float lat, float lon) {
  PlanWaypoint row;
  row.Sym = std::string_view("VOR");
  row.Code = std::string_view(code);
  row.Name = std::string_view("TARGET");
  row.Freq = 114.2F;
  row.Lat = lat;
  row.Lon = lon;
  return row;
}

TEST(MovePlanWaypoint, TheLegsAtItBecomeDirect) {
  PulledPlan drawn;
  ASSERT_EQ(drawn.Codes(), "EDDA S1 A B C T1 EDDB");
  const std::int32_t before = drawn.plan.TotalDistance;
  EXPECT_TRUE(MovePlanWaypoint(drawn.plan, drawn.context, 3, Target("NEW", 1, 3)));
  EXPECT_EQ(drawn.Codes(), "EDDA S1 A NEW C T1 EDDB");
  EXPECT_EQ(drawn.plan.SelectedRow, 3);
  EXPECT_FALSE(drawn.plan.Row(3).HasAirway());
  EXPECT_FALSE(drawn.plan.Row(4).HasAirway()) << "V1 does not lead from NEW to C";
  EXPECT_GT(drawn.plan.TotalDistance, before);
  EXPECT_NEAR(drawn.plan.Row(4).Dist, drawn.plan.Row(3).Dist, 0.01);
  EXPECT_EQ(drawn.plan.SidRows() + drawn.plan.StarRows(), 2);

  const FlightPlan moved = drawn.plan;
  EXPECT_FALSE(MovePlanWaypoint(drawn.plan, drawn.context, 3, Target("NEW", 1, 3))) << "where it is";
  EXPECT_EQ(drawn.plan, moved);
  for (const int airport : {0, 6}) {
    EXPECT_THROW(MovePlanWaypoint(drawn.plan, drawn.context, airport, Target("X", 1, 3)), std::out_of_range);
    EXPECT_EQ(drawn.plan, moved);
  }
  EXPECT_TRUE(MovePlanWaypoint(drawn.plan, drawn.context, 3, Target("A", 0, 2)));
  EXPECT_EQ(drawn.Codes(), "EDDA S1 A C T1 EDDB") << "a row pulled onto its neighbour";
}

TEST(InsertIntoLeg, PartsIt) {
  PulledPlan drawn;
  InsertIntoLeg(drawn.plan, drawn.context, 4, Target("NEW", 1, 3.5F));
  EXPECT_EQ(drawn.Codes(), "EDDA S1 A B NEW C T1 EDDB");
  EXPECT_EQ(drawn.plan.Row(3).Airway, "V1") << "the leg before is as it was";
  EXPECT_FALSE(drawn.plan.Row(4).HasAirway());
  EXPECT_FALSE(drawn.plan.Row(5).HasAirway());
  EXPECT_EQ(drawn.plan.SelectedRow, 4);

  while (drawn.plan.RowCount() <= FlightPlan::lastPossibleRow)
    drawn.plan.rows.insert(drawn.plan.rows.begin() + 4, drawn.plan.Row(3));
  const FlightPlan full = drawn.plan;
  EXPECT_THROW(InsertIntoLeg(drawn.plan, drawn.context, 4, Target("X", 1, 1)), std::length_error);
  EXPECT_EQ(drawn.plan, full) << "a full plan keeps its airway, too";
}

TEST(PlanDrag, SaysAndShowsWhatItWouldTake) {
  const PulledPlan drawn;
  EXPECT_EQ(TargetText(Target("NEW", 1, 3)), "VOR NEW TARGET 114.20");
  PlanWaypoint own = Target("HOME", 1, 3);
  own.Sym = std::string_view("Uwp");
  own.Freq = 0;
  own.DbIndex = 0;
  EXPECT_EQ(TargetText(own), "HOME TARGET");
  const PlanWaypoint manual = ManualRow(drawn.world.database, {50.5F, 8.25F});
  EXPECT_EQ(manual.Code, "#");
  EXPECT_EQ(manual.Sym, "Uwp");
  EXPECT_NE(TargetText(manual).find("N50°30"), std::string::npos) << TargetText(manual);

  const MapView view = ViewAt(0, 3, 13);
  Settings settings;
  settings.colors.HILITE = 4711;
  PlanDrag drag;
  drag.hit = PlanUnder(drawn.plan, view.CurrentProjection(), On(view, 0, 3), 80);
  drag.target = Target("NEW", 1, 3);
  RecordingSurface still;
  DrawPlanDrag(drag, drawn.plan, view, settings.colors, still);
  EXPECT_TRUE(still.drawn.empty()) << "a press is no pull yet";
  drag.moving = true;
  for (const PlanPart part : {PlanPart::waypoint, PlanPart::leg}) {
    drag.hit.part = part;
    RecordingSurface surface;
    DrawPlanDrag(drag, drawn.plan, view, settings.colors, surface);
    const auto& lines = surface.drawn;
    const SurfacePoint from = On(view, 0, 2);
    const SurfacePoint to = On(view, 0, part == PlanPart::waypoint ? 4 : 3);
    EXPECT_EQ(surface.Count("line", 4711), static_cast<int>(lines.size()) - 1);
    EXPECT_EQ(lines.front().points.front().x, from.x);
    EXPECT_EQ(lines[lines.size() - 2].points.back().x, to.x);
    EXPECT_EQ(surface.Count("circle", 4711), 1);
  }
}

}  // namespace
