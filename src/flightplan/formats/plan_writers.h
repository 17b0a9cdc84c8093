// The writers of the plan formats: each is one function from the plan to the
// file's bytes, in a file of its own. All throw std::logic_error for a plan
// without its airports.
#pragma once

#include <string>

#include "flightplan/formats/plan_export.h"

// plan_file.h's three, as the table of formats wants them.
std::string WriteOwnPlan(const PlanExport& plan);
std::string WriteSimulatorPlan(const PlanExport& plan);

// The established formats. Texts are code page bytes with lines ended by CR LF,
// the XML document is UTF-8.
std::string WritePmdgRoute(const PlanExport& plan);
std::string WriteLevelDRoute(const PlanExport& plan);
std::string WriteIFlyPlan(const PlanExport& plan);
std::string WriteSquawkBoxRoute(const PlanExport& plan);
std::string WriteSquawkBoxPlan(const PlanExport& plan);  // FSInn's too
std::string WriteXPlane3Plan(const PlanExport& plan);
std::string WriteIvaoPlan(const PlanExport& plan);
std::string WriteXmlPlan(const PlanExport& plan);

// The formats of today's simulators and tools.
std::string WriteFsxPlan(const PlanExport& plan);
std::string WriteMsfsPlan(const PlanExport& plan);
std::string WriteXPlane11Plan(const PlanExport& plan);
std::string WriteFlightGearPlan(const PlanExport& plan);
std::string WriteGarminPlan(const PlanExport& plan);
std::string WriteGpxPlan(const PlanExport& plan);
