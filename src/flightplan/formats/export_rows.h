// The rows of the plan that a format writes.
#pragma once

#include <vector>

#include "flightplan/formats/plan_export.h"

// The rows between the airports in their order; SID and STAR only if the pilot
// wants them. The pointers hold as long as the plan is not changed.
std::vector<const PlanWaypoint*> RowsBetween(const PlanExport& plan);

// RowsBetween with both airports around them.
std::vector<const PlanWaypoint*> RowsWithAirports(const PlanExport& plan);
