// The second half of the load: everything but the airports, file by file in
// the start-up's order.
#pragma once

#include "navdata/database_files.h"
#include "navdata/nav_database.h"

// A step of the start-up. The magnetic variation grid must be in the database before.
LoadResult ReadNaviDatabases(const DatabaseLocation& location, LoadListener& listener, NavDatabase& database);
