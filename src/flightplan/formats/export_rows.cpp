#include "flightplan/formats/export_rows.h"

std::vector<const PlanWaypoint*> RowsBetween(const PlanExport& plan) {
  std::vector<const PlanWaypoint*> rows;
  for (int i = 1; i < plan.plan.DestinationRow(); ++i) {
    const PlanWaypoint& row = plan.plan.Row(i);
    const bool ofProcedure = row.Kind == RowKind::sid || row.Kind == RowKind::star;
    if (plan.withProcedures || !ofProcedure) rows.push_back(&row);
  }
  return rows;
}

std::vector<const PlanWaypoint*> RowsWithAirports(const PlanExport& plan) {
  std::vector<const PlanWaypoint*> rows = RowsBetween(plan);
  rows.insert(rows.begin(), &plan.plan.rows.front());
  rows.push_back(&plan.plan.rows.back());
  return rows;
}
