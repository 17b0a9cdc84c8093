#include "map/follow_aircraft.h"

#include <gtest/gtest.h>

#include <limits>

#include "map/aircraft_symbol.h"
#include "tests/map/recording_surface.h"

namespace {

// 100 NM: 4200 units a degree, at the equator in both directions.
MapView ViewAt(float lat, float lon, int row = 9) {
  MapView view = MapView::At(lat, lon, row);
  view.MapReady = true;
  view.UpdateVisibilityBox();
  return view;
}

AircraftFacts InFlight(Position position, float heading) {
  AircraftFacts facts;
  facts.position = position;
  facts.trueHdg = heading;
  facts.aglFt = 5000;
  facts.tas = 200;
  facts.airborne = true;
  facts.magVar = 2.5F;
  facts.connected = true;
  return facts;
}

FollowOptions Following() {
  FollowOptions options;
  options.mnuAoM = true;
  return options;
}

TEST(OutsideFrame, OnTheFrameIsOutside) {
  struct Case {
    std::int32_t x, y;
    float top;
    bool outside;
  };
  const Case cases[] = {{0, 3500, 0, true},       {1, 3500, 0, false},    {11325, 3500, 0, true},
                        {11324, 3500, 0, false},  {5000, 0, 0, true},     {5000, 1, 0, false},
                        {5000, 7000, 0, true},    {5000, 6999, 0, false}, {5000, 1500, 1500, true},
                        {5000, 1501, 1500, false}};
  for (const Case& c : cases)
    EXPECT_EQ(OutsideFrame(c.x, c.y, {.top = c.top}), c.outside) << c.x << ", " << c.y << " top " << c.top;
}

TEST(OutsideFrame, OfAWindowThatShowsLessThanThePage) {
  const FollowFrame frame{0, 315, 11325, 6685};
  EXPECT_TRUE(OutsideFrame(5000, 315, frame));
  EXPECT_FALSE(OutsideFrame(5000, 316, frame));
  EXPECT_TRUE(OutsideFrame(5000, 6685, frame));
}

TEST(Follow, AnAircraftWellInsideMovesNothing) {
  MapView view = ViewAt(0, 0);
  std::int32_t counter = 0;
  const FollowAnswer answer = ShowFSPosition(view, counter, InFlight({0.1F, 0.1F}, 90), Following());
  EXPECT_FALSE(answer.repaint);
  EXPECT_TRUE(answer.setPlane);
  EXPECT_EQ(view.MapCenterLat, 0);
  EXPECT_FLOAT_EQ(view.AircraftLat, 0.1F);
  EXPECT_FLOAT_EQ(view.MapMagVar, 2.5F);
}

TEST(Follow, AnAircraftOffTheFrameIsCentred) {
  MapView view = ViewAt(0, 0);
  std::int32_t counter = 0;
  EXPECT_TRUE(ShowFSPosition(view, counter, InFlight({3, 2}, 90), Following()).repaint);
  EXPECT_EQ(view.MapCenterLat, 3);
  EXPECT_EQ(view.MapCenterLon, 2);
  // There now: nothing is left to do.
  EXPECT_FALSE(ShowFSPosition(view, counter, InFlight({3, 2}, 90), Following()).repaint);
}

TEST(Follow, AHighPanelMovesTheTopOfTheFrame) {
  FollowOptions options = Following();
  // 0.5 degrees north of the centre: y = 1400; an eighth of 100 NM further y = 525.
  for (const float top : {0.0F, 1399.0F, 1400.0F}) {
    MapView view = ViewAt(0, 0);
    std::int32_t counter = 0;
    options.frame.top = top;
    ShowFSPosition(view, counter, InFlight({0.5F, 0}, 180), options);
    EXPECT_EQ(view.MapCenterLat, top == 1400 ? 0.5F : 0.0F) << "panel height " << top;
  }
}

TEST(Follow, WhatLiesAheadComesBackOntoTheMap) {
  MapView view = ViewAt(0, 0);
  std::int32_t counter = 0;
  // 72 NM east of the centre (x = 10702), the point 12.5 NM ahead is beyond the edge.
  EXPECT_TRUE(ShowFSPosition(view, counter, InFlight({0, 1.2F}, 90), Following()).repaint);
  EXPECT_NEAR(view.MapCenterLon, 2.4, 1e-3) << "as much map ahead as there was behind";
  EXPECT_NEAR(view.MapCenterLat, 0, 1e-3);
}

TEST(Follow, ItHoldsStill) {
  struct Case {
    const char* why;
    bool mnuAoM, minimised;
  };
  const Case cases[] = {{"the map does not follow", false, false}, {"the window is minimised", true, true}};
  for (const Case& c : cases) {
    MapView view = ViewAt(0, 0);
    std::int32_t counter = 0;
    FollowOptions options;
    options.mnuAoM = c.mnuAoM;
    options.minimised = c.minimised;
    EXPECT_FALSE(ShowFSPosition(view, counter, InFlight({3, 2}, 90), options).repaint) << c.why;
    EXPECT_EQ(view.MapCenterLat, 0) << c.why;
  }
}

TEST(Follow, RecentresEveryTwiceTheCounterSetting) {
  FollowOptions options = Following();
  options.movingMap = true;
  options.MMCOUNTERSET = 3;
  MapView view = ViewAt(0, 0);
  std::int32_t counter = 0;
  std::vector<int> repaints;
  for (int call = 1; call <= 12; ++call) {
    const Position place{0.001F * static_cast<float>(call), 0};
    if (ShowFSPosition(view, counter, InFlight(place, 0), options).repaint) repaints.push_back(call);
  }
  EXPECT_EQ(repaints, (std::vector<int>{6, 12}));
}

TEST(Follow, TheCounterRunsOnlyInFlight) {
  struct Case {
    std::int32_t agl, tas;
    bool moving;
    std::int32_t counted;
  };
  const Case cases[] = {{501, 51, true, 1}, {500, 51, true, 0}, {501, 50, true, 0}, {501, 51, false, 0}};
  for (const Case& c : cases) {
    MapView view = ViewAt(0, 0);
    std::int32_t counter = 0;
    FollowOptions options = Following();
    options.movingMap = c.moving;
    AircraftFacts facts = InFlight({0, 0}, 0);
    facts.aglFt = c.agl;
    facts.tas = c.tas;
    ShowFSPosition(view, counter, facts, options);
    EXPECT_EQ(counter, c.counted) << c.agl << " ft " << c.tas << " kt";
  }
}

TEST(Follow, AtAPoleTheHeldBackCentreIsNotPaintedAgainAndAgain) {
  MapView view = ViewAt(80, 0, 13);
  std::int32_t counter = 0;
  FollowOptions options = Following();
  options.frame.top = 3000;
  const AircraftFacts facts = InFlight({89.5F, 0}, 0);
  EXPECT_TRUE(ShowFSPosition(view, counter, facts, options).repaint);
  EXPECT_FALSE(ShowFSPosition(view, counter, facts, options).repaint);
}

TEST(Follow, APositionThatIsNoNumberLeavesTheViewAlone) {
  const float nan = std::numeric_limits<float>::quiet_NaN();
  for (const Position place : {Position{nan, 0}, Position{0, nan}}) {
    MapView view = ViewAt(1, 2);
    std::int32_t counter = 0;
    const FollowAnswer answer = ShowFSPosition(view, counter, InFlight(place, 0), Following());
    EXPECT_FALSE(answer.repaint || answer.setPlane);
    EXPECT_EQ((Position{view.MapCenterLat, view.MapCenterLon}), (Position{1, 2}));
    EXPECT_EQ((Position{view.AircraftLat, view.AircraftLon}), (Position{1, 2}));
  }
}

TEST(StoredPosition, AClickStoresItAndF12ComesBackToIt) {
  MapView view = ViewAt(50, 8);
  EXPECT_EQ((Position{view.AircraftLat, view.AircraftLon}), (Position{50, 8})) << "at load";
  view.RecentreOnBox(1000, 1000, 1000, 1000);
  const Position clicked{view.MapCenterLat, view.MapCenterLon};
  EXPECT_EQ((Position{view.AircraftLat, view.AircraftLon}), clicked);
  view.MapCenterLat = -20;
  view.MapCenterLon = 170;
  view.CentreOnAircraft();
  EXPECT_EQ((Position{view.MapCenterLat, view.MapCenterLon}), clicked);
}

TEST(AutomaticZoom, TakesItsRows) {
  struct Case {
    bool on, airborne;
    int row;
    int taken;
    bool repaint;
  };
  const Case cases[] = {{true, false, 9, 1, true},
                        {true, false, 1, 1, false},
                        {true, true, 9, 7, true},
                        {true, true, 7, 7, false},
                        {false, true, 9, 9, false}};
  for (const Case& c : cases) {
    MapView view = ViewAt(0, 0, c.row);
    view.mnuAutozoom = c.on;
    EXPECT_EQ(AutomaticZoom(view, c.airborne).repaint, c.repaint);
    EXPECT_EQ(view.ZoomIndex, c.taken);
    EXPECT_EQ(view.mnuAutozoom, c.on) << "it does not end itself";
  }
}

TEST(AircraftSymbol, SizesAndTags) {
  EXPECT_EQ(AircraftSizeFactor(1), 0.7);
  EXPECT_EQ(AircraftSizeFactor(2), 0.8);
  EXPECT_EQ(AircraftSizeFactor(3), 1.0);
  EXPECT_EQ(AircraftSizeFactor(99), 0.8);
  EXPECT_EQ(AltitudeTag(9999), "9999");
  EXPECT_EQ(AltitudeTag(10000), "FL100");
  EXPECT_EQ(AltitudeTag(34999), "FL349");
  EXPECT_EQ(AltitudeTag(-30), "-30");
}

TEST(AircraftSymbol, PointsAlongTheTrueHeading) {
  struct Case {
    float heading;
    float east, south;  // of the nose, in 600 units
  };
  const Case cases[] = {{0, 0, -1}, {90, 1, 0}, {180, 0, 1}, {270, -1, 0}};
  for (const Case& c : cases) {
    const AircraftSymbol symbol = SetPlane(ViewAt(0, 0), {0, 0}, c.heading, 5000, 3);
    EXPECT_EQ(symbol.centre.x, 5662);
    EXPECT_EQ(symbol.centre.y, 3500);
    EXPECT_NEAR(symbol.nose.x, 5662 + 600 * c.east, 0.01) << c.heading;
    EXPECT_NEAR(symbol.nose.y, 3500 + 600 * c.south, 0.01) << c.heading;
    EXPECT_NEAR(symbol.vectorEnd.x, 5662 + 1800 * c.east, 0.01) << c.heading;
    EXPECT_NEAR(symbol.vectorEnd.y, 3500 + 1800 * c.south, 0.01) << c.heading;
    EXPECT_NEAR(symbol.outline[0].x, symbol.nose.x, 0.01);
  }
}

TEST(AircraftSymbol, IsTheSameOnBothSides) {
  const AircraftSymbol symbol = SetPlane(ViewAt(0, 0), {0, 0}, 0, 5000, 3);
  for (std::size_t i = 1; i < symbol.outline.size(); ++i) {
    const SurfacePoint right = symbol.outline[i];
    const SurfacePoint left = symbol.outline[symbol.outline.size() - i];
    EXPECT_NEAR(right.x - symbol.centre.x, symbol.centre.x - left.x, 0.01) << i;
    EXPECT_NEAR(right.y, left.y, 0.01) << i;
  }
}

TEST(AircraftSymbol, DrawsVectorBodyAndTag) {
  RecordingSurface surface;
  surface.DrawWidth = 7;
  DrawAircraft(SetPlane(ViewAt(0, 0), {0, 0}, 0, 12000, 2), 16776960, surface);
  ASSERT_EQ(surface.drawn.size(), 3u);
  EXPECT_EQ(surface.drawn[0].what, "line");
  EXPECT_EQ(surface.drawn[1].what, "polygon");
  EXPECT_EQ(surface.drawn[1].points.size(), 15u);
  EXPECT_EQ(surface.drawn[2].text, "FL120");
  EXPECT_EQ(surface.DrawWidth, 7) << "the style is as it was";
}

}  // namespace
