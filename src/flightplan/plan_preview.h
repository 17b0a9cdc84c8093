// What a plan file holds, told before it is opened.
#pragma once

#include <string>
#include <string_view>

#include "flightplan/plan_context.h"

struct PlanPreview {
  bool valid = false;   // it can be opened with the database at hand
  std::string title;    // UTF-8: "EDDF Frankfurt Main - EDDM Munich"; why it cannot be opened, if it cannot
  std::string route;    // the route string
  std::string figures;  // "165 NM, 4 waypoints, FL 190, IFR", and what is missing in the database
};

// text: the file's, in the code page. Asks and changes nothing.
PlanPreview PreviewPlan(const PlanContext& context, std::string_view text);
