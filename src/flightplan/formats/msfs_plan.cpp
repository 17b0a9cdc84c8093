// MSFS 2020, which MSFS 2024 reads too: the XML plan whose waypoints name the
// procedure that they belong to.
#include "flightplan/formats/plan_writers.h"
#include "flightplan/formats/simbase_xml.h"

std::string WriteMsfsPlan(const PlanExport& plan) {
  return SimBaseText(
      plan, {.versionMajor = 11, .versionBuild = 282174, .cruisePicture = "0.000", .procedures = true});
}
