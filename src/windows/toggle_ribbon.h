// The ribbon of toggles (pnlToggleButtons) on the map's top edge: one button
// for each switch of the map, with a picture. It lies over the map and wraps
// into more rows where the map is narrow. When it is seen is the main
// window's affair.
#pragma once

#include <QAction>
#include <QFrame>
#include <vector>

class QToolButton;

class ToggleRibbon : public QFrame {
  Q_OBJECT

 public:
  explicit ToggleRibbon(QWidget* map);

  // A button that is always in step with action; the tool tip adds its shortcut.
  void AddToggle(QAction* action, const QString& name, const QString& icon);
  // The next button stands a little apart.
  void AddGap();

  // Lays the buttons out in a map of this width.
  void FitInto(int mapWidth);

 private:
  struct Place {
    QToolButton* button;
    bool gapBefore;
  };

  std::vector<Place> places;
  bool gap = false;
};

// "Text (shortcut)" without the mnemonic's mark: what a button of action says.
QString TipOf(const QAction& action);
