// Route segments as text: stored pieces of a route that can be put into
// another plan. Code page text, lines ended by CR LF when written; any line end
// is read. An enroute file (.enr) holds one segment:
//
//   [VLM Segment]
//   North Atlantic entry               description
//   WP=Int,TABUM,TABUM,50.2521,...     a waypoint a line (waypoint_line.h)
//
// A departure (.dep) or arrival file (.arr) holds those of one airport, each a
// block:
//
//   [BEGIN]
//   Rwy: 07C                           or "Rwy: ANY"
//   Out to the north
//   WP=...
#pragma once

#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

#include "flightplan/flight_plan.h"

enum class SegmentType { departure, arrival, enroute };

// Texts are UTF-8.
struct RouteSegment {
  std::string runway;  // of a departure or arrival; empty: any
  std::string description;
  std::vector<PlanWaypoint> rows;
};

// A segment and where its text stands in the file: from its mark line up to the
// next one.
struct StoredSegment : RouteSegment {
  std::size_t begin = 0;
  std::size_t end = 0;
};

struct SegmentReading {
  bool valid = false;  // the mark line is there
  std::vector<StoredSegment> segments;
  std::vector<std::string> problems;  // UTF-8: lines that could not be read, with their numbers
};

// Lines that cannot be read are left out and told.
SegmentReading ReadSegments(SegmentType type, std::string_view text);

// An enroute file, or one block. Line breaks in the description become blanks,
// characters outside the code page "?".
std::string WriteSegment(SegmentType type, const RouteSegment& segment);

// An airport's file with a block added; what is there stays byte for byte.
std::string WithSegment(std::string_view text, SegmentType type, const RouteSegment& segment);

// The file without a segment that was read from it; the rest stays byte for byte.
std::string WithoutSegment(std::string_view text, const StoredSegment& segment);

// What a file that lacks the mark line is refused with.
std::string_view NotASegmentText(SegmentType type);
