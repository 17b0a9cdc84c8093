// Why a search for a route ended as it did, in the pilot's terms: how many
// fixes lay within which radius of which row, which link or network ended it,
// which word was passed over. The messages to the pilot stay short; these lines
// are for the protocol log. A builder fills them only where its context has a
// report, and the airway builder only once it has failed: a route that is
// found costs nothing.
#pragma once

#include <string>
#include <vector>

#include "flightplan/flight_plan.h"
#include "flightplan/plan_context.h"

struct RouteReport {
  std::vector<std::string> lines;  // UTF-8
};

// Adds a line; nothing without a report.
void Report(const PlanContext& context, std::string line);

// "High altitude route EDDF to KJFK: ", for the leg behind a row.
std::string LegTitle(const FlightPlan& plan, int insertionRow, std::string_view builder);

// What the airway builder tried. Level is 'V' or 'J', radii are in NM.
struct AirwayTry {
  int entry = 0;     // node
  float radius = 0;  // within which it was found
};

// No entry fix up to this radius. sector: how far a link may lead aside, degrees.
void ReportNoEntry(const PlanContext& context, const FlightPlan& plan, int insertionRow, char level,
                   float radius, float sector);
// No exit fix from nearest up to this radius.
void ReportNoExit(const PlanContext& context, const FlightPlan& plan, int insertionRow, char level,
                  float nearest, float radius);
// No way from any of the entries into the exit circle.
void ReportNoWay(const PlanContext& context, const FlightPlan& plan, int insertionRow, char level,
                 const std::vector<AirwayTry>& tries, float exitRadius);

// A word of a route string (number counts from 1) that names no object.
void ReportPassedOver(const PlanContext& context, const std::string& word, std::size_t number);
// A row that the airway from a node does not lead to. toNode: the node that the row stands for, -1: none.
void ReportNotOnAirway(const PlanContext& context, const PlanWaypoint& row, const std::string& airway,
                       int fromNode, int toNode);
