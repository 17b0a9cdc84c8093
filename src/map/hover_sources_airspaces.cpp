// Airspaces whose reference point is under the pointer.
#include "base/code_page.h"
#include "map/airspace_kinds.h"
#include "map/hover_sources.h"

void FindAirspaces(const HoverQuestion& question, HoverLines& lines) {
  VisitNear(question, question.database.airspacesByPlace, question.database.airspaces, hoverRadius,
            [&](std::int32_t, const AirspaceRec& row) {
              if (!AirspaceIsShown(row, question.switches)) return;
              const auto add = [&](std::string_view label, std::string_view value) {
                if (!value.empty()) lines.push_back({std::string(label) + CodePageToUtf8(value)});
              };
              lines.push_back({"Name: " + CodePageToUtf8(row.strName.View()), true});
              add("Icao: ", row.strCode.View());
              add("Ctr: ", row.strName2.View());
              add("Frq1: ", row.strUnit1.View());
              add("Frq2: ", row.strUnit2.View());
              add("Class: ", row.strClass.View());
              add("UpAlt: ", row.strUpper.View());
              add("LoAlt: ", row.strLower.View());
            });
}
