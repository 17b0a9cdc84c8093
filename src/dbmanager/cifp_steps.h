// The legs of a procedure's parts as the steps of sid.vlm and star.vlm: each
// with a place, a magnetic track and a length as far as they are known.
#pragma once

#include <functional>
#include <optional>
#include <span>
#include <string>
#include <vector>

#include "dbmanager/cifp_airport.h"
#include "navdata/file_records.h"

// Where a fix lies, nothing if it is not known.
using CifpFinder = std::function<std::optional<SourcePosition>(const CifpFixName&)>;
// Magnetic variation, degrees, east positive.
using CifpVariation = std::function<double(SourcePosition)>;

// The parts one behind the other; a fix that ends one and begins the next is
// there once. A leg without a fix stands where its track leads when it has a
// length, else at the step before; start is the place before the first step.
// Steps in front of the first known place take that place. A leg whose fix is
// not known is left out. Empty if no place is known at all.
std::vector<ProcedureStepFileRecord> MakeProcedureSteps(std::span<const CifpPart* const> parts,
                                                        std::optional<SourcePosition> start,
                                                        const CifpFinder& find,
                                                        const CifpVariation& variation);

// The 20 characters of a step, words with blanks between: "L" or "R" for a
// turn that is given, "@FFM" for the recommended navaid of a leg that needs
// one, the altitude as "5000", "+FL100" (at or above), "-FL140" (at or below)
// or "+5000-FL100", the speed as "-250KT". A word for which there is no room is
// left out.
std::string ProcedureStepText(const CifpLeg& leg);

// True for a leg that begins at its fix and ends elsewhere.
bool LeavesItsFix(const CifpLeg& leg);
