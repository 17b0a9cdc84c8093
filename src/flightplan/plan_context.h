// What the plan's procedures work with besides the plan itself: the database,
// the current aircraft, the box that speaks to the pilot, and two settings.
// Built where a call starts; nothing here is kept.
#pragma once

#include "flightplan/aircraft.h"
#include "navdata/nav_database.h"
#include "platform/message_box.h"

struct RouteReport;

struct PlanContext {
  const NavDatabase& database;
  const AircraftRec& aircraft;
  MessageBox& messages;
  double FAFDIST = 8.5;           // NM from the final fix to the threshold (setting FAFDIST)
  RouteReport* report = nullptr;  // why a route was not found, where somebody asks (route_report.h)
};
