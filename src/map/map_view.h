// What part of the world the map shows: its centre, its scale and the box of
// latitudes and longitudes that the layers test against. The map is a plain
// rectangle in degrees, east-west shrunk by the cosine of the centre's
// latitude, on a page of 11325 x 7000 units. Angles are degrees, north and
// east positive. Every rule of zooming and recentring is here, without a
// window: an operation that has something to tell the pilot returns it.
#pragma once

#include <array>
#include <cstdint>
#include <string>
#include <string_view>

#include "navdata/geodesy.h"
#include "navdata/magnetic_variation.h"
#include "navdata/place_index.h"

constexpr std::int32_t mapScaleWidth = 11325;
constexpr std::int32_t mapScaleHeight = 7000;

struct ZoomRow {
  std::int32_t scale;    // units per degree of latitude
  std::int16_t rangeNM;  // height of the map at MapSizeFactor 1, as shown to the pilot
};

constexpr std::array<ZoomRow, 22> ZoomTable = {{
    {420000, 1}, {210000, 2}, {140000, 3}, {84000, 5},  {42000, 10}, {21000, 20}, {14000, 30}, {8400, 50},
    {5600, 75},  {4200, 100}, {2800, 150}, {2100, 200}, {1400, 300}, {1050, 400}, {840, 500},  {700, 600},
    {600, 700},  {525, 800},  {465, 900},  {210, 2000}, {105, 4000}, {80, 6000},
}};

constexpr std::int16_t defaultZoomIndex = 6;
// Width of the main window, in its own units, at which MapSizeFactor is 1.
constexpr double mapSizeUnits = 8535;
// Degrees that airways and navaids are looked for beyond the visibility box.
constexpr float navaidMargin = 1.5F;

// One repaint's projection: the centre, scale and cosine are taken once.
// Nothing is rejected: points off the map get coordinates outside the page.
class Projection {
 public:
  // The cosine of the centre's latitude is rounded to 32 bits before use.
  Projection(float centerLat, float centerLon, std::int32_t scale);

  // Whole units, floored. The difference of longitudes is taken in 32 bits and
  // brought within -180..180, so the point's nearest appearance is meant.
  std::int32_t LonToX(float lon) const;
  std::int32_t LatToY(float lat) const;
  float XToLon(double x) const;
  float YToLat(double y) const;

  // x of a longitude that is not wrapped, unrounded: for shapes that must stay
  // whole across the edge opposite of the centre. 190 lies right of 180.
  double UnwrappedX(double lon) const { return mapScaleWidth / 2.0 - (centerLon - lon) * eastScale; }
  double UnroundedY(double lat) const { return mapScaleHeight / 2.0 + (centerLat - lat) * scale; }

 private:
  float centerLat;
  float centerLon;
  double scale;
  double cosine;
  double eastScale;  // scale x cosine
};

struct ZoomAnswer {
  std::string_view message;  // for the pilot; empty when there is none
  bool repaint = false;      // the view is to be painted anew
};

struct MapView {
  float MapCenterLat = 0;
  float MapCenterLon = 0;
  // The stored aircraft position: the aircraft's while a simulator is
  // connected, else the place that was clicked last. What bearings, the
  // position panel and the magnetic variation refer to.
  float AircraftLat = 0;
  float AircraftLon = 0;
  std::int32_t MapScale = ZoomTable[defaultZoomIndex].scale;
  std::int16_t ZoomIndex = defaultZoomIndex;
  bool MapReady = false;
  float MapSizeFactor = 1;
  float MapNorthLat = 0;
  float MapSouthLat = 0;
  float MapWestLon = 0;
  float MapEastLon = 0;
  bool MapCrossesDateLine = false;
  float MapMagVar = 0;
  float LastMagVarLat = 0;
  float LastMagVarLon = 0;
  bool mnuAutozoom = false;

  // The view at load: a centre, which is the stored aircraft position, and a
  // row of the zoom table at its plain scale.
  // A row outside the table counts as the default.
  static MapView At(float lat, float lon, int zoomIndex);

  std::int16_t RangeNM() const { return ZoomTable[static_cast<std::size_t>(ZoomIndex)].rangeNM; }
  // The range panel's text, such as "400NM".
  std::string RangeText() const;

  Projection CurrentProjection() const { return {MapCenterLat, MapCenterLon, MapScale}; }
  std::int32_t LonToX(float lon) const { return CurrentProjection().LonToX(lon); }
  std::int32_t LatToY(float lat) const { return CurrentProjection().LatToY(lat); }
  float XToLon(double x) const { return CurrentProjection().XToLon(x); }
  float YToLat(double y) const { return CurrentProjection().YToLat(y); }

  // lat, or the nearest latitude at which the map at this scale and centre
  // does not show past a pole. 0 for a page higher than the whole world.
  float LimitCenterLat(float lat) const;

  // Takes a row of the zoom table, or refuses it with "Minimum zoom!" or
  // "Maximum zoom!". Row 20 needs the north edge of the last painted map
  // between the equator and 80 degrees, else row 19 is taken; row 21 is
  // always refused. clearAutozoom ends the automatic zoom when the row is taken.
  ZoomAnswer SetZoom(int level, bool clearAutozoom);

  // Moves the centre, and the stored aircraft position with it, to the middle of
  // a box drawn on the map (a click is a box of no size). A box more than 200
  // units high also brings the zoom row whose range is nearest to its height.
  void RecentreOnBox(float x1, float y1, float x2, float y2);

  // Key F12: the centre takes the stored aircraft position.
  void CentreOnAircraft();

  // Looks the variation up anew if the stored aircraft position lies more than
  // a degree of latitude or longitude from the last look-up. True if it did.
  bool RefreshMagVar(const MagneticVariationGrid& variation);

  // Before a repaint: limits the centre and works out the visibility box. On a
  // page as wide as the world or wider it holds all longitudes.
  void UpdateVisibilityBox();

  // True if a point lies in the visibility box grown by margin degrees: below
  // the north edge, at or above the south edge, between west and east the way
  // the box lies around the world.
  bool InView(float lat, float lon, float margin) const;

  // The visibility box grown by margin, for the place indexes; never misses a
  // point that InView() accepts.
  GeoBox SearchBox(float margin) const;

 private:
  void TakeRow(int level);
};

// The row of 0 to 20 whose range is nearest to a height; the lower of two.
std::int16_t NearestZoomRow(std::int32_t heightNM, std::int16_t otherwise);
