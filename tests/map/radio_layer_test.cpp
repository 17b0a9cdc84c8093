#include "map/radio_layer.h"

#include <gtest/gtest.h>

#include <cmath>

#include "tests/map/painted.h"

namespace {

constexpr Position middle{50.0F, 8.5F};

template <class Row>
Row Station(std::string_view code, float frequency, Position place = middle) {
  Row row = RowAt<Row>(code, place, "FRANKFURT");
  row.sngFrequency = frequency;
  return row;
}

struct Stations {
  NavDatabase database;
  MapSwitches switches = NothingOn();

  explicit Stations(std::int16_t vorType = 1) {
    database.vors = {Station<VorRec>("FFM", 114.2F)};
    database.vors[0].intType = vorType;
    database.ndbs = {Station<NdbRec>("FR", 297)};
    BuildIndexes(database);
    switches.btnIcao = true;
  }
  Painted At(int row, const MapSelection& selection = {}) const {
    return Painted(database, MapView::At(middle.lat, middle.lon, row), switches, selection);
  }
};

// The one printed text, as "x,y [text]".
std::string Printed(const Painted& map) {
  const std::string text = DrawnText(map.surface);
  const std::size_t at = text.find("print ");
  return at == std::string::npos ? "" : text.substr(at + 6, text.find('\n', at) - at - 6);
}

TEST(VorLayer, RoseTo150NMThenTheSmallSymbol) {
  Stations stations;
  stations.switches.mnuVOR = true;
  struct Case {
    int row;
    int ticks, circles, points;
  };
  // 150, 200, 900 and 2000 NM.
  const Case cases[] = {{10, 12, 2, 0}, {11, 0, 2, 1}, {18, 0, 2, 1}, {19, 0, 1, 1}};
  for (const Case& c : cases) {
    const Painted map = stations.At(c.row);
    EXPECT_EQ(map.surface.Count("line", map.colors.VOR), c.ticks) << "row " << c.row;
    EXPECT_EQ(map.surface.Count("circle", map.colors.VOR), c.circles) << "row " << c.row;
    EXPECT_EQ(map.surface.Count("point", map.colors.VOR), c.points) << "row " << c.row;
    EXPECT_EQ(map.surface.Count("polyline", map.colors.VOR), 1) << "the hexagon at every range";
  }
}

TEST(VorLayer, LabelHangsByTheRadius) {
  struct Case {
    std::int16_t type;
    int row;
    std::string place;
  };
  const auto below = [](double radius, double part) {
    return "5572," + std::to_string(std::lround(3500 + radius * part)) + " [FFM]";
  };
  // 180 units at 100 NM; at 200 NM the square's 180.
  const Case cases[] = {{1, 9, below(180, 1.1)},  {9, 9, below(180, 0.3)},  {1, 11, below(180, 0.5)},
                        {9, 11, below(180, 0.5)}, {1, 18, below(180, 0.5)}, {1, 19, ""}};
  for (const Case& c : cases) {
    Stations stations(c.type);
    stations.switches.mnuVOR = true;
    EXPECT_EQ(Printed(stations.At(c.row)), c.place) << "type " << c.type << ", row " << c.row;
  }
}

TEST(NdbLayer, RingsTo150NMThenTheSmallSymbolWithItsLabelAbove) {
  Stations stations;
  stations.switches.mnuNDB = true;
  const Painted near = stations.At(10);
  EXPECT_EQ(near.surface.Count("circle", near.colors.NDB), 3);
  EXPECT_EQ(Printed(near), "5602,3614 [FR]");
  const Painted far = stations.At(11);
  EXPECT_EQ(far.surface.Count("circle", far.colors.NDB), 1);
  EXPECT_EQ(far.surface.Count("point", far.colors.NDB), 1);
  EXPECT_EQ(Printed(far), "5602,3386 [FR]");
  const Painted points = stations.At(19);
  EXPECT_EQ(points.surface.Count("circle"), 0);
  EXPECT_EQ(points.surface.Count("point", points.colors.NDB), 1);
}

TEST(StationLabels, FollowSwitchesAndRange) {
  const auto vor = Station<VorRec>("FFM", 114.2F);
  const auto ndb = Station<NdbRec>("FR", 297);
  struct Case {
    bool icao, freq, name;
    std::int16_t range;
    const char* vorLabel;
    const char* ndbLabel;
  };
  const Case cases[] = {
      {true, true, true, 150, "FFM\n114.20\nFRANKFURT", "FR\n 297.00\nFRANKFURT"},
      {true, true, true, 200, "FFM\n114.20", "FR\n 297.00"},
      {true, false, false, 10, "FFM", "FR"},
      {false, true, false, 10, "114.20", " 297.00"},
      {false, false, true, 10, "FRANKFURT", "FRANKFURT"},
      {false, false, false, 10, "", ""},
  };
  for (const Case& c : cases) {
    MapSwitches switches;
    switches.btnIcao = c.icao;
    switches.btnFreq = c.freq;
    switches.btnName = c.name;
    EXPECT_EQ(VorLabel(vor, switches, c.range), c.vorLabel) << c.range;
    EXPECT_EQ(NdbLabel(ndb, switches, c.range), c.ndbLabel) << c.range;
  }
}

// Further lines follow the placed first one, centred on it.
TEST(StationLabels, PrintTheirLinesUnderOneAnother) {
  Stations stations;
  stations.switches.mnuVOR = stations.switches.btnFreq = stations.switches.btnName = true;
  const std::string text = DrawnText(stations.At(9).surface);
  EXPECT_TRUE(
      text.ends_with("print 5572,3698 [FFM]\nprint 5482,3798 [114.20]\nprint 5392,3898 [FRANKFURT]\n"))
      << text;
}

TEST(StationLayers, HighlightTheSelectedRow) {
  Stations stations;
  stations.switches.mnuVOR = stations.switches.mnuNDB = true;
  for (const int row : {9, 13}) {
    const Painted vor = stations.At(row, {0, SelectedObject::vor, {}, -1, {}});
    EXPECT_EQ(vor.surface.Count("polyline", vor.colors.HILITE), 1);
    EXPECT_EQ(vor.surface.Count("polyline", vor.colors.VOR), 0);
    EXPECT_EQ(vor.surface.Count("print", vor.colors.HILITE), 1);
    const Painted ndb = stations.At(row, {0, SelectedObject::ndb, {}, -1, {}});
    EXPECT_GT(ndb.surface.Count("circle", ndb.colors.HILITE), 0);
    EXPECT_EQ(ndb.surface.Count("polyline", ndb.colors.HILITE), 0);
  }
}

TEST(StationLayers, NeedTheirSwitches) {
  const Stations stations;
  EXPECT_EQ(stations.At(9).surface.drawn.size(), 1u) << "only the page";
}

// 1.5 degrees beyond the box: north edge out, south edge in; west and east in.
TEST(StationLayers, EndAtTheEdgesOfTheGrownBox) {
  MapView view = MapView::At(middle.lat, middle.lon, 9);
  view.UpdateVisibilityBox();
  const float north = view.MapNorthLat + 1.5F;
  const float south = view.MapSouthLat - 1.5F;
  const float west = view.MapWestLon - 1.5F;
  const float east = view.MapEastLon + 1.5F;
  struct Case {
    Position place;
    bool shown;
  };
  const Case cases[] = {{{north, middle.lon}, false}, {{std::nextafter(north, 0.0F), middle.lon}, true},
                        {{south, middle.lon}, true},  {{std::nextafter(south, 0.0F), middle.lon}, false},
                        {{middle.lat, west}, true},   {{middle.lat, std::nextafter(west, -90.0F)}, false},
                        {{middle.lat, east}, true},   {{middle.lat, std::nextafter(east, 90.0F)}, false}};
  for (const Case& c : cases) {
    Stations stations;
    stations.switches.mnuVOR = stations.switches.mnuNDB = true;
    stations.database.vors = {Station<VorRec>("FFM", 114.2F, c.place)};
    stations.database.ndbs = {Station<NdbRec>("FR", 297, c.place)};
    BuildIndexes(stations.database);
    const Painted map = stations.At(9);
    EXPECT_EQ(map.surface.Count("polyline", map.colors.VOR) == 1, c.shown)
        << c.place.lat << ' ' << c.place.lon;
    EXPECT_EQ(map.surface.Count("circle", map.colors.NDB) == 3, c.shown) << c.place.lat << ' ' << c.place.lon;
  }
}

TEST(StationLayers, ShowBothSidesOfTheDateLine) {
  Stations stations;
  stations.switches.mnuVOR = true;
  stations.database.vors = {Station<VorRec>("EAST", 113, {0, 179.5F}),
                            Station<VorRec>("WEST", 113, {0, -179.5F})};
  BuildIndexes(stations.database);
  for (const float lon : {179.9F, -179.9F}) {
    const Painted map(stations.database, MapView::At(0, lon, 9), stations.switches);
    EXPECT_TRUE(map.Has("EAST") && map.Has("WEST")) << lon;
  }
}

}  // namespace
