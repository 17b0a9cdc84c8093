// What the sources of the navigation database find under the pointer, one
// function each. They append the lines of every row that is near, in row order.
#pragma once

#include <initializer_list>
#include <string_view>

#include "map/hover.h"

using HoverLines = std::vector<HoverLine>;

void FindAirports(const HoverQuestion& question, HoverLines& lines);
void FindSunTimes(const HoverQuestion& question, HoverLines& lines);
void FindParkings(const HoverQuestion& question, HoverLines& lines);
void FindVors(const HoverQuestion& question, HoverLines& lines);
void FindNdbs(const HoverQuestion& question, HoverLines& lines);
void FindIntersections(const HoverQuestion& question, HoverLines& lines);
void FindFixes(const HoverQuestion& question, HoverLines& lines);
void FindUserWaypoints(const HoverQuestion& question, HoverLines& lines);
void FindAirspaces(const HoverQuestion& question, HoverLines& lines);

// Radius of most objects, in units to either side.
constexpr std::int32_t hoverRadius = 100;

// Words of the code page joined by blanks, as UTF-8; empty ones are left out.
std::string JoinedWords(std::initializer_list<std::string_view> words);

// Calls visit(row, object) for every row of a table, in row order, that is near the pointer.
template <class Rows, class Visitor>
void VisitNear(const HoverQuestion& question, const PlaceIndex& index, const Rows& rows, std::int32_t radius,
               Visitor&& visit) {
  for (const std::int32_t row : index.Near(question.SearchBox(radius, radius))) {
    const auto& object = rows[static_cast<std::size_t>(row)];
    if (question.Near(object.sngLat, object.sngLon, radius, radius)) visit(row, object);
  }
}
