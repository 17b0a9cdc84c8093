// What the plan formats do where the six reference plans do not lead.
#include "flightplan/formats/plan_writers.h"

#include <gtest/gtest.h>

#include <pugixml.hpp>
#include <sstream>
#include <tuple>

#include "flightplan/formats/plan_formats.h"
#include "flightplan/formats/route_points.h"
#include "tests/flightplan/plan_cases.h"

namespace {

// The rest of the first line that begins with key.
std::string Value(const std::string& text, const std::string& key) {
  std::istringstream lines(text);
  for (std::string line; std::getline(lines, line);)
    if (line.starts_with(key)) return line.substr(key.size(), line.find('\r') - key.size());
  return "no line " + key;
}

struct RouteRow {
  const char* sym;
  const char* code;
  const char* airway;
};

struct RouteCase {
  const char* what;
  std::vector<RouteRow> rows;
  const char* squawkBox;
  const char* ivao;
};

TEST(PlanWriters, NetworksAreToldFixesAirwaysAndTracksButNoPositionsOfThePilot) {
  const RouteCase cases[] = {
      {"nothing between the airports", {}, "", "DCT"},
      {"an airway and a direct leg",
       {{"Int", "DEMAB", ""}, {"Int", "DINKU", "UL607"}, {"Int", "ALAGO", "UL607"}, {"VOR", "WLD", ""}},
       "DEMAB DINKU ALAGO WLD",
       "DCT DEMAB UL607 DINKU UL607 ALAGO DCT WLD DCT"},
      {"only the pilot's own", {{"Fix", "Fix 01", ""}, {"Uwp", "LAKE", ""}}, "", "DCT"},
      {"a position between fixes",
       {{"Fix", "MANDA", ""}, {"Fix", "Fix 02", ""}, {"Fix", "KOMET", ""}},
       "MANDA KOMET",
       "DCT MANDA DCT KOMET DCT"},
      {"an ident that only looks like a position", {{"Int", "FIX12", ""}}, "FIX12", "DCT FIX12 DCT"},
      {"an airway below \"0\" is none", {{"Int", "DEMAB", "-"}}, "DEMAB", "DCT DEMAB DCT"},
      {"an Atlantic track over two rows",
       {{"Int", "LIMRI", ""}, {"Fix", "52N20", "Track A"}, {"Int", "NICSO", "Track A"}, {"Int", "JOOPY", ""}},
       "LIMRI NATA JOOPY",
       "DCT LIMRI NATA DCT JOOPY DCT"},
      {"from one track to the other",
       {{"Int", "KALNA", "PTrack 12"}, {"Int", "ONION", "PTrack 12"}, {"Int", "NIPPI", "PTrack 3"}},
       "PAC12 PAC3",
       "PAC12 PAC3 DCT"},
  };
  for (const RouteCase& test : cases) {
    CasePlan plan(PlanCase::twoAirports);
    for (const RouteRow& row : test.rows)
      plan.Add(row.sym, row.code, row.code, 49, 10, RowKind::enroute, row.airway);
    EXPECT_EQ(Value(WriteSquawkBoxPlan(plan.Export()), "Route="), test.squawkBox) << test.what;
    EXPECT_EQ(Value(WriteIvaoPlan(plan.Export()), "ROUTE="), test.ivao) << test.what;
  }
}

// FFM and DEMAB belong to the SID, WLD to the STAR of this plan.
TEST(PlanWriters, ProceduresAreLeftOutWhereThePilotSaysNo) {
  CasePlan plan(PlanCase::airwaysAndProcedures);
  PlanExport without = plan.Export();
  without.withProcedures = false;
  EXPECT_EQ(WriteLevelDRoute(without),
            "H,EDDF,50.031250,8.562500,,0,0.000000,\r\n"
            "W,DINKU,49.203125,10.250000,UL607,0,0.000000,\r\n"
            "W,ALAGO,48.750000,11.250000,UL607,0,0.000000,\r\n"
            "H,EDDM,48.343750,11.781250,,0,0.000000,\r\n");
  const std::string pmdg = WritePmdgRoute(without);
  EXPECT_NE(pmdg.find("\r\n\r\n4\r\n\r\nEDDF\r\n"), std::string::npos) << pmdg;
  EXPECT_EQ(pmdg.find("FFM"), std::string::npos);
  EXPECT_EQ(pmdg.find("WLD"), std::string::npos);
}

TEST(PlanWriters, SeparatorsInsideATextDoNotShiftTheFields) {
  CasePlan plan(PlanCase::twoAirports);
  plan.Add("Uwp", "A,B:C D", "A,B:C D", -0.5F, -0.25F).Airway = "R,1";
  EXPECT_NE(WriteLevelDRoute(plan.Export()).find("W,A B:C D,-0.500000,-0.250000,R 1,0,0.000000,\r\n"),
            std::string::npos);
  EXPECT_NE(WriteIFlyPlan(plan.Export()).find("1,-1,DIRECT,4,A B:C D,-00.500000,-000.250000,-1000,"),
            std::string::npos);
  // Degrees below one have no digit before the point here.
  EXPECT_NE(WriteSquawkBoxRoute(plan.Export()).find("U:A,B C D:25000:-.500000:-.250000:0:0:0:\r\n"),
            std::string::npos);
  EXPECT_NE(WriteXPlane3Plan(plan.Export()).find("11 A,B:C_D 0 -0.500000 -0.250000\r\n"), std::string::npos);
  plan.plan.Row(1).Code = "A\nB";
  EXPECT_NE(WriteIFlyPlan(plan.Export()).find("1,-1,DIRECT,4,A B,-00.5"), std::string::npos);
  EXPECT_NE(WritePmdgRoute(plan.Export()).find("\r\nA B\r\n5\r\n"), std::string::npos);
}

// An aircraft that flies no distance gives no fuel plan.
TEST(PlanWriters, WithoutFuelFiguresTheRestIsStillTold) {
  CasePlan plan(PlanCase::twoAirports);
  plan.aircraft.MaxRange = 0;
  plan.plan.PlanType = "VFR";
  const PlanExport out = plan.Export();
  ASSERT_FALSE(out.fuel);
  const std::string form = WriteSquawkBoxPlan(out);
  EXPECT_EQ(Value(form, "Type="), "1");
  EXPECT_EQ(Value(form, "FlightMinutes="), "48");
  EXPECT_EQ(Value(form, "FuelHours="), "00");
  EXPECT_EQ(Value(form, "FuelMinutes="), "00");
  pugi::xml_document document;
  ASSERT_TRUE(document.load_string(WriteXmlPlan(out).c_str()));
  const pugi::xml_node fuel = document.child("flightplan").child("generalinfo").child("fuel");
  EXPECT_TRUE(fuel.child("totalfuel"));
  EXPECT_STREQ(fuel.child_value("totalfuel"), "");
}

TEST(PlanWriters, AFieldWithoutRunwaysAndRadioIsStillAnAirportOfTheDocument) {
  CasePlan plan(PlanCase::twoAirports);
  plan.Begin("EDXX", "EDDM");
  plan.plan.DepartureID = "Gate \xc3\xa4";
  pugi::xml_document document;
  ASSERT_TRUE(document.load_string(WriteXmlPlan(plan.Export()).c_str()));
  const pugi::xml_node field = document.child("flightplan").child("airportinfo").child("departureinfo");
  EXPECT_STREQ(field.child_value("departureid"), "EDXX");
  EXPECT_STREQ(field.child_value("departurealt"), "-000012.00");
  EXPECT_STREQ(field.child_value("departureposition"), "Gate \xc3\xa4");
  EXPECT_STREQ(field.child("departurefreq").child_value("departuretower"), "");
  EXPECT_FALSE(field.child("departurerwy"));
  EXPECT_FALSE(field.child("departureils"));
}

// Every frequency of a kind is told, in the table's order; a runway's other end
// may have no name.
TEST(PlanWriters, ADocumentTellsAllFrequenciesOfAKind) {
  CasePlan plan(PlanCase::twoAirports);
  NavDatabase& database = plan.world.database;
  const AirportRec& munich = database.airports[1];
  database.frequencies[munich.firstFrequency + 1].bytType = 12;
  database.frequencies[munich.firstFrequency + 2].bytType = 12;
  database.runways[munich.firstRunway].strRwyIDRecip = "";
  pugi::xml_document document;
  ASSERT_TRUE(document.load_string(WriteXmlPlan(plan.Export()).c_str()));
  const pugi::xml_node airport = document.child("flightplan").child("airportinfo").child("destinationinfo");
  EXPECT_STREQ(airport.child("destinationfreq").child_value("destinationAWOS"), "121.800, 119.900");
  std::string runways;
  for (const pugi::xml_node runway : airport.children("destinationrwy"))
    runways += std::string(runway.child_value("rwyid")) + " ";
  EXPECT_EQ(runways, "07 18 36 ");
}

TEST(PlanWriters, AFixWithANumberInItsNameIsNoPositionOfThePilots) {
  for (const auto& [sym, code, kind] :
       {std::tuple("Int", "FIX07", PointKind::intersection), std::tuple("Fix", "Fix 07", PointKind::user),
        std::tuple("Uwp", "LAKE", PointKind::user)}) {
    PlanWaypoint row;
    row.Sym = std::string_view(sym);
    row.Code = std::string_view(code);
    EXPECT_EQ(KindOf(row), kind) << code;
  }
}

TEST(PlanWriters, FormatsAreWrittenInTheirFixedOrder) {
  std::string order;
  for (const PlanFormatInfo& format : PlanFormats().first(12))
    order +=
        std::string(format.name) + " " + std::to_string(format.box) + (format.needsRunways ? "r, " : ", ");
  EXPECT_EQ(
      order,
      "pmdg 4r, leveld 7r, ifly 11r, velmora 0, radarcontact 1, squawkbox 2, squawkboxplan 2, xplane 5r, "
      "ivao 6, fsinn 8, projectmagenta 9, xml 10, ");
}

}  // namespace
