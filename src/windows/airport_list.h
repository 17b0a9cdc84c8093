// The airports that a search has found, as a table: code, name, city, country
// and the longest runway.
#pragma once

#include <QAbstractTableModel>
#include <QTableView>
#include <vector>

#include "navdata/nav_database.h"

class AirportListModel : public QAbstractTableModel {
  Q_OBJECT

 public:
  enum Column { code, name, city, country, runway, columns };

  // The database outlives the model.
  explicit AirportListModel(const NavDatabase& database, QObject* parent = nullptr);

  // Rows of the airport table.
  void Show(std::vector<std::int32_t> airports);
  std::int32_t AirportRow(int row) const;  // -1 for a row that is not there
  // Not every database tells the cities.
  bool AnyCity() const;

  int rowCount(const QModelIndex& parent = {}) const override;
  int columnCount(const QModelIndex& parent = {}) const override;
  QVariant data(const QModelIndex& index, int role) const override;
  QVariant headerData(int section, Qt::Orientation orientation, int role) const override;

 private:
  QString Text(const AirportRec& airport, int column) const;

  const NavDatabase& database;
  std::vector<std::int32_t> rows;
};

class AirportList : public QTableView {
  Q_OBJECT

 public:
  explicit AirportList(const NavDatabase& database, QWidget* parent = nullptr);

  // The first one is selected.
  void Show(std::vector<std::int32_t> airports);
  int Count() const { return found->rowCount(); }
  // Row of the airport table that is selected, -1: none.
  std::int32_t Selected() const;

 Q_SIGNALS:
  // The pilot has clicked an airport or pressed Enter on it.
  void Picked(std::int32_t airportRow);

 protected:
  void keyPressEvent(QKeyEvent* event) override;

 private:
  AirportListModel* found;
};
