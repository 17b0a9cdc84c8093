// The texts and pictures of the plan's table, cell by cell. The table shows the
// plan's rows and, below the destination, the alternate as one more row. Texts
// are UTF-8.
#pragma once

#include <string>
#include <vector>

#include "flightplan/flight_plan.h"
#include "flightplan/nav_log.h"
#include "navdata/nav_database.h"
#include "settings/settings.h"

enum class LegColumn { sym, code, name, freq, course, distance, eta, ata, groundSpeed, altitude, fuel };
constexpr int legColumns = 11;
// Columns from here on are for the flight and belong to the extended layout.
constexpr LegColumn firstExtendedColumn = LegColumn::ata;

// The heading of a column; that of the fuel names the unit of the setting FUEL.
std::string LegHeading(LegColumn column, int fuelUnit);

// The number of a row's picture in imgNavaid: VOR 0, NDB 1, Int 2, Fix 3, Uwp 10;
// of a SID or STAR 4, 5, 6, 7, 11; the departure 8, the destination and the
// alternate 9. -1 for any other kind of object.
int NavaidPicture(const PlanWaypoint& row);

// The airway on which a row is reached, as it stands behind the name:
// " (Y180 245-460)", without limits if one of them is unknown; empty for a
// direct leg.
std::string AirwayNote(const PlanWaypoint& row);

class LegCells {
 public:
  // All four must outlive this.
  LegCells(const FlightPlan& plan, const NavDatabase& database, const NavLog& log, const Settings& settings)
      : plan(plan), database(database), log(log), settings(settings) {}

  bool showCoords = false;  // positions instead of names

  // Call when the plan has changed, before asking for its cells.
  void Refresh();

  // Rows of the table: the plan's and the alternate's.
  int RowCount() const { return plan.RowCount() + (HasAlternateRow() ? 1 : 0); }
  bool IsAlternate(int row) const { return HasAlternateRow() && row == plan.RowCount(); }
  // The plan's row behind a row of the table; throws std::out_of_range if there is none.
  const PlanWaypoint& RowAt(int row) const { return IsAlternate(row) ? *plan.AlternateRow : plan.Row(row); }

  // Empty for the picture column, for what does not apply and for columns of
  // the flight that has not passed the row.
  std::string Text(int row, LegColumn column) const;

  // The name cell in two parts: what may be shortened to fit, and the airway
  // note behind it. With showCoords the position, and no note.
  std::string Name(int row) const;
  std::string Note(int row) const;

 private:
  bool HasAlternateRow() const { return plan.RowCount() >= 2 && plan.AlternateRow.has_value(); }
  std::string Eta(int row) const;
  std::string Course(int row) const;
  std::string Distance(int row) const;
  std::string Altitude(int row) const;

  const FlightPlan& plan;
  const NavDatabase& database;
  const NavLog& log;
  const Settings& settings;
  std::vector<int> eta;
  float alternateDistance = 0;  // NM from the destination
  float alternateCourse = 0;    // true
};
