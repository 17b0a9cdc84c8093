// The route as the online networks are told it: the idents of the rows between
// the airports. The pilot's own positions are left out; an organised track
// stands once by its name, "NATA" or "PAC12", for all the rows on it.
#pragma once

#include <string>

#include "flightplan/formats/plan_export.h"

enum class RouteLegs {
  unnamed,  // "FFM DEMAB DINKU"
  named,    // "DCT FFM DCT DEMAB UL607 DINKU DCT": how each row is reached, and the destination
};

std::string NetworkRoute(const PlanExport& plan, RouteLegs legs);
