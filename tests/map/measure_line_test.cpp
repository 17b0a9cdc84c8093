#include "map/measure_line.h"

#include <gtest/gtest.h>

#include "map/drag_box.h"
#include "map/map_overlays.h"
#include "tests/map/recording_surface.h"

namespace {

// At the equator with 4200 units a degree in both directions; the centre is at 5662.5, 3500.
constexpr float centreX = 5662.5F;

MapView EquatorView(int row = 9) {
  return MapView::At(0, 0, row);
}

TEST(MeasureLine, CaptionsTellDistanceAndBothBearings) {
  struct Case {
    const char* why;
    float dx, dy;
    float magVar;
    std::string_view caption;
  };
  const Case cases[] = {
      {"east", 4200, 0, -0.5F, "60.0NM/90°/270°"},
      {"west", -4200, 0, -0.5F, "60.0NM/270°/90°"},
      {"variation is taken off", 4200, 0, 3.5F, "60.0NM/86°/266°"},
      {"below 0 goes on from 360", 0, -4200, 10, "60.0NM/350°/170°"},
      {"west variation", 4200, 0, -100.5F, "60.0NM/190°/10°"},
  };
  const MapView view = EquatorView();
  for (const Case& c : cases) {
    MeasureLine line;
    line.Begin(view, centreX, 3500);
    line.MoveTo(view, centreX + c.dx, 3500 + c.dy);
    EXPECT_EQ(line.Caption(c.magVar), c.caption) << c.why;
  }
}

TEST(MeasureLine, NoWayAtAllHasACaption) {
  MeasureLine line;
  line.Begin(EquatorView(), centreX, 3500);
  EXPECT_EQ(line.Caption(0).substr(0, 6), "0.0NM/");
}

TEST(MeasureLine, FollowsThePointerOnlyWhileTheButtonIsDown) {
  const MapView view = EquatorView();
  MeasureLine line;
  line.MoveTo(view, 100, 100);
  EXPECT_FALSE(line.visible);
  line.Begin(view, 1000, 1000);
  line.MoveTo(view, 3000, 2000);
  line.Finish();
  line.MoveTo(view, 9000, 6000);
  EXPECT_TRUE(line.visible) << "the line stays";
  EXPECT_EQ(line.end.x, 3000);
  EXPECT_EQ(line.label.x, 3000) << "the label follows the pointer";
  line.Hide();
  EXPECT_FALSE(line.visible || line.MeasureActive);
}

TEST(MeasureLine, StaysOnItsPlacesAfterAZoom) {
  MapView view = EquatorView();
  MeasureLine line;
  line.Begin(view, centreX + 4200, 3500 - 2100);  // a degree east, half a degree north
  line.MoveTo(view, centreX - 4200, 3500);
  const std::string caption = line.Caption(0);
  view.SetZoom(13, true);  // 1050 units a degree
  line.Reposition(view);
  EXPECT_NEAR(line.start.x, centreX + 1050, 1);
  EXPECT_NEAR(line.start.y, 3500 - 525, 1);
  EXPECT_NEAR(line.end.x, centreX - 1050, 1);
  EXPECT_EQ(line.label.x, line.start.x) << "the label goes to the line's start";
  EXPECT_EQ(line.label.y, line.start.y);
  EXPECT_EQ(line.Caption(0), caption);
}

TEST(MeasureLine, IsDrawnTheShortWayAcrossTheDateLine) {
  const MapView view = MapView::At(0, 175, 20);
  MeasureLine line;
  line.Begin(view, centreX, 3500);
  line.MoveTo(view, centreX + 1050, 3500);  // ten degrees east: -175
  EXPECT_NEAR(line.MeasureEndLon, -175, 0.01);
  RecordingSurface surface;
  DrawMeasureLine(line, view, ColorSettings{}, surface);
  ASSERT_EQ(surface.drawn.front().what, "line");
  EXPECT_NEAR(surface.drawn.front().points[1].x, centreX + 1050, 1);
  EXPECT_EQ(surface.Count("line"), 1);
  EXPECT_EQ(surface.Texts(), std::vector<std::string>{line.Caption(0)});
}

TEST(DragBox, GrowsOnlyWhileTheButtonIsDown) {
  DragBox box;
  EXPECT_FALSE(box.MoveTo(10, 10));
  box.Begin(100, 200);
  EXPECT_FALSE(box.MoveTo(100, 200)) << "a box of no size: a click";
  EXPECT_TRUE(box.MoveTo(300, 500));
  EXPECT_TRUE(box.Finish());
  EXPECT_FALSE(box.Finish());
  EXPECT_FALSE(box.MoveTo(900, 900));
  EXPECT_EQ(box.BoxX1, 100);
  EXPECT_EQ(box.BoxX2, 300);
  EXPECT_EQ(box.BoxY2, 500);
}

TEST(Overlays, NothingToShowDrawsNothing) {
  RecordingSurface surface;
  const MapView view = EquatorView();
  const Settings settings;
  DrawMeasureLine(MeasureLine{}, view, settings.colors, surface);
  DrawDragBox(DragBox{}, settings.colors, surface);
  DrawHoverBox({}, 100, 100, settings, surface);
  EXPECT_TRUE(surface.drawn.empty());
}

TEST(Overlays, LeaveTheStyleAsItWas) {
  RecordingSurface surface;
  surface.DrawWidth = 9;
  surface.FontBold = true;
  surface.ForeColor = 77;
  const MapView view = EquatorView();
  const Settings settings;
  MeasureLine line;
  line.Begin(view, 100, 100);
  DragBox box;
  box.Begin(100, 100);
  DrawMeasureLine(line, view, settings.colors, surface);
  DrawDragBox(box, settings.colors, surface);
  DrawHoverBox({{"one", true}}, 100, 100, settings, surface);
  DrawBearingLine({0, 0}, 50, 50, "text", view, settings.colors, surface);
  EXPECT_EQ(surface.DrawWidth, 9);
  EXPECT_TRUE(surface.FontBold);
  EXPECT_EQ(surface.ForeColor, 77);
  EXPECT_EQ(surface.Opacity, 1);
}

TEST(HoverBox, StaysOnThePageWhereverThePointerIs) {
  std::vector<HoverLine> lines = {{"EDDF Frankfurt Main", true}};
  for (int i = 0; i < 20; ++i)
    lines.push_back({"Rwy 07C/25C: 13123 x 197 ft Asphalt"});
  for (const float x : {0.0F, 3000.0F, 9500.0F, 11325.0F}) {
    for (const float y : {0.0F, 3500.0F, 7000.0F}) {
      RecordingSurface surface;
      DrawHoverBox(lines, x, y, Settings{}, surface);
      ASSERT_EQ(surface.drawn.front().what, "polygon");
      const std::vector<SurfacePoint>& plate = surface.drawn.front().points;
      EXPECT_GE(plate[0].x, 0) << x << ", " << y;
      EXPECT_GE(plate[0].y, 0) << x << ", " << y;
      EXPECT_LE(plate[2].x, 11325) << x << ", " << y;
      EXPECT_LE(plate[2].y, 7000) << x << ", " << y;
      EXPECT_TRUE(plate[0].x >= x + 100 || plate[2].x <= x - 100) << "the pointer's own place stays free";
      for (const auto& one : surface.drawn) {
        if (one.what != "print") continue;
        EXPECT_GT(one.x, plate[0].x);
        EXPECT_LT(one.y + 100, plate[2].y + 1);
      }
    }
  }
}

TEST(HoverBox, CountsTheLinesThatThePageHasNoRoomFor) {
  std::vector<HoverLine> lines;
  for (int i = 0; i < 100; ++i)
    lines.push_back({"line " + std::to_string(i), i % 10 == 0});
  RecordingSurface surface;
  DrawHoverBox(lines, 5000, 3000, Settings{}, surface);
  const std::vector<std::string> texts = surface.Texts();
  ASSERT_LT(texts.size(), 70u);
  EXPECT_EQ(texts.front(), "line 0");
  EXPECT_EQ(texts.back(), "... " + std::to_string(100 - (texts.size() - 1)) + " more lines");
  EXPECT_LE(surface.drawn.front().points[2].y, 7000);
}

TEST(HoverBox, LeastWidthByTheFontSetting) {
  EXPECT_EQ(HoverBoxWidth(0), 170);
  EXPECT_EQ(HoverBoxWidth(1), 240);
  EXPECT_EQ(HoverBoxWidth(2), 190);
  EXPECT_EQ(HoverBoxWidth(3), 170);
}

}  // namespace
