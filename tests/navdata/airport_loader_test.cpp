#include "navdata/airport_loader.h"

#include <gtest/gtest.h>

#include <limits>

#include "navdata/ils_positions.h"
#include "tests/navdata/database_bytes.h"

namespace {

AirportFileRecord Airport(std::int32_t index, std::string_view code) {
  AirportFileRecord record;
  record.lngIndex = index;
  record.strCode = code;
  record.strName = "Somewhere";
  record.sngLat = 50;
  record.sngLon = 8;
  return record;
}

RunwayFileRecord Runway(std::string_view id, std::string_view recip) {
  RunwayFileRecord record;
  record.strRwyID = id;
  record.strRwyIDRecip = recip;
  record.intLength = 12000;
  return record;
}

IlsFileRecord Ils(std::string_view code) {
  IlsFileRecord record;
  record.strCode = code;
  record.sngLat = 50;
  record.sngLon = 8;
  record.sngCourse = 90;
  return record;
}

// EDDF with two runways, a frequency, a parking position and two ILS; KJFK with nothing.
DatabaseBytes TwoAirports() {
  AirportFileRecord frankfurt = Airport(0, "EDDF");
  frankfurt.lngRunways = 2;
  frankfurt.lngFrequencies = 1;
  frankfurt.lngParkings = 1;
  frankfurt.lngIls = 2;
  RunwayFileRecord east = Runway("09", "27");
  east.strIlsCode = "ifre";
  FrequencyFileRecord frequency;
  frequency.strName = "FRANKFURT TOWER";
  frequency.bytType = 6;
  ParkingFileRecord parking;
  parking.lngNumber = 14;
  DatabaseBytes bytes;
  bytes.AddValue(std::int32_t{2})
      .Add(frankfurt)
      .Add(east)
      .Add(Runway("37", "36"))
      .Add(frequency)
      .Add(parking);
  bytes.Add(Ils("IFRE")).Add(Ils("IXXX")).Add(Airport(1, "KJFK"));
  return bytes;
}

std::string CodeOf(const NavDatabase& db, std::size_t row) {
  return db.airports.at(row).strCode.Text();
}

}  // namespace

TEST(AirportLoader, RowsSubTablesAndPseudoAirports) {
  NavDatabase db;
  ASSERT_TRUE(ParseAirports(TwoAirports().All(), db));
  EXPECT_EQ(db.lngAirports, 2);
  EXPECT_EQ(db.AirportCount(), 2);
  EXPECT_EQ(CodeOf(db, 0), "EDDF");
  EXPECT_EQ(CodeOf(db, 1), "KJFK");
  EXPECT_EQ(CodeOf(db, 2), "AFIL");
  EXPECT_EQ(CodeOf(db, 3), "ZZZZ");
  EXPECT_EQ(db.airports[3].strName, "from arbitrary location");
  EXPECT_EQ(db.airports[4].strName, "to arbitrary location");
  const auto runways = db.Runways(db.airports[0]);
  ASSERT_EQ(runways.size(), 2u);
  EXPECT_EQ(runways[1].strRwyID, "N");
  EXPECT_EQ(runways[1].strRwyIDRecip, "36");
  EXPECT_EQ(db.Frequencies(db.airports[0])[0].bytType, 6);
  EXPECT_EQ(db.Parkings(db.airports[0])[0].lngNumber, 14);
  EXPECT_TRUE(db.Runways(db.airports[1]).empty());
  BuildIndexes(db);
  EXPECT_EQ(db.FindAirportByCode("KJFK"), 1);
  EXPECT_EQ(db.FindAirportByCode("AFIL"), 2);
  EXPECT_EQ(db.FindAirportByCode("ZZZZ"), -1);
  ASSERT_NE(db.FindIls(0, " ifre "), nullptr);
  EXPECT_EQ(db.FindIls(0, "NONE"), nullptr);
  EXPECT_EQ(db.FindIls(99, "IFRE"), nullptr);
}

TEST(AirportLoader, TheFileDecidesTheRow) {
  DatabaseBytes bytes;
  bytes.AddValue(std::int32_t{3}).Add(Airport(1, "BBBB")).Add(Airport(0, "AAAA"));
  NavDatabase db;
  EXPECT_TRUE(ParseAirports(bytes.All(), db));
  EXPECT_EQ(CodeOf(db, 0), "AAAA");
  EXPECT_EQ(CodeOf(db, 1), "BBBB");
}

TEST(AirportLoader, EmptySlotsHaveNoSubRecords) {
  AirportFileRecord empty;
  empty.lngRunways = 5;
  DatabaseBytes bytes;
  bytes.AddValue(std::int32_t{3})
      .Add(Airport(0, "AAAA"))
      .Add(Airport(1, "BBBB"))
      .Add(empty)
      .Add(Airport(2, "CCCC"));
  NavDatabase db;
  EXPECT_TRUE(ParseAirports(bytes.All(), db));
  EXPECT_EQ(db.AirportCount(), 3);
  EXPECT_EQ(CodeOf(db, 0), "AAAA");
  EXPECT_EQ(CodeOf(db, 2), "CCCC");
}

TEST(AirportLoader, CutAtEveryByteItKeepsTheWholeRows) {
  const DatabaseBytes whole = TwoAirports();
  for (std::size_t cut = 1; cut <= whole.All().size(); ++cut) {
    NavDatabase db;
    // A cut right behind the first airport leaves a whole file of one airport.
    const bool betweenAirports = cut == RecordSize<AirportFileRecord>();
    const bool onlyTheCount = whole.All().size() - cut == sizeof(std::int32_t);
    EXPECT_EQ(ParseAirports(whole.CutBy(cut), db), betweenAirports || onlyTheCount) << cut;
    EXPECT_LE(db.AirportCount(), 2);
    if (cut < 200) {
      EXPECT_EQ(CodeOf(db, 0), "EDDF");
    }
  }
}

TEST(AirportLoader, WildNumbersTakeNoMemoryAndLoseOnlyTheirRow) {
  AirportFileRecord wild = Airport(std::numeric_limits<std::int32_t>::max(), "WILD");
  AirportFileRecord greedy = Airport(1, "GRDY");
  greedy.lngRunways = std::numeric_limits<std::int32_t>::max();
  AirportFileRecord negative = Airport(0, "NEGA");
  negative.lngIls = -7;
  DatabaseBytes bytes;
  bytes.AddValue(std::numeric_limits<std::int32_t>::max()).Add(negative).Add(wild).Add(greedy);
  NavDatabase db;
  EXPECT_FALSE(ParseAirports(bytes.All(), db));
  EXPECT_EQ(db.AirportCount(), 2);
  EXPECT_EQ(CodeOf(db, 0), "NEGA");
  EXPECT_LT(db.airports.size(), 100u);
}

TEST(LookupTexts, ACountTooSmallLosesTheRowsThatDoNotFit) {
  DatabaseBytes bytes;
  bytes.AddValue(std::int32_t{1});
  for (const char* name : {"Europe", "Asia", "Africa"})
    bytes.Add(RegionFileRecord{FixedText<30>(name)});
  NavDatabase db;
  EXPECT_FALSE(ParseRegions(bytes.All(), db));
  ASSERT_EQ(db.regions.size(), 2u);
  EXPECT_EQ(db.regions[1], "Asia");
}

TEST(LookupTexts, EmptySlotsAreSkippedAndFieldsSplit) {
  StateFileRecord empty;
  empty.strState.characters[0] = '\0';
  DatabaseBytes bytes;
  bytes.AddValue(std::int32_t{2}).Add(empty);
  bytes.Add(StateFileRecord{FixedText<40>("  Hesse "), FixedText<40>("Germany")});
  NavDatabase db;
  EXPECT_TRUE(ParseStates(bytes.All(), db));
  ASSERT_EQ(db.states.size(), 1u);
  EXPECT_EQ(db.states[0].strState.Raw().substr(0, 6), "Hesse ");
  EXPECT_EQ(db.states[0].strCountry, "Germany");
}

TEST(PendingIls, AreMarkedAsSuch) {
  IlsFileRecord ils = Ils("IABC");
  ils.strAirport = "EDDF";
  ils.strRwyID = "09";
  DatabaseBytes bytes;
  bytes.Add(ils).Add(ils);
  NavDatabase db;
  EXPECT_FALSE(ParsePendingIls(bytes.CutBy(1), db));
  ASSERT_EQ(db.pendingIls.size(), 1u);
  EXPECT_EQ(db.pendingIls[0].strAirport, "#");
  EXPECT_EQ(db.pendingIls[0].strRwyID, "N/A");
  EXPECT_EQ(db.pendingIls[0].intPending, -1);
}

TEST(ReassignIls, AnIlsMovesFromItsAntennaToTheThreshold) {
  NavDatabase db;
  ASSERT_TRUE(ParseAirports(TwoAirports().All(), db));
  ReassignILSCoords(db);
  const auto ils = db.Ils(db.airports[0]);
  EXPECT_EQ(ils[0].lngRwyLength, 12000);
  EXPECT_NEAR(ils[0].sngLat, 50, 1e-4);
  // 12000 ft are 1.97494 NM, against the course of 090 at 50N: 0.051207 degrees west.
  EXPECT_NEAR(ils[0].sngLon, 8 - 0.051207, 2e-5);
  EXPECT_EQ(ils[1].lngRwyLength, 0);
  EXPECT_EQ(ils[1].sngLon, 8);
}
