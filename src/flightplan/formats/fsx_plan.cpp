// FSX and Prepar3D: the simulator's XML plan.
#include "flightplan/formats/plan_writers.h"
#include "flightplan/formats/simbase_xml.h"

std::string WriteFsxPlan(const PlanExport& plan) {
  return SimBaseText(plan, {});
}
