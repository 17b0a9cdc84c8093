#include "flightplan/aircraft_list.h"

#include <algorithm>
#include <limits>
#include <set>

namespace {

constexpr double feetPerMile = 6076.115;  // as in the climb model
constexpr std::size_t longestName = 70;   // bytes

using Rec = AircraftRec;
constexpr AircraftField fields[] = {
    {"MaxFuel", "MaxFuel (kg):", &Rec::MaxFuel, 1, 500000},
    {"MaxRange", "MaxRange (nm):", &Rec::MaxRange, 1, 20000},
    {"MaxWeight", "MaxWeight (kg):", &Rec::MaxWeight, 1, 2000000},
    {"EmptyWeight", "EmptyWeight (kg):", &Rec::EmptyWeight, 100, 2000000},
    {"LoadWeight", "LoadWeight (kg):", &Rec::LoadWeight, 0, 2000000},
    {"CruiseFlightLevel", "Cruise FL:", &Rec::CruiseFlightLevel, 10, 999},
    {"Ceiling", "Ceiling FL:", &Rec::Ceiling, 10, 999},
    {"ClimbRate", "Climb (ft/min):", &Rec::ClimbRate, 1, 30000},
    {"ClimbSpeed", "Climb (kts):", &Rec::ClimbSpeed, 1, 2500},
    {"CruiseSpeed", "Cruise (kts):", &Rec::CruiseSpeed, 1, 2500},
    {"DescentRate", "Descent (ft/min):", &Rec::DescentRate, 1, 30000},
    {"DescentSpeed", "Descent (kts):", &Rec::DescentSpeed, 1, 2500},
    {"ApproachSpeed", "Approach (kts):", &Rec::ApproachSpeed, 1, 999},
};

// Steeper than upright: the climb model has no distance for it.
bool IsTooSteep(std::int32_t feetPerMinute, std::int32_t knots) {
  return feetPerMinute >= knots / 60.0 * feetPerMile;
}

std::string Line(std::string_view head, std::int32_t value, std::string_view unit) {
  return std::string(head) + std::to_string(value) + std::string(unit);
}

}  // namespace

std::span<const AircraftField> AircraftFields() {
  return fields;
}

std::vector<AircraftFault> CheckAircraft(const AircraftRec& aircraft) {
  std::vector<AircraftFault> faults;
  const auto add = [&](std::string_view field, const std::string& reason) {
    const auto same = [&](const AircraftFault& fault) { return fault.field == field; };
    if (std::none_of(faults.begin(), faults.end(), same)) faults.push_back({field, reason});
  };
  if (aircraft.Name.find_first_not_of(" \t") == std::string::npos) add("Name", "needed");
  if (aircraft.Name.size() > longestName) add("Name", "too long");
  for (const AircraftField& field : fields) {
    const std::int32_t value = aircraft.*field.value;
    if (value < field.lowest || value > field.highest)
      add(field.name, std::to_string(field.lowest) + " to " + std::to_string(field.highest));
  }
  if (aircraft.EmptyWeight > aircraft.MaxWeight) add("EmptyWeight", "more than the maximum weight");
  if (aircraft.CruiseFlightLevel > aircraft.Ceiling) add("CruiseFlightLevel", "above the ceiling");
  if (IsTooSteep(aircraft.ClimbRate, aircraft.ClimbSpeed)) add("ClimbRate", "too steep for the climb speed");
  if (IsTooSteep(aircraft.DescentRate, aircraft.DescentSpeed))
    add("DescentRate", "too steep for the descent speed");
  return faults;
}

std::int16_t FreeAircraftNumber(const std::vector<AircraftRec>& aircraft) {
  std::set<std::int16_t> taken;
  for (const AircraftRec& record : aircraft)
    taken.insert(record.Number);
  for (std::int16_t number = 1; number < std::numeric_limits<std::int16_t>::max(); ++number)
    if (!taken.contains(number)) return number;
  return taken.contains(std::numeric_limits<std::int16_t>::max()) ? std::int16_t{0}
                                                                  : std::numeric_limits<std::int16_t>::max();
}

std::vector<std::string> AircraftLines(const std::vector<AircraftRec>& aircraft) {
  std::vector<std::string> lines;
  for (const AircraftRec& record : aircraft) {
    if (!lines.empty()) lines.emplace_back();
    const auto rate = [&](std::int32_t value) { lines.push_back(Line("Rate: ", value, " ft/min")); };
    const auto speed = [&](std::int32_t value) { lines.push_back(Line("Speed: ", value, " kts")); };
    lines.push_back("Aircraft: " + record.Name);
    lines.push_back(Line("Cruise Flight Level: ", record.CruiseFlightLevel, ""));
    lines.push_back(Line("Maximum Fuel: ", record.MaxFuel, " kg"));
    lines.push_back(Line("Ceiling: ", record.Ceiling, ""));
    lines.push_back(Line("Max Weight: ", record.MaxWeight, " kg"));
    lines.push_back(Line("Load Weight: ", record.LoadWeight, " kg"));
    lines.push_back(Line("Empty Weight: ", record.EmptyWeight, " kg"));
    lines.emplace_back("Climb: ");
    rate(record.ClimbRate);
    speed(record.ClimbSpeed);
    lines.emplace_back("Descent: ");
    rate(record.DescentRate);
    speed(record.DescentSpeed);
    lines.emplace_back("Cruise: ");
    speed(record.CruiseSpeed);
    lines.emplace_back("Approach: ");
    speed(record.ApproachSpeed);
  }
  return lines;
}
