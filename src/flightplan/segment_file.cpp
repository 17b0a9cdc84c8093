#include "flightplan/segment_file.h"

#include <algorithm>
#include <optional>

#include "base/code_page.h"
#include "base/numbers.h"
#include "flightplan/waypoint_line.h"

namespace {

constexpr std::string_view enrouteMark = "[VLM Segment]";
constexpr std::string_view blockMark = "[BEGIN]";
constexpr std::string_view rowKey = "WP=";
constexpr std::string_view runwayKey = "Rwy:";
constexpr std::string_view anyRunway = "ANY";
constexpr std::string_view lineEnd = "\r\n";
constexpr std::size_t mostProblems = 100;
constexpr std::size_t mostRows = FlightPlan::lastPossibleRow - 1;  // no plan takes more

std::string_view MarkOf(SegmentType type) {
  return type == SegmentType::enroute ? enrouteMark : blockMark;
}

struct Line {
  std::string_view text;
  std::size_t begin = 0;
  int number = 0;
};

std::vector<Line> LinesOf(std::string_view text) {
  std::vector<Line> lines;
  for (std::size_t begin = 0; begin < text.size();) {
    const std::size_t end = std::min(text.find_first_of("\r\n", begin), text.size());
    lines.push_back({text.substr(begin, end - begin), begin, static_cast<int>(lines.size()) + 1});
    begin = end + (text.substr(end, 2) == lineEnd ? 2 : 1);
  }
  return lines;
}

bool IsDigits(std::string_view text) {
  return !text.empty() && text.find_first_not_of("0123456789") == std::string_view::npos;
}

// A plan's line has the number of the row in front; it counts for nothing
// here, and no symbol is a number.
std::optional<PlanWaypoint> RowOf(std::string_view fields) {
  const std::size_t comma = fields.find(',');
  if (comma != std::string_view::npos && IsDigits(Trimmed(fields.substr(0, comma))))
    fields.remove_prefix(comma + 1);
  const std::optional<PlanWaypoint> row = WaypointOfFields(fields);
  return row && IsDigits(row->Sym.View()) ? std::nullopt : row;
}

class SegmentReader {
 public:
  explicit SegmentReader(SegmentType type) : type(type) {}

  SegmentReading Read(std::string_view text) {
    for (const Line& line : LinesOf(text))
      Take(line);
    if (!reading.segments.empty()) reading.segments.back().end = text.size();
    reading.valid = !reading.segments.empty();
    return std::move(reading);
  }

 private:
  enum class Awaited { mark, runway, description, rows };

  void Take(const Line& line) {
    if (line.text.starts_with(MarkOf(type))) return Begin(line);
    const std::string_view text = Trimmed(line.text);
    if (text.empty()) return;
    if (awaited == Awaited::mark) return Report(line, "it stands before the first segment");
    if (line.text.starts_with(rowKey)) return TakeRow(line);
    if (awaited == Awaited::runway && TakeRunway(text)) return;
    if (awaited == Awaited::rows) return Report(line, "it is no waypoint");
    Last().description = CodePageToUtf8(text);
    awaited = Awaited::rows;
  }

  void Begin(const Line& line) {
    if (!reading.segments.empty()) Last().end = line.begin;
    reading.segments.emplace_back().begin = line.begin;
    awaited = type == SegmentType::enroute ? Awaited::description : Awaited::runway;
  }

  // False if the line is none of a runway: the description then stands in its place.
  bool TakeRunway(std::string_view text) {
    const bool keyed = text.starts_with(runwayKey);
    if (!keyed && text != anyRunway) return false;
    const std::string_view id = keyed ? Trimmed(text.substr(runwayKey.size())) : text;
    if (!EqualNoCase(id, anyRunway)) Last().runway = CodePageToUtf8(id);
    awaited = Awaited::description;
    return true;
  }

  void TakeRow(const Line& line) {
    awaited = Awaited::rows;
    const std::optional<PlanWaypoint> row = RowOf(line.text.substr(rowKey.size()));
    if (!row) return Report(line, "the waypoint is not complete");
    if (Last().rows.size() >= mostRows) return Report(line, "no plan has so many waypoints");
    Last().rows.push_back(*row);
  }

  void Report(const Line& line, const std::string& why) {
    if (reading.problems.size() < mostProblems)
      reading.problems.push_back("line " + std::to_string(line.number) + ": " + why + "; it is left out");
  }

  StoredSegment& Last() { return reading.segments.back(); }

  SegmentType type;
  SegmentReading reading;
  Awaited awaited = Awaited::mark;
};

// One line of text that is not taken for anything else.
std::string PlainLine(std::string_view utf8) {
  std::string line = Utf8ToCodePage(utf8);
  for (char& c : line)
    if (static_cast<unsigned char>(c) < ' ') c = ' ';
  line = std::string(Trimmed(line));
  const bool misleads =
      line.starts_with(enrouteMark) || line.starts_with(blockMark) || line.starts_with(rowKey);
  return misleads ? " " + line : line;
}

}  // namespace

SegmentReading ReadSegments(SegmentType type, std::string_view text) {
  return SegmentReader(type).Read(text);
}

std::string WriteSegment(SegmentType type, const RouteSegment& segment) {
  std::string text;
  const auto add = [&text](std::string_view line) { (text += line) += lineEnd; };
  add(MarkOf(type));
  if (type != SegmentType::enroute) {
    const std::string runway = PlainLine(segment.runway);
    add(std::string(runwayKey) + " " + (runway.empty() ? std::string(anyRunway) : runway));
  }
  add(PlainLine(segment.description));
  for (const PlanWaypoint& row : segment.rows)
    add(std::string(rowKey) + WaypointFields(row));
  return text;
}

std::string WithSegment(std::string_view text, SegmentType type, const RouteSegment& segment) {
  std::string whole(text);
  if (!whole.empty() && whole.back() != '\n' && whole.back() != '\r') whole += lineEnd;
  return whole + WriteSegment(type, segment);
}

std::string WithoutSegment(std::string_view text, const StoredSegment& segment) {
  const std::size_t begin = std::min(segment.begin, text.size());
  const std::size_t end = std::clamp(segment.end, begin, text.size());
  return std::string(text.substr(0, begin)) + std::string(text.substr(end));
}

std::string_view NotASegmentText(SegmentType type) {
  return type == SegmentType::enroute ? "This is no valid enroute file" : "This is no valid segment file";
}
