// The plan as it is printed: what stands on the pages, block by block, without
// saying where. Texts are UTF-8 and stand as they are read, with the blanks
// that set them off; whoever lays them out may trim these. The layout onto
// paper is windows/'s.
#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "flightplan/flight_plan.h"
#include "flightplan/plan_context.h"
#include "flightplan/procedure_file.h"
#include "settings/settings.h"

enum class PrintedAlign { left, right };

struct PrintedColumn {
  std::string heading;
  PrintedAlign align = PrintedAlign::left;
  bool takesRest = false;  // gets the width that the others leave, and is wrapped into it
};

struct PrintedTable {
  std::vector<PrintedColumn> columns;
  std::vector<std::vector<std::string>> rows;  // as many cells as columns
};

struct PrintedLine {
  std::string label;  // "Elevation: "; empty: the text goes on below the line before
  std::string text;
};

// A heading (may be empty), lines, then a table; not torn apart unless it is
// longer than a page or is a table of its own.
struct PrintedBlock {
  std::string heading;
  std::vector<PrintedLine> lines;
  PrintedTable table;
  bool close = false;  // stands close below the block before
};

// Begins on a page of its own.
struct PrintedSection {
  std::string heading;
  bool numbered = false;  // the page's number stands behind the heading, which each page repeats
  std::vector<PrintedBlock> blocks;
};

struct PrintedPlan {
  std::string title;      // the first three stand above each page
  std::string routeType;  // "(High Altitude Airways)"; empty if no generator made the route
  std::string routeLine;  // "EDDF (Frankfurt Main) >>> KJFK (John F Kennedy Intl)"
  std::vector<PrintedSection> sections;
  bool map = false;  // the route's map is the last page
};

// The parts of the printed plan that the pilot wants.
struct PrintChoices {
  bool information = true;  // "General Flight Information"
  bool waypoints = true;    // "Waypoint List"
  bool procedures = true;   // departure and arrival routes
  bool zones = true;        // "Control Zone Information"
  bool map = false;

  bool Any() const { return information || waypoints || procedures || zones || map; }
  friend bool operator==(const PrintChoices&, const PrintChoices&) = default;
};

struct PrintSources {
  const FlightPlan& plan;  // both airports are there
  const PlanContext& context;
  const Settings& settings;                // fuel unit, form of positions
  std::string_view routeText;              // txtRoute
  std::vector<SidStarEntry> departures{};  // of the departure airport; may be empty
  std::vector<SidStarEntry> arrivals{};    // of the destination
};

// Throws std::out_of_range for a plan without rows.
PrintedPlan BuildPrintedPlan(const PrintSources& sources, const PrintChoices& choices);
