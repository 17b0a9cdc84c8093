// The flight plan in memory: the table of its rows and the header above them.
// There is one plan in the program. Row 0 is the departure, the last row the
// destination; SID rows follow row 0, STAR rows stand before the destination.
// plan_rows.h changes the rows, plan_legs.h fills their legs and the totals.
#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "base/fixed_text.h"
#include "flightplan/procedure_step.h"

enum class RowKind : std::uint8_t { departure = 0, enroute = 1, star = 2, sid = 3, destination = 4 };

enum class RouteKind : std::uint8_t { direct = 0, navaid = 1, lowAltitude = 2, highAltitude = 3 };

enum class RouteGenerator : std::int16_t { none = 0, highAltitude = 1, lowAltitude = 2, navaid = 3 };

// Texts are in the database's code page. Angles are degrees (north and east
// positive), distances NM, times minutes, altitudes feet.
struct PlanWaypoint {
  std::int16_t Index = 0;  // candidate number in a route search; no meaning in the plan
  FixedText<5> Sym;        // "VOR", "NDB", "Int", "Fix", "Uwp"; empty on the airport rows
  FixedText<10> Code;
  FixedText<70> Name;
  FixedText<10> Airway;            // of the leg into this row; empty: direct
  std::uint8_t AirwayLink = 0;     // route string parser: 1 victor, 2 jet
  std::int32_t AirwayMaxAlt = -1;  // -1: unknown
  std::int32_t AirwayMinAlt = -1;
  float Freq = 0;
  float Lat = 0;
  float Lon = 0;
  float Dist = 0;  // of the leg into this row
  float MagVar = 0;
  float Course = 0;           // true, of the leg into this row
  float EET = 0;              // of the leg into this row
  std::int32_t DbIndex = -1;  // row of the object in its table
  FixedText<1> Level;         // "J", "V" or "X" (both)
  RowKind Kind = RowKind::enroute;

  // An airway whose name begins with a character below "0" counts as none.
  bool HasAirway() const { return !Airway.Empty() && Airway.View().front() >= '0'; }

  // Takes the airway and its limits away: the leg is direct.
  void ClearAirway() {
    Airway = std::string_view{};
    AirwayMinAlt = -1;
    AirwayMaxAlt = -1;
  }

  friend bool operator==(const PlanWaypoint&, const PlanWaypoint&) = default;
};

// The header's texts are UTF-8.
struct FlightPlan {
  static constexpr int lastPossibleRow = 1000;

  std::int32_t DepartureIndex = -1;  // rows of the airport table, -1: not chosen
  std::int32_t DestinationIndex = -1;
  std::int32_t AlternateIndex = -1;
  std::string DepartureType;      // "Rwy" or "Gate"; empty is written as "Rwy"
  std::int16_t DepartureNum = 0;  // runway or gate number in the airport's lists
  std::string DepartureID;        // runway id, or gate type and number
  float DepartureLat = 0;         // the airport's position until a start is chosen
  float DepartureLon = 0;
  float DepartureHeading = 0;
  float DestinationLat = 0;  // the airport's position, or the landing runway's
  float DestinationLon = 0;
  float GlideAngle = 0;  // of the landing runway, degrees; 0: unknown, 3 degrees are taken
  RouteKind RouteType = RouteKind::direct;
  RouteGenerator RouteMethod = RouteGenerator::none;
  std::string PlanType = "IFR";  // or "VFR"
  std::int32_t CruiseFL = 0;     // hundreds of feet
  bool Westbound = false;
  std::int32_t TotalDistance = 0;  // whole NM
  std::int32_t TotalMinutes = 0;
  std::int16_t SelectedRow = 0;  // the user's insertion point; 0: none
  bool PlanFiled = false;        // both airports are set, the generators may run
  bool CanSave = false;
  bool MissingWaypoints = false;  // read from a file that names what the database lacks: shown, not changed
  std::string SidName;            // procedures in use, empty: none
  std::string StarName;
  std::vector<ProcedureStep> SidSteps;  // their geometry
  std::vector<ProcedureStep> StarSteps;

  std::vector<PlanWaypoint> rows;
  std::optional<PlanWaypoint> AlternateRow;  // not in the table

  int RowCount() const { return static_cast<int>(rows.size()); }
  // Table index of the last row; -1 while there are no rows.
  int DestinationRow() const { return RowCount() - 1; }
  // How many rows belong to the SID and to the STAR.
  int SidRows() const { return CountKind(RowKind::sid); }
  int StarRows() const { return CountKind(RowKind::star); }

  // The row at index; throws std::out_of_range if there is none.
  PlanWaypoint& Row(int index) { return rows.at(static_cast<std::size_t>(index)); }
  const PlanWaypoint& Row(int index) const { return rows.at(static_cast<std::size_t>(index)); }

  friend bool operator==(const FlightPlan&, const FlightPlan&) = default;

 private:
  int CountKind(RowKind kind) const {
    int count = 0;
    for (const PlanWaypoint& row : rows)
      count += row.Kind == kind ? 1 : 0;
    return count;
  }
};

// Empties the plan: no airports, no rows, every flag off.
inline void ClearFlightPlan(FlightPlan& plan) {
  plan = FlightPlan{};
}
