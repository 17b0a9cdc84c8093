#include "flightplan/plan_figures.h"

#include "base/numbers.h"
#include "navdata/geodesy.h"

PlanFigures FiguresOf(const FlightPlan& plan, const AircraftRec& aircraft) {
  PlanFigures figures{"00000", FormatMinutes(plan.TotalMinutes), "000", "000"};
  if (plan.TotalDistance > 0) figures.FlightDistance = FormatPicture(plan.TotalDistance, "####0");
  if (plan.CruiseFL > 0) figures.FL = std::to_string(plan.CruiseFL);
  if (plan.RowCount() >= 2) figures.CruiseSpeed = FormatPicture(aircraft.CruiseSpeed, "000");
  return figures;
}
