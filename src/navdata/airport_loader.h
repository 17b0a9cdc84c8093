// Reads the airports with their runways, frequencies, parking positions and
// ILS, the region, country, state and city texts, and the pending ILS.
#pragma once

#include <span>

#include "navdata/database_files.h"
#include "navdata/nav_database.h"

// Steps of the start-up. The magnetic variation grid must be in the database
// before: each airport's variation is looked up here.
LoadResult ReadAirports(const DatabaseLocation& location, LoadListener& listener, NavDatabase& database);
bool ReadPendingIls(const DatabaseLocation& location, LoadListener& listener, NavDatabase& database);

// The parsers behind them, file contents to table. False if the file is cut
// off or a row does not fit; the table then holds what could be read.
bool ParseRegions(std::span<const std::byte> bytes, NavDatabase& database);
bool ParseCountries(std::span<const std::byte> bytes, NavDatabase& database);
bool ParseStates(std::span<const std::byte> bytes, NavDatabase& database);
bool ParseCities(std::span<const std::byte> bytes, NavDatabase& database);
bool ParseAirports(std::span<const std::byte> bytes, NavDatabase& database);
bool ParsePendingIls(std::span<const std::byte> bytes, NavDatabase& database);
