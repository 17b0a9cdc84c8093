// The standard departures (\database\sid.vlm) and arrivals
// (\database\star.vlm): read for one airport at a time, since a pilot looks at
// two of thousands.
#pragma once

#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "base/app_folder.h"
#include "flightplan/procedure_step.h"

enum class ProcedureKind { sid, star };

constexpr std::string_view ProcedureFileName(ProcedureKind kind) {
  return kind == ProcedureKind::sid ? "\\database\\sid.vlm" : "\\database\\star.vlm";
}

// As many of an airport's procedures as a list holds.
constexpr std::size_t mostListedProcedures = 1000;

struct SidStarEntry {
  FixedText<10> Airport;
  FixedText<5> Runway;
  FixedText<40> Name;
  std::vector<ProcedureStep> Steps;

  // "00" stands for any, whatever follows.
  bool AnyRunway() const { return Runway.Raw().substr(0, 2) == "00"; }
  // As lists show it: "Rwy 09L   NAME" or "Any Rwy    NAME".
  std::string ListText() const;
};

struct ProcedureList {
  std::vector<SidStarEntry> entries;  // in file order
  bool complete = true;               // false: the file is cut off behind the last entry
};

// The procedures of one airport (its code in any letters), at most mostListedProcedures.
ProcedureList ParseProcedures(std::span<const std::byte> bytes, std::string_view airport);

// The same from the file. Throws std::runtime_error with the file's name, the reason and the way to make it
// if it is missing or unreadable.
ProcedureList LoadProcedures(const AppFolder& home, ProcedureKind kind, std::string_view airport);
