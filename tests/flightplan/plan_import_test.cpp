// Plans of other programs: what we wrote for them comes back, what the database
// lacks is told, and whatever comes of it is a plan that can be saved.
#include "flightplan/formats/plan_import.h"

#include <gtest/gtest.h>

#include <cmath>

#include "flightplan/formats/foreign_plan.h"
#include "flightplan/formats/plan_formats.h"
#include "flightplan/formats/track_thinning.h"
#include "flightplan/plan_file.h"
#include "flightplan/plan_reader.h"
#include "flightplan/start_positions.h"
#include "tests/flightplan/plan_cases.h"

namespace {

// ---- what we write comes back

enum Carries : unsigned {
  airways = 1,
  procedures = 2,  // their names and which points are theirs
  alternate = 4,
  start = 8,
  cruise = 16,
  userPoints = 32,  // told from points of the database
};

struct FormatCase {
  const char* name;
  unsigned carries;
  double digits;  // degrees that positions may be off
};

constexpr FormatCase formatCases[] = {
    {"xplane", 0, 1e-6},
    {"squawkboxplan", alternate | cruise | userPoints, 1e-6},
    {"radarcontact", alternate | start | cruise, 0.0001 / 60},
    {"fsx", airways | start | cruise | userPoints, 0.01 / 3600},
    {"msfs", airways | procedures | start | cruise | userPoints, 0.01 / 3600},
    {"flightgear", airways | procedures | alternate | start | cruise | userPoints, 1e-6},
    {"garmin", userPoints, 1e-6},
    {"gpx", cruise | userPoints, 1e-6},
};

void ExpectSameRow(const PlanWaypoint& read, const PlanWaypoint& written, const FormatCase& format) {
  SCOPED_TRACE(written.Code.Text());
  EXPECT_EQ(read.Code.Text(), written.Code.Text());
  EXPECT_EQ(read.Sym.Text(), written.Sym.Text());
  EXPECT_NEAR(read.Lat, written.Lat, format.digits);
  EXPECT_NEAR(read.Lon, written.Lon, format.digits);
  const bool withAirway = (format.carries & airways) != 0;
  EXPECT_EQ(read.Airway.Text(), withAirway ? written.Airway.Text() : "");
  EXPECT_EQ(read.AirwayMinAlt, withAirway ? written.AirwayMinAlt : -1);
  EXPECT_EQ(read.AirwayMaxAlt, withAirway ? written.AirwayMaxAlt : -1);
  if ((format.carries & procedures) != 0) {
    EXPECT_EQ(read.Kind, written.Kind);
  }
}

void ExpectSamePlan(const FlightPlan& read, const FlightPlan& written, const FormatCase& format) {
  const auto kept = [&](Carries part) { return (format.carries & part) != 0; };
  EXPECT_EQ(read.DepartureIndex, written.DepartureIndex);
  EXPECT_EQ(read.DestinationIndex, written.DestinationIndex);
  EXPECT_EQ(read.AlternateIndex, kept(alternate) ? written.AlternateIndex : -1);
  EXPECT_EQ(read.SidName, kept(procedures) ? written.SidName : "");
  EXPECT_EQ(read.StarName, kept(procedures) ? written.StarName : "");
  EXPECT_EQ(read.DepartureID, kept(start) ? written.DepartureID : "");
  if (kept(cruise) && (written.RowCount() > 2 || std::string(format.name) != "gpx")) {
    EXPECT_EQ(read.CruiseFL, written.CruiseFL);
  }
  ASSERT_EQ(read.RowCount(), written.RowCount());
  for (int i = 0; i < written.RowCount(); ++i)
    ExpectSameRow(read.Row(i), written.Row(i), format);
  EXPECT_NEAR(read.TotalDistance, written.TotalDistance, 1);
}

void ExpectSavable(const FlightPlan& plan, const PlanContext& context) {
  EXPECT_FALSE(plan.MissingWaypoints);
  FlightPlan again;
  EXPECT_TRUE(ReadPlan(again, context, WritePlan(plan, context.database, PlanFormat::FS)).valid);
  EXPECT_FALSE(again.MissingWaypoints);
  EXPECT_EQ(again.RowCount(), plan.RowCount());
}

TEST(PlanImport, WhatWeWriteComesBack) {
  for (const FormatCase& format : formatCases) {
    for (const NamedPlanCase& named : planCases) {
      SCOPED_TRACE(std::string(format.name) + " " + named.name);
      const bool hasNoPositions = std::string(format.name) == "squawkboxplan";
      if (hasNoPositions && named.which == PlanCase::userPositions) continue;
      CasePlan written(named.which);
      written.plan.CruiseFL = 210;  // not what would be proposed
      // A format without the start begins at the airport.
      const auto starts = StartPositions(written.world.database, written.plan.DepartureIndex);
      if ((format.carries & start) == 0) written.plan.DepartureID.clear();
      if (!written.plan.DepartureID.empty()) SetStartPosition(written.plan, written.context, &starts.at(0));
      const PlanFormatInfo* info = FindPlanFormat(format.name);
      ASSERT_NE(info, nullptr);
      FlightPlan read;
      const PlanImport import = ImportPlan(read, written.context, info->write(written.Export()));
      ASSERT_TRUE(import.valid);
      const bool told = (format.carries & userPoints) == 0 && named.which == PlanCase::userPositions;
      EXPECT_EQ(import.problems.size(), told ? 1U : 0U) << ImportSummary(import, read);
      ExpectSamePlan(read, written.plan, format);
      ExpectSavable(read, written.context);
    }
  }
}

// X-Plane is given a procedure by its name alone, and the points where the route meets it.
TEST(PlanImport, XPlaneKeepsTheWayBetweenTheProcedures) {
  CasePlan written(PlanCase::airwaysAndProcedures);
  FlightPlan read;
  const PlanImport import =
      ImportPlan(read, written.context, FindPlanFormat("xplane11")->write(written.Export()));
  ASSERT_TRUE(import.valid);
  EXPECT_EQ(read.SidName, "DEMAB5N");
  EXPECT_EQ(read.DepartureID, "07");
  ASSERT_EQ(read.RowCount(), 6);
  EXPECT_EQ(read.Row(1).Code, "DEMAB");
  EXPECT_EQ(read.Row(3).Airway, "UL607");
  EXPECT_EQ(read.Row(3).AirwayMaxAlt, 46000);
  EXPECT_EQ(read.Row(4).Sym, "VOR");
  EXPECT_EQ(import.problems, (std::vector<std::string>{"of the SID DEMAB5N the file has only the name",
                                                       "of the STAR ALAGO2A the file has only the name"}));
  CasePlan positions(PlanCase::userPositions);
  ASSERT_TRUE(
      ImportPlan(read, positions.context, FindPlanFormat("xplane11")->write(positions.Export())).valid);
  ASSERT_EQ(read.RowCount(), positions.plan.RowCount());
  for (int i = 0; i < read.RowCount(); ++i)
    EXPECT_EQ(read.Row(i).Code, positions.plan.Row(i).Code);
}

// ---- which file is which

TEST(PlanImport, FormatsAreKnownByTheirContent) {
  struct Case {
    const char* text;
    const char* format;
  };
  const Case cases[] = {
      {"\r\n[FlightPlan]\r\ndeparture_id=A\r\n", "FS2004 plan"},
      {"\xef\xbb\xbf[SBFlightPlan]\nType=0", "SquawkBox plan"},
      {"I\r3 version\r0\r2", "X-Plane plan"},
      {"\n\nI\n\n3 VERSION\n", "X-Plane plan"},
      {"A\n1100 Version\n", "X-Plane plan"},
      {"\xef\xbb\xbf<?xml version='1.0'?>\n<SimBase.Document/>", "FSX or MSFS plan"},
      {"<PropertyList/>", "FlightGear plan"},
      {"<!-- x --><flight-plan xmlns='y'/>", "Garmin plan"},
      {"<gpx><trk/></gpx>", "GPX track"},
      {"<gpx/>", "GPX route"},
      {"", ""},
      {"[FLIGHTPLAN]\nDEPICAO=EDDF\n", ""},
      {"I\n2 version\n", ""},
      {"I", ""},
      {"<html><body/></html>", ""},
      {"<", ""},
  };
  for (const Case& c : cases) {
    const std::optional<ForeignPlan> plan = ReadForeignPlan(c.text);
    EXPECT_EQ(plan ? plan->format : "", c.format) << c.text;
  }
}

// ---- what the database makes of it

const std::string drawing =
    "airport EDDA 50 8 364\nairport EDDB 50 14 1000\n"
    "A 50 9\nB 50 10\nC 50 11\nTWIN 50 12\nvor D 50.5 12\nvor TWIN 50.0625 12\n"
    "ndb S 50 8.5\nfix P 50 13\nfix A 10 10\n"
    "A --38-- B V1 FL100-FL200\nB --38-- C V1 FL100-FL200\n";

struct Imported {
  explicit Imported(const std::string& text, const std::string& world = drawing) : world(world) {
    import = ImportPlan(plan, context, text);
  }

  std::string Rows() const {
    std::string rows;
    for (const PlanWaypoint& row : plan.rows)
      rows += (rows.empty() ? "" : " ") + row.Sym.Text() + ":" + row.Code.Text() +
              (row.HasAirway() ? "/" + row.Airway.Text() : "");
    return rows;
  }
  std::string Problems() const {
    std::string all;
    for (const std::string& line : import.problems)
      all += line + "\n";
    return all;
  }

  DrawnWorld world;
  AircraftRec aircraft = SlowTwin();
  HeardMessages messages;
  PlanContext context{world.database, aircraft, messages, 8.5};
  FlightPlan plan;
  PlanImport import;
};

std::string XPlane(const std::string& rows, const std::string& from = "EDDA",
                   const std::string& to = "EDDB") {
  return "I\n1100 Version\nADEP " + from + "\nADES " + to + "\nNUMENR 1\n" + rows;
}

TEST(PlanImport, PointsAreMatchedWithTheDatabase) {
  struct Case {
    const char* what;
    const char* rows;
    const char* expected;
    const char* problem;  // a part of it; empty: there is none
  };
  const Case cases[] = {
      {"as they are", "11 A DRCT 0 50 9\n2 S DRCT 0 50 8.5\n11 P DRCT 0 50 13",
       ":EDDA Int:A NDB:S Fix:P :EDDB", ""},
      {"nine miles off is the same", "3 D DRCT 0 50.65 12", ":EDDA VOR:D :EDDB", ""},
      {"eleven are not", "3 D DRCT 0 50.6875 12", ":EDDA Uwp:D :EDDB",
       "D lies 11 NM away: position N50°41.2500'"},
      {"another kind serves if it must", "2 D DRCT 0 50.5 12", ":EDDA VOR:D :EDDB", ""},
      {"the kind told wins over the nearer", "3 TWIN DRCT 0 50 12", ":EDDA VOR:TWIN :EDDB", ""},
      {"and the nearer without", "99 TWIN DRCT 0 50 12", ":EDDA Int:TWIN :EDDB", ""},
      {"unknown", "11 NOWHR DRCT 0 51 10", ":EDDA Uwp:NOWHR :EDDB", "NOWHR is not in the database"},
      {"the pilot's own", "28 LAKE DRCT 0 51 10\n28 +51.000_+010.500 DRCT 0 51 10.5",
       ":EDDA Uwp:LAKE Fix:Fix 02 :EDDB", ""},
      {"off the earth", "28 LAKE DRCT 0 91 10\n11 A DRCT 0 nan 9", ":EDDA Int:A :EDDB",
       "LAKE has no position on the earth"},
      {"an airport on the way", "1 EDDB DRCT 0 50 14\n11 C DRCT 0 50 11", ":EDDA Uwp:EDDB Int:C :EDDB",
       "EDDB is an airport on the way"},
      {"airports at the ends are not listed twice", "1 EDDA ADEP 364 50 8\n1 EDDB ADES 0 50 14",
       ":EDDA :EDDB", ""},
      {"repeated", "11 A DRCT 0 50 9\n11 A DRCT 0 50 9", ":EDDA Int:A :EDDB", "1 points that repeat"},
      {"half a line", "11 A DRCT 0", ":EDDA :EDDB", "line 6 is not complete"},
      {"an airway by its ends", "11 A DRCT 0 50 9\n11 C V1 0 50 11", ":EDDA Int:A Int:B/V1 Int:C/V1 :EDDB",
       ""},
      {"an airway that is not there", "11 A DRCT 0 50 9\n11 B V9 0 50 10\n11 C V9 0 50 11",
       ":EDDA Int:A Int:B/V9 Int:C/V9 :EDDB", "V9 to B is not in the database; only its name is kept\n"},
      {"no airway at all", "11 A *A 0 50 9", ":EDDA Int:A :EDDB", "'*A', the way to A, names no airway"},
      {"an altitude beyond all", "11 A DRCT 1000000 50 9", ":EDDA Int:A :EDDB", "altitude 1000000 ft is not"},
  };
  for (const Case& c : cases) {
    SCOPED_TRACE(c.what);
    const Imported imported(XPlane(c.rows));
    ASSERT_TRUE(imported.import.valid);
    EXPECT_EQ(imported.Rows(), c.expected);
    if (*c.problem == '\0') {
      EXPECT_EQ(imported.Problems(), "");
    } else {
      EXPECT_NE(imported.Problems().find(c.problem), std::string::npos) << imported.Problems();
      EXPECT_EQ(imported.import.problems.size(), 1U) << imported.Problems();
    }
    ExpectSavable(imported.plan, imported.context);
  }
}

TEST(PlanImport, AirportsAreFoundByCodeThenByPlaceElseRefused) {
  struct Case {
    const char* what;
    std::string text;
    const char* rows;  // empty: refused
    const char* told;  // to the pilot if refused, else in the list
  };
  const Case cases[] = {
      {"four miles from one", XPlane("1 NEWA ADEP 0 50.0625 8\n11 A DRCT 0 50 9", "NEWA"),
       ":EDDA Int:A :EDDB", "NEWA is not an airport of the database: EDDA, which is there, is taken"},
      {"six miles", XPlane("1 NEWA ADEP 0 50.1 8\n11 A DRCT 0 50 9", "NEWA"), "",
       "NEWA is not in currently loaded database!"},
      {"no place either", XPlane("11 A DRCT 0 50 9", "EDDA", "XXXX"), "",
       "XXXX is not in currently loaded database!"},
      {"none named", "I\n1100 Version\n", "", "The file names no departure airport!"},
      {"a code elsewhere", XPlane("1 EDDB ADEP 0 50 8\n11 A DRCT 0 50 9", "EDDB"), ":EDDA Int:A :EDDB",
       "EDDB lies elsewhere: EDDA, which is there, is taken"},
      {"version 3 names them in its rows", "I\n3 version\n0\n2\n1 EDDA 0 50 8\n11 A 0 50 9\n1 EDDB 0 50 14",
       ":EDDA Int:A :EDDB", ""},
      {"a route from a field without a name",
       "<gpx><rte><rtept lat='50.01' lon='8'><name>Home</name></rtept><rtept lat='50' "
       "lon='9'><name>A</name></rtept>"
       "<rtept lat='50' lon='14'><name>EDDB</name></rtept></rte></gpx>",
       ":EDDA Int:A :EDDB", "Home is not an airport of the database: EDDA"},
      {"a route from nowhere",
       "<gpx><rte><rtept lat='20' lon='8'/><rtept lat='50' lon='14'><name>EDDB</name></rtept></rte></gpx>",
       "", "There is no airport near N20°00.0000' E008°00.0000', the departure of the plan!"},
      {"no plan", "hello", "", "This file is no flight plan of a kind that can be imported!"},
  };
  for (const Case& c : cases) {
    SCOPED_TRACE(c.what);
    Imported imported(c.text);
    EXPECT_EQ(imported.Rows(), c.rows);
    EXPECT_EQ(imported.import.valid, *c.rows != '\0');
    if (imported.import.valid) {
      EXPECT_TRUE(imported.messages.texts.empty());
      EXPECT_EQ(imported.Problems().substr(0, std::string(c.told).size()), c.told);
    } else {
      EXPECT_EQ(imported.messages.texts, std::vector<std::string>{c.told});
    }
  }
}

TEST(PlanImport, ARefusedFileLeavesThePlan) {
  Imported imported(XPlane("11 A DRCT 0 50 9"));
  const FlightPlan before = imported.plan;
  EXPECT_FALSE(ImportPlan(imported.plan, imported.context, XPlane("", "XXXX")).valid);
  EXPECT_EQ(imported.plan, before);
}

// A plan without positions, as the newest simulator writes it: of two fixes of
// one name the one on the way is meant.
TEST(PlanImport, PointsWithoutPositionsAreThoseOnTheWay) {
  const auto point = [](const std::string& ident) {
    return "<ATCWaypoint><ATCWaypointType>Intersection</ATCWaypointType><ICAO><ICAOIdent>" + ident +
           "</ICAOIdent></ICAO></ATCWaypoint>";
  };
  const Imported imported(
      "<SimBase.Document><FlightPlan.FlightPlan><DepartureID>EDDA</DepartureID><DestinationID>EDDB</"
      "DestinationID>"
      "<DepartureDetails><RunwayNumberFP>7</RunwayNumberFP><RunwayDesignatorFP>LEFT</RunwayDesignatorFP>"
      "<DepartureFP>ANEK3F</DepartureFP></DepartureDetails>" +
          point("A") + point("GONE") + "</FlightPlan.FlightPlan></SimBase.Document>",
      "airport EDDA 50 8 0\nairport EDDB 50 14 0\nfix A 10 10\nfix A 50 9\n");
  ASSERT_TRUE(imported.import.valid);
  EXPECT_EQ(imported.Rows(), ":EDDA Fix:A :EDDB");
  EXPECT_EQ(imported.plan.Row(1).Lat, 50);
  EXPECT_EQ(imported.Problems(),
            "the start 07L is not at EDDA; the flight begins at the airport\n"
            "GONE is not in the database, and the file has no position of it; it is left out\n"
            "of the SID ANEK3F the file has only the name\n");
}

TEST(PlanImport, TheRouteOfASquawkBoxPlanIsParsed) {
  const Imported imported(
      "[SBFlightPlan]\r\nType=1\r\nDeparture=EDDA\r\nArrival=EDDB\r\nAlternate=0\r\nAltitude=FL090\r\n"
      "Route=N0120F090 A/N0120F100 V1 C DCT d SID9X\r\n");
  ASSERT_TRUE(imported.import.valid);
  EXPECT_EQ(imported.Rows(), ":EDDA Int:A Int:B/V1 Int:C/V1 VOR:D :EDDB");
  EXPECT_EQ(imported.plan.PlanType, "VFR");
  EXPECT_EQ(imported.plan.CruiseFL, 90);
  EXPECT_EQ(imported.plan.AlternateIndex, -1);
  EXPECT_EQ(imported.import.problems.size(), 1U);
  EXPECT_NE(imported.Problems().find("SID9X"), std::string::npos);
}

// An airway written by other programs behind each waypoint of the simulator's own text.
TEST(PlanImport, AirwaysOfTheSimulatorsTextPlan) {
  const Imported imported(
      "[flightplan]\nrouteType=2\ndeparture_id=EDDA, N50* 0.00', E8* 0.00', +000364.00\n"
      "destination_id=EDDB, N50* 0.00', E14* 0.00', +001000.00\ncruising_altitude=9000\ntype=VFR\n"
      "waypoint.0=, EDDA, , EDDA, A, N50* 0.00', E8* 0.00', +000364.00,\n"
      "waypoint.10=ED, C, , C, I, N50* 0.00', E011* 0.00', +000000.00, V1\n"
      "waypoint.2=ED, A, , A, I, N50* 0.00', E009* 0.00', +000000.00,\n"
      "waypoint.11=, EDDB, , EDDB, A, N50* 0.00', E14* 0.00', +001000.00,\nwaypoint.12=x\n");
  ASSERT_TRUE(imported.import.valid);
  EXPECT_EQ(imported.Rows(), ":EDDA Int:A Int:B/V1 Int:C/V1 :EDDB");
  EXPECT_EQ(imported.Problems(), "waypoint.12 is not complete; it is left out\n");
}

// ---- tracks

// East along the equator for two degrees, then north for two; a point each
// 1/100 degree, and one that is nonsense.
TEST(PlanImport, ATrackKeepsItsShape) {
  std::string text = "<gpx><trk><trkseg><trkpt lat='x' lon='0'/>";
  for (int i = 0; i <= 400; ++i)
    text += "<trkpt lat='" + std::to_string(std::max(0, i - 200) / 100.0) + "' lon='" +
            std::to_string(std::min(200, i) / 100.0) + "'/>";
  const Imported imported(text + "</trkseg></trk></gpx>", "airport EDDA 0 -0.01 0\nairport EDDB 2.01 2 0\n");
  ASSERT_TRUE(imported.import.valid);
  EXPECT_EQ(imported.Rows(), ":EDDA Fix:Fix 01 :EDDB");
  EXPECT_NEAR(imported.plan.Row(1).Lat, 0, 1e-4);
  EXPECT_NEAR(imported.plan.Row(1).Lon, 2, 1e-4);
  EXPECT_NEAR(imported.plan.TotalDistance, 241, 1);
  EXPECT_EQ(imported.import.problems.size(), 2U) << imported.Problems();
  ExpectSavable(imported.plan, imported.context);
}

// To and fro over the date line: the corners stay, whatever lies between them goes.
TEST(TrackThinning, KeepsTheCorners) {
  std::vector<Position> track;
  for (int i = 0; i <= 20000; ++i) {
    const double aside = std::abs(i / 100 % 2 * 100 - i % 100) / 100.0;
    track.push_back({static_cast<float>(aside), static_cast<float>(std::remainder(175 + i * 0.0005, 360.0))});
  }
  const std::vector<std::size_t> kept = ThinnedTrack(track, 500);
  ASSERT_EQ(kept.size(), 201U);
  for (std::size_t i = 0; i < kept.size(); ++i)
    EXPECT_EQ(kept[i], 100 * i);
  // With fewer allowed, no more than these.
  const std::vector<std::size_t> few = ThinnedTrack(track, 50);
  EXPECT_EQ(few.size(), 50U);
  EXPECT_EQ(few.front(), 0U);
  EXPECT_EQ(few.back(), track.size() - 1);
  EXPECT_TRUE(std::is_sorted(few.begin(), few.end()));
}

// ---- what the pilot is shown

TEST(PlanImport, TheSummaryIsShort) {
  std::string rows;
  for (int i = 0; i < 300; ++i)
    rows += "11 X" + std::to_string(i) + " DRCT 0 51 " + std::to_string(8 + i * 0.02) + "\n";
  const Imported imported(XPlane(rows));
  ASSERT_TRUE(imported.import.valid);
  EXPECT_EQ(imported.import.problems.size(), ImportProblems::most + 1);
  EXPECT_EQ(imported.import.problems.back(), "and 100 more");
  const std::string summary = ImportSummary(imported.import, imported.plan);
  EXPECT_EQ(std::count(summary.begin(), summary.end(), '\n'), 14);
  EXPECT_TRUE(summary.starts_with("EDDA to EDDB is imported (X-Plane plan)."));
  EXPECT_EQ(ImportSummary(PlanImport{}, imported.plan), "");
}

TEST(PlanImport, APlanLongerThanAFileHoldsIsCutAndTold) {
  std::string rows;
  for (int i = 0; i < 700; ++i)
    rows += "28 X" + std::to_string(i) + " DRCT 0 51 " + std::to_string(8 + i * 0.005) + "\n";
  const Imported imported(XPlane(rows));
  EXPECT_EQ(imported.plan.RowCount(), lastRowInFile + 2);
  EXPECT_NE(imported.Problems().find("700 points"), std::string::npos);
  ExpectSavable(imported.plan, imported.context);
}

}  // namespace
