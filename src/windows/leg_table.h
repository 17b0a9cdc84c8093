// grdWPTable: the plan's legs as a table, the alternate as its last row. It
// shows what LegCells says and turns keys and clicks into what the pilot asks.
#pragma once

#include <QAbstractTableModel>
#include <QTableView>

#include "flightplan/leg_cells.h"

class LegTableModel : public QAbstractTableModel {
  Q_OBJECT

 public:
  // The name cell's airway note, which is never shortened.
  static constexpr int noteRole = Qt::UserRole;
  // The number of the row's picture, -1 for none.
  static constexpr int pictureRole = Qt::UserRole + 1;

  LegTableModel(LegCells& cells, const Settings& settings, QObject* parent = nullptr);

  // Call when the plan has changed: all rows are told in one step.
  void Refresh();

  int rowCount(const QModelIndex& parent = {}) const override;
  int columnCount(const QModelIndex& parent = {}) const override;
  QVariant data(const QModelIndex& index, int role) const override;
  QVariant headerData(int section, Qt::Orientation orientation, int role) const override;

 private:
  LegCells& cells;
  const Settings& settings;
  int shownRows = 0;
};

class LegTable : public QTableView {
  Q_OBJECT

 public:
  // The plan, the database, the log and the settings behind cells outlive the table.
  LegTable(FlightPlan& plan, LegCells& cells, const Settings& settings, QWidget* parent = nullptr);

  // Shows the plan as it is now and selects its SelectedRow; 0 selects nothing.
  void Refresh();
  // Pixels that the columns of the present layout need, and the scroll bar beside
  // them; the name column takes what there is more.
  int LayoutWidth() const;
  // The extended layout has the columns of the flight.
  void SetExtended(bool on);

 Q_SIGNALS:
  // Another row is selected, or none; the plan's SelectedRow knows.
  void RowPicked();
  // The delete key on a row of the plan.
  void DeleteAsked(int row);
  // Double click or Enter on a row of the plan.
  void RowCentred(int row);
  // A click or Enter on the alternate's row.
  void AlternateAsked();

 protected:
  void keyPressEvent(QKeyEvent* event) override;

 private:
  // Of a column at the least, by its content and the font.
  int WidthFor(int column) const;
  void TakeSelection();
  void RowClicked(const QModelIndex& index);

  FlightPlan& plan;
  LegCells& cells;
  LegTableModel* model;
  bool refreshing = false;
};
