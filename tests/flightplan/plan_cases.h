// Six plans that every format has to write, over one small world: two airports
// only, airways with SID and STAR, a way over the date line, positions of the
// pilot's own, an alternate, names with umlauts. The clock stands at
// 2026-01-02 03:04:05 UTC.
#pragma once

#include <chrono>
#include <string>
#include <vector>

#include "flightplan/formats/plan_export.h"
#include "flightplan/plan_legs.h"
#include "tests/flightplan/drawn_world.h"

inline constexpr std::chrono::sys_seconds casesClock =
    std::chrono::sys_days{std::chrono::year{2026} / 1 / 2} + std::chrono::hours{3} + std::chrono::minutes{4} +
    std::chrono::seconds{5};

// EDDF, EDDM, NZAA, PHNL and EDDK have two runways (07/25 and 18/36, of 9000
// and 6000 ft), frequencies and an ILS on 07; EDXX is a field without any.
inline const std::string casesDrawing =
    "airport EDDF 50.03125 8.5625 364\n"
    "airport EDDM 48.34375 11.78125 1487\n"
    "airport NZAA -37 174.78125 23\n"
    "airport PHNL 21.3125 -157.921875 13\n"
    "airport EDDK 50.875 7.140625 302\n"
    "airport EDXX 51.5 9.5 -12\n"
    "vor FFM 50.046875 8.640625\nvor WLD 48.578125 11.125\nndb RT 50.203125 8.75\nfix MANDA -12.25 "
    "179.5\nfix KOMET 2.5 -170.125\n"
    "TABUM 50.25 8.640625\nDEMAB 49.59375 9.5\nDINKU 49.203125 10.25\nALAGO 48.75 11.25\n"
    "DEMAB ==38=> DINKU UL607 FL250-FL460\nDINKU ==46=> ALAGO UL607 FL250-FL460\n";

enum class PlanCase { twoAirports, airwaysAndProcedures, dateLine, userPositions, alternate, umlauts };

struct NamedPlanCase {
  PlanCase which;
  const char* name;  // of its reference files
};

inline constexpr NamedPlanCase planCases[] = {
    {PlanCase::twoAirports, "two_airports"}, {PlanCase::airwaysAndProcedures, "airways_procedures"},
    {PlanCase::dateLine, "date_line"},       {PlanCase::userPositions, "user_positions"},
    {PlanCase::alternate, "alternate"},      {PlanCase::umlauts, "umlauts"},
};

class CasePlan {
 public:
  explicit CasePlan(PlanCase which) : world(casesDrawing) {
    GiveRunways();
    switch (which) {
      case PlanCase::twoAirports:
        Begin("EDDF", "EDDM");
        break;
      case PlanCase::airwaysAndProcedures:
        AirwaysAndProcedures();
        break;
      case PlanCase::dateLine:
        DateLine();
        break;
      case PlanCase::userPositions:
        UserPositions();
        break;
      case PlanCase::alternate:
        Alternate();
        break;
      case PlanCase::umlauts:
        Umlauts();
        break;
    }
    RecomputePlan(plan, context);
    if (which == PlanCase::airwaysAndProcedures) plan.RouteType = RouteKind::highAltitude;
  }
  CasePlan(const CasePlan&) = delete;
  CasePlan& operator=(const CasePlan&) = delete;

  PlanExport Export() { return MakePlanExport(plan, context, 2, casesClock, "2026.01"); }

  DrawnWorld world;
  AircraftRec aircraft = CasesAircraft();
  HeardMessages messages;
  PlanContext context{world.database, aircraft, messages, 8.5};
  FlightPlan plan;

  // Plan from the first to the last row: airports by code.
  void Begin(const std::string& from, const std::string& to) {
    SetDepartureAndDestination(plan, context, world.Airport(from), world.Airport(to));
  }

  PlanWaypoint& Add(const std::string& sym, const std::string& code, const std::string& name, float lat,
                    float lon, RowKind kind = RowKind::enroute, const std::string& airway = {}) {
    PlanWaypoint row;
    row.Sym = sym;
    row.Code = code;
    row.Name = name;
    row.Lat = lat;
    row.Lon = lon;
    row.Kind = kind;
    row.DbIndex = RowOf(sym, code);
    if (!airway.empty()) {
      row.Airway = airway;
      row.AirwayMinAlt = 25000;
      row.AirwayMaxAlt = 46000;
    }
    int after = plan.DestinationRow() - 1;
    InsertWaypoint(plan, context, after, row, false);
    return plan.Row(after);
  }

 private:
  std::int32_t RowOf(const std::string& sym, const std::string& code) const {
    if (sym == "Int") return world.database.intersectionsByIdent.First(code);
    if (sym == "VOR") return world.database.vorsByIdent.First(code);
    if (sym == "NDB") return world.database.ndbsByIdent.First(code);
    return sym == "Fix" ? world.database.fixesByIdent.First(code) : -1;
  }

  static AircraftRec CasesAircraft() {
    AircraftRec aircraft = SlowTwin();
    aircraft.MaxFuel = 2000;
    aircraft.EmptyWeight = 5000;
    aircraft.LoadWeight = 1000;
    aircraft.MaxWeight = 8000;
    aircraft.MaxRange = 3000;
    return aircraft;
  }

  void GiveRunways() {
    NavDatabase& database = world.database;
    for (AirportRec& airport : database.airports) {
      const std::string code = airport.strCode.Text();
      if (code == "EDXX" || code == "AFIL") continue;
      airport.firstRunway = static_cast<std::uint32_t>(database.runways.size());
      airport.lngRunways = 2;
      for (const bool main : {true, false}) {
        RunwayRec& runway = database.runways.emplace_back();
        runway.strRwyID = main ? "07" : "18";
        runway.strRwyIDRecip = main ? "25" : "36";
        runway.sngLat = airport.sngLat;
        runway.sngLon = airport.sngLon;
        runway.sngHeading = main ? 70 : 180;
        runway.intLength = static_cast<std::int16_t>(main ? 9000 : 6000);
        runway.intWidth = 150;
        if (main) runway.strIlsCode = "IMAIN";
      }
      airport.firstFrequency = static_cast<std::uint32_t>(database.frequencies.size());
      AddFrequencies(airport);
      airport.firstIls = static_cast<std::uint32_t>(database.ils.size());
      airport.lngIls = 1;
      AddIls(airport);
      airport.sngMagVar = 2.5F;
    }
    database.airports[0].strName = "Frankfurt Main";
    database.airports[1].strName = "Munich";
    database.airports[2].strName = "Auckland";
    database.airports[3].strName = "Honolulu";
    database.airports[4].strName = "Cologne-Bonn";
  }

  void AddFrequencies(AirportRec& airport) {
    struct Kind {
      std::uint8_t type;
      float mhz;
    };
    for (const Kind& kind : {Kind{1, 118.025F}, Kind{5, 121.8F}, Kind{6, 119.9F}}) {
      FrequencyRec& row = world.database.frequencies.emplace_back();
      row.bytType = kind.type;
      row.sngFrequency = kind.mhz;
      ++airport.lngFrequencies;
    }
  }

  void AddIls(const AirportRec& airport) {
    IlsRec& row = world.database.ils.emplace_back();
    row.strCode = "IMAIN";
    row.strName = "ILS 07";
    row.strAirport = airport.strCode.View();
    row.strRwyID = "07";
    row.sngLat = airport.sngLat;
    row.sngLon = airport.sngLon;
    row.sngFrequency = 110.125F;
    row.sngCourse = 70;
    row.sngILSGlideAngle = 3;
    row.lngRwyLength = 9000;
  }

  void AirwaysAndProcedures() {
    Begin("EDDF", "EDDM");
    plan.DepartureType = "Rwy";
    plan.DepartureNum = 1;
    plan.DepartureID = "07";
    Add("VOR", "FFM", "FRANKFURT", 50.046875F, 8.640625F, RowKind::sid).Freq = 114.2F;
    Add("Int", "DEMAB", "DEMAB", 49.59375F, 9.5F, RowKind::sid);
    Add("Int", "DINKU", "DINKU", 49.203125F, 10.25F, RowKind::enroute, "UL607");
    Add("Int", "ALAGO", "ALAGO", 48.75F, 11.25F, RowKind::enroute, "UL607");
    Add("VOR", "WLD", "WALDA", 48.578125F, 11.125F, RowKind::star).Freq = 112.8F;
    plan.SidName = "DEMAB5N";
    plan.StarName = "ALAGO2A";
  }

  void DateLine() {
    Begin("NZAA", "PHNL");
    Add("Fix", "MANDA", "MANDA", -12.25F, 179.5F);
    Add("Fix", "KOMET", "KOMET", 2.5F, -170.125F);
  }

  // A place clicked on the map, one of the pilot's list, one moved to the south-west.
  void UserPositions() {
    Begin("EDDF", "PHNL");
    Add("Fix", "Fix 01", "Fix 01", 51.125F, -30.5F);
    Add("Uwp", "LAKE", "Lake house", 45.25F, -63.5F);
    Add("Fix", "Fix 03", "Fix 03", -1.5F, -120.75F);
  }

  void Alternate() {
    Begin("EDDF", "EDDM");
    Add("NDB", "RT", "RATTE", 50.203125F, 8.75F).Freq = 350;
    SetAlternate(plan, context, world.Airport("EDDK"));
  }

  // Text of the code page: "Köln-Bonn", "Gößweinstein & Co".
  void Umlauts() {
    world.database.airports[4].strName = "K\xf6ln-Bonn";
    world.database.airports[1].strName = "M\xfcnchen <Franz Josef Strau\xdf>";
    Begin("EDDK", "EDDM");
    Add("VOR", "WLD", "G\xf6\xdfweinstein & Co", 48.578125F, 11.125F).Freq = 112.8F;
  }
};
