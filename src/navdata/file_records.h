// The records of the database files, byte for byte: little-endian, packed,
// text in the 8-bit code page and blank padded. Each struct's Fields() names
// its fields in file order; the loaders read through it, the Database Manager
// and the tests write through it. Angles are degrees (north and east
// positive), lengths and altitudes feet, frequencies MHz (NDB: kHz), magnetic
// variations degrees, east positive.
#pragma once

#include <cstdint>

#include "base/binary.h"
#include "base/fixed_text.h"

// region.vlm, country.vlm, state.vlm, city.vlm: an i32 count, then these.
struct RegionFileRecord {
  FixedText<30> strRegion;
  static constexpr void Fields(auto& r, auto& visit) { visit(r.strRegion); }
};

struct CountryFileRecord {
  FixedText<40> strCountry;
  FixedText<30> strRegion;
  static constexpr void Fields(auto& r, auto& visit) {
    visit(r.strCountry);
    visit(r.strRegion);
  }
};

struct StateFileRecord {
  FixedText<40> strState;
  FixedText<40> strCountry;
  static constexpr void Fields(auto& r, auto& visit) {
    visit(r.strState);
    visit(r.strCountry);
  }
};

struct CityFileRecord {
  FixedText<40> strCity;
  FixedText<40> strState;
  FixedText<40> strCountry;
  static constexpr void Fields(auto& r, auto& visit) {
    visit(r.strCity);
    visit(r.strState);
    visit(r.strCountry);
  }
};

// airport.vlm: an i32 count, then airports; each is followed by its runways,
// frequencies, parking positions and ILS, in this order.
struct AirportFileRecord {
  std::int32_t lngIndex = 0;  // row of the airport table
  FixedText<5> strCode;
  FixedText<40> strName;
  FixedText<40> strCity;
  FixedText<40> strState;  // "0": none
  FixedText<40> strCountry;
  float sngLat = 0;
  float sngLon = 0;
  Reserved<8> reserved;
  float sngAltitude = 0;
  std::int32_t lngElevation = 0;
  FixedText<15> strBglFile;  // the source the airport was taken from
  std::int32_t lngRunways = 0;
  std::int32_t lngFrequencies = 0;
  std::int32_t lngIls = 0;
  std::int32_t lngParkings = 0;
  static constexpr void Fields(auto& r, auto& visit) {
    visit(r.lngIndex);
    visit(r.strCode);
    visit(r.strName);
    visit(r.strCity);
    visit(r.strState);
    visit(r.strCountry);
    visit(r.sngLat);
    visit(r.sngLon);
    visit(r.reserved);
    visit(r.sngAltitude);
    visit(r.lngElevation);
    visit(r.strBglFile);
    visit(r.lngRunways);
    visit(r.lngFrequencies);
    visit(r.lngIls);
    visit(r.lngParkings);
  }
};

struct RunwayFileRecord {
  FixedText<5> strAirport;
  FixedText<5> strRwyID;       // "00H": a helipad; 37 to 44: N, NE ... NW
  FixedText<5> strRwyIDRecip;  // the opposite end
  float sngLat = 0;            // the runway's centre
  float sngLon = 0;
  float sngHeading = 0;  // true, of the strRwyID end
  float sngAltitude = 0;
  std::int16_t intLength = 0;
  std::int16_t intWidth = 0;
  std::int16_t intSurface = 0;  // index of strSurface()
  FixedText<5> strIlsCode;
  FixedText<5> strIlsCodeRecip;
  FixedText<1> strType;
  static constexpr void Fields(auto& r, auto& visit) {
    visit(r.strAirport);
    visit(r.strRwyID);
    visit(r.strRwyIDRecip);
    visit(r.sngLat);
    visit(r.sngLon);
    visit(r.sngHeading);
    visit(r.sngAltitude);
    visit(r.intLength);
    visit(r.intWidth);
    visit(r.intSurface);
    visit(r.strIlsCode);
    visit(r.strIlsCodeRecip);
    visit(r.strType);
  }
};

struct FrequencyFileRecord {
  FixedText<5> strCode;
  FixedText<40> strName;
  float sngLat = 0;
  float sngLon = 0;
  float sngFrequency = 0;
  std::uint8_t bytType = 0;  // index of strFreqType()
  static constexpr void Fields(auto& r, auto& visit) {
    visit(r.strCode);
    visit(r.strName);
    visit(r.sngLat);
    visit(r.sngLon);
    visit(r.sngFrequency);
    visit(r.bytType);
  }
};

struct ParkingFileRecord {
  FixedText<5> strCode;
  float sngLat = 0;
  float sngLon = 0;
  float sngRadius = 0;       // metres
  std::int32_t lngType = 0;  // index of strGateType()
  std::int32_t lngName = 0;  // index of strGateName()
  std::int32_t lngNumber = 0;
  static constexpr void Fields(auto& r, auto& visit) {
    visit(r.strCode);
    visit(r.sngLat);
    visit(r.sngLon);
    visit(r.sngRadius);
    visit(r.lngType);
    visit(r.lngName);
    visit(r.lngNumber);
  }
};

// The ILS of airport.vlm and the whole of ils.vlm.
struct IlsFileRecord {
  std::int32_t lngAirport = 0;
  FixedText<5> strCode;
  FixedText<40> strName;
  FixedText<5> strAirport;
  float sngLat = 0;  // the antenna
  float sngLon = 0;
  float sngAltitude = 0;
  float sngRange = 0;
  float sngMagVar = 0;
  float sngFrequency = 0;
  float sngCourse = 0;         // true course of the localizer
  float sngILSGlideAngle = 0;  // 0: no glide slope
  FixedText<15> strBglFile;
  FixedText<5> strRwyID;
  FixedText<1> strType;
  static constexpr void Fields(auto& r, auto& visit) {
    visit(r.lngAirport);
    visit(r.strCode);
    visit(r.strName);
    visit(r.strAirport);
    visit(r.sngLat);
    visit(r.sngLon);
    visit(r.sngAltitude);
    visit(r.sngRange);
    visit(r.sngMagVar);
    visit(r.sngFrequency);
    visit(r.sngCourse);
    visit(r.sngILSGlideAngle);
    visit(r.strBglFile);
    visit(r.strRwyID);
    visit(r.strType);
  }
};

struct VorFileRecord {
  FixedText<10> strCode;
  FixedText<20> strName;
  float sngLat = 0;
  float sngLon = 0;
  float sngFrequency = 0;
  float sngMagVar = 0;  // replaced at load
  float sngElevation = 0;
  std::int16_t intType = 0;  // 1 VOR, 2 VORTAC, 3 TACAN, 4 VOR-DME, 9 DME
  std::int16_t intRange = 0;
  std::int16_t intClass = 0;
  static constexpr void Fields(auto& r, auto& visit) {
    visit(r.strCode);
    visit(r.strName);
    visit(r.sngLat);
    visit(r.sngLon);
    visit(r.sngFrequency);
    visit(r.sngMagVar);
    visit(r.sngElevation);
    visit(r.intType);
    visit(r.intRange);
    visit(r.intClass);
  }
};

struct NdbFileRecord {
  FixedText<10> strCode;
  FixedText<20> strName;
  float sngLat = 0;
  float sngLon = 0;
  float sngFrequency = 0;
  float sngMagVar = 0;  // replaced at load
  float sngElevation = 0;
  FixedText<3> strClass;  // "5" NDB, "7" NDB-DME
  static constexpr void Fields(auto& r, auto& visit) {
    visit(r.strCode);
    visit(r.strName);
    visit(r.sngLat);
    visit(r.sngLon);
    visit(r.sngFrequency);
    visit(r.sngMagVar);
    visit(r.sngElevation);
    visit(r.strClass);
  }
};

// dijinter.vlm: headers, each followed by its low, then its high connections.
struct IntersectionFileRecord {
  std::int32_t lngIndex = 0;  // row of the intersection table
  FixedText<2> strRegion;
  FixedText<5> strCode;
  FixedText<25> strName;
  float sngUnused = 0;
  float sngLat = 0;
  float sngLon = 0;
  float sngMagVar = 0;  // replaced at load
  std::uint8_t bytLowAlt = 0;
  std::uint8_t bytHighAlt = 0;
  FixedText<1> strFlag;
  FixedText<1> strAirwayType;  // "L", "H", "B" or blank
  static constexpr void Fields(auto& r, auto& visit) {
    visit(r.lngIndex);
    visit(r.strRegion);
    visit(r.strCode);
    visit(r.strName);
    visit(r.sngUnused);
    visit(r.sngLat);
    visit(r.sngLon);
    visit(r.sngMagVar);
    visit(r.bytLowAlt);
    visit(r.bytHighAlt);
    visit(r.strFlag);
    visit(r.strAirwayType);
  }
};

struct ConnectionFileRecord {
  std::int32_t lngNext = 0;  // intersection at the other end
  FixedText<8> strAirway;
  float sngDistance = 0;   // NM
  FixedText<5> strMinAlt;  // "FL" and three digits, or feet
  FixedText<5> strMaxAlt;
  static constexpr void Fields(auto& r, auto& visit) {
    visit(r.lngNext);
    visit(r.strAirway);
    visit(r.sngDistance);
    visit(r.strMinAlt);
    visit(r.strMaxAlt);
  }
};

struct FixFileRecord {
  FixedText<2> strRegion;
  FixedText<5> strCode;
  FixedText<25> strName;
  Reserved<4> reserved;
  float sngLat = 0;
  float sngLon = 0;
  float sngMagVar = 0;  // replaced at load
  static constexpr void Fields(auto& r, auto& visit) {
    visit(r.strRegion);
    visit(r.strCode);
    visit(r.strName);
    visit(r.reserved);
    visit(r.sngLat);
    visit(r.sngLon);
    visit(r.sngMagVar);
  }
};

struct TaxiFileRecord {
  float sngLat1 = 0;
  float sngLon1 = 0;
  float sngLat2 = 0;  // a record that ends on 0 is not stored
  float sngLon2 = 0;
  FixedText<8> strName;
  std::int16_t intWidth = 0;
  FixedText<5> strType;
  static constexpr void Fields(auto& r, auto& visit) {
    visit(r.sngLat1);
    visit(r.sngLon1);
    visit(r.sngLat2);
    visit(r.sngLon2);
    visit(r.strName);
    visit(r.intWidth);
    visit(r.strType);
  }
};

struct PolygonFileRecord {
  FixedText<1> strFlag;  // "M" starts a shape, "L" adds a point
  float sngLat = 0;
  float sngLon = 0;
  float sngValue = 0;
  Reserved<2> reserved;
  FixedText<1> strMark;
  static constexpr void Fields(auto& r, auto& visit) {
    visit(r.strFlag);
    visit(r.sngLat);
    visit(r.sngLon);
    visit(r.sngValue);
    visit(r.reserved);
    visit(r.strMark);
  }
};

struct MarkerFileRecord {
  FixedText<2> strCode;  // "IM", "MM", "OM"
  float sngLat = 0;
  float sngLon = 0;
  float sngCourse = 0;
  static constexpr void Fields(auto& r, auto& visit) {
    visit(r.strCode);
    visit(r.sngLat);
    visit(r.sngLon);
    visit(r.sngCourse);
  }
};

struct MsaFileRecord {
  FixedText<6> strName;
  FixedText<5> strCode;
  std::array<std::uint8_t, 32> numbers{};
  FixedText<7> strIdent;
  static constexpr void Fields(auto& r, auto& visit) {
    visit(r.strName);
    visit(r.strCode);
    visit(r.numbers);
    visit(r.strIdent);
  }
};

// vicways.vlm and jetways.vlm.
struct AirwaySegmentFileRecord {
  FixedText<8> strName;
  std::int32_t lngFrom = 0;
  std::int32_t lngTo = 0;  // -1: the record is skipped
  float sngLength = 0;     // NM
  FixedText<5> strUpper;
  FixedText<5> strLower;
  static constexpr void Fields(auto& r, auto& visit) {
    visit(r.strName);
    visit(r.lngFrom);
    visit(r.lngTo);
    visit(r.sngLength);
    visit(r.strUpper);
    visit(r.strLower);
  }
};

// airspace.vlm: each is followed by intPoints + 1 PointFileRecords.
struct AirspaceFileRecord {
  std::int16_t intType = 0;
  FixedText<7> strCountry;
  FixedText<4> strCode;
  FixedText<38> strName;
  FixedText<38> strName2;
  FixedText<6> strUnit1;
  FixedText<6> strUnit2;
  FixedText<1> strClass;
  FixedText<1> strClass2;
  FixedText<10> strUpper;
  FixedText<9> strLower;
  float sngLat = 0;
  float sngLon = 0;
  std::int16_t intPoints = 0;
  static constexpr void Fields(auto& r, auto& visit) {
    visit(r.intType);
    visit(r.strCountry);
    visit(r.strCode);
    visit(r.strName);
    visit(r.strName2);
    visit(r.strUnit1);
    visit(r.strUnit2);
    visit(r.strClass);
    visit(r.strClass2);
    visit(r.strUpper);
    visit(r.strLower);
    visit(r.sngLat);
    visit(r.sngLon);
    visit(r.intPoints);
  }
};

struct PointFileRecord {
  float sngLat = 0;
  float sngLon = 0;
  static constexpr void Fields(auto& r, auto& visit) {
    visit(r.sngLat);
    visit(r.sngLon);
  }
};

// worldpolygon.bin, worldline.bin: each is followed by lngPoints + 1
// PointFileRecords. The file holds the second and third bound swapped.
struct WorldShapeFileRecord {
  std::int32_t lngID = 0;
  std::uint8_t bytType = 0;
  std::int32_t lngPoints = 0;
  float sngBox1 = 0;
  float sngBox2 = 0;
  float sngBox3 = 0;
  float sngBox4 = 0;
  static constexpr void Fields(auto& r, auto& visit) {
    visit(r.lngID);
    visit(r.bytType);
    visit(r.lngPoints);
    visit(r.sngBox1);
    visit(r.sngBox3);
    visit(r.sngBox2);
    visit(r.sngBox4);
  }
};

// The shape behind which a polygon file is not read on.
constexpr std::int32_t lastWorldPolygonID = 17003;

static_assert(RecordSize<RegionFileRecord>() == 30);
static_assert(RecordSize<CountryFileRecord>() == 70);
static_assert(RecordSize<StateFileRecord>() == 80);
static_assert(RecordSize<CityFileRecord>() == 120);
static_assert(RecordSize<AirportFileRecord>() == 224);
static_assert(RecordSize<RunwayFileRecord>() == 48);
static_assert(RecordSize<FrequencyFileRecord>() == 58);
static_assert(RecordSize<ParkingFileRecord>() == 29);
static_assert(RecordSize<IlsFileRecord>() == 107);
static_assert(RecordSize<VorFileRecord>() == 56);
static_assert(RecordSize<NdbFileRecord>() == 53);
static_assert(RecordSize<IntersectionFileRecord>() == 56);
static_assert(RecordSize<ConnectionFileRecord>() == 26);
static_assert(RecordSize<FixFileRecord>() == 48);
static_assert(RecordSize<TaxiFileRecord>() == 31);
static_assert(RecordSize<PolygonFileRecord>() == 16);
static_assert(RecordSize<MarkerFileRecord>() == 14);
static_assert(RecordSize<MsaFileRecord>() == 50);
static_assert(RecordSize<AirwaySegmentFileRecord>() == 30);
static_assert(RecordSize<AirspaceFileRecord>() == 132);
static_assert(RecordSize<PointFileRecord>() == 8);
static_assert(RecordSize<WorldShapeFileRecord>() == 25);

// sid.vlm and star.vlm: procedures, each a header and its steps.
struct ProcedureFileHeader {
  FixedText<10> strAirport;
  FixedText<5> strRunway;  // "00" in front: any runway
  FixedText<40> strName;
  std::uint8_t bytSteps = 0;
  static constexpr void Fields(auto& r, auto& visit) {
    visit(r.strAirport);
    visit(r.strRunway);
    visit(r.strName);
    visit(r.bytSteps);
  }
};

struct ProcedureStepFileRecord {
  FixedText<5> strType;  // path terminator, such as "TF"
  FixedText<10> strCode;
  FixedText<20> strText;  // turn and altitude constraint, for the reading text
  std::int16_t intValue = 0;
  float sngLat = 0;
  float sngLon = 0;
  float sngTrack = 0;     // magnetic, degrees
  float sngDistance = 0;  // NM
  float sngAltitude = 0;  // feet
  float sngDme = 0;       // NM from the recommended navaid
  static constexpr void Fields(auto& r, auto& visit) {
    visit(r.strType);
    visit(r.strCode);
    visit(r.strText);
    visit(r.intValue);
    visit(r.sngLat);
    visit(r.sngLon);
    visit(r.sngTrack);
    visit(r.sngDistance);
    visit(r.sngAltitude);
    visit(r.sngDme);
  }
};
