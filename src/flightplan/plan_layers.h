// The flight plan on the map: the line of its legs, and its waypoints with
// their codes above everything else.
#pragma once

#include <vector>

#include "flightplan/flight_plan.h"
#include "map/map_layer.h"

// The layers show plan as it is whenever they draw; it must outlive them.
std::vector<MapLayer> PlanLayers(const FlightPlan& plan);

// A centre and row of the zoom table that show the whole plan, for the moment
// when it has just been made. The row is 19 at most; false without rows.
bool ShowWholePlan(const FlightPlan& plan, MapView& view);
