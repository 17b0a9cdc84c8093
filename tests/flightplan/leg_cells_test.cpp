#include "flightplan/leg_cells.h"

#include <gtest/gtest.h>

#include <stdexcept>

#include "flightplan/plan_legs.h"
#include "tests/flightplan/drawn_world.h"

namespace {

// Along the equator: EDDA, a VOR 60 NM on, EDDB 240 NM on, AFIL beyond it.
struct Table : DrawnPlan {
  Table() : DrawnPlan("airport EDDA 0 0 364\nairport EDDB 0 4 100\nairport EDDC 0 5 50") {
    SetDepartureAndDestination(plan, context, 0, 1);
    PlanWaypoint& vor = Add("VOR", "FFM", 0, 1);
    vor.Name = "FRANKFURT";
    vor.Freq = 114.2f;
    vor.MagVar = 3;
    plan.Row(0).MagVar = -2;
    RecomputePlan(plan, context);
    cells.Refresh();
  }
  std::string Row(int row, LegColumn from, LegColumn to) {
    std::string line;
    for (int column = static_cast<int>(from); column <= static_cast<int>(to); ++column)
      line += (column == static_cast<int>(from) ? "" : "|") + cells.Text(row, static_cast<LegColumn>(column));
    return line;
  }
  std::string Planned(int row) { return Row(row, LegColumn::code, LegColumn::eta); }
  std::string Flown(int row) { return Row(row, LegColumn::ata, LegColumn::fuel); }

  Settings settings;
  NavLog log;
  LegCells cells{plan, world.database, log, settings};
};

TEST(LegCells, ShowThePlannedLegs) {
  Table table;
  EXPECT_EQ(table.Planned(0), "EDDA|EDDA Airport|      |||");
  // 60 NM at 240 kts; west variation adds to the true course.
  EXPECT_EQ(table.Planned(1), "FFM|FRANKFURT|114.200|092°/090°|060 NM|00:15");
  // 150 NM at 240 kts, 30 NM at 120: 52.5 minutes; 67.5 in all rounds to even.
  EXPECT_EQ(table.Planned(2), "EDDB|EDDB Airport|      |087°/090°|180 NM|01:08");
  EXPECT_EQ(table.cells.RowCount(), 3);
}

TEST(LegCells, TheAlternateIsOneMoreRow) {
  Table table;
  table.plan.Row(2).MagVar = 10;
  SetAlternate(table.plan, table.context, 2);
  table.cells.Refresh();
  ASSERT_EQ(table.cells.RowCount(), 4);
  EXPECT_TRUE(table.cells.IsAlternate(3));
  EXPECT_FALSE(table.cells.IsAlternate(2));
  EXPECT_EQ(table.Planned(3), "EDDC|Alternate: EDDC Airport|      |080°/090°|060 NM|");
  EXPECT_EQ(NavaidPicture(table.cells.RowAt(3)), 9);
  EXPECT_THROW(table.cells.RowAt(4), std::out_of_range);
}

TEST(LegCells, CoordinatesTakeTheNamesPlace) {
  Table table;
  table.plan.Row(1).Airway = "V1";
  table.cells.showCoords = true;
  EXPECT_EQ(table.cells.Text(1, LegColumn::name), "N00°00.0000' E001°00.0000'");
  table.settings.DECSEC = 0;
  EXPECT_EQ(table.cells.Text(1, LegColumn::name), "N00°00'00\" E001°00'00\"");
}

TEST(LegCells, NamesBearTheAirwayFlown) {
  const struct {
    const char* airway;
    int minAlt, maxAlt;
    const char* note;
  } cases[] = {
      {"Y180", 24500, 46000, " (Y180 245-460)"},
      {"V1", 0, 4550, " (V1 0-45.5)"},
      {"V1", -1, 46000, " (V1)"},
      {"V1", 24500, -1, " (V1)"},
      {"", 24500, 46000, ""},
      {"-", 24500, 46000, ""},
      {"0", -1, -1, " (0)"},
  };
  for (const auto& c : cases) {
    PlanWaypoint row;
    row.Airway = std::string_view(c.airway);
    row.AirwayMinAlt = c.minAlt;
    row.AirwayMaxAlt = c.maxAlt;
    EXPECT_EQ(AirwayNote(row), c.note) << c.airway;
  }
  Table table;
  table.plan.Row(1).Name = "K\xd6LN";
  table.plan.Row(1).Airway = "V1";
  EXPECT_EQ(table.cells.Text(1, LegColumn::name), "KÖLN (V1)");
}

TEST(LegCells, PicturesFollowKindAndProcedure) {
  const struct {
    const char* sym;
    RowKind kind;
    int picture;
  } cases[] = {
      {"VOR", RowKind::enroute, 0},   {"NDB", RowKind::enroute, 1}, {"Int", RowKind::enroute, 2},
      {"Fix", RowKind::enroute, 3},   {"VOR", RowKind::sid, 4},     {"NDB", RowKind::star, 5},
      {"Int", RowKind::sid, 6},       {"Fix", RowKind::star, 7},    {"Uwp", RowKind::enroute, 10},
      {"Uwp", RowKind::sid, 11},      {"", RowKind::departure, 8},  {"", RowKind::destination, 9},
      {"VOR", RowKind::departure, 8}, {"?", RowKind::enroute, -1},
  };
  for (const auto& c : cases) {
    PlanWaypoint row;
    row.Sym = std::string_view(c.sym);
    row.Kind = c.kind;
    EXPECT_EQ(NavaidPicture(row), c.picture) << c.sym;
  }
}

TEST(LegCells, TheFuelColumnNamesItsUnit) {
  EXPECT_EQ(LegHeading(LegColumn::sym, 2), "Sym");
  EXPECT_EQ(LegHeading(LegColumn::groundSpeed, 2), "GS");
  EXPECT_EQ(LegHeading(LegColumn::fuel, 0), "Fuel (Gal)");
  EXPECT_EQ(LegHeading(LegColumn::fuel, 2), "Fuel (kg)");
}

TEST(NavLog, ShowsWhatThePassedRowsHad) {
  Table table;
  table.world.database.airports[0].sngAltitude = 364;
  EXPECT_EQ(table.Flown(0), "||364 ft|") << "the departure's altitude";
  EXPECT_EQ(table.Flown(1), "|||");
  table.settings.FUEL = 1;
  FillWPTableWithNavLog(table.log, table.plan, 0, 1200, 87.4, 1439.9, 1000);
  FillWPTableWithNavLog(table.log, table.plan, 1, 8049.6, 236, 1454, 875);
  FillWPTableWithNavLog(table.log, table.plan, 2, 95, 7, 1500, 12);
  EXPECT_EQ(table.Flown(0), "23:59|87 kt|1200 ft|6660 / 0%");
  EXPECT_EQ(table.Flown(1), "00:14|236 kt|8050 ft|5828 / 12%") << "12.5 rounds to even";
  EXPECT_EQ(table.Flown(2), "01:00|07 kt|095 ft|080 / 99%");
  FillWPTableWithNavLog(table.log, table.plan, 1, 9000, 240, 1460, 1100);
  EXPECT_EQ(table.Flown(1), "00:20|240 kt|9000 ft|7326 / -10%") << "passed again";
  EXPECT_THROW(FillWPTableWithNavLog(table.log, table.plan, 3, 0, 0, 0, 0), std::out_of_range);
  EXPECT_EQ(table.log.entries.size(), 3u);
}

TEST(NavLog, WithoutFuelAtFirstNothingIsUsed) {
  Table table;
  FillWPTableWithNavLog(table.log, table.plan, 0, 0, 0, 0, 0);
  FillWPTableWithNavLog(table.log, table.plan, 1, 0, 0, 0, 50);
  EXPECT_EQ(table.cells.Text(0, LegColumn::fuel), "000 / 0%");
  EXPECT_EQ(table.log.At(1)->percentUsed, 0);
}

TEST(NavLog, StaysWithItsWaypoints) {
  Table table;
  table.Add("Fix", "LATER", 0, 3);
  for (int row = 0; row < 3; ++row)
    FillWPTableWithNavLog(table.log, table.plan, row, 0, 100 + row, 0, 500);
  PlanWaypoint inserted;
  inserted.Code = "NEW";
  inserted.Lon = 0.5f;
  int after = 0;
  InsertWaypoint(table.plan, table.context, after, inserted, false);
  KeepWithRows(table.log, table.plan);
  EXPECT_EQ(table.log.At(1), nullptr);
  ASSERT_NE(table.log.At(3), nullptr);
  EXPECT_EQ(table.log.At(3)->groundSpeed, 102);
  DeleteWaypoint(table.plan, table.context, 2, false);
  KeepWithRows(table.log, table.plan);
  EXPECT_EQ(table.log.At(2)->groundSpeed, 102);
  EXPECT_EQ(table.log.entries.size(), 2u);
  ClearFlightPlan(table.plan);
  KeepWithRows(table.log, table.plan);
  EXPECT_TRUE(table.log.entries.empty());
  EXPECT_FALSE(table.log.referenceFuel.has_value());
}

TEST(ReplaceArrivalByAlternate, TakesTheDestinationsPlace) {
  Table table;
  EXPECT_FALSE(AskReplaceArrivalByAlternate(table.plan, table.context)) << "there is none";
  EXPECT_TRUE(table.messages.texts.empty());
  SetAlternate(table.plan, table.context, 2);
  table.messages.answer = false;
  const FlightPlan before = table.plan;
  EXPECT_FALSE(AskReplaceArrivalByAlternate(table.plan, table.context));
  EXPECT_EQ(table.plan, before);
  EXPECT_EQ(table.messages.texts.back(), "Do you wish to replace arrival by alternate airport?");
  table.messages.answer = true;
  EXPECT_TRUE(AskReplaceArrivalByAlternate(table.plan, table.context));
  EXPECT_EQ(table.Codes(), "EDDA FFM EDDC");
  EXPECT_EQ(table.plan.DestinationIndex, 2);
  EXPECT_EQ(table.plan.AlternateIndex, -1);
  EXPECT_FALSE(table.plan.AlternateRow.has_value());
  EXPECT_EQ(table.plan.DestinationLon, 5);
  EXPECT_EQ(table.plan.TotalDistance, 300);
  EXPECT_EQ(table.plan.Row(2).Dist, 240);
  EXPECT_EQ(table.plan.Row(2).Kind, RowKind::destination);
}

}  // namespace
