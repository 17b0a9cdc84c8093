// Which of the pilot's commands on the plan may run now. All of it follows from
// the plan's state, here and nowhere else; menus, buttons and keys show it.
#pragma once

#include "flightplan/flight_plan.h"
#include "flightplan/plan_history.h"

struct PlanCommandStates {
  bool newPlan = false;        // mnuNewFP
  bool createRoute = false;    // mnuCreateNavaid, mnuCreateLoAlt, mnuCreateHiAlt and their buttons
  bool save = false;           // mnuSaveFPAs
  bool saveAgain = true;       // mnuSaveFP; without a plan or its name it says so
  bool openSegment = false;    // mnuOpenSegment
  bool saveSegment = false;    // mnuSaveSegment
  bool print = false;          // mnuPrintPlan
  bool stepLevel = false;      // updnFL
  bool editRows = false;       // rows inserted, moved, deleted
  bool addWaypoint = true;     // mnuManWP; without a plan it says so
  bool procedures = true;      // mnuSelectSid, mnuSelectStar; without a plan they say so
  bool deleteSid = false;      // mnuDeleteSid, mnuDisplaySid
  bool deleteStar = false;     // mnuDeleteStar, mnuDisplayStar
  bool extendedTable = false;  // mnuExtTable
  bool undo = false;
  bool redo = false;

  friend bool operator==(const PlanCommandStates&, const PlanCommandStates&) = default;
};

// fromRouteString: the plan was last made from the route string, which leaves
// the table in its normal layout.
PlanCommandStates CommandStates(const FlightPlan& plan, const PlanHistory& history, bool fromRouteString);
