#include "flightplan/procedures.h"

#include <gtest/gtest.h>

#include "tests/flightplan/drawn_world.h"
#include "tests/flightplan/procedure_bytes.h"

namespace {

std::vector<std::byte> SmallFile() {
  std::vector<std::byte> bytes;
  AppendProcedure(bytes, "EDDA", "09L", "ALPHA1A",
                  {{"A", 50, 9}, {"", 50.1F, 9.1F}, {"B", 50.019F, 10, 123.5F}});
  AppendProcedure(bytes, "EDDX", "27", "OTHER1X", {{"A", 50, 9}});
  AppendProcedure(bytes, "EDDA", "00", "EMPTY1B", {});
  AppendProcedure(bytes, "edda", "00ABC", "SOUTH2C", {{"V", 50, 8.5F}, {"N", 50, 8.7F}, {"F", 50, 8.8F}});
  return bytes;
}

struct Departing : DrawnPlan {
  Departing()
      : DrawnPlan(
            "airport EDDA 50 8 0\nairport EDDB 50 14 0\nA 50 9\nB 50 10\nA --30-- B V1\n"
            "vor V 50 8.5\nndb N 50 8.7\nfix F 50 8.8\nfix B 50.019 10\n") {}
  std::vector<SidStarEntry> entries = ParseProcedures(SmallFile(), "EDDA").entries;
};

TEST(ProcedureFile, RecordsHaveTheirSizes) {
  EXPECT_EQ(RecordSize<ProcedureFileHeader>(), 56u);
  EXPECT_EQ(RecordSize<ProcedureStepFileRecord>(), 61u);
}

TEST(ProcedureFile, GivesOneAirportsProcedures) {
  const ProcedureList list = ParseProcedures(SmallFile(), " edda");
  EXPECT_TRUE(list.complete);
  std::vector<std::string> texts;
  for (const SidStarEntry& entry : list.entries)
    texts.push_back(entry.ListText());
  EXPECT_EQ(texts,
            (std::vector<std::string>{"Rwy 09L   ALPHA1A", "Any Rwy    EMPTY1B", "Any Rwy    SOUTH2C"}));
  ASSERT_EQ(list.entries[0].Steps.size(), 3u);
  EXPECT_EQ(list.entries[0].Steps[2].Code, "B");
  EXPECT_EQ(list.entries[0].Steps[2].Track, 123.5F);
  EXPECT_TRUE(ParseProcedures(SmallFile(), "EGLL").entries.empty());
}

TEST(ProcedureFile, ACutFileGivesItsWholeEntries) {
  const std::vector<std::byte> whole = SmallFile();
  for (std::size_t size = 1; size < whole.size(); ++size) {
    const ProcedureList list = ParseProcedures(std::span(whole).first(size), "EDDA");
    const std::size_t first = 56 + 3 * 61;
    EXPECT_EQ(list.entries.empty(), size < first) << size;
    EXPECT_LE(list.entries.size(), 2u);
    const bool betweenEntries = size == first || size == first + 56 + 61 || size == first + 2 * 56 + 61;
    EXPECT_EQ(list.complete, betweenEntries) << size;
  }
  EXPECT_FALSE(ParseProcedures(std::span(whole).first(100), "EDDA").complete);
}

TEST(Procedures, StepsLinkByNameAndPlace) {
  Departing d;
  const struct {
    FileStep step;
    char letter;
  } cases[] = {{{"A", 50, 9}, 'I'},       {{"A", 50.0199F, 8.9801F}, 'I'},
               {{"A", 50.03F, 9}, 'M'},   {{"A", 50, 9.03F}, 'M'},
               {{"B", 50.019F, 10}, 'I'}, {{"B", 50.03F, 10}, 'F'},
               {{"V", 50, 8.5F}, 'V'},    {{"N", 50, 8.7F}, 'N'},
               {{"F", 50, 8.8F}, 'F'},    {{"NONE", 50, 9}, 'M'},
               {{"", 0, 0}, 'M'}};
  for (const auto& c : cases) {
    ProcedureStep step;
    step.Code = std::string_view(c.step.code);
    step.Lat = c.step.lat;
    step.Lon = c.step.lon;
    EXPECT_EQ(FindStepLink(step, d.world.database).letter, c.letter) << c.step.code << ' ' << c.step.lat;
  }
}

TEST(Procedures, BecomeRowsOfThePlan) {
  Departing d;
  d.Add("Uwp", "ME", 50.5F, 11);
  ApplySid(d.plan, d.context, d.entries[0]);
  EXPECT_EQ(d.Codes(), "EDDA A B ME EDDB") << "the step without a link is no row";
  EXPECT_EQ(d.plan.SidName, "ALPHA1A");
  EXPECT_EQ(d.plan.SidSteps.size(), 3u);
  EXPECT_EQ(d.plan.SidRows(), 2);
  EXPECT_EQ(d.plan.Row(1).Level, "V");
  EXPECT_GT(d.plan.Row(1).Dist, 30);
  ApplyStar(d.plan, d.context, d.entries[2]);
  EXPECT_EQ(d.Codes(), "EDDA A B ME V N F EDDB");
  EXPECT_EQ(d.plan.StarRows(), 3);
  EXPECT_EQ(d.plan.Row(4).Sym, "VOR");
  EXPECT_EQ(d.plan.Row(5).Sym, "NDB");
  EXPECT_EQ(d.plan.Row(6).Sym, "Fix");

  ApplySid(d.plan, d.context, d.entries[1]);
  EXPECT_EQ(d.Codes(), "EDDA ME V N F EDDB") << "another SID takes the first one's place";
  EXPECT_EQ(d.plan.SidName, "EMPTY1B");
  DeleteStar(d.plan, d.context);
  EXPECT_EQ(d.Codes(), "EDDA ME EDDB");
  EXPECT_TRUE(d.plan.StarName.empty());
  EXPECT_TRUE(d.plan.StarSteps.empty());
}

TEST(Procedures, ARowOfOneIsDeletedWithTheWholeOfIt) {
  Departing d;
  d.Add("Uwp", "ME", 50.5F, 11);
  ApplySid(d.plan, d.context, d.entries[0]);
  d.messages.answer = false;
  EXPECT_FALSE(DeleteTableRow(d.plan, d.context, 1));
  EXPECT_EQ(d.messages.texts.back(),
            "You cannot delete a single waypoint of a SID!\n      Do you wish to delete the entire SID?");
  EXPECT_EQ(d.Codes(), "EDDA A B ME EDDB");
  EXPECT_TRUE(DeleteTableRow(d.plan, d.context, 3)) << "an enroute row goes without a question";
  d.messages.answer = true;
  EXPECT_TRUE(DeleteTableRow(d.plan, d.context, 2));
  EXPECT_EQ(d.Codes(), "EDDA EDDB");
  EXPECT_TRUE(d.plan.SidName.empty());
  for (const int row : {-1, 0, 1, 2})
    EXPECT_FALSE(DeleteTableRow(d.plan, d.context, row)) << row;
}

TEST(Procedures, AreDeletedOnYes) {
  Departing d;
  ApplySid(d.plan, d.context, d.entries[0]);
  d.messages.answer = false;
  EXPECT_FALSE(AskDeleteSid(d.plan, d.context));
  EXPECT_EQ(d.plan.SidRows(), 2);
  d.messages.answer = true;
  EXPECT_TRUE(AskDeleteSid(d.plan, d.context));
  EXPECT_EQ(d.plan.SidRows(), 0);
  EXPECT_EQ(d.messages.texts.back(), "Are you sure you want to delete the SID?");
}

}  // namespace
