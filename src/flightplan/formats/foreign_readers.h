// The readers of other programs' plans, one for each format, each in a file of
// its own. What they cannot take they tell in the plan's problems.
#pragma once

#include <pugixml.hpp>
#include <string_view>

#include "flightplan/formats/foreign_plan.h"

// Text formats; UTF-8.
ForeignPlan ReadSimulatorPlan(std::string_view text);  // FS2004 .pln, our own simulator part too
ForeignPlan ReadXPlanePlan(std::string_view text);     // .fms, versions 3 and 1100
ForeignPlan ReadSquawkBoxPlan(std::string_view text);  // .sfp

// XML formats, from the document's root element.
ForeignPlan ReadSimBasePlan(pugi::xml_node root);     // FSX, Prepar3D, MSFS .pln
ForeignPlan ReadFlightGearPlan(pugi::xml_node root);  // .fgfp, .xml
ForeignPlan ReadGarminPlan(pugi::xml_node root);      // .fpl
ForeignPlan ReadGpxPlan(pugi::xml_node root);         // .gpx, a route or a track
