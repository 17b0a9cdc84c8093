#include "flightplan/aircraft_file.h"

#include <algorithm>
#include <charconv>
#include <cmath>
#include <limits>
#include <type_traits>

#include "base/code_page.h"
#include "base/files.h"
#include "base/fixed_text.h"
#include "base/numbers.h"

namespace {

// The values of an aircraft in the file's order, with their names.
void VisitFields(auto& aircraft, auto&& visit) {
  visit("Number", aircraft.Number);
  visit("Name", aircraft.Name);
  visit("MaxFuel", aircraft.MaxFuel);
  visit("Ceiling", aircraft.Ceiling);
  visit("MaxWeight", aircraft.MaxWeight);
  visit("EmptyWeight", aircraft.EmptyWeight);
  visit("LoadWeight", aircraft.LoadWeight);
  visit("ClimbRate", aircraft.ClimbRate);
  visit("ClimbSpeed", aircraft.ClimbSpeed);
  visit("DescentRate", aircraft.DescentRate);
  visit("DescentSpeed", aircraft.DescentSpeed);
  visit("CruiseSpeed", aircraft.CruiseSpeed);
  visit("CruiseFlightLevel", aircraft.CruiseFlightLevel);
  visit("ApproachSpeed", aircraft.ApproachSpeed);
  visit("ApproachAltitude", aircraft.ApproachAltitude);
  visit("MaxRange", aircraft.MaxRange);
}

bool IsBlank(char c) {
  return c == ' ' || c == '\t';
}
bool IsLineEnd(char c) {
  return c == '\r' || c == '\n';
}

// Walks over the values of the text.
class ValueReader {
 public:
  explicit ValueReader(std::string_view text) : text(text) {}

  int Line() const { return line; }

  // Passes over blank lines; true if a value follows.
  bool MoveToNextAircraft() {
    while (position < text.size() && (IsBlank(text[position]) || IsLineEnd(text[position])))
      PassLineEndOrCharacter();
    return position < text.size();
  }

  // The next value without its quotes, nothing at the end of the text.
  std::optional<std::string_view> Next() {
    while (position < text.size() && IsBlank(text[position]))
      ++position;
    if (position >= text.size()) return std::nullopt;
    const std::string_view value = text[position] == '"' ? Quoted() : Trimmed(Plain());
    if (position < text.size()) PassLineEndOrCharacter();
    return value;
  }

 private:
  std::string_view Plain() {
    const std::size_t start = position;
    while (position < text.size() && text[position] != ',' && !IsLineEnd(text[position]))
      ++position;
    return text.substr(start, position - start);
  }

  // A quoted value ends at its second quote or with the line.
  std::string_view Quoted() {
    const std::size_t start = ++position;
    while (position < text.size() && text[position] != '"' && !IsLineEnd(text[position]))
      ++position;
    const std::string_view value = text.substr(start, position - start);
    Plain();
    return value;
  }

  // CR LF is one line end.
  void PassLineEndOrCharacter() {
    const char c = text[position++];
    if (c == '\r' && position < text.size() && text[position] == '\n') ++position;
    if (IsLineEnd(c)) ++line;
  }

  std::string_view text;
  std::size_t position = 0;
  int line = 1;
};

class AircraftReader {
 public:
  explicit AircraftReader(std::string_view text) : values(text) {}

  AircraftFile Read() {
    while (values.MoveToNextAircraft()) {
      AircraftRec aircraft;
      bool complete = true;
      VisitFields(aircraft,
                  [&](const char* name, auto& field) { complete = complete && ReadField(name, field); });
      if (complete) file.aircraft.push_back(std::move(aircraft));
    }
    if (unlisted > 0) file.problems.push_back("and " + std::to_string(unlisted) + " more");
    return std::move(file);
  }

 private:
  template <class Field>
  bool ReadField(const char* name, Field& field) {
    const int line = values.Line();
    const std::optional<std::string_view> value = values.Next();
    if (!value) {
      Report(line, name, "missing; the last aircraft is left out");
      return false;
    }
    Store(line, name, *value, field);
    return true;
  }

  void Store(int, const char*, std::string_view value, std::string& field) { field = CodePageToUtf8(value); }

  template <class Integer>
  void Store(int line, const char* name, std::string_view value, Integer& field) {
    constexpr double lowest = std::numeric_limits<Integer>::min();
    constexpr double highest = std::numeric_limits<Integer>::max();
    const std::string_view digits = value.starts_with('+') ? value.substr(1) : value;
    double number = 0;
    const auto parsed = std::from_chars(digits.data(), digits.data() + digits.size(), number);
    if (parsed.ec != std::errc() || parsed.ptr != digits.data() + digits.size() || !std::isfinite(number)) {
      Report(line, name, "no number in \"" + CodePageToUtf8(value) + "\"");
      number = Val(value);
    }
    if (number < lowest || number > highest) Report(line, name, "out of range: " + CodePageToUtf8(value));
    field = static_cast<Integer>(RoundToEven(std::clamp(number, lowest, highest)));
  }

  void Report(int line, const char* name, const std::string& reason) {
    if (file.problems.size() >= mostProblems) {
      ++unlisted;
      return;
    }
    file.problems.push_back("line " + std::to_string(line) + ": " + name + ": " + reason);
  }

  static constexpr std::size_t mostProblems = 100;

  ValueReader values;
  AircraftFile file;
  std::size_t unlisted = 0;
};

}  // namespace

AircraftFile ParseAircraft(std::string_view text) {
  return AircraftReader(text).Read();
}

AircraftFile ReadAircraftFile(const std::filesystem::path& path) {
  std::string reason;
  const std::optional<FileBytes> bytes = ReadWholeFile(path, &reason);
  if (!bytes) return {{}, {reason}};
  AircraftFile file = ParseAircraft(bytes->Text());
  for (std::string& problem : file.problems)
    problem.insert(0, path.string() + ", ");
  return file;
}

std::string AircraftText(const std::vector<AircraftRec>& aircraft) {
  std::string text;
  for (const AircraftRec& record : aircraft) {
    std::string separator;
    const auto add = [&](const char*, const auto& field) {
      text += separator;
      if constexpr (std::is_same_v<std::decay_t<decltype(field)>, std::string>) {
        std::string name = Utf8ToCodePage(field);
        std::replace_if(
            name.begin(), name.end(), [](char c) { return c == '\r' || c == '\n'; }, ' ');
        std::replace(name.begin(), name.end(), '"', '\'');
        text += '"' + name + '"';
      } else {
        text += std::to_string(field);
      }
      separator = ",";
    };
    VisitFields(record, add);
    text += "\r\n";
  }
  return text;
}

bool WriteAircraftFile(const std::filesystem::path& path, const std::vector<AircraftRec>& aircraft,
                       std::string* reason) {
  return ReplaceFile(path, AircraftText(aircraft), reason);
}

std::optional<AircraftRec> ReadAircraft(const std::vector<AircraftRec>& aircraft, int number) {
  if (aircraft.empty()) return std::nullopt;
  const auto found = std::find_if(aircraft.begin(), aircraft.end(),
                                  [number](const AircraftRec& record) { return record.Number == number; });
  AircraftRec current = found == aircraft.end() ? aircraft.back() : *found;
  current.ApproachAltitude = ApproachAltitude(current.ApproachSpeed);
  return current;
}
