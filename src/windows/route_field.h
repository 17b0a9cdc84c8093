// The route string above the map: shows the plan as one line and takes a line
// that the pilot types.
#pragma once

#include <QLineEdit>

class RouteField : public QLineEdit {
  Q_OBJECT

 public:
  explicit RouteField(QWidget* parent = nullptr);

  // A string that may be a route: longer than two codes.
  bool CanTake() const { return text().size() > 6; }
  // Brings the keyboard here, all of the text selected.
  void Edit();

 protected:
  // Blanks, digits and letters (written as capitals); other characters are
  // dropped. What is pasted stays: its punctuation parts words.
  void keyPressEvent(QKeyEvent* event) override;
};
