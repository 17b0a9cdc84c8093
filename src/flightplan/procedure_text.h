// A standard departure or arrival as a pilot would read it out.
#pragma once

#include <optional>
#include <string>

#include "flightplan/procedure_file.h"
#include "flightplan/procedures.h"

// What the 20 characters of a step say.
struct StepNotes {
  char turn = ' ';     // 'L', 'R'; ' ': not given
  std::string navaid;  // recommended, without its "@"
  std::string limits;  // altitude and speed, such as "+FL100 -250KT"
};
StepNotes NotesOf(const ProcedureStep& step);

// "left" or "right" by the sign of a change of heading brought within -180 to
// 180; no change counts as right.
std::string_view TurnSide(double headingChange);

enum class SentenceStart { capital, small };

// The whole of a departure: "Climb straight ahead until crossing FFM R-248 (2.0
// DME), turn left, 309° track to ...". Small: as the printed plan begins it.
std::string DepartureText(const SidStarEntry& entry, const NavDatabase& database,
                          SentenceStart start = SentenceStart::capital);

struct LandingRunway {
  std::string id;
  float magneticHeading = 0;
  bool hasIls = false;
};

// The whole of an arrival; without a runway it ends at the final fix.
std::string ArrivalText(const SidStarEntry& entry, const std::optional<LandingRunway>& runway);
