// What is drawn over a copy of the finished map and gone with the next copy:
// measuring line, drag box, bearing line and the box of what lies under the
// pointer. Nothing here repaints the map. Each function leaves the surface's
// style as it found it.
#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "map/drag_box.h"
#include "map/hover.h"
#include "map/map_view.h"
#include "map/measure_line.h"
#include "platform/draw_surface.h"
#include "settings/settings.h"

// The line in colour MEASURE and, unless the caller shows it in a label of its
// own, its caption on a plate. Nothing if it is not visible.
void DrawMeasureLine(const MeasureLine& line, const MapView& view, const ColorSettings& colors,
                     DrawSurface& surface, bool withCaption = true);

// In colour ZOOM. Nothing while BoxActive is false.
void DrawDragBox(const DragBox& box, const ColorSettings& colors, DrawSurface& surface);

// A line from a place to the pointer in colour ROUTE, with a text on a plate
// beside the pointer; an empty text leaves the plate out.
void DrawBearingLine(Position anchor, float x, float y, std::string_view text, const MapView& view,
                     const ColorSettings& colors, DrawSurface& surface);

// The lines on a plate beside the pointer, kept on the page: right of and below
// the pointer where there is room, else left or above. Lines that the page has
// no room for are counted on the last one. Nothing for no lines.
void DrawHoverBox(const std::vector<HoverLine>& lines, float x, float y, const Settings& settings,
                  DrawSurface& surface);

// Least width of the hover box in units by the setting FONTSIZE: 170, 240, 190
// for 0, 1, 2; 170 for anything else.
float HoverBoxWidth(int fontSize);

// A plate with one text, its top left corner at x, y, moved so that it lies on
// the page. Text in color, ground in colors.MAP.
void DrawPlate(std::string_view text, float x, float y, std::int32_t color, const ColorSettings& colors,
               DrawSurface& surface);
