// The pilot's list of aircraft, \user\aircraft.vlm: plain text in the 8-bit
// code page, one aircraft after the other, its values in a fixed order and
// separated by commas and line ends. A value may stand in double quotes (a
// name with a comma does). Written with one aircraft a line.
#pragma once

#include <filesystem>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "flightplan/aircraft.h"

constexpr std::string_view aircraftFileName = "\\user\\aircraft.vlm";

struct AircraftFile {
  std::vector<AircraftRec> aircraft;  // in file order
  std::vector<std::string> problems;  // the first 100, as "line 3: MaxFuel: missing", UTF-8
};

// Reads value by value to the end. A value that is no number counts as the
// number it starts with or 0, one beyond its field as the field's limit; both
// are reported, as is a last aircraft that is cut off, which is left out.
AircraftFile ParseAircraft(std::string_view text);

// The same from a file. A missing or unreadable file is a problem, and no aircraft.
AircraftFile ReadAircraftFile(const std::filesystem::path& path);

// The file's text. A double quote in a name becomes a single one.
std::string AircraftText(const std::vector<AircraftRec>& aircraft);

// Replaces the file whole. False, with the reason, if it stays as it was.
bool WriteAircraftFile(const std::filesystem::path& path, const std::vector<AircraftRec>& aircraft,
                       std::string* reason = nullptr);

// The aircraft of this number (the first of several), else the last one read,
// with its ApproachAltitude set; nothing from an empty list.
std::optional<AircraftRec> ReadAircraft(const std::vector<AircraftRec>& aircraft, int number);
