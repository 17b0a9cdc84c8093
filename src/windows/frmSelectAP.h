// The dialog in which the pilot names the departure and the destination by
// their codes. It looks the names up while they are typed.
#pragma once

#include <QDialog>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>

#include "navdata/nav_database.h"

class frmSelectAP : public QDialog {
  Q_OBJECT

 public:
  // Departure and destination as rows of the airport table, -1: none yet.
  frmSelectAP(const NavDatabase& database, int departureRow, int destinationRow, QWidget* parent = nullptr);

  // Rows of the airport table; -1 while a code is not known.
  int DepartureRow() const { return departureRow; }
  int DestinationRow() const { return destinationRow; }

 private:
  QLineEdit* AddField(class QGridLayout* layout, int line, const QString& caption, const QString& name,
                      QLabel** airportName);
  void LookUp();
  int ShowAirport(const QLineEdit& code, QLabel& name) const;

  const NavDatabase& database;
  int departureRow = -1;
  int destinationRow = -1;
  QLineEdit* txtDepAP;
  QLineEdit* txtDestAP;
  QLabel* lblDepName;
  QLabel* lblDestName;
  QLabel* lblDistance;
  QPushButton* cmdOK;
};
