// The rows of the navigation tables as they are held in memory. Texts keep
// their fixed width and code page; angles are degrees, lengths and altitudes
// feet, distances NM, frequencies MHz (NDB: kHz), variations degrees, east
// positive. A row's number is its identity for the whole run.
#pragma once

#include <cstdint>
#include <vector>

#include "base/fixed_text.h"
#include "navdata/geodesy.h"

struct CountryRec {
  FixedText<40> strCountry;
  FixedText<30> strRegion;
};

struct StateRec {
  FixedText<40> strState;
  FixedText<40> strCountry;
};

struct CityRec {
  FixedText<40> strCity;
  FixedText<40> strState;
  FixedText<40> strCountry;
};

struct RunwayRec {
  FixedText<5> strRwyID;
  FixedText<5> strRwyIDRecip;
  float sngLat = 0;  // centre
  float sngLon = 0;
  float sngHeading = 0;  // true, of the strRwyID end
  float sngAltitude = 0;
  std::int16_t intLength = 0;
  std::int16_t intWidth = 0;
  std::uint8_t bytSurface = 0;
  FixedText<5> strIlsCode;
  FixedText<5> strIlsCodeRecip;
  FixedText<1> strType;
};

struct FrequencyRec {
  FixedText<5> strCode;
  FixedText<30> strName;
  float sngLat = 0;
  float sngLon = 0;
  float sngFrequency = 0;
  std::uint8_t bytType = 0;
};

struct ParkingRec {
  FixedText<5> strCode;
  float sngLat = 0;
  float sngLon = 0;
  float sngRadius = 0;
  std::int32_t lngType = 0;
  std::int32_t lngName = 0;
  std::int32_t lngNumber = 0;
};

struct IlsRec {
  FixedText<5> strCode;
  FixedText<40> strName;
  FixedText<5> strAirport;  // "#" in a pending ILS
  float sngLat = 0;         // the threshold, once a runway has named this ILS
  float sngLon = 0;
  float sngAltitude = 0;
  float sngRange = 0;
  float sngMagVar = 0;
  float sngFrequency = 0;
  float sngCourse = 0;  // true
  float sngILSGlideAngle = 0;
  FixedText<15> strBglFile;
  FixedText<5> strRwyID;  // "N/A" in a pending ILS
  FixedText<1> strType;
  std::int16_t intPending = -1;
  std::int32_t lngRwyLength = 0;  // 0: no runway names this ILS
};

// The sub-tables of all airports lie in NavDatabase one behind the other; an
// airport holds where its own rows begin and how many they are.
struct AirportRec {
  FixedText<10> strCode;
  FixedText<40> strName;
  FixedText<40> strCity;
  FixedText<40> strState;
  FixedText<40> strCountry;
  float sngLat = 0;
  float sngLon = 0;
  float sngAltitude = 0;
  std::int32_t lngElevation = 0;
  FixedText<15> strBglFile;
  float sngMagVar = 0;
  std::int32_t lngRunways = 0;
  std::int32_t lngFrequencies = 0;
  std::int32_t lngIls = 0;
  std::int32_t lngParkings = 0;
  std::uint32_t firstRunway = 0;
  std::uint32_t firstFrequency = 0;
  std::uint32_t firstIls = 0;
  std::uint32_t firstParking = 0;
};

struct VorRec {
  FixedText<10> strCode;
  FixedText<20> strName;
  float sngLat = 0;
  float sngLon = 0;
  float sngFrequency = 0;
  float sngMagVar = 0;
  float sngElevation = 0;
  std::int16_t intType = 0;
  std::int16_t intRange = 0;
  std::int16_t intClass = 0;
  FixedText<8> strType;  // "VOR", "VORTAC", "TACAN", "VOR-DME", "DME"
};

struct NdbRec {
  FixedText<10> strCode;
  FixedText<20> strName;
  float sngLat = 0;
  float sngLon = 0;
  float sngFrequency = 0;
  float sngMagVar = 0;
  float sngElevation = 0;
  FixedText<8> strType;  // "NDB", "NDB-DME"
};

// One link of the airway graph, from the intersection that owns it.
struct ConnectionRec {
  std::int32_t lngNext = 0;
  FixedText<8> strAirway;
  float sngDistance = 0;
  FixedText<5> strMinAlt;
  FixedText<5> strMaxAlt;
};

struct IntersectionRec {
  FixedText<2> strRegion;
  FixedText<8> strCode;
  FixedText<25> strName;
  float sngUnused = 0;
  float sngLat = 0;
  float sngLon = 0;
  float sngMagVar = 0;
  std::uint8_t bytLowAlt = 0;
  std::uint8_t bytHighAlt = 0;
  FixedText<1> strFlag;
  FixedText<1> strAirwayType;  // "L", "H", "B", blank: on no airway
  std::uint32_t firstLowAlt = 0;
  std::uint32_t firstHighAlt = 0;
};

struct FixRec {
  FixedText<2> strRegion;
  FixedText<5> strCode;
  FixedText<25> strName;
  float sngLat = 0;
  float sngLon = 0;
  float sngMagVar = 0;
};

struct AirwaySegmentRec {
  FixedText<8> strName;
  std::int32_t lngFrom = 0;
  std::int32_t lngTo = 0;
  float sngLength = 0;
  FixedText<5> strUpper;  // cleaned; "n/a" when blank
  FixedText<5> strLower;
};

struct AirspaceRec {
  std::int16_t intType = 0;
  FixedText<4> strCode;
  FixedText<38> strName;
  FixedText<38> strName2;
  FixedText<6> strUnit1;
  FixedText<6> strUnit2;
  FixedText<1> strClass;
  FixedText<1> strClass2;
  FixedText<10> strUpper;  // cleaned
  FixedText<9> strLower;
  float sngLat = 0;
  float sngLon = 0;
  std::vector<Position> points;
};

struct TaxiRec {
  float sngLat1 = 0;
  float sngLon1 = 0;
  float sngLat2 = 0;
  float sngLon2 = 0;
  FixedText<8> strName;
  std::uint8_t bytWidth = 0;
  FixedText<5> strType;
};

struct PolygonRec {
  FixedText<1> strFlag;  // "M" starts a shape, "L" adds a point
  float sngLat = 0;
  float sngLon = 0;
  float sngValue = 0;  // groundHoleValue: of a hole in the shape before
};
constexpr float groundHoleValue = 1;

struct MarkerRec {
  FixedText<2> strCode;
  float sngLat = 0;
  float sngLon = 0;
  float sngCourse = 0;
};

struct MsaRec {
  FixedText<6> strName;
  FixedText<5> strCode;
  std::array<std::uint8_t, 32> numbers{};  // see MsaArea
  FixedText<7> strIdent;
};

// What the numbers of an MSA sector say: five little-endian 32-bit floats, then
// twelve reserved bytes that are 0. West above east crosses the date line.
struct MsaArea {
  float west = 0;
  float south = 0;
  float east = 0;
  float north = 0;
  float altitudeFeet = 0;
};
MsaArea AreaOf(const MsaRec& sector);
void SetArea(MsaRec& sector, const MsaArea& area);

// Kinds of world shapes.
constexpr std::uint8_t worldLand = 1;         // closed
constexpr std::uint8_t worldBorder = 2;       // a line
constexpr std::uint8_t worldInlandWater = 3;  // closed, in land
constexpr std::uint8_t worldRiver = 4;        // a line

// A coastline, a border or a river. The bounds are west, south, east, north.
struct WorldShapeRec {
  std::int32_t lngID = 0;
  std::uint8_t bytType = 0;  // worldLand to worldRiver
  float sngBox1 = 0;         // west
  float sngBox2 = 0;         // south
  float sngBox3 = 0;         // east
  float sngBox4 = 0;         // north
  std::uint32_t firstPoint = 0;
  std::uint32_t pointCount = 0;
};

struct WorldShapes {
  std::vector<WorldShapeRec> shapes;
  std::vector<Position> points;
};

struct UserWaypointRec {
  FixedText<10> strCode;
  FixedText<40> strName;
  float sngLat = 0;
  float sngLon = 0;
  float sngMagVar = 0;
};
