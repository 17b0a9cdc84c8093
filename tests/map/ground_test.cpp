#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>

#include "tests/map/painted.h"

namespace {

constexpr Position field{50, 8};

void AddRing(NavDatabase& database, float half, float value) {
  const Position corners[] = {{field.lat + half, field.lon - half},
                              {field.lat + half, field.lon + half},
                              {field.lat - half, field.lon + half},
                              {field.lat - half, field.lon - half}};
  for (int i = 0; i < 4; ++i)
    database.polygons.push_back({FixedText<1>(i == 0 ? "M" : "L"), corners[i].lat, corners[i].lon, value});
}

void AddTaxiway(NavDatabase& database, float north, const char* name, const char* type = "TAXI") {
  database.taxiways.push_back({field.lat + north, field.lon, field.lat + north, field.lon + 0.004F,
                               FixedText<8>(name), 75, FixedText<5>(type)});
}

MapSwitches AirportsOnly() {
  MapSwitches on = NothingOn();
  on.mnuAirport = true;
  return on;
}

double Area(const std::vector<SurfacePoint>& shape) {
  double twice = 0;
  for (std::size_t i = 0; i < shape.size(); ++i) {
    const SurfacePoint a = shape[i];
    const SurfacePoint b = shape[(i + 1) % shape.size()];
    twice += static_cast<double>(a.x) * b.y - static_cast<double>(b.x) * a.y;
  }
  return std::abs(twice) / 2;
}

// Whether a point lies in a polygon that is filled even-odd.
bool Holds(const std::vector<SurfacePoint>& shape, SurfacePoint p) {
  bool inside = false;
  for (std::size_t i = 0; i < shape.size(); ++i) {
    const SurfacePoint a = shape[i];
    const SurfacePoint b = shape[(i + 1) % shape.size()];
    if ((a.y > p.y) != (b.y > p.y) && p.x < a.x + (b.x - a.x) * (p.y - a.y) / (b.y - a.y)) inside = !inside;
  }
  return inside;
}

TEST(GroundLayers, AreShownByRange) {
  NavDatabase database;
  AddRing(database, 0.005F, 0);
  AddTaxiway(database, 0.01F, "A");
  AddTaxiway(database, -0.01F, "B", "LINE");
  const ColorSettings colors;
  struct Case {
    int row;
    int polygons, lines;
    std::size_t names;
  };
  // Polygons and taxiways to 10 NM, designators to 3. A taxiway thinner than a pixel or two is
  // its centreline alone, as is a line painted on pavement at any range.
  const Case cases[] = {{2, 2, 2, 2}, {3, 2, 2, 0}, {4, 1, 2, 0}, {5, 0, 0, 0}};
  for (const Case& c : cases) {
    const RecordingSurface surface = PaintedMap(database, ViewAtRow(field, c.row), AirportsOnly());
    EXPECT_EQ(surface.Count("polygon"), c.polygons) << c.row;
    EXPECT_EQ(surface.Count("line", colors.TAXI), c.lines) << c.row;
    EXPECT_EQ(surface.Texts().size(), c.names) << c.row;
  }
  EXPECT_EQ(PaintedMap(database, ViewAtRow(field, 2), NothingOn()).drawn.size(), 1u);
}

TEST(GroundLayers, HolesStayOpen) {
  NavDatabase database;
  AddRing(database, 0.005F, 0);
  AddRing(database, 0.001F, groundHoleValue);
  for (PolygonRec& row : database.polygons)  // a second hole, aside of the first
    if (row.sngValue == groundHoleValue) row.sngLon += 0.003F;
  AddRing(database, 0.001F, groundHoleValue);
  const MapView view = ViewAtRow(field, 2);
  const RecordingSurface surface = PaintedMap(database, view, AirportsOnly());
  ASSERT_EQ(surface.Count("polygon"), 1);
  const auto& shape = surface.drawn.back().points;
  const auto at = [&](float north, float east) {
    return SurfacePoint{static_cast<float>(view.LonToX(field.lon + east)),
                        static_cast<float>(view.LatToY(field.lat + north))};
  };
  EXPECT_FALSE(Holds(shape, at(0, 0)));
  EXPECT_FALSE(Holds(shape, at(0.0005F, 0.003F)));
  EXPECT_TRUE(Holds(shape, at(0.0005F, 0.0015F))) << "between the holes";
  EXPECT_TRUE(Holds(shape, at(0.0045F, 0.0045F)));
  EXPECT_TRUE(Holds(shape, at(-0.003F, -0.0047F)));
  EXPECT_FALSE(Holds(shape, at(0.006F, 0)));
}

TEST(GroundLayers, ATaxiwayIsAsWideAsItsRowSays) {
  NavDatabase database;
  AddTaxiway(database, 0, "");
  const MapView view = ViewAtRow(field, 1);
  const RecordingSurface surface = PaintedMap(database, view, AirportsOnly());
  const auto band = std::find_if(surface.drawn.begin(), surface.drawn.end(),
                                 [](const auto& one) { return one.what == "polygon"; });
  ASSERT_NE(band, surface.drawn.end());
  const double width = 75 * metresPerFoot * 210000 / 111130.556;
  const double length = 0.004 * 210000 * std::cos(50 * geodesyPi / 180);
  EXPECT_NEAR(Area(band->points), width * (length + width), width * 3);
}

TEST(TaxiwayDesignators, KeepApart) {
  NavDatabase database;
  AddTaxiway(database, 0, "A");
  AddTaxiway(database, 0.0001F, "B");  // over A
  AddTaxiway(database, 0.005F, "A");   // 700 units from the first
  AddTaxiway(database, 0.0052F, "C");  // free, since that A is not printed
  AddTaxiway(database, 0.009F, "A");   // far enough
  AddTaxiway(database, 0.008F, "");
  AddTaxiway(database, 3, "FAR");
  const RecordingSurface surface = PaintedMap(database, ViewAtRow(field, 2), AirportsOnly());
  EXPECT_EQ(surface.Texts(), (std::vector<std::string>{"A", "C", "A"}));
  const ColorSettings colors;
  EXPECT_EQ(surface.Count("print", colors.TAXINAME), 3);
}

}  // namespace
