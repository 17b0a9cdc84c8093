#include "flightplan/procedures.h"

#include <cmath>

#include "base/code_page.h"
#include "flightplan/object_rows.h"
#include "flightplan/plan_legs.h"
#include "flightplan/plan_rows.h"

namespace {

template <class Row>
std::int32_t RowAtStep(const ProcedureStep& step, const IdentIndex& byIdent, const std::vector<Row>& table) {
  for (const std::int32_t row : byIdent.All(step.Code.View())) {
    const Row& object = table[static_cast<std::size_t>(row)];
    if (std::abs(static_cast<double>(object.sngLat) - step.Lat) <= stepLinkTolerance &&
        std::abs(static_cast<double>(object.sngLon) - step.Lon) <= stepLinkTolerance)
      return row;
  }
  return -1;
}

PlanWaypoint RowFor(const StepLink& link, const NavDatabase& database) {
  const auto at = static_cast<std::size_t>(link.row);
  switch (link.letter) {
    case 'I':
      return ObjectRow(database.intersections[at], link.row);
    case 'F':
      return ObjectRow(database.fixes[at], link.row);
    case 'N':
      return ObjectRow(database.ndbs[at], link.row);
    default:
      return ObjectRow(database.vors[at], link.row);
  }
}

void Refresh(FlightPlan& plan, const PlanContext& context) {
  RebuildTable(plan, context);
  RecomputePlan(plan, context);
}

void InsertSteps(FlightPlan& plan, const PlanContext& context, const SidStarEntry& entry, RowKind kind,
                 int afterRow, std::vector<ProcedureStep>& kept) {
  kept = entry.Steps;
  for (ProcedureStep& step : kept) {
    step.Link = FindStepLink(step, context.database);
    if (step.Link.letter == 'M') continue;
    PlanWaypoint row = RowFor(step.Link, context.database);
    row.Kind = kind;
    InsertWaypoint(plan, context, afterRow, row, false);
  }
}

}  // namespace

StepLink FindStepLink(const ProcedureStep& step, const NavDatabase& database) {
  if (const auto row = RowAtStep(step, database.intersectionsByIdent, database.intersections); row >= 0)
    return {'I', row};
  if (const auto row = RowAtStep(step, database.fixesByIdent, database.fixes); row >= 0) return {'F', row};
  if (const auto row = RowAtStep(step, database.ndbsByIdent, database.ndbs); row >= 0) return {'N', row};
  if (const auto row = RowAtStep(step, database.vorsByIdent, database.vors); row >= 0) return {'V', row};
  return {};
}

void ApplySid(FlightPlan& plan, const PlanContext& context, const SidStarEntry& entry) {
  if (plan.RowCount() < 2) return;
  DeleteRowsOfKind(plan, context, RowKind::sid);
  plan.SidName = CodePageToUtf8(entry.Name.View());
  InsertSteps(plan, context, entry, RowKind::sid, 0, plan.SidSteps);
  Refresh(plan, context);
}

void ApplyStar(FlightPlan& plan, const PlanContext& context, const SidStarEntry& entry) {
  if (plan.RowCount() < 2) return;
  DeleteRowsOfKind(plan, context, RowKind::star);
  plan.StarName = CodePageToUtf8(entry.Name.View());
  InsertSteps(plan, context, entry, RowKind::star, plan.DestinationRow() - 1, plan.StarSteps);
  Refresh(plan, context);
}

void DeleteSid(FlightPlan& plan, const PlanContext& context) {
  DeleteRowsOfKind(plan, context, RowKind::sid);
  plan.SidName.clear();
  plan.SidSteps.clear();
  Refresh(plan, context);
}

void DeleteStar(FlightPlan& plan, const PlanContext& context) {
  DeleteRowsOfKind(plan, context, RowKind::star);
  plan.StarName.clear();
  plan.StarSteps.clear();
  Refresh(plan, context);
}

bool AskDeleteSid(FlightPlan& plan, const PlanContext& context) {
  if (!context.messages.AskYesNo("Are you sure you want to delete the SID?", MessageIcon::question))
    return false;
  DeleteSid(plan, context);
  return true;
}

bool AskDeleteStar(FlightPlan& plan, const PlanContext& context) {
  if (!context.messages.AskYesNo("Are you sure you want to delete the STAR?", MessageIcon::question))
    return false;
  DeleteStar(plan, context);
  return true;
}

bool DeleteTableRow(FlightPlan& plan, const PlanContext& context, int rowIndex) {
  if (rowIndex < 1 || rowIndex >= plan.DestinationRow()) return false;
  const RowKind kind = plan.Row(rowIndex).Kind;
  if (kind == RowKind::enroute) {
    DeleteWaypoint(plan, context, rowIndex, true);
    return true;
  }
  const std::string name = kind == RowKind::sid ? "SID" : "STAR";
  if (!context.messages.AskYesNo("You cannot delete a single waypoint of a " + name +
                                     "!\n      Do you wish to delete the entire " + name + "?",
                                 MessageIcon::question))
    return false;
  kind == RowKind::sid ? DeleteSid(plan, context) : DeleteStar(plan, context);
  return true;
}
