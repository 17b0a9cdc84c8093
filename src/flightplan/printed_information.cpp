#include "flightplan/printed_information.h"

#include <array>
#include <cmath>
#include <stdexcept>

#include "base/code_page.h"
#include "base/numbers.h"
#include "flightplan/cruise_level.h"
#include "flightplan/fuel_plan.h"
#include "navdata/lookup_names.h"

namespace {

constexpr std::uint8_t atisType = 1;

// In the order of strFreqType, from 1 on.
constexpr std::array<std::string_view, 12> frequencyLabels = {
    "ATIS:",     "Multicom:", "Unicom:",    "CTAF:",   "Ground:", "Tower:",
    "Delivery:", "Approach:", "Departure:", "Center:", "FSS:",    "ASOS:"};

const AirportRec* AirportAt(const NavDatabase& database, std::int32_t row) {
  const bool known = row >= 0 && static_cast<std::size_t>(row) < database.airports.size();
  return known ? &database.airports[static_cast<std::size_t>(row)] : nullptr;
}

// All of one kind, "118.025, 118.725"; empty if there is none.
std::string FrequenciesOf(const NavDatabase& database, const AirportRec& airport, std::uint8_t type) {
  std::string text;
  for (const FrequencyRec& row : database.Frequencies(airport))
    if (row.bytType == type) text += (text.empty() ? "" : ", ") + FormatPicture(row.sngFrequency, "000.000");
  return text;
}

PrintedBlock AircraftBlock(const PrintSources& from) {
  const FlightPlan& plan = from.plan;
  PrintedBlock block;
  block.lines = {{"Aircraft:", from.context.aircraft.Name},
                 {"Distance:", FormatPicture(plan.TotalDistance, "####") + " NM"},
                 {"Flight time:", FormatMinutes(plan.TotalMinutes) + " h/m"},
                 {"Flight level:", std::to_string(plan.CruiseFL)},
                 {"Cruising speed:", std::to_string(from.context.aircraft.CruiseSpeed) + " kts"}};
  return block;
}

// Code, name and position, and below them what a pilot sets before he goes.
void AddAirport(const PrintSources& from, std::string_view label, int row, Position place,
                const std::string& start, PrintedBlock& block) {
  const PlanWaypoint& waypoint = from.plan.Row(row);
  const int style = from.settings.DECSEC;
  block.lines.push_back({std::string(label),
                         CodePageToUtf8(waypoint.Code.View()) + "  " + CodePageToUtf8(waypoint.Name.View()) +
                             "  (" + FormatLat(place.lat, style) + "/" + FormatLon(place.lon, style) + ")"});
  const NavDatabase& database = from.context.database;
  const AirportRec* airport =
      AirportAt(database, row == 0 ? from.plan.DepartureIndex : from.plan.DestinationIndex);
  std::string text = start.empty() ? "" : start + "   ";
  if (airport != nullptr) text += "Elevation: " + std::to_string(airport->lngElevation) + "ft   ";
  text += "Var: " + FormatMagVar(waypoint.MagVar);
  const std::string atis = airport != nullptr ? FrequenciesOf(database, *airport, atisType) : "";
  if (!atis.empty()) text += "   ATIS: " + atis;
  block.lines.push_back({"", text});
}

PrintedBlock DepartureArrivalBlock(const PrintSources& from) {
  const FlightPlan& plan = from.plan;
  std::string start = GetRwyName(plan.DepartureID);
  if (plan.DepartureType != "Gate" && !start.empty()) start = "Rwy " + start;
  PrintedBlock block;
  AddAirport(from, "Departure: ", 0, {plan.DepartureLat, plan.DepartureLon}, start, block);
  AddAirport(from, "Destination: ", plan.DestinationRow(), {plan.DestinationLat, plan.DestinationLon}, "",
             block);
  block.lines.push_back({"Route String:", std::string(from.routeText)});
  return block;
}

PrintedBlock FuelBlock(const PrintSources& from) {
  const int unit = from.settings.FUEL;
  PrintedBlock block;
  block.heading = "   Fuel (in" + std::string(FuelUnitText(unit)) + "):";
  try {
    const FuelFigures fuel = CalculateFuel(from.plan, from.context);
    block.table.rows.emplace_back();
    const auto add = [&](std::string_view label, double gallons) {
      block.table.columns.push_back({std::string(label), PrintedAlign::right});
      block.table.rows[0].push_back(FormatPicture(Conv(gallons, unit), "###.00"));
    };
    add("Total: ", fuel.TotalFuel);
    add("   Climb: ", fuel.ClimbFuel);
    add("Cruise: ", fuel.CruiseFuel);
    add("Descent: ", fuel.DescentFuel);
    add("Approach: ", fuel.ApproachFuel);
    add("Contingency: ", fuel.ContingencyFuel);
    add("Holding: ", fuel.HoldingFuel);
    if (fuel.hasAlternate) add("Alternate: ", fuel.AlternateFuel);
  } catch (const std::domain_error& error) {
    block.table = {};
    block.lines.push_back({"", "No fuel figures: " + std::string(error.what()) + "."});
  }
  return block;
}

std::string WholeNM(double distance) {
  return std::isfinite(distance) ? std::to_string(RoundToEven(distance)) : "---";
}

PrintedBlock TocTodBlock(const PrintSources& from) {
  const FlightPlan& plan = from.plan;
  const AircraftRec& aircraft = from.context.aircraft;
  const VerticalProfile profile = ComputeVerticalProfile(plan, from.context);
  const double flAlt = plan.CruiseFL * 100.0;
  const double elevation = DepartureElevation(plan, from.context.database);
  const int climbMinutes = flAlt > elevation ? ClimbTime(flAlt, elevation, aircraft) : 0;
  // As printed, so that the three distances add up.
  const double cruise =
      std::isfinite(profile.TopOfClimb + profile.TopOfDescent)
          ? plan.TotalDistance - RoundToEven(profile.TopOfClimb) - RoundToEven(profile.TopOfDescent)
          : std::nan("");
  const double cruiseMinutes = aircraft.CruiseSpeed > 0 ? cruise / aircraft.CruiseSpeed * 60 : 0;
  const auto rates = [](std::int32_t rate, std::int32_t speed) {
    return std::to_string(rate) + " ft/min at " + std::to_string(speed) + "kts";
  };
  PrintedBlock block;
  block.lines = {
      {"   Climb:", rates(aircraft.ClimbRate, aircraft.ClimbSpeed) + " - requires " +
                        std::to_string(climbMinutes) + " min and " + WholeNM(profile.TopOfClimb) +
                        " nm after takeoff"},
      {"   Cruise:", std::to_string(aircraft.CruiseSpeed) + " kts for " + FormatMinutes(cruiseMinutes) +
                         " h/m  and " + WholeNM(cruise) + " nm to final fix"},
      {"   Descent to Final Fix:", rates(aircraft.DescentRate, aircraft.DescentSpeed) + "; beginning at " +
                                       WholeNM(profile.TopOfDescent) + " nm from final fix and " +
                                       FormatMinutes(climbMinutes + cruiseMinutes) + " h/m after takeoff"}};
  return block;
}

PrintedBlock FrequenciesBlock(const NavDatabase& database, std::string heading, std::int32_t airportRow) {
  PrintedBlock block;
  block.heading = std::move(heading);
  const AirportRec* airport = AirportAt(database, airportRow);
  for (std::size_t i = 0; airport != nullptr && i < frequencyLabels.size(); ++i) {
    const std::string all = FrequenciesOf(database, *airport, static_cast<std::uint8_t>(i + 1));
    if (!all.empty()) block.lines.push_back({std::string(frequencyLabels[i]), all});
  }
  return block;
}

PrintedBlock AlternateBlock(const PrintSources& from) {
  const NavDatabase& database = from.context.database;
  const AirportRec* airport = AirportAt(database, from.plan.AlternateIndex);
  PrintedBlock block;
  if (airport == nullptr) return block;
  const Position destination{from.plan.DestinationLat, from.plan.DestinationLon};
  const double distance =
      GreatCircleDistance(destination.lat, destination.lon, airport->sngLat, airport->sngLon);
  const double course = GreatCircleCourse(destination.lat, destination.lon, airport->sngLat, airport->sngLon);
  std::string text = "   Distance: " + FormatPicture(distance, "###") +
                     "NM   -  Course: " + FormatPicture(course, "000") +
                     "°   -  Elevation: " + std::to_string(airport->lngElevation) + "ft";
  const std::string atis = FrequenciesOf(database, *airport, atisType);
  if (!atis.empty()) text += "   -  ATIS: " + atis;
  block.lines = {{"   Alternate Airport:",
                  CodePageToUtf8(airport->strName.View()) + "  " + CodePageToUtf8(airport->strCode.View())},
                 {"", text}};
  return block;
}

// One line for each end, helipads left out: only the chosen one's if there is one.
class RunwayTable {
 public:
  RunwayTable(const NavDatabase& database, std::int32_t airportRow)
      : database(database), airportRow(airportRow), airport(*AirportAt(database, airportRow)) {
    table.columns = {{"Rwy"},
                     {"Length", PrintedAlign::right},
                     {"Width", PrintedAlign::right},
                     {"Course", PrintedAlign::right},
                     {"Surface"},
                     {"ILS", PrintedAlign::left, true}};
  }

  PrintedTable Ends(std::string_view chosen) {
    for (const RunwayRec& runway : database.Runways(airport)) {
      if (runway.strRwyID.View().starts_with("00")) continue;
      AddEnd(runway, runway.strRwyID.View(), runway.strIlsCode.View(), runway.sngHeading, chosen);
      if (runway.strRwyIDRecip.Empty() || runway.strRwyIDRecip == runway.strRwyID) continue;
      AddEnd(runway, runway.strRwyIDRecip.View(), runway.strIlsCodeRecip.View(), runway.sngHeading + 180.0,
             chosen);
    }
    return std::move(table);
  }

 private:
  std::string Ils(std::string_view code) const {
    const IlsRec* ils = code.empty() ? nullptr : database.FindIls(airportRow, code);
    if (ils == nullptr) return CodePageToUtf8(code);
    return CodePageToUtf8(code) + " " + FormatPicture(ils->sngFrequency, "000.00") + " / " +
           FormatPicture(NormalizeDeg(ils->sngCourse - ils->sngMagVar), "000") + "°";
  }

  void AddEnd(const RunwayRec& runway, std::string_view id, std::string_view ilsCode, double heading,
              std::string_view chosen) {
    const std::string name = GetRwyName(CodePageToUtf8(id));
    if (id.empty() || (!chosen.empty() && CodePageToUtf8(id) != chosen)) return;
    table.rows.push_back({name, std::to_string(runway.intLength) + "ft",
                          std::to_string(runway.intWidth) + "ft",
                          FormatPicture(NormalizeDeg(heading - airport.sngMagVar), "000") + "°",
                          std::string(strSurface(runway.bytSurface)), Ils(ilsCode)});
  }

  const NavDatabase& database;
  std::int32_t airportRow;
  const AirportRec& airport;
  PrintedTable table;
};

PrintedBlock RunwayBlock(const NavDatabase& database, std::string heading, std::int32_t airportRow,
                         const std::string& chosen) {
  PrintedBlock block;
  block.heading = std::move(heading);
  if (AirportAt(database, airportRow) == nullptr) return block;
  block.table = RunwayTable(database, airportRow).Ends(chosen);
  return block;
}

}  // namespace

std::vector<PrintedBlock> GeneralFlightInformation(const PrintSources& sources) {
  const FlightPlan& plan = sources.plan;
  const NavDatabase& database = sources.context.database;
  std::vector<PrintedBlock> blocks = {
      AircraftBlock(sources),
      DepartureArrivalBlock(sources),
      FuelBlock(sources),
      TocTodBlock(sources),
      FrequenciesBlock(database, "Departure Frequencies:", plan.DepartureIndex),
      FrequenciesBlock(database, "Arrival Frequencies:", plan.DestinationIndex),
      AlternateBlock(sources),
      RunwayBlock(database, "Departure Runway:", plan.DepartureIndex,
                  plan.DepartureType == "Gate" ? "" : plan.DepartureID),
      RunwayBlock(database, "Destination Runways:", plan.DestinationIndex, "")};
  std::erase_if(blocks,
                [](const PrintedBlock& block) { return block.lines.empty() && block.table.rows.empty(); });
  return blocks;
}
