#include "navdata/navaid_loader.h"

#include <gtest/gtest.h>

#include "navdata/nav_database.h"
#include "tests/navdata/database_bytes.h"

namespace {

IntersectionFileRecord Node(std::int32_t index, std::string_view code, int low, int high, char letter = ' ') {
  IntersectionFileRecord record;
  record.lngIndex = index;
  record.strCode = code;
  record.bytLowAlt = static_cast<std::uint8_t>(low);
  record.bytHighAlt = static_cast<std::uint8_t>(high);
  record.strAirwayType.characters[0] = letter;
  return record;
}

ConnectionFileRecord Link(std::int32_t next, std::string_view airway) {
  ConnectionFileRecord record;
  record.lngNext = next;
  record.strAirway = airway;
  return record;
}

}  // namespace

TEST(VorLoader, TypesBecomeTheirTextsAndTheVariationIsLookedUp) {
  const struct {
    std::int16_t type;
    const char* text;
  } cases[] = {{1, "VOR"}, {2, "VORTAC"}, {3, "TACAN"}, {4, "VOR-DME"},
               {5, "VOR"}, {8, "VOR"},    {9, "DME"},   {0, "VOR"}};
  DatabaseBytes bytes;
  for (const auto& c : cases) {
    VorFileRecord record;
    record.strCode = "FFM";
    record.sngMagVar = 99;
    record.intType = c.type;
    bytes.Add(record);
  }
  NavDatabase db;
  ASSERT_TRUE(ParseVors(bytes.All(), db));
  for (std::size_t i = 0; i < std::size(cases); ++i) {
    EXPECT_EQ(db.vors[i].strType, cases[i].text);
    EXPECT_EQ(db.vors[i].sngMagVar, 0);
  }
}

TEST(NdbLoader, ClassSevenHasADme) {
  DatabaseBytes bytes;
  for (const char* kind : {"5", "7", " 7 ", "x", ""}) {
    NdbFileRecord record;
    record.strCode = "GL";
    record.strClass = kind;
    bytes.Add(record);
  }
  NavDatabase db;
  ASSERT_TRUE(ParseNdbs(bytes.All(), db));
  const char* expected[] = {"NDB", "NDB-DME", "NDB-DME", "NDB", "NDB"};
  for (std::size_t i = 0; i < db.ndbs.size(); ++i)
    EXPECT_EQ(db.ndbs[i].strType, expected[i]);
}

TEST(FixLoader, SkipsEmptySlotsAndKeepsTheWholeRowsOfACutFile) {
  FixFileRecord empty;
  empty.strRegion.characters[0] = '\0';
  FixFileRecord fix;
  fix.strCode = "TABUM";
  DatabaseBytes bytes;
  bytes.Add(fix).Add(empty).Add(fix);
  NavDatabase db;
  EXPECT_FALSE(ParseFixes(bytes.CutBy(1), db));
  ASSERT_EQ(db.fixes.size(), 1u);
  EXPECT_EQ(db.fixes[0].strCode, "TABUM");
}

TEST(IntersectionLoader, RowsComeWhereTheirNumberSays) {
  DatabaseBytes bytes;
  bytes.Add(Node(2, "AAAAA", 1, 2)).Add(Link(5, "V1")).Add(Link(5, "J1")).Add(Link(7, "J2"));
  bytes.Add(Node(5, "BBBBB", 0, 0));
  NavDatabase db;
  ASSERT_TRUE(ParseIntersections(bytes.All(), db));
  EXPECT_EQ(db.intersections.size(), 40001u);
  EXPECT_EQ(db.lngIntersections, 5);
  EXPECT_TRUE(db.intersections[0].strCode.Empty());
  const IntersectionRec& node = db.intersections[2];
  ASSERT_EQ(db.LowAlt(node).size(), 1u);
  ASSERT_EQ(db.HighAlt(node).size(), 2u);
  EXPECT_EQ(db.HighAlt(node)[1].strAirway, "J2");
  EXPECT_EQ(AirwayLevel(node), 'X');
  BuildIndexes(db);
  EXPECT_EQ(db.intersectionsByIdent.First("BBBBB"), 5);
}

TEST(IntersectionLoader, TheLetterFollowsTheLinks) {
  const struct {
    char stated;
    int low, high;
    char level;
  } cases[] = {{' ', 1, 1, 'X'}, {' ', 1, 0, 'V'}, {' ', 0, 1, 'J'}, {' ', 0, 0, ' '}, {'L', 1, 0, 'V'},
               {'L', 0, 1, 'X'}, {'H', 1, 0, 'X'}, {'H', 0, 1, 'J'}, {'B', 0, 0, 'X'}};
  for (const auto& c : cases) {
    DatabaseBytes bytes;
    bytes.Add(Node(1, "AAAAA", c.low, c.high, c.stated));
    for (int i = 0; i < c.low + c.high; ++i)
      bytes.Add(Link(1, "A1"));
    NavDatabase db;
    ASSERT_TRUE(ParseIntersections(bytes.All(), db));
    EXPECT_EQ(AirwayLevel(db.intersections[1]), c.level) << c.stated << c.low << c.high;
  }
}

TEST(IntersectionLoader, NumbersOffTheTableLoseOnlyTheirRow) {
  DatabaseBytes bytes;
  bytes.Add(Node(40000, "LAST", 0, 0))
      .Add(Node(40001, "OVER", 1, 0))
      .Add(Link(1, "V1"))
      .Add(Node(-1, "NEGA", 0, 0));
  NavDatabase db;
  EXPECT_FALSE(ParseIntersections(bytes.All(), db));
  EXPECT_EQ(db.lngIntersections, 40000);
  BuildIndexes(db);
  EXPECT_EQ(db.intersectionsByIdent.First("LAST"), 40000);
  EXPECT_EQ(db.intersectionsByIdent.First("OVER"), -1);
}

TEST(IntersectionLoader, CutAtEveryByteTheLinkCountsTellWhatIsThere) {
  DatabaseBytes whole;
  whole.Add(Node(1, "AAAAA", 2, 2));
  for (int i = 0; i < 4; ++i)
    whole.Add(Link(1, "A1"));
  for (std::size_t cut = 1; cut < whole.All().size(); ++cut) {
    NavDatabase db;
    EXPECT_FALSE(ParseIntersections(whole.CutBy(cut), db));
    const IntersectionRec& node = db.intersections[1];
    EXPECT_EQ(db.LowAlt(node).size() + db.HighAlt(node).size(),
              db.lowConnections.size() + db.highConnections.size());
  }
}
