#include "flightplan/plan_layers.h"

#include <gtest/gtest.h>

#include <algorithm>

#include "map/draw_map.h"
#include "tests/map/recording_surface.h"

namespace {

PlanWaypoint Row(const char* code, const char* sym, Position place, RowKind kind = RowKind::enroute) {
  PlanWaypoint row;
  row.Code = std::string_view(code);
  row.Sym = std::string_view(sym);
  row.Lat = place.lat;
  row.Lon = place.lon;
  row.Kind = kind;
  return row;
}

FlightPlan PlanBetween(Position from, Position to) {
  FlightPlan plan;
  plan.rows = {Row("EDDA", "", from, RowKind::departure),
               Row("MID", "Int", {(from.lat + to.lat) / 2, from.lon}, RowKind::enroute),
               Row("EDDB", "", to, RowKind::destination)};
  return plan;
}

RecordingSurface Painted(const FlightPlan& plan, MapView view) {
  RecordingSurface surface;
  const NavDatabase database;
  modDeclutter labels;
  DrawMap({view, labels, database, Settings(), MapSwitches(), {}}, InDrawingOrder(PlanLayers(plan)), surface);
  return surface;
}

TEST(ShowWholePlan, BringsEveryRowIntoView) {
  const std::pair<Position, Position> cases[] = {{{50.0F, 8.5F}, {48.3F, 11.8F}},
                                                 {{50.0F, 8.5F}, {50.1F, 8.6F}},
                                                 {{50.0F, 8.5F}, {40.6F, -73.8F}},
                                                 {{35.5F, 139.8F}, {37.6F, -122.4F}},
                                                 {{-33.9F, 151.2F}, {-37.0F, 174.8F}}};
  for (const auto& [from, to] : cases) {
    const FlightPlan plan = PlanBetween(from, to);
    MapView view = MapView::At(0, 0, 6);
    view.MapReady = true;
    const VisiblePage page{9000, 7000};
    ShowWholePlan(plan, view, page);
    for (const PlanWaypoint& row : plan.rows) {
      EXPECT_NEAR(view.LonToX(row.Lon), mapScaleWidth / 2.0, page.width / 2) << from.lon << " to " << to.lon;
      EXPECT_NEAR(view.LatToY(row.Lat), mapScaleHeight / 2.0, page.height / 2)
          << from.lon << " to " << to.lon;
    }
    EXPECT_GE(view.ZoomIndex, 4) << "no nearer than 10 NM";
  }
  MapView view = MapView::At(1, 2, 6);
  ShowWholePlan(FlightPlan(), view);
  EXPECT_EQ(view.MapCenterLat, 1);
}

TEST(PlanLayers, DrawTheLineBelowTheWaypoints) {
  const FlightPlan plan = PlanBetween({50.0F, 8.5F}, {48.3F, 11.8F});
  const RecordingSurface surface = Painted(plan, MapView::At(49, 10, 12));
  const ColorSettings colors;
  EXPECT_GE(surface.Count("line", colors.ROUTE), 2);
  EXPECT_EQ(surface.Count("circle", colors.ROUTE), 2) << "the airports";
  EXPECT_EQ(surface.Count("polyline", colors.ROUTE), 1) << "the intersection";
  const auto first = [&](std::string_view what) {
    return std::find_if(surface.drawn.begin(), surface.drawn.end(),
                        [&](const auto& one) { return one.what == what; });
  };
  EXPECT_LT(first("line"), first("circle"));
  std::vector<std::string> texts = surface.Texts();
  std::sort(texts.begin(), texts.end());
  EXPECT_EQ(texts, (std::vector<std::string>{"EDDA", "EDDB", "MID"}));
}

TEST(PlanLayers, HaveLabelsTo2000NMAndPointsBeyond900) {
  const FlightPlan plan = PlanBetween({50.0F, 8.5F}, {20.0F, 9.0F});
  const ColorSettings colors;
  const RecordingSurface near = Painted(plan, MapView::At(35, 9, 19));
  EXPECT_FALSE(near.Texts().empty());
  EXPECT_EQ(near.Count("point", colors.ROUTE), 3);
  EXPECT_TRUE(Painted(plan, MapView::At(35, 9, 20)).Texts().empty());
}

TEST(PlanLayers, AreNotShownWithoutAPlan) {
  EXPECT_EQ(Painted(FlightPlan(), MapView::At(49, 10, 12)).drawn.size(), 1u);
}

}  // namespace
