#include "flightplan/waypoint_line.h"

#include <algorithm>
#include <vector>

#include "base/numbers.h"

namespace {

std::string WithoutCommas(std::string_view text) {
  std::string plain(text);
  std::replace(plain.begin(), plain.end(), ',', ' ');
  return plain;
}

std::vector<std::string_view> FieldsOf(std::string_view line) {
  std::vector<std::string_view> fields;
  for (std::size_t start = 0;;) {
    const std::size_t comma = line.find(',', start);
    fields.push_back(Trimmed(line.substr(start, comma - start)));
    if (comma == std::string_view::npos) return fields;
    start = comma + 1;
  }
}

RowKind KindOf(std::string_view field) {
  const std::uint8_t kind = ValByte(field);
  return kind == 2 ? RowKind::star : kind == 3 ? RowKind::sid : RowKind::enroute;
}

// A name with a comma in it would otherwise move the waypoint to 0, 0.
bool IsNumber(std::string_view field) {
  return !field.empty() && field.find_first_not_of("+-.0123456789eEdD") == std::string_view::npos;
}

bool IsOnEarth(const PlanWaypoint& row) {
  return row.Lat >= -90 && row.Lat <= 90 && row.Lon >= -180 && row.Lon <= 180;
}

}  // namespace

std::string WaypointFields(const PlanWaypoint& row) {
  std::string fields = WithoutCommas(row.Sym.View());
  const auto add = [&fields](std::string_view value) { (fields += ',') += value; };
  add(WithoutCommas(row.Code.View()));
  add(WithoutCommas(row.Name.View()));
  add(FormatPicture(row.Lat, "##0.0000"));
  add(FormatPicture(row.Lon, "##0.0000"));
  add(FormatPicture(row.Freq, "##0.00"));
  add(FormatPicture(row.Course, "##0.0000"));
  add(FormatPicture(row.MagVar, "##0.000"));
  add(std::to_string(static_cast<int>(row.Kind)));
  add(std::to_string(row.DbIndex));
  if (row.HasAirway()) {
    add(WithoutCommas(row.Airway.View()));
    if (row.AirwayMinAlt >= 0 && row.AirwayMaxAlt > 0) {
      add(FormatPicture(row.AirwayMinAlt, "00000"));
      add(FormatPicture(row.AirwayMaxAlt, "00000"));
    }
  }
  return fields;
}

std::optional<PlanWaypoint> WaypointOfFields(std::string_view line) {
  constexpr std::size_t always = 10;
  const std::vector<std::string_view> fields = FieldsOf(line);
  if (fields.size() < always || !IsNumber(fields[3]) || !IsNumber(fields[4])) return std::nullopt;
  const auto number = [&](std::size_t i) { return static_cast<float>(Val(fields[i])); };
  PlanWaypoint row;
  row.Sym = fields[0];
  row.Code = fields[1];
  row.Name = fields[2];
  row.Lat = number(3);
  row.Lon = number(4);
  row.Freq = number(5);
  row.Course = number(6);
  row.MagVar = number(7);
  row.Kind = KindOf(fields[8]);
  row.DbIndex = ValInt32(fields[9]);
  if (fields.size() > always) row.Airway = fields[always];
  if (fields.size() > always + 2) {
    row.AirwayMinAlt = ValInt32(fields[always + 1]);
    row.AirwayMaxAlt = ValInt32(fields[always + 2]);
  }
  if (!IsOnEarth(row)) return std::nullopt;
  return row;
}
