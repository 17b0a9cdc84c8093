// The vertical picture below the map: the flight seen from the side. The
// pointer, or the arrow keys, mark a place on it that the map shows as well; a
// click, or Enter, centres the map there.
#pragma once

#include <QFrame>
#include <optional>

#include "flightplan/profile_picture.h"

class ProfileStrip : public QFrame {
  Q_OBJECT

 public:
  // Shows plan, which must outlive the strip, with the profile last handed in.
  explicit ProfileStrip(const FlightPlan& plan, QWidget* parent = nullptr);

  void Show(FlightProfile flight);
  const FlightProfile& Profile() const { return profile; }
  // The place on the flight that is marked, NM from the departure.
  std::optional<double> Marked() const { return marked; }
  QSize sizeHint() const override;

 Q_SIGNALS:
  // Another place is marked, or none.
  void MarkMoved();
  // The map is to be centred on the mark.
  void MarkChosen();

 protected:
  void paintEvent(QPaintEvent* event) override;
  void mouseMoveEvent(QMouseEvent* event) override;
  void mousePressEvent(QMouseEvent* event) override;
  void leaveEvent(QEvent* event) override;
  void keyPressEvent(QKeyEvent* event) override;
  void focusOutEvent(QFocusEvent* event) override;

 private:
  ProfileScale Scale() const;
  void SetMark(std::optional<double> distance);
  void StepMark(int direction, bool toWaypoint);

  const FlightPlan& plan;
  FlightProfile profile;
  std::optional<double> marked;
};
