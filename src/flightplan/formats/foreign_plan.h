// A plan as another program wrote it: what its file says, before it meets a
// database. Each format has a reader of its own; ReadForeignPlan finds the one
// that a file is for by what stands in it. Texts are UTF-8.
#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "flightplan/flight_plan.h"
#include "flightplan/formats/route_points.h"
#include "navdata/geodesy.h"

// Text of a file on one line: control characters become blanks, blanks at the
// ends and what is longer than a label can show is cut.
std::string OneLine(std::string_view text);

// What could not be taken: the first lines, the rest counted.
class ImportProblems {
 public:
  static constexpr std::size_t most = 200;

  void Add(std::string_view line);
  // All lines; the last one tells how many more there were.
  std::vector<std::string> Lines() const;

 private:
  std::vector<std::string> lines;
  std::size_t more = 0;
};

struct ForeignPoint {
  std::string code;
  std::string name;
  PointKind kind = PointKind::unknown;
  std::string region;             // two letters; empty: not told
  std::optional<Position> place;  // on the earth; none: not told, or nonsense
  std::string airway;             // of the leg that leads here
  RowKind part = RowKind::enroute;
};

struct ForeignAirport {
  std::string code;
  std::string name;
  std::optional<Position> place;
};

struct ForeignPlan {
  std::string format;        // "X-Plane plan"
  ForeignAirport departure;  // nothing in it: the first of the points; likewise destination
  ForeignAirport destination;
  ForeignAirport alternate;
  std::string start;     // runway or gate
  std::string planType;  // "IFR" or "VFR"; empty: not told
  std::optional<RouteKind> routeType;
  double cruiseFeet = 0;  // 0: not told
  std::string sid;        // "NAME" or "NAME.TRANSITION"
  std::string star;
  std::vector<ForeignPoint> points;  // the airports may stand at the ends
  bool isTrack = false;              // points of a flight that was flown
  std::string route;                 // the route as one line, in place of points
  ImportProblems problems;
};

// Files beyond this size are no plans.
constexpr std::size_t longestPlanFile = 64U << 20U;

// What text (the file's bytes) says. Nothing if it is of no known format.
std::optional<ForeignPlan> ReadForeignPlan(std::string_view text);
