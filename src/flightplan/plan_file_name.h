// The name under which the pilot saves a plan: one for the files of all formats.
#pragma once

#include <string>
#include <string_view>

#include "flightplan/formats/plan_formats.h"

// The name as typed, UTF-8, without the blanks around it and without an
// extension: a dot and up to eight letters and digits that begin with a letter.
std::string PlanBaseName(std::string_view typed);

// Why there can be no files of this base name, for the line beside the field;
// empty if there can.
std::string PlanNameFault(std::string_view baseName);

// The file's name in one format. Departure and destination are codes.
std::string PlanFileName(const PlanFormatInfo& format, std::string_view baseName, std::string_view departure,
                         std::string_view destination);
