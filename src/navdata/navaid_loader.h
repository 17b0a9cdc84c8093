// Parsers of the navaid files: VOR, NDB, GPS fixes and the intersections with
// their airway links. The database's magnetic variation grid must be loaded
// before; each row's variation is looked up with its whole degrees. Each
// returns false if the file is cut off or a row does not fit; the table then
// holds what could be read.
#pragma once

#include <cstddef>
#include <span>

struct NavDatabase;

bool ParseVors(std::span<const std::byte> bytes, NavDatabase& database);
bool ParseNdbs(std::span<const std::byte> bytes, NavDatabase& database);
bool ParseFixes(std::span<const std::byte> bytes, NavDatabase& database);

// Rows come where the file's numbers say, 1 to 40000; rows that the file does
// not name stay empty. The last record's number is the last row of a scan.
bool ParseIntersections(std::span<const std::byte> bytes, NavDatabase& database);
