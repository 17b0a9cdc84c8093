// Labels of symbols: up to a few short lines under one another, of which the
// first is placed by the declutter grid and the others follow it. A label is
// one text with '\n' between its lines.
#pragma once

#include <string>
#include <string_view>

#include "map/modDeclutter.h"
#include "platform/draw_surface.h"
#include "settings/settings.h"

// Adds one more line to a label; an empty one adds nothing.
void AppendLine(std::string& label, std::string_view line);

// The first line of a label.
std::string_view FirstLine(std::string_view label);

// How the lines below the first lie to it.
enum class LineAlign { left, centre, right };

// Prints a label with the first line's top left corner at place, the others
// each one TextHeight lower, in the surface's font and ForeColor. Lines that
// lie off the page are not handed to the surface.
//
void PrintLabelLines(DrawSurface& surface, SurfacePoint place, std::string_view label,
                     LineAlign align = LineAlign::centre);

// Asks labels for a place near top, at which the first line would be centred
// on middle, and prints the label there. Empty labels claim nothing.
void PlaceAndPrint(DrawSurface& surface, modDeclutter& labels, float middle, float top,
                   std::string_view label, LabelKind kind);

// The size of a label's font by the pilot's setting FONTSIZE: 0 as given, 1
// and 2 larger.
float LabelPoints(const Settings& settings, float points);
