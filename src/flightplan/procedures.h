// Standard departures and arrivals in the plan: their steps that the database
// knows become rows behind the departure or before the destination.
#pragma once

#include "flightplan/flight_plan.h"
#include "flightplan/plan_context.h"
#include "flightplan/procedure_file.h"

// How far apart, in degrees of latitude and of longitude, a step and the
// object of its name may lie.
constexpr double stepLinkTolerance = 0.02;

// The first object of the step's name at the step's place: intersections
// before fixes, NDBs, VORs. 'M' if there is none.
StepLink FindStepLink(const ProcedureStep& step, const NavDatabase& database);

// Join a procedure to the plan; one of the same kind that the plan had gives
// way. The whole of its steps is kept as geometry, those with a link become
// rows. Nothing happens while the plan has no airports.
void ApplySid(FlightPlan& plan, const PlanContext& context, const SidStarEntry& entry);
void ApplyStar(FlightPlan& plan, const PlanContext& context, const SidStarEntry& entry);

// Take a procedure out of the plan again: rows, name and geometry.
void DeleteSid(FlightPlan& plan, const PlanContext& context);
void DeleteStar(FlightPlan& plan, const PlanContext& context);

// The same on the pilot's yes. True if it was deleted.
bool AskDeleteSid(FlightPlan& plan, const PlanContext& context);
bool AskDeleteStar(FlightPlan& plan, const PlanContext& context);

// The delete key on a row of the table: an enroute row goes at once, a row of a
// procedure only with the whole of it and on the pilot's yes, the airports
// never. True if the plan has changed.
bool DeleteTableRow(FlightPlan& plan, const PlanContext& context, int rowIndex);
