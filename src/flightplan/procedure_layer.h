// The plan's standard departure and arrival on the map: their lines below the
// navaids, a mark and the name at every step that is no row of the plan.
#pragma once

#include "flightplan/flight_plan.h"
#include "flightplan/procedure_path.h"
#include "map/map_layer.h"

// Shows what plan holds whenever it draws; plan must outlive it.
std::vector<MapLayer> ProcedureLayers(const FlightPlan& plan);

// How one path is drawn.
struct PathStyle {
  std::int32_t color = 0;
  std::int32_t textColor = 0;
  float width = 1.8F;
  float opacity = 1;
  float markSize = 24;   // units, half of it
  float fontPoints = 0;  // of the names; 0: none
};

// A path with its marks; each leg the shorter way round the world, vectored
// ones dashed.
void DrawProcedurePath(DrawSurface& surface, const Projection& projection, const ProcedurePath& path,
                       const PathStyle& style);
