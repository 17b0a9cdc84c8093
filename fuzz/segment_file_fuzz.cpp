// Segment files of any bytes: every segment has to be written and read again
// as it was, lie within the file, and go into a plan that stays whole.
#include <cstdlib>

#include "flightplan/segment_file.h"
#include "flightplan/segment_insertion.h"
#include "tests/flightplan/drawn_world.h"

namespace {

void Require(bool holds) {
  if (!holds) std::abort();
}

void CheckStored(SegmentType type, const StoredSegment& segment) {
  const SegmentReading again = ReadSegments(type, WriteSegment(type, segment));
  Require(again.valid && again.segments.size() == 1);
  Require(again.problems.empty());
  Require(again.segments[0].rows.size() == segment.rows.size());
}

void CheckInserted(const StoredSegment& segment) {
  static DrawnWorld world("airport EDDA 50 8 0\nairport EDDB 50 14 0\nA 50 9\nvor D 50.5 12\n");
  const AircraftRec aircraft = SlowTwin();
  HeardMessages messages;
  const PlanContext context{world.database, aircraft, messages, 8.5};
  FlightPlan plan;
  SetDepartureAndDestination(plan, context, 0, 1);
  if (segment.rows.size() > 50) return;
  InsertSegment(plan, context, 0, segment.rows);
  InsertSegment(plan, context, plan.DestinationRow() / 2, segment.rows);
  Require(plan.Row(0).Kind == RowKind::departure && plan.rows.back().Kind == RowKind::destination);
  constexpr int order[] = {0, 2, 3, 1, 4};  // of the kinds along the plan
  int reached = 0;
  for (const PlanWaypoint& row : plan.rows) {
    const int place = order[static_cast<int>(row.Kind)];
    Require(place >= reached);
    reached = place;
  }
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  if (size > 65536) return 0;
  const std::string_view text(reinterpret_cast<const char*>(data), size);
  for (const SegmentType type : {SegmentType::departure, SegmentType::enroute}) {
    const SegmentReading reading = ReadSegments(type, text);
    for (const StoredSegment& segment : reading.segments) {
      Require(segment.begin < segment.end && segment.end <= text.size());
      CheckStored(type, segment);
      CheckInserted(segment);
      Require(ReadSegments(type, WithoutSegment(text, segment)).segments.size() ==
              reading.segments.size() - 1);
    }
    Require(ReadSegments(type, WithSegment(text, type, {})).segments.size() == reading.segments.size() + 1);
  }
  return 0;
}
