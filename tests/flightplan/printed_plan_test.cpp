#include "flightplan/printed_plan.h"

#include <gtest/gtest.h>

#include "flightplan/fuel_plan.h"
#include "tests/flightplan/plan_cases.h"

namespace {

using Texts = std::vector<std::string>;

// Headings, lines and table rows one below the other, "|" between their parts.
Texts Flat(const PrintedSection& section) {
  Texts texts{section.heading};
  for (const PrintedBlock& block : section.blocks) {
    if (!block.heading.empty()) texts.push_back(block.heading);
    for (const PrintedLine& line : block.lines)
      texts.push_back(line.label + "|" + line.text);
    for (const auto& row : block.table.rows) {
      std::string text;
      for (const std::string& cell : row)
        text += (text.empty() ? "" : "|") + cell;
      texts.push_back(text);
    }
  }
  return texts;
}

constexpr PrintChoices only(bool PrintChoices::*wanted) {
  PrintChoices choices{false, false, false, false, false};
  choices.*wanted = true;
  return choices;
}

class Printed : public testing::Test {
 protected:
  Texts Section(CasePlan& on, bool PrintChoices::*wanted, std::vector<SidStarEntry> departures = {},
                std::vector<SidStarEntry> arrivals = {}) {
    const PrintedPlan printed = BuildPrintedPlan(
        {on.plan, on.context, settings, "EDDF RT EDDM", std::move(departures), std::move(arrivals)},
        only(wanted));
    return printed.sections.size() == 1 ? Flat(printed.sections[0]) : Texts{};
  }
  static bool Has(const Texts& texts, const std::string& text) {
    return std::find(texts.begin(), texts.end(), text) != texts.end();
  }

  Settings settings;
};

// Figures of a flight of 200 NM in an hour at FL 100: the climb from 364 ft takes
// 9.6 minutes and 26.1 NM, the descent to the final fix at 4194 ft 16.2 NM; of
// 177 kg the fuel plan gives 13, 41, 1 and 3 gallons to the parts of the trip.
TEST_F(Printed, GeneralFlightInformation) {
  CasePlan on(PlanCase::alternate);
  on.plan.DepartureType = "Rwy";
  on.plan.DepartureID = "07";
  on.plan.TotalDistance = 200;
  on.plan.TotalMinutes = 60;
  on.plan.CruiseFL = 100;
  settings.FUEL = 0;
  const Texts expected = {
      "   General Flight Information ",
      "Aircraft:|Slow Twin",
      "Distance:|200 NM",
      "Flight time:|01:00 h/m",
      "Flight level:|100",
      "Cruising speed:|240 kts",
      "Departure: |EDDF  Frankfurt Main  (N50°01.8750'/E008°33.7500')",
      "|Rwy 07   Elevation: 364ft   Var: E 03°   ATIS: 118.025",
      "Destination: |EDDM  Munich  (N48°20.6250'/E011°46.8750')",
      "|Elevation: 1487ft   Var: E 03°   ATIS: 118.025",
      "Route String:|EDDF RT EDDM",
      "   Fuel (in Gal):",
      "161.17|13.00|41.00|1.00|3.00|5.80|29.00|68.37",
      "   Climb:|1000 ft/min at 150kts - requires 10 min and 26 nm after takeoff",
      "   Cruise:|240 kts for 00:39 h/m  and 158 nm to final fix",
      "   Descent to Final Fix:|1000 ft/min at 150kts; beginning at 16 nm from final fix and 00:49 h/m after "
      "takeoff",
      "Departure Frequencies:",
      "ATIS:|118.025",
      "Ground:|121.800",
      "Tower:|119.900",
      "Arrival Frequencies:",
      "ATIS:|118.025",
      "Ground:|121.800",
      "Tower:|119.900",
      "   Alternate Airport:|Cologne-Bonn  EDDK",
      "|   Distance: 236NM   -  Course: 312°   -  Elevation: 302ft   -  ATIS: 118.025",
      "Departure Runway:",
      "07|9000ft|150ft|068°|Concrete|IMAIN 110.13 / 070°",
      "Destination Runways:",
      "07|9000ft|150ft|068°|Concrete|IMAIN 110.13 / 070°",
      "25|9000ft|150ft|248°|Concrete|",
      "18|6000ft|150ft|178°|Concrete|",
      "36|6000ft|150ft|358°|Concrete|"};
  EXPECT_EQ(Section(on, &PrintChoices::information), expected);
}

TEST_F(Printed, WhatIsNotThereIsLeftOut) {
  CasePlan on(PlanCase::alternate);
  SetAlternate(on.plan, on.context, -1);
  // A plan shorter than climb and descent: 30 - 26 - 16 NM.
  on.plan.TotalDistance = 30;
  on.plan.TotalMinutes = 0;
  on.plan.CruiseFL = 100;
  on.plan.DepartureType = "Gate";
  on.plan.DepartureID = "Gate A 12";
  for (const char* code : {"EDDF", "EDDM"})
    on.world.database.airports[static_cast<std::size_t>(on.world.Airport(code))].lngFrequencies = 0;
  const Texts texts = Section(on, &PrintChoices::information);
  for (const std::string& text : texts) {
    EXPECT_EQ(text.find("Alternate"), std::string::npos) << text;
    EXPECT_EQ(text.find("Frequencies"), std::string::npos) << text;
    EXPECT_EQ(text.find("ATIS"), std::string::npos) << text;
  }
  EXPECT_TRUE(Has(texts, "|Gate A 12   Elevation: 364ft   Var: E 03°"));
  EXPECT_TRUE(Has(texts, "   Cruise:|240 kts for 00:00 h/m  and -12 nm to final fix"));
  EXPECT_TRUE(Has(texts, "   Fuel (in kg):"));
  EXPECT_TRUE(Has(texts, "|No fuel figures: the plan takes no time."));
  EXPECT_EQ(std::count(texts.begin(), texts.end(), "25|9000ft|150ft|248°|Concrete|"), 2)
      << "from a gate every runway may be the one";
  on.aircraft.ClimbRate = 0;
  EXPECT_TRUE(Has(Section(on, &PrintChoices::information),
                  "   Climb:|0 ft/min at 150kts - requires 0 min and --- nm after takeoff"));
}

TEST_F(Printed, ThePagesAreHeadedByTheRoute) {
  const struct {
    RouteGenerator method;
    const char* text;
  } cases[] = {{RouteGenerator::none, ""},
               {RouteGenerator::highAltitude, "(High Altitude Airways)"},
               {RouteGenerator::lowAltitude, "(Low Altitude Airways)"},
               {RouteGenerator::navaid, "(Navaid to Navaid)"}};
  CasePlan on(PlanCase::umlauts);
  for (const auto& c : cases) {
    on.plan.RouteMethod = c.method;
    const PrintedPlan printed = BuildPrintedPlan({on.plan, on.context, settings, ""}, {});
    EXPECT_EQ(printed.title, "Velmora Flight Plan");
    EXPECT_EQ(printed.routeType, c.text);
    EXPECT_EQ(printed.routeLine, "EDDK (Köln-Bonn) >>> EDDM (München <Franz Josef Strauß>)");
    EXPECT_EQ(printed.sections.size(), 3U) << "there are no procedures to print";
    EXPECT_FALSE(printed.map);
  }
  EXPECT_THROW(BuildPrintedPlan({FlightPlan{}, on.context, settings, ""}, {}), std::out_of_range);
}

TEST_F(Printed, WaypointList) {
  CasePlan on(PlanCase::airwaysAndProcedures);
  const PrintedPlan printed =
      BuildPrintedPlan({on.plan, on.context, settings, ""}, only(&PrintChoices::waypoints));
  ASSERT_EQ(printed.sections.size(), 1U);
  EXPECT_EQ(printed.sections[0].heading, " Waypoints ");
  const PrintedTable& table = printed.sections[0].blocks[0].table;
  Texts headings;
  for (const PrintedColumn& column : table.columns)
    headings.push_back(column.heading);
  EXPECT_EQ(headings, (Texts{"Code", "Name", "Freq", "Course", "Distance", "Time"}));
  ASSERT_EQ(table.rows.size(), 7U);
  EXPECT_EQ(table.rows[1][0], "FFM");
  EXPECT_EQ(table.rows[1][2], "114.200");
  EXPECT_EQ(table.rows[3][1], "DINKU (UL607 250-460)");
  EXPECT_EQ(table.rows[6][0], "EDDM");
  EXPECT_EQ(table.rows[6][5], FormatMinutes(on.plan.TotalMinutes));
}

SidStarEntry Procedure(const char* runway, const char* name, const char* fix, float track) {
  SidStarEntry entry;
  entry.Runway = std::string_view(runway);
  entry.Name = std::string_view(name);
  for (const char* code : {"DEMAB", fix}) {
    ProcedureStep& step = entry.Steps.emplace_back();
    step.Type = std::string_view("TF");
    step.Code = std::string_view(code);
    step.Track = track;
    step.Distance = 5;
  }
  return entry;
}

TEST_F(Printed, DepartureAndArrivalRoutes) {
  CasePlan on(PlanCase::airwaysAndProcedures);
  on.plan.DepartureID = "25";
  const std::vector<SidStarEntry> departures = {Procedure("07", "DEMAB5N", "AAA", 70),
                                                Procedure("25", "DEMAB5N", "BBB", 250),
                                                Procedure("25", "OTHER1A", "CCC", 250)};
  const std::vector<SidStarEntry> arrivals = {Procedure("07", "ALAGO2A", "DDD", 70)};
  const std::string landing =
      "|leave DEMAB heading 070°; until intercepting localizer. Fly straight in Rwy 07";
  EXPECT_EQ(Section(on, &PrintChoices::procedures, departures, arrivals),
            (Texts{"Departure and Arrival Routes", "   Departure for Rwy 25", "|EDDF   DEMAB5N",
                   "|on track 250°  to DEMAB. On track 250°  to BBB", "   Arrival for Rwy 07",
                   "|EDDM   ALAGO2A", landing}));
  // Taken for the other runway: the plan's steps say so.
  on.plan.SidSteps = departures[0].Steps;
  EXPECT_TRUE(Has(Section(on, &PrintChoices::procedures, departures, {}), "   Departure for Rwy 07"));
  // Not in the file any more: the plan's own steps.
  const Texts kept = Section(on, &PrintChoices::procedures, {}, {});
  EXPECT_TRUE(Has(kept, "   Departure for Rwy 25"));
  EXPECT_TRUE(Has(kept, "|on track 070°  to DEMAB. On track 070°  to AAA"));
  EXPECT_TRUE(Has(kept, "   Arrival for Rwy (any)"));
  EXPECT_TRUE(Has(kept, "|The database does not tell how it is flown."));
  CasePlan none(PlanCase::twoAirports);
  EXPECT_EQ(Section(none, &PrintChoices::procedures),
            (Texts{"Departure and Arrival Routes", "|The plan has no departure and no arrival route."}));
}

TEST_F(Printed, ControlZoneInformation) {
  CasePlan on(PlanCase::alternate);
  AirspaceRec& zone = on.world.database.airspaces.emplace_back();
  zone.intType = 1;
  zone.strName = "FRANKFURT";
  zone.strLower = "GND";
  zone.strUpper = "FL65";
  zone.points = {{50.1F, 8.5F}, {50.1F, 8.6F}, {50, 8.6F}, {50, 8.5F}};
  BuildIndexes(on.world.database);
  EXPECT_EQ(Section(on, &PrintChoices::zones),
            (Texts{"Control Zone Information - Page: ",
                   "Leg: EDDF to RT crossing:|Class: XXX   FRANKFURT   GND - FL65",
                   "Leg: RT to EDDM crossing:|no control zone"}));
}

}  // namespace
