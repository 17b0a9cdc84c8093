// The plan beside the map: where it goes, its figures, and its legs.
#pragma once

#include <QAbstractTableModel>
#include <QFrame>
#include <QLabel>
#include <QTableView>

#include "flightplan/flight_plan.h"

class LegTableModel : public QAbstractTableModel {
  Q_OBJECT

 public:
  enum Column { code, name, airway, course, distance, columns };

  explicit LegTableModel(const FlightPlan& plan, QObject* parent = nullptr);

  // Call when the plan's rows have changed.
  void Refresh();

  int rowCount(const QModelIndex& parent = {}) const override;
  int columnCount(const QModelIndex& parent = {}) const override;
  QVariant data(const QModelIndex& index, int role) const override;
  QVariant headerData(int section, Qt::Orientation orientation, int role) const override;

 private:
  QString CellText(int row, int column) const;

  const FlightPlan& plan;
};

class pnlFlightplan : public QFrame {
  Q_OBJECT

 public:
  explicit pnlFlightplan(FlightPlan& plan, QWidget* parent = nullptr);

  // Shows the plan as it is now.
  void Refresh();

 Q_SIGNALS:
  // The delete key on a row of the table.
  void DeleteAsked(int row);
  // Another row is selected, or none.
  void RowPicked();

 protected:
  bool eventFilter(QObject* watched, QEvent* event) override;

 private:
  void TakeSelection();
  void ShowHint();

  FlightPlan& plan;
  LegTableModel* model;
  QLabel* lblPlanTitle;
  QLabel* lblFlightDistance;
  QLabel* lblETE;
  QLabel* lblFL;
  QLabel* lblHint;
  QTableView* grdWPTable;
};
