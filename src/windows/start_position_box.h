// Where the flight begins at its airport: the list lstDep of runways and gates.
// The pilot opens it or types a part of what he seeks ("25R", "a 12").
#pragma once

#include <QComboBox>
#include <QWheelEvent>
#include <vector>

#include "flightplan/start_positions.h"

class StartPositionBox : public QComboBox {
  Q_OBJECT

 public:
  explicit StartPositionBox(QWidget* parent = nullptr);

  // Lists the start positions of a row of the airport table, -1: of none. The
  // airport's own position is chosen until Select().
  void ShowAirport(const NavDatabase& database, std::int32_t airportRow);
  // Chooses an item of the list without telling; -1: the airport's own position.
  void Select(int start);
  // Both, for the plan as it is now.
  void ShowPlan(const NavDatabase& database, const FlightPlan& plan);
  void hidePopup() override;

  const std::vector<StartPosition>& Starts() const { return starts; }
  // Null: the airport's own position.
  const StartPosition* Chosen() const;

 Q_SIGNALS:
  // The pilot has chosen another start.
  void StartChosen();

 protected:
  void keyPressEvent(QKeyEvent* event) override;
  void focusInEvent(QFocusEvent* event) override;
  void paintEvent(QPaintEvent* event) override;
  // Turning the wheel over the panel chooses nothing.
  void wheelEvent(QWheelEvent* event) override { event->ignore(); }

 private:
  void Take(int item);
  void TakeTyped();
  int ItemOfTyped(const QString& typed) const;

  std::int32_t airport = -1;
  std::vector<StartPosition> starts;
  int chosenItem = 0;
};
