#include <gtest/gtest.h>

#include <limits>

#include "map/pointer_panel.h"
#include "map/status_panels.h"

namespace {

TEST(StatusPanels, PositionInBothFormats) {
  struct Case {
    Position position;
    PositionFormat format;
    int style;
    std::string_view text;
  };
  const Case cases[] = {
      {{50.03125F, 8.5F}, PositionFormat::degreesMinutes, 1, "N50°01.8750' - E008°30.0000'"},
      {{-33.5F, -70.75F}, PositionFormat::degreesMinutes, 0, "S33°30'00\" - W070°45'00\""},
      {{50.03F, 8.57F}, PositionFormat::decimal, 1, "50.0300 / 008.5700"},
      {{-3.5F, -170.25F}, PositionFormat::decimal, 0, "-03.5000 / -170.2500"},
  };
  for (const Case& c : cases)
    EXPECT_EQ(PositionText(c.position, c.format, c.style), c.text);
  EXPECT_EQ(Toggled(Toggled(PositionFormat::decimal)), PositionFormat::decimal);
  EXPECT_NE(Toggled(PositionFormat::decimal), PositionFormat::decimal);
}

TEST(StatusPanels, ClockWrapsAtMidnight) {
  EXPECT_EQ(ClockText(13 * 3600 + 5 * 60 + 9, true), "13:05:09 UTC");
  EXPECT_EQ(ClockText(86400, false), "00:00:00 LOCAL");
  EXPECT_EQ(ClockText(-1, false), "23:59:59 LOCAL");
}

TEST(StatusPanels, MagneticVariationNamesItsSide) {
  EXPECT_EQ(MagVarText(3.4F), "MagVar: E 03°");
  EXPECT_EQ(MagVarText(-12), "MagVar: W 12°");
}

TEST(StatusPanels, AnUnknownPanelHasNoToolTip) {
  EXPECT_EQ(StatusPanelToolTip(StatusPanel::pointer), "Click Coordinates / To / From Cursor Position");
  EXPECT_EQ(StatusPanelToolTip(StatusPanel::fuel), "Fuel");
  EXPECT_EQ(StatusPanelToolTip(static_cast<StatusPanel>(7)), "");
  EXPECT_EQ(StatusPanelToolTip(static_cast<StatusPanel>(-1)), "");
}

TEST(PointerPanel, AClickStepsThroughTheModes) {
  CursorPanelMode mode = CursorPanelMode::coordinates;
  std::string names;
  for (int click = 0; click < 3; ++click) {
    mode = NextMode(mode);
    names += std::string(ModeName(mode)) + " " + std::to_string(ModeColor(mode)) + "\n";
  }
  EXPECT_EQ(names, "To Cursor Position 255\nFrom Cursor Position 16711680\nCoordinates 0\n");
}

TEST(PointerPanel, TextsOfTheModes) {
  struct Case {
    const char* why;
    CursorPanelMode mode;
    Position pointer;
    float magVar;
    std::string_view text;
  };
  const Case cases[] = {
      {"coordinates", CursorPanelMode::coordinates, {1, 2}, 5, "N01°00.0000' - E002°00.0000'"},
      {"a degree of latitude is 60 NM", CursorPanelMode::to, {1, 0}, 0, "To:  60.0 NM / 0°"},
      {"east at the equator", CursorPanelMode::to, {0, 1}, -0.5F, "To:  60.0 NM / 90°"},
      {"variation is taken off", CursorPanelMode::to, {0, 1}, 10.5F, "To:  60.0 NM / 79°"},
      {"west variation is added", CursorPanelMode::to, {0, 1}, -10.5F, "To:  60.0 NM / 100°"},
      {"below 0 goes on from 360", CursorPanelMode::to, {1, 0}, 10, "To:  60.0 NM / 350°"},
      {"reversed", CursorPanelMode::from, {0, 1}, -0.5F, "From:  60.0 NM / 270°"},
      {"reversed, then less the variation", CursorPanelMode::from, {0, -1}, 100, "From:  60.0 NM / 350°"},
      {"degrees are cut", CursorPanelMode::to, {0, 1}, 0.01F, "To:  60.0 NM / 89°"},
  };
  MapView view = MapView::At(0, 0, 9);
  for (const Case& c : cases) {
    view.MapMagVar = c.magVar;
    EXPECT_EQ(PointerPanelText(c.mode, view, {0, 0}, c.pointer, PositionFormat::degreesMinutes, 1), c.text)
        << c.why;
  }
}

TEST(PointerPanel, BearingsCountFromTheAircraftOnlyWhileConnected) {
  MapView view = MapView::At(10, 20, 9);
  view.AircraftLat = 1;
  view.AircraftLon = 2;
  EXPECT_EQ(MapReference(view, true), (Position{1, 2}));
  EXPECT_EQ(MapReference(view, false), (Position{10, 20}));
}

TEST(PointerPanel, NoNumberIsNoCrash) {
  const float nan = std::numeric_limits<float>::quiet_NaN();
  const MapView view = MapView::At(10, 20, 9);
  EXPECT_FALSE(
      PointerPanelText(CursorPanelMode::to, view, {0, 0}, {nan, nan}, PositionFormat::decimal, 1).empty());
  EXPECT_EQ(WholeMagneticBearing(nan, 0), 0);
}

TEST(LegPick, HoldsTheLegAgainstThePointer) {
  // A leg along the equator; the pointer a degree east of its start, a degree west of its end.
  PickedLeg leg{{0, 10}, {0, 12}, false};
  EXPECT_EQ(LegPickText(leg, {0, 11}, 10.5F), "60.0 NM / HDG: 79° / RDL: 259°");
  EXPECT_EQ(LegPickAnchor(leg), leg.from);
  leg.inbound = true;
  EXPECT_EQ(LegPickText(leg, {0, 11.5F}, 10.5F), "30.0 NM / Inbound: 79°");
  EXPECT_EQ(LegPickAnchor(leg), leg.to);
}

}  // namespace
