// What the XML plans of FSX, Prepar3D and MSFS share: the frame with the plan's
// header, the list of waypoints, and the text of a position:
//   N50° 1' 52.50",E8° 33' 45.00",+000364.00
#pragma once

#include <pugixml.hpp>
#include <string>

#include "flightplan/formats/plan_export.h"

struct SimBaseFlavour {
  int versionMajor = 10;
  int versionBuild = 61472;
  const char* cruisePicture = "0";
  bool procedures = false;  // waypoints name their SID and STAR, airports their runway
};

// The document of a plan; UTF-8.
std::string SimBaseText(const PlanExport& plan, const SimBaseFlavour& flavour);

// Degrees north and east positive, feet.
std::string SimBasePosition(double lat, double lon, double feet);
