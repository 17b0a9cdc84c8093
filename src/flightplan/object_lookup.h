// Rows of the plan that come from a file find their objects in the database at
// hand, which may be another than the one the file was made with.
#pragma once

#include "flightplan/flight_plan.h"
#include "navdata/nav_database.h"

// Looks for the row's object: same table and code, the place equal to the whole
// degree. Found, DbIndex (and an intersection's Level) are set. False if the
// object should be in the database and is not: the row is as it was. User
// positions, and symbols that have no table, are none.
bool FindObject(PlanWaypoint& row, const NavDatabase& database);
