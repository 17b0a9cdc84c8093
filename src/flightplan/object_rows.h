// Rows of the plan made from rows of the database: what every builder and
// reader copies the same way. Distance, course, airway and kind are the
// caller's; the kind is enroute until he says otherwise.
#pragma once

#include <cstdint>

#include "flightplan/flight_plan.h"
#include "navdata/tables.h"

// index: the object's row in its table. An intersection has its level too.
PlanWaypoint ObjectRow(const IntersectionRec& intersection, std::int32_t index);
PlanWaypoint ObjectRow(const VorRec& vor, std::int32_t index);
PlanWaypoint ObjectRow(const NdbRec& ndb, std::int32_t index);
PlanWaypoint ObjectRow(const FixRec& fix, std::int32_t index);
PlanWaypoint ObjectRow(const UserWaypointRec& waypoint, std::int32_t index);
