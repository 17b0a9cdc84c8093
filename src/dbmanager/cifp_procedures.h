// From an airport's parts to the procedures that a pilot picks: one for each
// runway (or any) with each enroute transition (or none).
#pragma once

#include "dbmanager/cifp_places.h"
#include "dbmanager/cifp_steps.h"

struct ProcedureTotals {
  std::size_t procedures = 0;  // names
  std::size_t entries = 0;     // written
};

struct ProcedureFiles {
  std::vector<std::byte> sid, star;
  ProcedureTotals sids, stars;
};

// Appends an airport's procedures, named "NAME" or "NAME.TRANSITION", to the
// two files. file names the source where something has to be left out: a leg
// whose fix is not known, a procedure without a place or with more than 255
// steps.
void AppendProcedures(std::string_view code, std::string_view file, const CifpAirport& airport,
                      const CifpPlaces& places, const CifpVariation& variation, ProcedureFiles& files,
                      Rejects& rejects);
