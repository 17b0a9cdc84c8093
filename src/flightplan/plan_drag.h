// Changing the plan with the pointer on the map: what of the plan lies under
// the pointer, what a place on the map would be as a waypoint, and what
// becomes of the plan when a waypoint or a leg is pulled there.
#pragma once

#include <optional>
#include <string>
#include <string_view>

#include "flightplan/flight_plan.h"
#include "flightplan/plan_context.h"
#include "map/hover.h"
#include "platform/draw_surface.h"

// How near the pointer must be, in pixels at normal density.
constexpr double planHitPixels = 8;      // to a waypoint or leg of the plan
constexpr double dropTargetPixels = 12;  // to a navaid that a pulled waypoint takes
// To a navaid that a click inserts, in map units to either side.
constexpr std::int32_t insertRadius = 100;

enum class PlanPart { none, waypoint, leg };

struct PlanHit {
  PlanPart part = PlanPart::none;
  int row = -1;          // the waypoint; of a leg the row that it leads to
  bool movable = false;  // it can be pulled
};

// What of the plan lies less than radius units from a point of the page: the
// nearest waypoint, else the nearest leg as it is drawn. The airports and the
// rows and legs of a SID or STAR cannot be pulled, nothing of a plan with
// missing waypoints can.
PlanHit PlanUnder(const FlightPlan& plan, const Projection& projection, SurfacePoint point, double radius);

// Why what lies there cannot be pulled, UTF-8; empty if it can, and for nothing.
std::string WhyFixed(const FlightPlan& plan, const PlanHit& hit);

// The nearest VOR, NDB, intersection, fix or user waypoint that the map shows
// less than radius units to either side of the pointer; of equally near ones
// the first in that order.
std::optional<PlanWaypoint> ShownWaypointAt(const HoverQuestion& question, std::int32_t radius);

// The pilot's own place as a click without a navaid inserts it: Sym "Uwp", Code
// "#", its coordinates as Name.
PlanWaypoint ManualRow(const NavDatabase& database, Position place);

// What is said of a waypoint that a click or a pull would bring, UTF-8: kind
// (none for a user waypoint), code, name and frequency, or the coordinates of a
// place without a navaid.
std::string TargetText(const PlanWaypoint& row);

// The pilot has chosen no row behind which a click on the map inserts.
constexpr std::string_view insertionPointText =
    "You have to specify an insertion point!\nClick on the table row AFTER which the \n"
    "waypoint is to be inserted!";

// Puts target in a row's place, or inserts it into the leg that leads to a
// row, and selects it. Both legs at it are direct then. A neighbour of the
// same code at the same place takes it in. False, and nothing changes, if the
// row already is that object at that place.
bool MovePlanWaypoint(FlightPlan& plan, const PlanContext& context, int row, const PlanWaypoint& target);
void InsertIntoLeg(FlightPlan& plan, const PlanContext& context, int row, const PlanWaypoint& target);

// One pull, from the button's press to its release.
struct PlanDrag {
  PlanHit hit;          // what the button went down on
  SurfacePoint begun;   // where it did, map units
  bool moving = false;  // it is being pulled
  PlanWaypoint target;  // what it would become here; while moving
};

// A ring around the place that a pull or a click would take, in colour HILITE.
void DrawTargetRing(Position target, const MapView& view, const ColorSettings& colors, DrawSurface& surface);

// The lines from the neighbours to the target, and its ring. Nothing while the drag is not moving.
void DrawPlanDrag(const PlanDrag& drag, const FlightPlan& plan, const MapView& view,
                  const ColorSettings& colors, DrawSurface& surface);
