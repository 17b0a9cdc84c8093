// What the formats of today's simulators ask of a plan's rows: what kind of
// point each is, its text in UTF-8, and the plan's AIRAC cycle as four digits.
#pragma once

#include <string>
#include <string_view>

#include "flightplan/formats/plan_export.h"

enum class PointKind { unknown, airport, vor, ndb, intersection, user };

// A place of the pilot's own: "Fix " and a number, or one of the pilot's list.
bool IsUserPosition(const PlanWaypoint& row);

bool IsAirportRow(const PlanWaypoint& row);

// "Fix" rows are intersections unless they are positions of the pilot's own.
PointKind KindOf(const PlanWaypoint& row);

// "Airport", "VOR", "NDB", "Intersection", "User": as the simulators' XML plans
// and ours in GPX call the kinds; no name for unknown. And back, in any letters.
const char* KindName(PointKind kind);
PointKind KindNamed(std::string_view name);

// "Fix 07" ("FIX07", "Fix_07" in other programs' files): a position without a name of its own.
bool IsNamelessPosition(std::string_view code);

// Code and airway (empty: direct) of a row; UTF-8.
std::string CodeOf(const PlanWaypoint& row);
std::string AirwayOf(const PlanWaypoint& row);

// The two letters of the row's region, of intersections only; empty: unknown.
std::string RegionOf(const PlanWaypoint& row, const NavDatabase& database);

// The runway where the flight begins: "07L"; empty: a gate or not chosen.
std::string StartRunway(const FlightPlan& plan);

// "NAME.TRANSITION" in its two parts; the second is mostly empty.
struct ProcedureName {
  std::string name;
  std::string transition;
};
ProcedureName PartsOf(std::string_view procedure);

// Cruise altitude in feet.
int CruiseFeet(const FlightPlan& plan);

// The plan's cycle, "2601"; an unknown one is that of the day.
std::string FourDigitCycle(const PlanExport& plan);
