// What a standard departure or arrival looks like from above: from step to step
// to the place of the step, or along its track where it has no place of its
// own. Drawings of the map, the small chart and the printer share it.
#pragma once

#include <optional>
#include <span>
#include <string>
#include <vector>

#include "flightplan/procedure_step.h"
#include "navdata/magnetic_variation.h"
#include "navdata/nav_database.h"

// Where a departure begins: a threshold and the runway's true heading.
struct RunwayStart {
  Position threshold;
  float heading = 0;
  float lengthNM = 0;  // of the runway
};

struct ProcedureLeg {
  Position from;
  Position to;
  bool vectored = false;  // on the controller's word: the line is only a hint
};

struct ProcedureMark {
  Position place;
  std::string name;  // UTF-8
};

struct ProcedurePath {
  std::vector<ProcedureLeg> legs;
  std::vector<ProcedureMark> marks;  // of the steps with an identifier
};

// Steps that lie off the map (IsOnMap) are passed over. A leg that ends at no
// place is drawn as far as its end can be told: to where it meets the course
// into the next fix, else by its altitude at 500 feet for each NM, else a few NM.
ProcedurePath PathOf(std::span<const ProcedureStep> steps, const std::optional<RunwayStart>& start,
                     const MagneticVariationGrid& variation);

// An end of one of an airport's runways by its ident ("09L", or "9L"): its
// threshold, true heading and length. Nothing if the airport has no such end.
std::optional<RunwayStart> RunwayEnd(const NavDatabase& database, std::int32_t airport, std::string_view id);

// Runway idents that mean the same: blanks and a leading zero do not count.
bool SameRunway(std::string_view a, std::string_view b);
