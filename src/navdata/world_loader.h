// Parsers of the files around the airports and above them: taxiways, ground
// polygons, markers, minimum sector altitudes, airway segments, airspaces,
// the world's outlines and the pilot's own waypoints and objects. Each
// returns false if the file is cut off or not understood; the table then
// holds what could be read.
#pragma once

#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "navdata/magnetic_variation.h"
#include "navdata/tables.h"

struct NavDatabase;

bool ParseTaxiways(std::span<const std::byte> bytes, std::vector<TaxiRec>& table);
bool ParsePolygons(std::span<const std::byte> bytes, std::vector<PolygonRec>& table);
bool ParseMarkers(std::span<const std::byte> bytes, std::vector<MarkerRec>& table);
bool ParseMsa(std::span<const std::byte> bytes, std::vector<MsaRec>& table);
bool ParseAirways(std::span<const std::byte> bytes, std::vector<AirwaySegmentRec>& table);
bool ParseAirspaces(std::span<const std::byte> bytes, std::vector<AirspaceRec>& table);

// Polygons end with the shape numbered lastWorldPolygonID; lines have no such end.
bool ParseWorldPolygons(std::span<const std::byte> bytes, WorldShapes& table);
bool ParseWorldLines(std::span<const std::byte> bytes, WorldShapes& table);

// A text file whose first line is "VLMUSERDB": lines of code, name, latitude
// and longitude (decimal degrees) between ";", and lines that begin with "#".
// A line that lacks a part or lies off the globe is left out, and the result
// is false.
bool ParseUserWaypoints(std::string_view text, const MagneticVariationGrid& variation,
                        std::vector<UserWaypointRec>& table);

// Altitude limit as it is shown: trimmed, without one leading "0".
std::string_view CleanLevel(std::string_view limit);
