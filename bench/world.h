// The world that the benchmarks work on: the database of the application
// folder ($VELMORA_HOME and so on, as for the program).
#pragma once

#include "base/app_folder.h"
#include "navdata/nav_database.h"

// Ends the process with a message if there is no database.
const AppFolder& BenchHome();
const NavDatabase& BenchWorld();
