// The plan beside the map: where it goes, its figures, its legs, and what the
// next command on it would do.
#pragma once

#include <QAction>
#include <QBoxLayout>
#include <QFrame>
#include <QLabel>

#include "flightplan/plan_commands.h"
#include "startup/session.h"
#include "windows/leg_table.h"
#include "windows/start_position_box.h"
#include "windows/waypoint_entry.h"

class pnlFlightplan : public QFrame {
  Q_OBJECT

 public:
  // session must be loaded and outlive the panel. The actions are the steps of
  // the cruise level that updnFL's two buttons run.
  pnlFlightplan(Session& session, QAction* levelUp, QAction* levelDown, QWidget* parent = nullptr);

  // Shows the plan as it is now.
  void Refresh(const PlanCommandStates& states);
  // The table with the columns of the flight, and the panel wide enough for it.
  void SetExtended(bool on);
  // Positions in the place of names.
  void ShowCoords(bool on);
  // Brings the keyboard to the field for a waypoint.
  void EditWaypoint() { entry->Edit(); }

 Q_SIGNALS:
  // The delete key on a row of the table.
  void DeleteAsked(int row);
  // Another row is selected, or none.
  void RowPicked();
  // Double click or Enter on a row: the map is to show it.
  void RowCentred(int row);
  // A click or Enter on the alternate's row.
  void AlternateAsked();
  // Another start was chosen in lstDep; null: the airport's own position.
  void StartChosen(const StartPosition* start);
  // A waypoint was picked in lstWP.
  void WaypointPicked(const PlanWaypoint& row);

 private:
  QLayout* TitleRow();
  QLayout* FigureRow(QAction* levelUp, QAction* levelDown);
  QLayout* StartRow();
  void ConnectTable();
  QWidget* LevelButtons(QAction* levelUp, QAction* levelDown);
  void FitWidth();
  void ShowFigures();
  void ShowHint();

  Session& session;
  FlightPlan& plan;
  LegCells cells;
  PlanCommandStates states;
  QLabel* lblPlanTitle;
  QLabel* lblCurrentAC;
  QLabel* lblFlightDistance;
  QLabel* lblETE;
  QLabel* lblEstElapTime;
  QLabel* lblFL;
  QLabel* lblCruiseSpeed;
  QLabel* lblSID;
  QLabel* lblSTAR;
  StartPositionBox* lstDep;
  WaypointEntry* entry;
  QLabel* lblHint;
  LegTable* grdWPTable;
};
