// What lies on the very edge of the page, of the world, and of both.
#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>

#include "tests/map/painted.h"

namespace {

NavDatabase OneAirport(Position place) {
  NavDatabase database;
  AirportRec airport;
  airport.strCode = std::string_view("EDGE");
  airport.sngLat = place.lat;
  airport.sngLon = place.lon;
  database.airports = {airport};
  database.airports.resize(1 + NavDatabase::surplusAirportRows + 1);
  database.lngAirports = 1;
  return database;
}

// Whether the airport is drawn where the view has it, as near as 32 bits hold a longitude.
bool IsDrawnAt(const RecordingSurface& surface, const MapView& view, SurfacePoint at) {
  const double most = 2 + view.MapScale * 2e-5;
  return std::any_of(surface.drawn.begin(), surface.drawn.end(), [&](const auto& one) {
    return (one.what == "circle" || one.what == "point") && std::hypot(one.x - at.x, one.y - at.y) < most;
  });
}

TEST(WorldEdges, AnAirportOnTheEdgeOfThePageIsDrawn) {
  MapSwitches on = NothingOn();
  on.mnuAirport = true;
  for (const Position centre :
       {Position{50, 8}, {-17, 179.9F}, {52, -179.99F}, {66, 180}, {0, -180}, {70, -95}}) {
    for (const int row : {0, 4, 9, 13, 18, 19, 20, 21}) {
      MapView view = MapView::At(centre.lat, centre.lon, row);
      view.UpdateVisibilityBox();
      for (const float x : {1.0F, mapScaleWidth / 2.0F, mapScaleWidth - 1.0F}) {
        for (const float y : {1.0F, mapScaleHeight - 1.0F}) {
          const Position place{view.YToLat(y), view.XToLon(x)};
          if (std::abs(place.lat) > 89.9F) continue;
          NavDatabase database = OneAirport(place);
          EXPECT_TRUE(IsDrawnAt(PaintedMap(database, view, on), view, {x, y}))
              << centre.lat << ", " << centre.lon << " row " << row << ": " << place.lat << ", " << place.lon;
        }
      }
    }
  }
}

TEST(WorldEdges, PlacesAtPolesAndDateLineAreDrawnOnce) {
  MapSwitches on = NothingOn();
  on.mnuAirport = true;
  for (const Position place :
       {Position{90, 0}, {-90, 0}, {89.99F, 180}, {0, 180}, {0, -180}, {-17, 179.999F}}) {
    for (const int row : {13, 19, 21}) {
      NavDatabase database = OneAirport(place);
      const RecordingSurface surface = PaintedMap(database, ViewAtRow(place, row), on);
      // The box ends below 90 degrees: the pole itself is beyond its north edge.
      const int wanted = place.lat == 90 ? 0 : 1;
      EXPECT_EQ(surface.Count("circle") + surface.Count("point"), wanted) << place.lat << ", " << place.lon;
    }
  }
}

}  // namespace
