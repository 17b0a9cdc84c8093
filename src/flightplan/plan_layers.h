// The flight plan on the map: the line of its legs, and its waypoints with
// their codes above everything else.
#pragma once

#include <vector>

#include "flightplan/flight_plan.h"
#include "map/map_layer.h"

// The layers show plan as it is whenever they draw; it must outlive them.
std::vector<MapLayer> PlanLayers(const FlightPlan& plan);

inline Position PlaceOf(const PlanWaypoint& row) {
  return {row.Lat, row.Lon};
}

// Appends the lines that a leg is drawn as: the great circle in short steps.
void AppendLegLines(const Projection& projection, Position from, Position to,
                    std::vector<SurfaceLine>& lines);

// What can be seen of the page, in units.
struct VisiblePage {
  float width = mapScaleWidth;
  float height = mapScaleHeight;
};

// Brings the view to a centre and a row of the zoom table (20 at most) that
// show the whole plan, for the moment when it has just been made. Without rows
// the view stays.
void ShowWholePlan(const FlightPlan& plan, MapView& view, const VisiblePage& page = {});
