// The navigation database in memory: tables in file order, and the indexes
// over them. Filled once by the loaders, then only read.
#pragma once

#include <cstdint>
#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "navdata/ident_index.h"
#include "navdata/magnetic_variation.h"
#include "navdata/outline_levels.h"
#include "navdata/place_index.h"
#include "navdata/tables.h"

// One shape of the ground polygons with the holes behind it: the rows from the
// "M" of its outer ring to before the next one's.
struct GroundShape {
  std::uint32_t firstRow = 0;
  std::uint32_t rowCount = 0;
};

struct NavDatabase {
  // "AFIL" counts as an airport; the two "ZZZZ" rows behind it do not.
  static constexpr std::int32_t surplusAirportRows = 2;
  // Rows 0 to 40000 of the intersection table.
  static constexpr std::int32_t intersectionRows = 40001;

  // The ident indexes point into the tables: moving keeps them, copying would not.
  NavDatabase() = default;
  NavDatabase(NavDatabase&&) = default;
  NavDatabase& operator=(NavDatabase&&) = default;
  NavDatabase(const NavDatabase&) = delete;
  NavDatabase& operator=(const NavDatabase&) = delete;

  std::vector<FixedText<30>> regions;
  std::vector<CountryRec> countries;
  std::vector<StateRec> states;
  std::vector<CityRec> cities;

  std::vector<AirportRec> airports;
  std::int32_t lngAirports = -1;  // last row that a scan reaches ("AFIL")
  std::vector<RunwayRec> runways;
  std::vector<FrequencyRec> frequencies;
  std::vector<ParkingRec> parkings;
  std::vector<IlsRec> ils;
  std::vector<IlsRec> pendingIls;

  std::vector<IntersectionRec> intersections;  // always intersectionRows once loaded
  std::int32_t lngIntersections = -1;          // last row that a scan reaches
  std::vector<ConnectionRec> lowConnections;
  std::vector<ConnectionRec> highConnections;

  std::vector<FixRec> fixes;
  std::vector<VorRec> vors;
  std::vector<NdbRec> ndbs;
  std::vector<AirwaySegmentRec> victorAirways;
  std::vector<AirwaySegmentRec> jetAirways;
  std::vector<AirspaceRec> airspaces;
  std::vector<TaxiRec> taxiways;
  std::vector<PolygonRec> polygons;
  std::vector<MarkerRec> markers;
  std::vector<MsaRec> msa;
  std::vector<UserWaypointRec> userWaypoints;
  WorldShapes worldPolygons;
  WorldShapes worldLines;

  MagneticVariationGrid magneticVariation;

  IdentIndex airportsByIdent;  // rows 0 to lngAirports
  IdentIndex intersectionsByIdent;
  IdentIndex fixesByIdent;
  IdentIndex vorsByIdent;
  IdentIndex ndbsByIdent;
  IdentIndex userWaypointsByIdent;
  PlaceIndex airportsByPlace;  // real airports only
  PlaceIndex intersectionsByPlace;
  PlaceIndex fixesByPlace;
  PlaceIndex vorsByPlace;
  PlaceIndex ndbsByPlace;
  PlaceIndex pendingIlsByPlace;
  PlaceIndex userWaypointsByPlace;
  PlaceIndex victorAirwaysByEnds;  // segments that name two rows of the intersection table
  PlaceIndex jetAirwaysByEnds;
  PlaceIndex taxiwaysByEnds;
  PlaceIndex parkingsByPlace;
  PlaceIndex airspacesByPlace;            // by their reference points
  std::vector<GroundShape> groundShapes;  // over polygons, in file order
  PlaceIndex groundShapesByPlace;         // by their first points
  PlaceIndex airspacesByBox;
  PlaceIndex msaByBox;
  OutlineLevels polygonOutlines;  // of worldPolygons
  OutlineLevels lineOutlines;     // of worldLines

  std::span<const RunwayRec> Runways(const AirportRec& airport) const;
  std::span<const FrequencyRec> Frequencies(const AirportRec& airport) const;
  std::span<const ParkingRec> Parkings(const AirportRec& airport) const;
  std::span<const IlsRec> Ils(const AirportRec& airport) const;
  std::span<const ConnectionRec> LowAlt(const IntersectionRec& intersection) const;
  std::span<const ConnectionRec> HighAlt(const IntersectionRec& intersection) const;

  // Number of rows that hold an airport of the file ("AFIL" and "ZZZZ" not counted).
  std::int32_t AirportCount() const { return lngAirports < 0 ? 0 : lngAirports; }

  // First airport row with this code, -1 if none. The code is compared trimmed and exactly.
  std::int32_t FindAirportByCode(std::string_view code) const { return airportsByIdent.First(code); }

  // The ILS of an airport with this code, compared trimmed and in upper case; null if none.
  const IlsRec* FindIls(std::int32_t airportRow, std::string_view ilsCode) const;
};

// "V", "J", "X" (both) or blank: the airway networks an intersection is on.
char AirwayLevel(const IntersectionRec& intersection);

// Runway idents 37 to 44 stand for the compass points "N", "NE" to "NW"; every
// other text comes back as it is, trimmed.
std::string GetRwyName(std::string_view code);

// Builds every index over the tables as they are now.
void BuildIndexes(NavDatabase& database);
