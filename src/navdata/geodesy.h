// Distances, courses and positions, and their texts. All angles are degrees
// (north and east positive), distances nautical miles. One minute of arc is
// one nautical mile: there is no earth radius. Inputs and results are 32-bit
// floats, the working is in double. Pi is the literal below, as results follow
// from it. A NaN or infinite input gives a NaN or infinite result, never a
// crash; the epsilons keep equal points and equal meridians defined.
#pragma once

#include <cmath>
#include <string>

constexpr double geodesyPi = 3.14159265;
constexpr double geodesyTwoPi = 6.2831853;
constexpr double feetPerNM = 6076.131;
constexpr double metresPerFoot = 0.3048;

struct Position {
  float lat = 0;
  float lon = 0;
  friend bool operator==(const Position&, const Position&) = default;
};

// True for a place that a map can show: two numbers, a longitude within
// -180..180. Shapes around a pole may reach beyond it.
inline bool IsOnMap(Position place) {
  return std::isfinite(place.lat) && place.lon >= -180 && place.lon <= 180;
}

double DegToRad(double deg);
double RadToDeg(double rad);

// Brings a value from -360..720 into 0..360 by one step: a value of 800 stays
// above 360, and 360 stays 360.
double NormalizeDeg(double value);

// The angle between two courses of 0 to 360, 0 to 180.
float CourseDifference(float a, float b);

double FeetToNM(double feet);

// Spherical law of cosines. Equal latitudes or longitudes are kept apart by
// epsilon degrees, so identical points are a small positive distance apart.
// An argument of the arc cosine beyond 1 by rounding counts as 1; a negative
// result becomes 0.51.
float GreatCircleDistance(float lat1, float lon1, float lat2, float lon2);
// The same with the larger epsilon of 0.001 degrees.
float GreatCircleDistanceCoarse(float lat1, float lon1, float lat2, float lon2);

// True course at the first point, 0..360.
float GreatCircleCourse(float lat1, float lon1, float lat2, float lon2);

// Constant true course along a rhumb line, 0..360, the shorter way round.
float RhumbCourse(float lat1, float lon1, float lat2, float lon2);

// Flat-earth offset by distance along the REVERSE of the bearing, as an ILS
// threshold is found from its antenna.
Position FlatOffset(float lat, float lon, float bearing, float distance);
// The same along the bearing itself, with the degree factor 0.017453.
Position FlatOffsetForward(float lat, float lon, float bearing, float distance);

// The point at a distance along a true course on the great circle (Napier's
// rules on the unit sphere; longitude within -180..180).
Position GreatCircleOffset(float lat, float lon, float course, float distance);

// Position texts, UTF-8. Style (the setting DECSEC): 0 degrees, minutes and
// seconds as N50°01'59"; any other degrees and decimal minutes as N50°01.9833'.
std::string FormatLat(float lat, int style);
std::string FormatLon(float lon, int style);

// Position texts of plan files, "N50* 01.9833', " and "E008* 34.2345', ". A
// longitude of -180 (or 180) reads W179* 59.9280'.
std::string FormatPlanLat(float lat);
std::string FormatPlanLon(float lon);

// "E 03°" or "W 03°", UTF-8.
std::string FormatMagVar(float variation);

// Minutes as "hh:mm"; hours above 23 wrap, fractions of a minute are cut,
// negative values read "00:00".
std::string FormatMinutes(double minutes);
