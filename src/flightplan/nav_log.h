// What really happened at the waypoints of the plan: time, speed, altitude and
// fuel as each was passed. It stands beside the plan and changes nothing in it.
#pragma once

#include <cstdint>
#include <optional>
#include <vector>

#include "flightplan/flight_plan.h"

struct NavLogEntry {
  int row = 0;  // of the plan's table
  FixedText<10> Code;
  float Lat = 0;
  float Lon = 0;
  double altitude = 0;           // feet
  double groundSpeed = 0;        // kts
  double minutes = 0;            // of the day
  double fuel = 0;               // US gallons on board
  std::int32_t percentUsed = 0;  // of the fuel at the first entry
};

struct NavLog {
  std::optional<double> referenceFuel;  // US gallons at the first entry
  std::vector<NavLogEntry> entries;     // in the order of the rows, one a row

  // The entry of a row, null if it has not been passed.
  const NavLogEntry* At(int rowIndex) const;
};

// Enters that a row has just been passed; an earlier entry of the row gives way.
// The first call's fuel is the reference of every percentage; without fuel then
// all percentages are 0. Throws std::out_of_range if there is no such row.
void FillWPTableWithNavLog(NavLog& log, const FlightPlan& plan, int rowIndex, double altitude,
                           double groundSpeed, double minutes, double fuel);

// Moves every entry to where its waypoint stands now in a plan that has been
// changed; waypoints that are gone take theirs along. An empty plan empties all.
void KeepWithRows(NavLog& log, const FlightPlan& plan);
