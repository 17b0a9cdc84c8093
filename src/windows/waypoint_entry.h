// A waypoint put into the plan by hand: the pilot types an ident or a position
// into txtManWP and picks one of what lstWP offers. Arrow keys and Enter work
// from the text; Esc empties it.
#pragma once

#include <QAbstractTableModel>
#include <QLineEdit>
#include <QTableView>
#include <QWidget>
#include <vector>

#include "flightplan/waypoint_search.h"

class FoundWaypointModel : public QAbstractTableModel {
  Q_OBJECT

 public:
  enum Column { kind, code, name, frequency, distance, course, columns };

  explicit FoundWaypointModel(QObject* parent = nullptr) : QAbstractTableModel(parent) {}

  void Show(std::vector<FoundWaypoint> waypoints);
  const FoundWaypoint& At(int row) const { return found.at(static_cast<std::size_t>(row)); }

  int rowCount(const QModelIndex& parent = {}) const override;
  int columnCount(const QModelIndex& parent = {}) const override;
  QVariant data(const QModelIndex& index, int role) const override;

 private:
  QString Text(const FoundWaypoint& waypoint, int column) const;

  std::vector<FoundWaypoint> found;
};

class WaypointEntry : public QWidget {
  Q_OBJECT

 public:
  // Both outlive the entry.
  WaypointEntry(const FlightPlan& plan, const NavDatabase& database, QWidget* parent = nullptr);

  // The plan or its selected row has changed: what is offered is seen from there.
  void Refresh();
  // Brings the keyboard here.
  void Edit();

 Q_SIGNALS:
  void WaypointPicked(const PlanWaypoint& row);

 protected:
  bool eventFilter(QObject* watched, QEvent* event) override;

 private:
  void Find();
  void Pick(int row);
  void Reset();
  bool TakeKey(const class QKeyEvent& key);

  const FlightPlan& plan;
  const NavDatabase& database;
  QLineEdit* txtManWP;
  QTableView* lstWP;
  FoundWaypointModel* model;
};
