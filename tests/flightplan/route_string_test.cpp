#include "flightplan/route_string.h"

#include <gtest/gtest.h>

#include "tests/flightplan/drawn_world.h"

namespace {

struct RowSketch {
  const char *sym, *code, *airway;
  RowKind kind = RowKind::enroute;
};

struct RouteCase {
  const char* name;
  std::vector<RowSketch> rows;
  const char* text;  // between the airports
};

TEST(RouteString, NamesAirwaysBetweenTheirEnds) {
  const RouteCase cases[] = {
      {"direct", {}, ""},
      {"fixes without airway", {{"VOR", "FFM", ""}, {"NDB", "CHA", ""}}, " FFM CHA"},
      {"one airway", {{"Int", "A", ""}, {"Int", "B", "V1"}, {"Int", "C", "V1"}}, " A V1 C"},
      {"two airways",
       {{"Int", "A", ""}, {"Int", "B", "V1"}, {"Int", "C", "V2"}, {"Int", "D", "V2"}},
       " A V1 B V2 D"},
      {"airway, direct, the same airway",
       {{"Int", "A", ""}, {"Int", "B", "V1"}, {"Int", "C", ""}, {"Int", "D", "V1"}},
       " A V1 B C V1 D"},
      {"an airway below \"0\" is none", {{"Int", "A", ""}, {"Int", "B", "-"}}, " A B"},
      {"procedures by name",
       {{"Int", "S1", "", RowKind::sid},
        {"Int", "S2", "", RowKind::sid},
        {"Int", "A", ""},
        {"Int", "T1", "", RowKind::star},
        {"Int", "T2", "", RowKind::star}},
       " SIDX1A A STARY2B"},
      {"airway into the STAR",
       {{"Int", "A", ""},
        {"Int", "B", "V1"},
        {"Int", "T1", "V1", RowKind::star},
        {"Int", "T2", "", RowKind::star}},
       " A V1 T1 STARY2B"},
      {"a user's position", {{"Fix", "Fix", ""}}, " FIX 01"},
      {"other characters", {{"Int", "a-b", ""}}, " A B"},
  };
  for (const RouteCase& c : cases) {
    DrawnPlan drawn("airport EDDA 0 0 0\nairport EDDB 0 10 0");
    drawn.plan.SidName = "SidX1A";
    drawn.plan.StarName = "STARY2B";
    float lon = 1;
    for (const RowSketch& row : c.rows)
      drawn.Add(row.sym, row.code, 0, lon += 0.5f, row.kind).Airway = row.airway;
    EXPECT_EQ(RouteStringFromPlan(drawn.plan), "EDDA" + std::string(c.text) + " EDDB") << c.name;
  }
  EXPECT_EQ(RouteStringFromPlan(FlightPlan{}), "");
}

}  // namespace
