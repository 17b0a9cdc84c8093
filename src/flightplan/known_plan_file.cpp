#include "flightplan/known_plan_file.h"

#include "flightplan/plan_file.h"

void KnownPlanFile::Took(const FlightPlan& plan, const NavDatabase& database, std::filesystem::path newFile) {
  file = std::move(newFile);
  text = WritePlan(plan, database, PlanFormat::FS);
  departure = plan.DepartureIndex;
  destination = plan.DestinationIndex;
}

void KnownPlanFile::Follow(const FlightPlan& plan) {
  if (plan.DepartureIndex != departure || plan.DestinationIndex != destination) Forget();
}

std::string KnownPlanFile::Name() const {
  return file.empty() ? "Unspecified" : file.stem().string();
}

bool KnownPlanFile::Modified(const FlightPlan& plan, const NavDatabase& database) const {
  if (!plan.CanSave || plan.MissingWaypoints || plan.RowCount() < 2) return false;
  if (file.empty()) return plan.RowCount() > 2;
  return WritePlan(plan, database, PlanFormat::FS) != text;
}
