// Finds what a pilot can put into the plan by typing its ident: intersections,
// VOR, NDB, fixes and user waypoints, or a position in figures; and puts it there.
#pragma once

#include <optional>
#include <string_view>
#include <vector>

#include "flightplan/flight_plan.h"
#include "flightplan/plan_context.h"

struct FoundWaypoint {
  PlanWaypoint row;    // ready to be inserted
  float distance = 0;  // NM from where the search was made; 0 without a place
  float course = 0;    // true, from there
  float magneticCourse = 0;
};
constexpr std::size_t mostWaypointsFound = 100;

// Objects whose ident begins with what is typed (UTF-8; capitals do not
// matter), exact idents first, then by distance from a place, then in the
// order of the tables: intersections, VOR, NDB, fixes, user waypoints. A fix
// that lies where an intersection of its ident lies is left out. If the text
// is a position (position_text.h) that comes first. Nothing for a blank text.
std::vector<FoundWaypoint> FindWaypoints(const FlightPlan& plan, const NavDatabase& database,
                                         std::string_view typed, std::size_t most = mostWaypointsFound);

// A position of the pilot's own as a row: Sym "Uwp", the first Code "WP01" to
// "WP99" that the plan does not have ("WP" after those), its coordinates as Name.
PlanWaypoint UserPositionRow(const FlightPlan& plan, const NavDatabase& database, Position place);

// The row behind which the pilot's waypoint is put: the selected one. None
// selected: the departure. Never into a SID or a STAR, nor behind the
// destination: from there it moves to the SID's last row or the row before the
// STAR or the destination. 0 for a plan without rows.
int InsertionRow(const FlightPlan& plan);

// The pilot has no airports yet between which a waypoint could stand.
constexpr std::string_view selectAirportsFirstText =
    "Select the departure and destination airports first by pressing the button <Select Airport>!";

// Inserts a row there and selects it. The leg that it parts loses its airway.
// If the row before or behind is the same waypoint, that is selected instead.
// Without airports the pilot is told to choose them. True if the plan has a row more.
bool InsertAfterSelection(FlightPlan& plan, const PlanContext& context, const PlanWaypoint& row);
