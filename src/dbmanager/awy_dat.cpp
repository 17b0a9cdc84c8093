#include "dbmanager/awy_dat.h"

#include "base/fixed_text.h"

namespace {

std::vector<std::string> SplitNames(std::string_view text) {
  std::vector<std::string> names;
  while (!text.empty()) {
    const std::size_t end = std::min(text.find('-'), text.size());
    std::string name = CodePageOf(text.substr(0, end));
    if (!name.empty()) names.push_back(std::move(name));
    text.remove_prefix(std::min(end + 1, text.size()));
  }
  return names;
}

// Level (1 low, 2 high), base, top and names, which both formats end with.
const char* ReadLimitsAndNames(const LineFields& fields, std::size_t first, SourceAirway& segment) {
  const auto level = fields.Whole(first);
  const auto base = fields.Number(first + 1);
  const auto top = fields.Number(first + 2);
  if (!level || (*level != 1 && *level != 2)) return "level is neither 1 nor 2";
  if (!base || !top || *base < 0 || *top < 0 || *base > 999 || *top > 999)
    return "no lowest and highest level";
  segment.high = *level == 2;
  segment.base = static_cast<int>(*base);
  segment.top = static_cast<int>(*top);
  segment.names = SplitNames(fields.From(first + 3));  // a name may hold blanks
  return segment.names.empty() ? "no airway name" : nullptr;
}

const char* Read640(const LineFields& fields, SourceAirway& segment) {
  const auto from = ParsePosition(fields, 1);
  const auto to = ParsePosition(fields, 4);
  if (!from || !to) return "no position";
  segment.from = {CodePageOf(fields[0]), "", *from};
  segment.to = {CodePageOf(fields[3]), "", *to};
  return ReadLimitsAndNames(fields, 6, segment);
}

const char* ReadDirection(std::string_view text, AirwayDirection& direction) {
  if (text == "N") {
    direction = AirwayDirection::both;
  } else if (text == "F") {
    direction = AirwayDirection::forward;
  } else if (text == "B") {
    direction = AirwayDirection::backward;
  } else {
    return "direction is none of N, F, B";
  }
  return nullptr;
}

const char* Read1100(const LineFields& fields, const FindAirwayEnd& findEnd, SourceAirway& segment) {
  if (const char* reason = ReadDirection(fields[6], segment.direction)) return reason;
  const auto from = findEnd(fields[0], fields[1], fields.Whole(2).value_or(0));
  if (!from) return "the first end is in no fix or navaid file";
  const auto to = findEnd(fields[3], fields[4], fields.Whole(5).value_or(0));
  if (!to) return "the second end is in no fix or navaid file";
  segment.from = {CodePageOf(fields[0]), CodePageOf(fields[1]), *from};
  segment.to = {CodePageOf(fields[3]), CodePageOf(fields[4]), *to};
  return ReadLimitsAndNames(fields, 7, segment);
}

}  // namespace

AirwayData ReadAwyDat(LineReader& lines, const FindAirwayEnd& findEnd, Rejects& rejects) {
  AirwayData data;
  data.head = ReadSourceHead(lines, 640, 1200);
  const bool byIdent = data.head.version >= 1100;
  std::string_view line;
  while (!data.complete && lines.Next(line)) {
    const LineFields fields(line);
    if (fields.Count() == 0) continue;
    if (fields.Count() == 1 && fields[0] == "99") {
      data.complete = true;
      continue;
    }
    SourceAirway segment;
    const char* reason = byIdent ? Read1100(fields, findEnd, segment) : Read640(fields, segment);
    if (reason != nullptr) {
      rejects.Add(lines.Name(), lines.LineNumber(), reason);
    } else {
      data.segments.push_back(std::move(segment));
    }
  }
  return data;
}
