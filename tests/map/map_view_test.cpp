#include "map/map_view.h"

#include <gtest/gtest.h>

#include <cmath>
#include <limits>

namespace {

MapView ViewAt(float lat, float lon, int row) {
  MapView view = MapView::At(lat, lon, row);
  view.MapReady = true;
  view.UpdateVisibilityBox();
  return view;
}

TEST(Projection, PutsLongitudesOnThePage) {
  struct Case {
    const char* why;
    float centerLat, centerLon;
    std::int32_t scale;
    float lon;
    std::int32_t x;
  };
  // cos 60 = 0.5: 4200 units a degree of latitude are 2100 of longitude.
  const Case cases[] = {
      {"the centre; 5662.5 is floored", 0, 10, 4200, 10, 5662},
      {"east is right", 0, 10, 4200, 11, 9862},
      {"the cosine of the centre", 60, 10, 4200, 11, 7762},
      {"across the date line, eastward", 0, 179, 4200, -179, 14062},
      {"across the date line, westward", 0, -179, 4200, 179, -2738},
      {"d = -180 wraps to 180 and back to -180", 0, -90, 105, 90, 24562},
      {"d = 180 wraps to -180", 0, 90, 105, -90, 24562},
      {"far off the page is not clipped", 0, 0, 420000, 100, 42005662},
      {"negative results are floored, not cut", 0, 10, 4200, 8.5F, -638},
  };
  for (const Case& c : cases)
    EXPECT_EQ(Projection(c.centerLat, c.centerLon, c.scale).LonToX(c.lon), c.x) << c.why;
}

TEST(Projection, TakesTheDifferenceOfLongitudesInSingle) {
  // In 64 bits the difference is 100.399999..., in 32 bits one of the floats beside it:
  // at 420000 units a degree that is another unit.
  const float center = 100.1F;
  const float lon = -0.3F;
  const auto unit = [](double d) {
    return static_cast<std::int32_t>(std::floor(mapScaleWidth / 2.0 - d * 420000));
  };
  const float single = center - lon;
  ASSERT_NE(unit(single), unit(static_cast<double>(center) - lon));
  EXPECT_EQ(Projection(0, center, 420000).LonToX(lon), unit(single));
}

TEST(Projection, PutsLatitudesOnThePage) {
  const Projection projection(50, 0, 4200);
  EXPECT_EQ(projection.LatToY(50), 3500);
  EXPECT_EQ(projection.LatToY(51), -700);
  EXPECT_EQ(projection.LatToY(-90), 591500);
}

TEST(Projection, InverseLeadsBack) {
  const Projection projection(50, 179.5F, 1050);
  EXPECT_FLOAT_EQ(projection.YToLat(3500), 50);
  EXPECT_FLOAT_EQ(projection.YToLat(3500 - 1050), 51);
  EXPECT_NEAR(projection.XToLon(projection.LonToX(-179)), -179, 0.01);
  EXPECT_NEAR(projection.XToLon(projection.LonToX(178)), 178, 0.01);
  // Wrapped by one turn only, at both ends.
  EXPECT_GE(projection.XToLon(mapScaleWidth), -180);
  EXPECT_LE(Projection(0, -179.5F, 1050).XToLon(0), 180);
}

TEST(Projection, NoNumberIsNoCrash) {
  const float nan = std::numeric_limits<float>::quiet_NaN();
  EXPECT_EQ(Projection(0, 0, 1050).LonToX(nan), 0);
  EXPECT_EQ(Projection(nan, nan, 1050).LatToY(10), 0);
}

TEST(ZoomTableRows, HoldScaleAndRange) {
  EXPECT_EQ(ZoomTable.front().scale, 420000);
  EXPECT_EQ(ZoomTable[13].scale, 1050);
  EXPECT_EQ(ZoomTable[18].scale, 465);
  EXPECT_EQ(ZoomTable[21].rangeNM, 6000);
}

TEST(MapViewAtLoad, UnknownRowIsTheDefault) {
  EXPECT_EQ(MapView::At(0, 0, 21).ZoomIndex, 21);
  EXPECT_EQ(MapView::At(0, 0, 22).ZoomIndex, defaultZoomIndex);
  EXPECT_EQ(MapView::At(0, 0, -1).MapScale, 14000);
}

TEST(LimitCenterLat, KeepsThePolesAtTheEdge) {
  struct Case {
    float lat;
    int row;
    double limited;
  };
  const Case cases[] = {{50, 13, 50},
                        {89, 13, 90 - 7000.0 / 1050 / 2},
                        {-89, 13, 7000.0 / 1050 / 2 - 90},
                        {70, 20, 90 - 7000.0 / 105 / 2},
                        {90 - 3.4F, 13, 90 - 3.4},
                        {-90, 0, 3500.0 / 420000 - 90},
                        {90, 21, 90 - 3500.0 / 80},
                        {-60, 21, 3500.0 / 80 - 90}};
  for (const Case& c : cases)
    EXPECT_NEAR(MapView::At(c.lat, 0, c.row).LimitCenterLat(c.lat), c.limited, 1e-4)
        << c.lat << " row " << c.row;
}

TEST(SetZoom, TakesOrRefusesARow) {
  struct Case {
    const char* why;
    float north;
    int level;
    std::string_view message;
    int row;
    bool repaint;
  };
  const Case cases[] = {
      {"any row of the middle", 50, 9, "", 9, true},
      {"the nearest", 50, 0, "", 0, true},
      {"nearer than that", 50, -1, "Maximum zoom!", 6, false},
      {"4000 NM with the north edge inside", 50, 20, "", 20, true},
      {"north edge at the equator is inside", 0, 20, "", 20, true},
      {"north edge at 80 is inside", 80, 20, "", 20, true},
      {"north edge above 80", 80.1F, 20, "Minimum zoom!", 19, true},
      {"north edge below the equator", -0.1F, 20, "Minimum zoom!", 19, true},
      {"6000 NM beyond 80 gives 2000", 85, 21, "Minimum zoom!", 19, true},
      {"6000 NM is never taken", 50, 21, "Minimum zoom!", 6, false},
      {"2000 NM needs no edge", 85, 19, "", 19, true},
  };
  for (const Case& c : cases) {
    MapView view = ViewAt(40, 0, 6);
    view.MapNorthLat = c.north;
    const ZoomAnswer answer = view.SetZoom(c.level, true);
    EXPECT_EQ(answer.message, c.message) << c.why;
    EXPECT_EQ(answer.repaint, c.repaint) << c.why;
    EXPECT_EQ(view.ZoomIndex, c.row) << c.why;
    EXPECT_EQ(view.MapScale, ZoomTable[static_cast<std::size_t>(c.row)].scale) << c.why;
  }
}

TEST(SetZoom, StaysOnTheFarthestRowFromTheSettings) {
  MapView view = ViewAt(30, 0, 21);
  EXPECT_EQ(view.SetZoom(21, true).message, "Minimum zoom!");
  EXPECT_EQ(view.ZoomIndex, 21);
}

TEST(SetZoom, ScalesWithTheWindowHalvesToEven) {
  MapView view = ViewAt(40, 0, 6);
  view.MapSizeFactor = 0.5F;
  view.SetZoom(20, true);
  EXPECT_EQ(view.MapScale, 52);  // 52.5
  view.SetZoom(18, true);
  EXPECT_EQ(view.MapScale, 232);  // 232.5
}

TEST(SetZoom, EndsTheAutomaticZoomOnlyWhenAsked) {
  MapView view = ViewAt(40, 0, 6);
  view.mnuAutozoom = true;
  view.SetZoom(7, false);
  EXPECT_TRUE(view.mnuAutozoom);
  view.SetZoom(-1, true);
  EXPECT_TRUE(view.mnuAutozoom) << "a refused row changes nothing";
  view.SetZoom(7, true);
  EXPECT_FALSE(view.mnuAutozoom);
}

TEST(SetZoom, NothingIsPaintedBeforeTheViewIsReady) {
  MapView view = ViewAt(40, 0, 6);
  view.MapReady = false;
  EXPECT_FALSE(view.SetZoom(7, true).repaint);
}

TEST(RangeText, IsTheRowsRange) {
  EXPECT_EQ(MapView::At(0, 0, 13).RangeText(), "400NM");
  EXPECT_EQ(MapView::At(0, 0, 21).RangeText(), "6000NM");
}

TEST(NearestZoomRow, TiesGoToTheLowerRow) {
  const std::pair<int, int> cases[] = {{0, 0},    {4, 2},     {250, 11},  {251, 12}, {350, 12},
                                       {351, 13}, {1450, 18}, {1451, 19}, {9000, 20}};
  for (const auto& [height, row] : cases)
    EXPECT_EQ(NearestZoomRow(height, 6), row) << height << " NM";
}

TEST(RecentreOnBox, AClickKeepsTheZoom) {
  MapView view = ViewAt(50, 10, 13);
  view.RecentreOnBox(5662.5F + 1050, 3500 - 1050, 5662.5F + 1050, 3500 - 1050);
  EXPECT_FLOAT_EQ(view.MapCenterLat, 51);
  EXPECT_NEAR(view.MapCenterLon, 10 + 1 / std::cos(50 * 3.14159265 / 180), 1e-4);
  EXPECT_EQ(view.ZoomIndex, 13);
}

TEST(RecentreOnBox, ABoxHigherThan200BringsItsRow) {
  struct Case {
    float height;
    int row;
  };
  // Row 13: 1050 units a degree, so 200 units are 11 NM and 1750 are 100 NM.
  const Case cases[] = {{200, 13}, {201, 4}, {1750, 9}, {6999, 13}};
  for (const Case& c : cases) {
    for (const bool upward : {false, true}) {
      MapView view = ViewAt(50, 10, 13);
      const float low = 3500 - c.height / 2;
      const float high = 3500 + c.height / 2;
      view.RecentreOnBox(5000, upward ? high : low, 6000, upward ? low : high);
      EXPECT_EQ(view.ZoomIndex, c.row) << c.height << (upward ? " upward" : " downward");
      EXPECT_EQ(view.MapScale, ZoomTable[static_cast<std::size_t>(c.row)].scale);
      EXPECT_NEAR(view.MapCenterLat, 50, 1e-4);
    }
  }
}

TEST(VisibilityBox, HasHalfADegreeMoreAndStopsAtThePoles) {
  const MapView view = ViewAt(50, 10, 13);
  EXPECT_NEAR(view.MapNorthLat, 50 + 3500.0 / 1050 + 0.5, 1e-4);
  EXPECT_NEAR(view.MapSouthLat, 50 - 3500.0 / 1050 - 0.5, 1e-4);
  EXPECT_FALSE(view.MapCrossesDateLine);
  const MapView polar = ViewAt(89, 0, 13);
  EXPECT_EQ(polar.MapNorthLat, 90);
  EXPECT_LT(polar.MapCenterLat, 87);
}

TEST(VisibilityBox, TestsPointsWithItsMargin) {
  MapView view;
  view.MapNorthLat = 52;
  view.MapSouthLat = 48;
  view.MapWestLon = 5;
  view.MapEastLon = 15;
  struct Case {
    float lat, lon, margin;
    bool inside;
  };
  const Case cases[] = {{50, 10, 0, true},        {52, 10, 0, false},       {51.99F, 10, 0, true},
                        {48, 10, 0, true},        {47.99F, 10, 0, false},   {50, 5, 0, true},
                        {50, 15, 0, true},        {50, 15.01F, 0, false},   {53.5F, 10, 1.5F, false},
                        {46.5F, 10, 1.5F, true},  {53.49F, 10, 1.5F, true}, {50, 3.5F, 1.5F, true},
                        {50, 3.49F, 1.5F, false}, {50, 16.5F, 1.5F, true},  {50, 16.51F, 1.5F, false}};
  for (const Case& c : cases)
    EXPECT_EQ(view.InView(c.lat, c.lon, c.margin), c.inside)
        << c.lat << ", " << c.lon << " margin " << c.margin;
}

TEST(VisibilityBox, AcrossTheDateLineHoldsBothSides) {
  const MapView view = ViewAt(0, 179, 13);
  EXPECT_TRUE(view.MapCrossesDateLine);
  EXPECT_TRUE(view.InView(0, 178, 0));
  EXPECT_TRUE(view.InView(0, -178, 0));
  EXPECT_FALSE(view.InView(0, 0, 0));
  EXPECT_FALSE(view.InView(0, -170, 0));
}

TEST(VisibilityBox, MoreThanHalfTheWorldIsNotEmpty) {
  // Both edges lie west of Greenwich, and the date line between them.
  const MapView view = ViewAt(55, 90, 20);
  EXPECT_LT(view.MapWestLon, 0);
  EXPECT_LT(view.MapEastLon, 0);
  EXPECT_TRUE(view.InView(55, 90, 0));
  EXPECT_TRUE(view.InView(55, 179, 0));
  EXPECT_FALSE(view.InView(55, -100, 0));
}

TEST(VisibilityBox, AMarginOverTheDateLineGoesOnBehindIt) {
  struct Case {
    float west, east;
    float lon, margin;
    bool inside;
  };
  const Case cases[] = {{-180.3F, -170, 179.8F, 0, true},    {-180.3F, -170, 179.6F, 0, false},
                        {-179.0F, -170, 179.6F, 1.5F, true}, {-179.0F, -170, 179.4F, 1.5F, false},
                        {170, 180.3F, -179.8F, 0, true},     {170, 179, -179.6F, 1.5F, true},
                        {170, 179, -179.4F, 1.5F, false},    {-170, 170, 180, 1.5F, false}};
  for (const Case& c : cases) {
    MapView view;
    view.MapNorthLat = 10;
    view.MapSouthLat = -10;
    view.MapWestLon = c.west;
    view.MapEastLon = c.east;
    EXPECT_EQ(view.InView(0, c.lon, c.margin), c.inside) << c.west << " to " << c.east << ": " << c.lon;
  }
}

// The first longitude that the page shows and the box does not hold; NaN if there is none.
float FirstMissedLongitude(const MapView& view) {
  const Projection projection = view.CurrentProjection();
  const double halfWorld = 180 * (projection.UnwrappedX(1) - projection.UnwrappedX(0));
  for (double x = 0; x <= mapScaleWidth; x += 75) {
    const float lon = projection.XToLon(x);
    const bool shown = std::abs(x - mapScaleWidth / 2.0) < halfWorld;
    if (shown && !view.InView(view.MapCenterLat, lon, 0)) return lon;
  }
  return std::numeric_limits<float>::quiet_NaN();
}

TEST(VisibilityBox, HoldsAllThatThePageShows) {
  for (const float lat : {-90.0F, -60.0F, 0.0F, 33.0F, 71.0F, 90.0F}) {
    for (float lon = -180; lon <= 180; lon += 7.5F) {
      for (const int scale : {9, 20, 31, 32, 40, 80, 105, 233, 1050, 42000}) {
        MapView view;
        view.MapCenterLat = lat;
        view.MapCenterLon = lon;
        view.MapScale = scale;
        view.UpdateVisibilityBox();
        const float missed = FirstMissedLongitude(view);
        EXPECT_TRUE(std::isnan(missed)) << lat << ", " << lon << " scale " << scale << ": " << missed;
      }
    }
  }
}

TEST(VisibilityBox, APageWiderThanTheWorldHoldsAllLongitudesOnce) {
  // 11325 units at 20 a degree are 566 degrees.
  for (const float lon : {-180.0F, -100.0F, 0.0F, 179.0F}) {
    MapView view;
    view.MapCenterLon = lon;
    view.MapScale = 20;
    view.UpdateVisibilityBox();
    EXPECT_FALSE(view.MapCrossesDateLine);
    EXPECT_EQ(view.MapCenterLat, 0) << "higher than the world, too";
    for (float at = -180; at <= 180; at += 1) {
      EXPECT_TRUE(view.InView(0, at, 0)) << at;
      EXPECT_LE(std::abs(view.LonToX(at) - 5662), 20 * 180 + 1) << at;
    }
    const GeoBox box = view.SearchBox(navaidMargin);
    EXPECT_EQ(box.west, -180);
    EXPECT_EQ(box.east, 180);
  }
}

TEST(SearchBox, NeverMissesAPointInView) {
  for (float lon = -180; lon <= 180; lon += 2.5F) {
    for (const int row : {6, 13, 19, 20, 21}) {
      for (const float margin : {0.0F, navaidMargin}) {
        const MapView view = ViewAt(45, lon, row);
        const GeoBox box = view.SearchBox(margin);
        for (float at = -180; at <= 180; at += 0.5F) {
          if (!view.InView(45, at, margin)) continue;
          const bool found =
              box.west <= box.east ? at >= box.west && at <= box.east : at >= box.west || at <= box.east;
          EXPECT_TRUE(found) << "centre " << lon << " row " << row << " at " << at;
        }
      }
    }
  }
}

TEST(RefreshMagVar, LooksUpAfterMoreThanADegree) {
  std::vector<std::byte> bytes(magneticGridColumns * magneticGridRows * 2);
  const std::size_t cell = (12 * magneticGridRows + (51 + 90)) * 2;  // column of 12 east, latitude 51
  bytes[cell] = std::byte{0x38};                                     // 0x0238 = 568 = 3.12 degrees
  bytes[cell + 1] = std::byte{0x02};
  const auto variation = MagneticVariationGrid::FromBytes(bytes);
  MapView view = MapView::At(50, 10, 13);
  view.LastMagVarLat = 50;
  view.LastMagVarLon = 10;
  view.AircraftLon = 11;
  EXPECT_FALSE(view.RefreshMagVar(variation)) << "exactly a degree is not more";
  view.MapCenterLat = 51.5F;
  view.MapCenterLon = 12.5F;
  EXPECT_FALSE(view.RefreshMagVar(variation)) << "the map's centre alone is not the reference";
  view.RecentreOnBox(5662.5F, 3500, 5662.5F, 3500);
  EXPECT_TRUE(view.RefreshMagVar(variation));
  EXPECT_NEAR(view.MapMagVar, 568 / magneticUnitsPerDegree, 1e-4);
  EXPECT_FALSE(view.RefreshMagVar(variation));
}

}  // namespace
