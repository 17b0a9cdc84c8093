#include "flightplan/leg_cells.h"

#include <array>
#include <charconv>

#include "base/code_page.h"
#include "base/numbers.h"
#include "flightplan/fuel_plan.h"
#include "flightplan/plan_legs.h"
#include "navdata/geodesy.h"

namespace {

constexpr int departurePicture = 8;
constexpr int destinationPicture = 9;

struct KindPicture {
  std::string_view sym;
  int enroute;
  int procedure;
};
constexpr KindPicture kindPictures[] = {
    {"VOR", 0, 4}, {"NDB", 1, 5}, {"Int", 2, 6}, {"Fix", 3, 7}, {"Uwp", 10, 11}};

// Feet in hundreds, with decimals only where they say something.
std::string Hundreds(std::int32_t feet) {
  std::array<char, 24> digits{};
  const auto end = std::to_chars(digits.data(), digits.data() + digits.size(), feet / 100.0).ptr;
  return {digits.data(), end};
}

std::string Courses(double magnetic, double trueCourse) {
  return FormatPicture(magnetic, "000") + "°/" + FormatPicture(trueCourse, "000") + "°";
}

std::string WholeMiles(double distance) {
  return FormatPicture(RoundToEven(distance), "000") + " NM";
}

std::string FuelCell(const NavLogEntry& entry, int fuelUnit) {
  return FormatPicture(Conv(entry.fuel, fuelUnit), "###000") + " / " + std::to_string(entry.percentUsed) +
         "%";
}

}  // namespace

std::string LegHeading(LegColumn column, int fuelUnit) {
  static constexpr std::array<std::string_view, legColumns> headings = {
      "Sym", "Code", "Name", "Freq", "Course", "Distance", "ETA", "ATA", "GS", "Altitude", "Fuel ("};
  std::string heading(headings.at(static_cast<std::size_t>(column)));
  if (column == LegColumn::fuel) heading += std::string(Trimmed(FuelUnitText(fuelUnit))) + ")";
  return heading;
}

int NavaidPicture(const PlanWaypoint& row) {
  if (row.Kind == RowKind::departure) return departurePicture;
  if (row.Kind == RowKind::destination) return destinationPicture;
  for (const KindPicture& picture : kindPictures)
    if (row.Sym == picture.sym) return row.Kind == RowKind::enroute ? picture.enroute : picture.procedure;
  return -1;
}

std::string AirwayNote(const PlanWaypoint& row) {
  if (!row.HasAirway()) return {};
  std::string note = " (" + CodePageToUtf8(row.Airway.View());
  if (row.AirwayMinAlt != -1 && row.AirwayMaxAlt != -1)
    note += " " + Hundreds(row.AirwayMinAlt) + "-" + Hundreds(row.AirwayMaxAlt);
  return note + ")";
}

void LegCells::Refresh() {
  eta = ShowEta(plan);
  if (!HasAlternateRow()) return;
  const PlanWaypoint& alternate = *plan.AlternateRow;
  alternateDistance =
      GreatCircleDistance(plan.DestinationLat, plan.DestinationLon, alternate.Lat, alternate.Lon);
  alternateCourse = GreatCircleCourse(plan.DestinationLat, plan.DestinationLon, alternate.Lat, alternate.Lon);
}

std::string LegCells::Text(int row, LegColumn column) const {
  const NavLogEntry* passed = log.At(row);
  switch (column) {
    case LegColumn::sym:
      return {};
    case LegColumn::code:
      return CodePageToUtf8(RowAt(row).Code.View());
    case LegColumn::name:
      return Name(row) + Note(row);
    case LegColumn::freq:
      return RowAt(row).Freq == 0 ? "      " : FormatPicture(RowAt(row).Freq, "000.000");
    case LegColumn::course:
      return Course(row);
    case LegColumn::distance:
      return Distance(row);
    case LegColumn::eta:
      return Eta(row);
    case LegColumn::ata:
      return passed != nullptr ? FormatMinutes(passed->minutes) : "";
    case LegColumn::groundSpeed:
      return passed != nullptr ? FormatPicture(passed->groundSpeed, "##00") + " kt" : "";
    case LegColumn::altitude:
      return Altitude(row);
    case LegColumn::fuel:
      return passed != nullptr ? FuelCell(*passed, settings.FUEL) : "";
  }
  return {};
}

std::string LegCells::Eta(int row) const {
  const auto index = static_cast<std::size_t>(row);
  return row > 0 && !IsAlternate(row) && index < eta.size() ? FormatMinutes(eta[index]) : std::string();
}

std::string LegCells::Name(int row) const {
  const PlanWaypoint& waypoint = RowAt(row);
  if (showCoords)
    return FormatLat(waypoint.Lat, settings.DECSEC) + " " + FormatLon(waypoint.Lon, settings.DECSEC);
  const std::string name = CodePageToUtf8(waypoint.Name.View());
  return IsAlternate(row) ? "Alternate: " + name : name;
}

std::string LegCells::Note(int row) const {
  return showCoords ? std::string() : AirwayNote(RowAt(row));
}

std::string LegCells::Course(int row) const {
  if (IsAlternate(row)) {
    const double magnetic = NormalizeDeg(alternateCourse - plan.Row(plan.DestinationRow()).MagVar);
    return Courses(magnetic, alternateCourse);
  }
  return row == 0 ? std::string() : Courses(MagneticCourse(plan, row), plan.Row(row).Course);
}

std::string LegCells::Distance(int row) const {
  if (IsAlternate(row)) return WholeMiles(alternateDistance);
  return row == 0 ? std::string() : WholeMiles(plan.Row(row).Dist);
}

// The first row shows where the flight begins until it has been passed.
std::string LegCells::Altitude(int row) const {
  const NavLogEntry* passed = log.At(row);
  const bool known =
      plan.DepartureIndex >= 0 && static_cast<std::size_t>(plan.DepartureIndex) < database.airports.size();
  if (passed == nullptr && (row != 0 || !known)) return {};
  const double feet = passed != nullptr
                          ? passed->altitude
                          : database.airports[static_cast<std::size_t>(plan.DepartureIndex)].sngAltitude;
  return FormatPicture(feet, "##000") + " ft";
}
