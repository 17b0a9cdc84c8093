// Everything that lives as long as the process, in one place and with one
// owner. The start-up fills it; the windows and the command line use it.
#pragma once

#include <string>
#include <vector>

#include "base/app_folder.h"
#include "flightplan/aircraft.h"
#include "flightplan/flight_plan.h"
#include "flightplan/nav_log.h"
#include "flightplan/plan_history.h"
#include "map/map_selection.h"
#include "map/map_switches.h"
#include "map/map_view.h"
#include "map/modDeclutter.h"
#include "navdata/nav_database.h"
#include "settings/logs.h"
#include "settings/settings.h"

struct Session {
  explicit Session(AppFolder home) : home(std::move(home)) {}

  AppFolder home;
  Settings settings;
  NavDatabase database;
  std::vector<UserWaypointRec> userObjects;
  std::vector<AircraftRec> aircraftList;
  AircraftRec aircraft;  // the current one
  FlightPlan plan;
  PlanHistory planHistory;
  NavLog navLog;
  MapView view;
  MapSwitches switches;
  MapSelection selection;
  modDeclutter declutter;
  ProtocolLog protocol;

  std::string strFSPath;      // root folder of the simulator in use, empty if unknown
  std::string strAiracCycle;  // "2013.10", or "No AIRAC cycle installed!"
  std::string strSwitchZ;     // "Z": developer switch, no lower bound of the download interval
  std::string strSwitchNine;  // "9": developer switch, show the download's states
  bool blnProtocolLog = false;
  bool sidStarAvailable = false;
  bool weatherAvailable = false;
  bool ivaoAvailable = false;
  bool vatsimAvailable = false;
};
