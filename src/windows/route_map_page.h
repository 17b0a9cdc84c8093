// The map of the whole route on paper: coasts, rivers, a grid and the plan, in
// dark colours on white whatever the screen's are.
#pragma once

#include "flightplan/flight_plan.h"
#include "flightplan/plan_layers.h"
#include "navdata/nav_database.h"
#include "settings/settings.h"
#include "windows/printed_pages.h"

// The largest scale at which a page of so many units shows the whole plan, with
// room for the names at its ends.
MapView RouteMapView(const FlightPlan& plan, const VisiblePage& page);

// A route that leads more east and west leaves the lower part of the area free. All three must outlive the
// drawer. The settings give the size of the labels.
MapDrawer RouteMapDrawer(const FlightPlan& plan, const NavDatabase& database, const Settings& settings);
