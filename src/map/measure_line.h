// The measuring tool: a line from where the button went down to the pointer,
// with distance and bearings beside it. Its ends are kept as positions, so the
// line stays on its places while the map zooms and moves.
#pragma once

#include <string>

#include "map/map_view.h"
#include "platform/draw_surface.h"

struct MeasureLine {
  bool MeasureActive = false;  // the button is down: the pointer draws the line
  bool visible = false;        // line and label are on the map
  float MeasureStartLat = 0;
  float MeasureStartLon = 0;
  float MeasureEndLat = 0;
  float MeasureEndLon = 0;
  // lnMeasure on the page, and where lblMeasure stands.
  SurfacePoint start;
  SurfacePoint end;
  SurfacePoint label;

  // Button down: both ends at the pointer.
  void Begin(const MapView& view, float x, float y);
  // The pointer moved. Without MeasureActive nothing happens.
  void MoveTo(const MapView& view, float x, float y);
  // Button up: the line stays.
  void Finish() { MeasureActive = false; }
  // The view has changed: the line's ends follow their positions, the label
  // goes to the start. A line that is not visible stays as it is.
  void Reposition(const MapView& view);
  // Esc, or the ribbon is released.
  void Hide() { MeasureActive = visible = false; }

  // lblMeasure, UTF-8: "12.3NM/47°/227°", great circle distance, magnetic
  // bearing from start to end in whole degrees, and its reciprocal.
  std::string Caption(float magVar) const;
};
