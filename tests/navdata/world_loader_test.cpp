#include "navdata/world_loader.h"

#include <gtest/gtest.h>

#include <limits>

#include "navdata/navi_databases.h"
#include "tests/navdata/database_bytes.h"
#include "tests/temporary_folder.h"

TEST(TaxiLoader, ASegmentThatEndsOnZeroIsNotStored) {
  DatabaseBytes bytes;
  for (const auto& [lat2, lon2] : {std::pair{1.0F, 2.0F}, {0.0F, 2.0F}, {1.0F, 0.0F}}) {
    TaxiFileRecord record;
    record.sngLat2 = lat2;
    record.sngLon2 = lon2;
    record.intWidth = 300;
    bytes.Add(record);
  }
  std::vector<TaxiRec> table;
  EXPECT_TRUE(ParseTaxiways(bytes.All(), table));
  ASSERT_EQ(table.size(), 1u);
  EXPECT_EQ(table[0].bytWidth, 300 - 256);
}

TEST(AirwayLoader, LimitsAreCleanedAndRecordsWithoutEndDropped) {
  const struct {
    const char *upper, *lower, *shownUpper, *shownLower;
  } cases[] = {{"FL195", "05000", "FL195", "5000"}, {"", "0", "n/a", "n/a"}, {" 0450", "00", "450", "0"}};
  DatabaseBytes bytes;
  for (const auto& c : cases) {
    bytes.Add(AirwaySegmentFileRecord{FixedText<8>(" UL607"), 1, 2, 10, FixedText<5>(c.upper),
                                      FixedText<5>(c.lower)});
  }
  bytes.Add(AirwaySegmentFileRecord{FixedText<8>("GONE"), 1, -1, 10, {}, {}});
  std::vector<AirwaySegmentRec> table;
  EXPECT_TRUE(ParseAirways(bytes.All(), table));
  ASSERT_EQ(table.size(), std::size(cases));
  for (std::size_t i = 0; i < table.size(); ++i) {
    EXPECT_EQ(table[i].strName.Raw().substr(0, 6), "UL607 ");
    EXPECT_EQ(table[i].strUpper, cases[i].shownUpper);
    EXPECT_EQ(table[i].strLower, cases[i].shownLower);
  }
}

TEST(AirspaceLoader, PointsFollowTheirRecordAndAWildCountEndsTheTable) {
  AirspaceFileRecord first;
  first.strCode = "C";
  first.strUpper = "04500";
  first.intPoints = 1;
  AirspaceFileRecord skipped = first;
  skipped.strCode.characters[0] = '\0';
  skipped.intPoints = 0;
  AirspaceFileRecord none = first;
  none.intPoints = -5;
  AirspaceFileRecord wild = first;
  wild.intPoints = std::numeric_limits<std::int16_t>::max();
  DatabaseBytes bytes;
  bytes.Add(first)
      .Add(PointFileRecord{1, 2})
      .Add(PointFileRecord{3, 4})
      .Add(skipped)
      .Add(PointFileRecord{5, 6});
  bytes.Add(none).Add(wild).Add(PointFileRecord{7, 8});
  std::vector<AirspaceRec> table;
  EXPECT_FALSE(ParseAirspaces(bytes.All(), table));
  ASSERT_EQ(table.size(), 2u);
  EXPECT_EQ(table[0].strUpper, "4500");
  EXPECT_EQ(table[0].points, (std::vector<Position>{{1, 2}, {3, 4}}));
  EXPECT_TRUE(table[1].points.empty());
}

TEST(WorldLoader, PolygonsStopBehindShape17003AndLinesDoNot) {
  DatabaseBytes bytes;
  for (const std::int32_t id : {1, 17003, 2}) {
    WorldShapeFileRecord shape;
    shape.lngID = id;
    shape.lngPoints = 0;
    shape.sngBox2 = 22;
    shape.sngBox3 = 33;
    bytes.Add(shape).Add(PointFileRecord{static_cast<float>(id), 0});
  }
  WorldShapes polygons;
  WorldShapes lines;
  EXPECT_TRUE(ParseWorldPolygons(bytes.All(), polygons));
  EXPECT_TRUE(ParseWorldLines(bytes.All(), lines));
  EXPECT_EQ(polygons.shapes.size(), 2u);
  EXPECT_EQ(lines.shapes.size(), 3u);
  // The file holds the third bound before the second.
  float third = 0;
  std::memcpy(&third, bytes.All().data() + 13, sizeof(third));
  EXPECT_EQ(third, 33);
  EXPECT_EQ(polygons.shapes[0].sngBox2, 22);
}

TEST(WorldLoader, AWildPointCountTakesNoMemory) {
  for (const std::int32_t count : {std::numeric_limits<std::int32_t>::max(), 1000000}) {
    WorldShapeFileRecord shape;
    shape.lngPoints = count;
    DatabaseBytes bytes;
    bytes.Add(shape).Add(PointFileRecord{1, 1});
    WorldShapes table;
    EXPECT_FALSE(ParseWorldLines(bytes.All(), table));
    EXPECT_TRUE(table.shapes.empty());
    EXPECT_LT(table.points.capacity(), 100u);
  }
}

TEST(UserWaypoints, LinesAreReadAndBadOnesLeftOut) {
  const MagneticVariationGrid grid;
  const struct {
    const char* text;
    bool good;
    std::size_t rows;
  } cases[] = {{"VLMUSERDB\r\n# mine\r\nHOME;My house;50.5;-8.25\r\n", true, 1},
               {"VLMUSERDB\nA;;1;2\nB;b;91;0\nC;c;1\nD;d;1;2;extra", false, 2},
               {"VLMUSERDB", true, 0},
               {"OTHER\nA;a;1;2", false, 0},
               {"", true, 0}};
  for (const auto& c : cases) {
    std::vector<UserWaypointRec> table;
    EXPECT_EQ(ParseUserWaypoints(c.text, grid, table), c.good) << c.text;
    EXPECT_EQ(table.size(), c.rows) << c.text;
  }
  std::vector<UserWaypointRec> table;
  ParseUserWaypoints(cases[0].text, grid, table);
  EXPECT_EQ(table[0].strCode, "HOME");
  EXPECT_EQ(table[0].sngLon, -8.25F);
}

namespace {

class Recorder : public LoadListener {
 public:
  void ShowProgress(std::string_view text) override { progress.emplace_back(text); }
  void WriteInfoLog(std::string_view line) override { log.emplace_back(line); }
  std::vector<std::string> progress;
  std::vector<std::string> log;
};

}  // namespace

TEST(NaviDatabases, TheFirstFileThatMustNotBeEmptyEndsTheLoad) {
  const TemporaryFolder folder;
  const DatabaseLocation location{AppFolder(folder.Path()), "\\database\\FS09\\",
                                  " for Flight Simulator 2004"};
  folder.Write("database/dijinter.vlm", "cut off");
  Recorder recorder;
  NavDatabase db;
  const LoadResult result = ReadNaviDatabases(location, recorder, db);
  EXPECT_FALSE(result.successful);
  EXPECT_EQ(result.emptyFile, " vicways.vlm ");
  const std::vector<std::string> progress = {
      "...loading taxiways for Flight Simulator 2004", "...loading polygons for Flight Simulator 2004",
      "...loading markers for Flight Simulator 2004", "...loading minimal safety altitude",
      "...loading intersections"};
  EXPECT_EQ(recorder.progress, progress);
  const std::vector<std::string> log = {"taxi.vlm = 0; taxicount = -1",
                                        "poly.vlm = 0; polycount = -1",
                                        "marker.vlm = 0; markercount = -1",
                                        "msa.vlm = 0; msacount = -1",
                                        "Error ReadNaviDatabases with dijinter.vlm ",
                                        "dijinter.vlm = 7",
                                        "vicways.vlm = 0"};
  EXPECT_EQ(recorder.log, log);
}
