// The map of the whole route on paper: coasts, rivers, a grid and the plan, in
// dark colours on white whatever the screen's are.
#pragma once

#include "flightplan/flight_plan.h"
#include "navdata/nav_database.h"
#include "settings/settings.h"
#include "windows/printed_pages.h"

// All three must outlive the drawer. The settings give the size of the labels.
MapDrawer RouteMapDrawer(const FlightPlan& plan, const NavDatabase& database, const Settings& settings);
