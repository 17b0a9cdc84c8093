#include "map/modDeclutter.h"

#include <gtest/gtest.h>

#include "tests/map/recording_surface.h"

namespace {

// A grid of the map's size; "ABCD" measures 240 units and covers two columns.
struct Grid {
  RecordingSurface surface;
  modDeclutter labels;

  Grid() { labels.InitDeclutterGrid(surface); }

  // Takes a cell with everything that a label of one column would take there.
  void Take(std::int32_t cell) { labels.TryCellRun(cell, labels.LastDirection, ""); }
  int TakenCells() const {
    int count = 0;
    for (std::int32_t cell = 0; cell < labels.CellCount; ++cell)
      count += labels.Taken(cell) ? 1 : 0;
    return count;
  }
};

constexpr std::int32_t R = 41;  // rows

TEST(DeclutterGrid, CoversTheMapInCellsOf170) {
  const Grid grid;
  EXPECT_EQ(grid.labels.CellWidth, 170);
  EXPECT_EQ(grid.labels.CellHeight, 170);
  EXPECT_EQ(grid.labels.GridColumns, 67);
  EXPECT_EQ(grid.labels.GridRows, R);
  EXPECT_EQ(grid.labels.CellCount, 2747);
  EXPECT_EQ(grid.labels.CellIndexOf(0, 0), 0);
  EXPECT_EQ(grid.labels.CellIndexOf(169.9F, 170), 1);
  EXPECT_EQ(grid.labels.CellIndexOf(170, 0), R);
  EXPECT_EQ(grid.labels.CellIndexOf(0, 6969), 40);
  EXPECT_EQ(grid.labels.CellIndexOf(0, 6970), 40) << "the page's last strip is no row of its own";
  EXPECT_EQ(grid.labels.CellIndexOf(0, 7000), 40);
  EXPECT_EQ(grid.labels.CellIndexOf(11324, 0), 66 * R);
}

struct Candidate {
  std::int32_t offset;
  std::int32_t direction;
};

// The candidates of each kind in the order in which they are tried: each time
// the one that was answered is taken away.
TEST(DeclutterSearch, FollowsTheOrderOfTheKind) {
  const std::vector<Candidate> everything = {{1, 0},  {-1, 4},     {-R, 8},      {R, 11},    {2, 1},
                                             {-2, 5}, {-2 * R, 9}, {2 * R, 12},  {3, 2},     {4, 3},
                                             {-3, 6}, {-4, 7},     {-3 * R, 10}, {3 * R, 13}};
  struct Case {
    LabelKind kind;
    std::vector<std::int32_t> left;  // offsets that this kind never tries
  };
  const Case cases[] = {{LabelKind::airport, {}},
                        {LabelKind::ils, {}},
                        {LabelKind::vor, {-1, -2, -3, -4}},
                        {LabelKind::ndb, {1, -1, 2, -2, 3, 4, -3, -4}},
                        {LabelKind::fix, {-1, -2, 4, -3, -4}},
                        {LabelKind::airway, {-2, 4}}};
  for (const Case& c : cases) {
    Grid grid;
    const std::int32_t cell = 20 * R + 20;
    grid.Take(cell);
    std::vector<std::string> expected;
    std::vector<std::string> tried;
    for (const Candidate& one : everything) {
      if (std::find(c.left.begin(), c.left.end(), one.offset) != c.left.end()) continue;
      expected.push_back(std::to_string(one.offset) + "/" + std::to_string(one.direction));
    }
    for (std::int32_t found; (found = grid.labels.FindFreeCell(cell, "", c.kind)) != cell;)
      tried.push_back(std::to_string(found - cell) + "/" + std::to_string(grid.labels.LastDirection));
    EXPECT_EQ(tried, expected) << "kind " << static_cast<int>(c.kind);
  }
}

TEST(DeclutterSearch, StaysInItsColumnAndOnTheGrid) {
  struct Case {
    std::int32_t cell;
    std::vector<std::int32_t> offsets;  // of kind 0, in order
  };
  const Case cases[] = {
      {20 * R, {1, -R, R, 2, -2 * R, 2 * R, 3, 4, -3 * R, 3 * R}},                 // top row
      {20 * R + 40, {-1, -R, R, -2, -2 * R, 2 * R, -3, -4, -3 * R, 3 * R}},        // bottom row
      {20 * R + 38, {1, -1, -R, R, 2, -2, -2 * R, 2 * R, -3, -4, -3 * R, 3 * R}},  // near it
      {20, {1, -1, R, 2, -2, 2 * R, 3, 4, -3, -4, 3 * R}},                         // first column
      {66 * R + 20, {1, -1, -R, 2, -2, -2 * R, 3, 4, -3, -4, -3 * R}},             // last column
      {65 * R + 20, {1, -1, -R, R, 2, -2, -2 * R, 3, 4, -3, -4, -3 * R}}};
  for (const Case& c : cases) {
    Grid grid;
    grid.Take(c.cell);
    std::vector<std::int32_t> offsets;
    for (std::int32_t found; (found = grid.labels.FindFreeCell(c.cell, "", LabelKind::airport)) != c.cell;)
      offsets.push_back(found - c.cell);
    EXPECT_EQ(offsets, c.offsets) << "cell " << c.cell;
  }
}

TEST(DeclutterSearch, TakesACellOnlyWithTheWholeRun) {
  Grid grid;
  const std::int32_t cell = 10 * R + 10;
  grid.Take(cell + 1 + R);  // the second column of the place below
  EXPECT_EQ(grid.labels.TryCellRun(cell + 1, 0, "ABCD"), modDeclutter::occupied);
  EXPECT_FALSE(grid.labels.Taken(cell + 1)) << "a refused run claims nothing";
  grid.labels.LastDirection = 5;
  EXPECT_EQ(grid.labels.TryCellRun(cell + 1, 0, "ABCD"), modDeclutter::occupied);
  EXPECT_EQ(grid.labels.LastDirection, 5);
  EXPECT_EQ(grid.labels.TryCellRun(cell, 9, "ABCD"), cell);
  EXPECT_EQ(grid.labels.LastDirection, 9);
  EXPECT_TRUE(grid.labels.Taken(cell) && grid.labels.Taken(cell + R));
}

TEST(CellToPoint, SnapsByDirection) {
  const Grid grid;
  struct Case {
    std::int32_t direction;
    float x, y;
  };
  // Cell 5 of column 3: its corner is 510, 850. The wanted place is 7, 9.
  const Case cases[] = {{0, 7, 935},  {1, 7, 850},  {2, 7, 850},    {3, 7, 850},   {4, 7, 765},  {5, 7, 850},
                        {6, 7, 850},  {7, 7, 850},  {8, 595, 9},    {9, 595, 9},   {10, 595, 9}, {11, 510, 9},
                        {12, 510, 9}, {13, 510, 9}, {14, 595, 935}, {-1, 595, 935}};
  for (const Case& c : cases) {
    const SurfacePoint place = grid.labels.CellToPoint(3 * R + 5, 7, 9, c.direction);
    EXPECT_EQ(place.x, c.x) << c.direction;
    EXPECT_EQ(place.y, c.y) << c.direction;
  }
}

TEST(PlaceLabel, ClaimsTheCellsOfTopAndBottomEdge) {
  Grid grid;
  const SurfacePoint place = grid.labels.PlaceLabel(340, 300, "ABCD", LabelKind::vor);
  EXPECT_EQ(place.x, 340);
  EXPECT_EQ(place.y, 300);
  EXPECT_FALSE(grid.labels.LabelMoved);
  // 240 units are 1.4 cells, so 2 columns; 300 to 400 touches rows 1 and 2.
  for (const std::int32_t cell : {2 * R + 1, 2 * R + 2, 3 * R + 1, 3 * R + 2})
    EXPECT_TRUE(grid.labels.Taken(cell)) << cell;
  EXPECT_EQ(grid.TakenCells(), 4);
}

TEST(PlaceLabel, CountsColumnsToTheNearestEven) {
  struct Case {
    const char* text;
    int columns;
  };
  // 60 units a character; 255 and 425 would be the ties, which no text here meets.
  const Case cases[] = {{"", 1}, {"A", 1}, {"AB", 2}, {"ABCD", 2}, {"ABCDE", 3}, {"  AB  ", 2}};
  for (const Case& c : cases) {
    Grid grid;
    grid.labels.PlaceLabel(340, 10, c.text, LabelKind::vor);
    EXPECT_EQ(grid.TakenCells(), c.columns) << '"' << c.text << '"';
  }
}

TEST(PlaceLabel, LeavesAnchorsOffThePageAlone) {
  const SurfacePoint places[] = {{11325, 100}, {100, 7000}, {-1, 100}, {100, -1}};
  for (const SurfacePoint wanted : places) {
    Grid grid;
    const SurfacePoint place = grid.labels.PlaceLabel(wanted.x, wanted.y, "ABCD", LabelKind::airport);
    EXPECT_EQ(place.x, wanted.x);
    EXPECT_EQ(place.y, wanted.y);
    EXPECT_EQ(grid.TakenCells(), 0);
  }
}

TEST(PlaceLabel, KeepsToTheGridAtTheEdges) {
  Grid right;
  right.labels.PlaceLabel(11300, 10, "ABCDEFGHIJ", LabelKind::airport);
  EXPECT_EQ(right.TakenCells(), 1) << "what leaves the right edge claims nothing";
  EXPECT_TRUE(right.labels.Taken(66 * R));
  Grid bottom;
  bottom.labels.PlaceLabel(10, 6970, "A", LabelKind::airport);
  EXPECT_EQ(bottom.TakenCells(), 1) << "its bottom edge is off the page";
  EXPECT_TRUE(bottom.labels.Taken(40));
}

TEST(PlaceLabel, PushesTheSecondOfTwoEqualLabelsDown) {
  Grid grid;
  grid.labels.PlaceLabel(340, 10, "ABCD", LabelKind::airport);
  const SurfacePoint second = grid.labels.PlaceLabel(340, 10, "ABCD", LabelKind::airport);
  EXPECT_EQ(second.x, 340);
  EXPECT_EQ(second.y, 170 + 85) << "the middle of the row below";
  EXPECT_TRUE(grid.labels.LabelMoved);
  // The run of the search's row and that of the bottom edge, 255 + 100.
  for (const std::int32_t cell : {2 * R + 1, 2 * R + 2, 3 * R + 1, 3 * R + 2})
    EXPECT_TRUE(grid.labels.Taken(cell)) << cell;
  EXPECT_EQ(grid.TakenCells(), 6);
}

TEST(PlaceLabel, AnNdbOnlyMovesSideways) {
  Grid grid;
  const SurfacePoint wanted{1700, 1700};
  std::vector<float> places;
  for (int i = 0; i < 5; ++i) {
    const SurfacePoint place = grid.labels.PlaceLabel(wanted.x, wanted.y, "A", LabelKind::ndb);
    EXPECT_EQ(place.y, wanted.y);
    places.push_back(place.x);
  }
  EXPECT_EQ(places, (std::vector<float>{1700, 1530 + 85, 1870, 1360 + 85, 2040}));
}

// No place at all: the label is printed over what is there, snapped as the last search that found one.
TEST(PlaceLabel, WithoutAPlaceKeepsTheStaleDirection) {
  struct Case {
    std::int32_t stale;
    float x, y;
  };
  const Case cases[] = {{0, 1710, 1785}, {4, 1710, 1615}, {9, 1785, 1720}, {12, 1700, 1720}, {6, 1710, 1700}};
  for (const Case& c : cases) {
    Grid grid;
    for (std::int32_t cell = 0; cell < grid.labels.CellCount; ++cell)
      grid.Take(cell);
    grid.labels.LastDirection = c.stale;
    const SurfacePoint place = grid.labels.PlaceLabel(1710, 1720, "ABCD", LabelKind::vor);
    EXPECT_EQ(place.x, c.x) << c.stale;
    EXPECT_EQ(place.y, c.y) << c.stale;
    EXPECT_EQ(grid.labels.LastDirection, c.stale);
  }
}

TEST(PlaceLabel, TheDirectionOutlivesARepaint) {
  Grid grid;
  grid.labels.LastDirection = 12;
  grid.labels.PlaceLabel(340, 10, "ABCD", LabelKind::airport);
  grid.labels.InitDeclutterGrid(grid.surface);
  EXPECT_EQ(grid.labels.LastDirection, 12);
  EXPECT_EQ(grid.TakenCells(), 0);
}

TEST(ReciprocalDesignator, NamesTheOtherEnd) {
  const std::pair<const char*, const char*> cases[] = {
      {"36", "18"}, {"18", "36"}, {"09L", "27R"}, {"27R", "9L"},  {"25C", "7C"}, {"01", "19"}, {"19", "1"},
      {"N", "S"},   {"S", "N"},   {"E", "W"},     {"W", "E"},     {"NE", "SW"},  {"SW", "NE"}, {"SE", "NW"},
      {"NW", "SE"}, {"00H", ""},  {"", ""},       {"9L ", "27R"}, {"NE ", "SW"}};
  for (const auto& [designator, reciprocal] : cases)
    EXPECT_EQ(ReciprocalDesignator(designator), reciprocal) << '"' << designator << '"';
}

}  // namespace
