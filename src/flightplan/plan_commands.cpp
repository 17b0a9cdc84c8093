#include "flightplan/plan_commands.h"

PlanCommandStates CommandStates(const FlightPlan& plan, const PlanHistory& history, bool fromRouteString) {
  const bool hasRows = plan.RowCount() >= 2;
  const bool changeable = !plan.MissingWaypoints;
  return {.newPlan = plan.RowCount() > 0,
          .createRoute = plan.PlanFiled && changeable,
          .save = plan.CanSave && changeable,
          .saveAgain = changeable,
          .openSegment = plan.CanSave && changeable,
          .saveSegment = plan.CanSave && changeable,
          .print = plan.CanSave,
          .stepLevel = plan.CanSave,
          .editRows = hasRows && changeable,
          .addWaypoint = changeable,
          .procedures = changeable,
          .deleteSid = !plan.SidName.empty(),
          .deleteStar = !plan.StarName.empty(),
          .extendedTable = hasRows && !fromRouteString,
          .undo = history.CanUndo(),
          .redo = history.CanRedo()};
}
