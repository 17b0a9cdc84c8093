// Changes of the plan's table: airports set, rows inserted and deleted,
// doubled neighbours removed. Every change keeps row 0 the departure and the
// last row the destination, and leaves the plan as it was when it throws.
#pragma once

#include "flightplan/flight_plan.h"
#include "flightplan/plan_context.h"

// Doubled neighbours are rows of one code that lie this close together (NM).
constexpr double doubledNeighbourDistance = 1.0;
bool AreDoubled(const PlanWaypoint& row, const PlanWaypoint& next);

// Starts a new plan between two rows of the airport table: direct, filed, with
// its leg, totals and level computed. The positions are the airports' own.
// Throws std::out_of_range if a row is not in the table.
void SetDepartureAndDestination(FlightPlan& plan, const PlanContext& context, int departureRow,
                                int destinationRow);

// Makes a row of the airport table the plan's alternate; -1 takes it away.
// Throws std::out_of_range if there is no such row.
void SetAlternate(FlightPlan& plan, const PlanContext& context, int airportRow);

// Flies to the alternate instead: its row takes the destination's place, the
// plan has no alternate any more, and the rows between the airports stay.
// Nothing happens while there is no alternate.
void ReplaceArrivalByAlternate(FlightPlan& plan, const PlanContext& context);
// The same on the pilot's yes. True if the plan has changed.
bool AskReplaceArrivalByAlternate(FlightPlan& plan, const PlanContext& context);

// Puts row behind afterRow (below 0 counts as 0) and computes the legs from
// there to the end; "Fix" rows are renumbered. afterRow comes back on the new
// row (with refresh, on the row that took it in if it doubled its neighbour).
// refresh also removes doubled neighbours, selects the new row and recomputes
// the plan; without it the caller does so once behind its last row.
// RouteType becomes 1. Throws std::length_error if the table is full and
// std::out_of_range if afterRow is the destination or beyond.
void InsertWaypoint(FlightPlan& plan, const PlanContext& context, int& afterRow, const PlanWaypoint& row,
                    bool refresh);

// Takes a row out, likewise. The next row loses its airway if that is not the
// removed row's: its leg is direct now. Throws std::out_of_range for the
// departure, the destination and rows beyond.
void DeleteWaypoint(FlightPlan& plan, const PlanContext& context, int rowIndex, bool refresh);

// Takes out every row of a kind between the airports, without refresh.
void DeleteRowsOfKind(FlightPlan& plan, const PlanContext& context, RowKind kind);

// Removes doubled neighbours between the airports: the first of two stays. It
// takes over the removed row's airway if it is a STAR row itself or the
// removed row's level is "V" or "J".
void RebuildTable(FlightPlan& plan, const PlanContext& context);

// Deletes every row between the airports on the pilot's yes; tells the pilot
// when there is none. Totals, level and procedure names are emptied as in a
// new plan. True if rows were deleted.
bool DeleteEnrouteWaypoints(FlightPlan& plan, const PlanContext& context);
