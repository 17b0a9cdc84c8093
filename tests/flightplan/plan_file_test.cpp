#include "flightplan/plan_file.h"

#include <gtest/gtest.h>

#include "flightplan/plan_legs.h"
#include "tests/flightplan/drawn_world.h"

namespace {

std::string WithLineFeeds(std::string text) {
  std::string lines;
  for (std::size_t i = 0; i < text.size(); ++i) {
    if (text[i] == '\r') {
      EXPECT_EQ(text.substr(i, 2), "\r\n");
    } else {
      EXPECT_TRUE(text[i] != '\n' || (i > 0 && text[i - 1] == '\r'));
      lines += text[i];
    }
  }
  return lines;
}

// Frankfurt to a field below the sea, south and west, with every kind of row.
struct SamplePlan : DrawnPlan {
  SamplePlan() : DrawnPlan("airport EDDF 50.5 8.25 364\nairport SBLO -33.75 -70.125 -12\n") {
    world.database.airports[0].strName =
        "Frankfurt, M\xfcnchner Stra\xdf"
        "e";
    plan.DepartureID = "Gate a12";
    plan.DepartureType = "Gate";
    plan.DepartureNum = 101;
    plan.RouteType = RouteKind::highAltitude;
    plan.CruiseFL = 350;
    PlanWaypoint& vor = Add("VOR", "FFM", 50.0625f, 8.5f);
    vor.Freq = 114.2f;
    vor.MagVar = -2.25f;
    vor.DbIndex = 17;
    vor.Name = "FRANKFURT, MAIN";
    PlanWaypoint& ndb = Add("NDB", "CHA", 49.5f, -8.5f, RowKind::sid);
    ndb.Freq = 350;
    ndb.DbIndex = 4;
    PlanWaypoint& fix = Add("Int", "ABCDE", -0.25f, -20.5f);
    fix.Airway = "UL607";
    fix.AirwayMinAlt = 9500;
    fix.AirwayMaxAlt = 46000;
    fix.DbIndex = 31234;
    PlanWaypoint& open = Add("Int", "OPEN", -10, -30.75f, RowKind::star);
    open.Airway = "A1";
    open.AirwayMinAlt = 5000;
    open.AirwayMaxAlt = 0;
    for (int i = 1; i < plan.DestinationRow(); ++i)
      plan.Row(i).Course = 12.34567f;
    plan.RouteType = RouteKind::highAltitude;
  }
};

const char* const simulatorPart =
    "[Flightplan]\n"
    "AppVersion=9.1.40901\n"
    "title=EDDF to SBLO\n"
    "description=EDDF, SBLO\n"
    "type=IFR\n"
    "routetype=3\n"
    "cruising_altitude=35000\n"
    "departure_id=EDDF, N50* 30.0000', E008* 15.0000', +000364.00\n"
    "departure_position=GATE A12\n"
    "destination_id=SBLO, S33* 45.0000', W070* 07.5000', -000012.00\n"
    "departure_name=Frankfurt, M\xfcnchner Stra\xdf"
    "e\n"
    "destination_name=SBLO Airport\n"
    "waypoint.0=, EDDF, , EDDF, A, N50* 30.0000', E008* 15.0000', +000364.00,\n"
    "waypoint.1=KK, FFM, , FFM, V, N50* 03.7500', E008* 30.0000', +000000.00,\n"
    "waypoint.2=KK, CHA,  , CHA, N, N49* 30.0000', W008* 30.0000', +000000.00,\n"
    "waypoint.3=KK, ABCDE, , ABCDE,  I, S00* 15.0000', W020* 30.0000', +000000.00,\n"
    "waypoint.4=KK, OPEN, , OPEN,  I, S10* 00.0000', W030* 45.0000', +000000.00,\n"
    "waypoint.5=, SBLO, , SBLO, A, S33* 45.0000', W070* 07.5000', -000012.00,\n";

const char* const nativePart =
    "\n"
    "[VLM]\n"
    "DepartAPCode=EDDF      \n"
    "DepartNum=101\n"
    "DepartID=Gate a12\n"
    "DepartType=Gate\n"
    "DestAPCode=SBLO      \n"
    "RouteType=3\n"
    "SID=\n"
    "STAR=\n"
    "WP=1,VOR,FFM,FRANKFURT  MAIN,50.0625,8.5000,114.20,12.3457,-2.250,1,17\n"
    "WP=2,NDB,CHA,CHA,49.5000,-8.5000,350.00,12.3457,0.000,3,4\n"
    "WP=3,Int,ABCDE,ABCDE,-0.2500,-20.5000,0.00,12.3457,0.000,1,31234,UL607,09500,46000\n"
    "WP=4,Int,OPEN,OPEN,-10.0000,-30.7500,0.00,12.3457,0.000,2,-1,A1\n";

TEST(WritePlan, WritesBothParts) {
  SamplePlan sample;
  EXPECT_EQ(WithLineFeeds(WritePlan(sample.plan, sample.world.database, PlanFormat::FS)),
            std::string(simulatorPart) + nativePart);
}

TEST(WritePlan, WritesTheSimulatorsPartAloneForOtherPrograms) {
  SamplePlan sample;
  for (const PlanFormat format : {PlanFormat::RC, PlanFormat::PM}) {
    EXPECT_EQ(WithLineFeeds(WritePlan(sample.plan, sample.world.database, format)), simulatorPart);
  }
}

TEST(WritePlan, WritesWhatMayBeMissing) {
  SamplePlan sample;
  sample.plan.DepartureType = "";
  sample.plan.AlternateIndex = 1;
  sample.plan.SidName = "TABUM1F";
  sample.plan.Row(3).Airway = "-";  // begins below "0"
  const std::string text = WithLineFeeds(WritePlan(sample.plan, sample.world.database, PlanFormat::FS));
  EXPECT_NE(text.find("\nalternate_name=SBLO Airport\nwaypoint.0="), std::string::npos);
  EXPECT_NE(text.find("\nDepartType=Rwy\n"), std::string::npos);
  EXPECT_NE(text.find("\nSID=TABUM1F\n"), std::string::npos);
  EXPECT_NE(text.find(",1,31234\n"), std::string::npos);
}

TEST(WritePlan, RefusesAPlanWithoutAirports) {
  SamplePlan sample;
  ClearFlightPlan(sample.plan);
  EXPECT_THROW(WritePlan(sample.plan, sample.world.database, PlanFormat::FS), std::logic_error);
}

}  // namespace
