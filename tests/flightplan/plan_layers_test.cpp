#include "flightplan/plan_layers.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>

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

RecordingSurface Painted(const FlightPlan& plan, MapView view, const NavDatabase& database = {}) {
  RecordingSurface surface;
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

// Symbol and label of one row at the middle of the page, 5662, 3500.
TEST(PlanLayers, SymbolAndLabelByKind) {
  struct Case {
    const char* sym;
    RowKind kind;
    std::vector<std::string> shapes;
    float labelTop;
  };
  const Case cases[] = {{"", RowKind::departure, {"circle 46"}, 3550},
                        {"Int", RowKind::enroute, {"polygon", "polyline 60"}, 3560},
                        {"Fix", RowKind::enroute, {"polygon", "polyline 60"}, 3560},
                        {"VOR", RowKind::enroute, {"polygon", "polyline 80", "circle 5"}, 3575},
                        {"NDB", RowKind::enroute, {"circle 55", "circle 37", "circle 18"}, 3650},
                        {"Uwp", RowKind::enroute, {"polygon", "polyline 80", "circle 20"}, 3650}};
  for (const Case& c : cases) {
    FlightPlan plan;
    plan.rows = {Row("CODE", c.sym, {50, 10}, c.kind)};
    const RecordingSurface surface = Painted(plan, MapView::At(50, 10, 12));
    std::vector<std::string> shapes;
    for (const auto& one : surface.drawn) {
      const auto byX = [](SurfacePoint a, SurfacePoint b) { return a.x < b.x; };
      const bool closed = !one.points.empty() && one.points.front().x == one.points.back().x;
      if (one.what == "circle") shapes.push_back("circle " + std::to_string(std::lround(one.points[0].x)));
      // A symbol's outline is closed, the label's plate is not.
      if (one.what == "polygon" && closed && one.points.front().y == one.points.back().y)
        shapes.push_back("polygon");
      if (one.what != "polyline") continue;
      const auto [left, right] = std::minmax_element(one.points.begin(), one.points.end(), byX);
      shapes.push_back("polyline " + std::to_string(std::lround(right->x - left->x)));
    }
    EXPECT_EQ(shapes, c.shapes) << c.sym;
    EXPECT_EQ(surface.drawn.back().what, "print");
    EXPECT_EQ(surface.drawn.back().x, 5662 - 4 * 60 / 2) << "centred";
    EXPECT_EQ(surface.drawn.back().y, c.labelTop) << c.sym;
  }
}

TEST(PlanLayers, AVorLooksLikeItsRowInTheDatabase) {
  NavDatabase database;
  database.vors.resize(1);
  database.vors[0].strCode = std::string_view("FFM");
  database.vors[0].intType = 2;
  struct Case {
    const char* code;
    std::int32_t row;
    int outlines;
  };
  // With its three tabs, or a plain hexagon where the row is not the plan's VOR.
  const Case cases[] = {{"FFM", 0, 4}, {"TAU", 0, 1}, {"FFM", -1, 1}, {"FFM", 7, 1}};
  for (const Case& c : cases) {
    FlightPlan plan;
    plan.rows = {Row(c.code, "VOR", {50, 10})};
    plan.rows[0].DbIndex = c.row;
    const RecordingSurface surface = Painted(plan, MapView::At(50, 10, 12), database);
    EXPECT_EQ(surface.Count("polyline"), c.outlines) << c.code << ' ' << c.row;
  }
}

TEST(PlanLayers, AreNotShownWithoutAPlan) {
  EXPECT_EQ(Painted(FlightPlan(), MapView::At(49, 10, 12)).drawn.size(), 1u);
}

}  // namespace
