#include "windows/toggle_ribbon.h"

#include <QToolButton>

#include "windows/icons.h"

namespace {

constexpr int buttonSize = 34;
constexpr int iconSize = 20;
constexpr int spacing = 2;
constexpr int gapWidth = 10;
constexpr int border = 4;

}  // namespace

QString TipOf(const QAction& action) {
  // A key that is no shortcut of the action's own stands behind a tab, as menus show it.
  const QString text = action.toolTip();
  QString keys = action.shortcut().toString(QKeySequence::NativeText);
  if (keys.isEmpty()) keys = text.section('\t', 1, 1);
  const QString tip = text.section('\t', 0, 0);
  return keys.isEmpty() ? tip : tip + " (" + keys + ")";
}

ToggleRibbon::ToggleRibbon(QWidget* map) : QFrame(map) {
  setObjectName("pnlToggleButtons");
  // What happens on the ribbon is not for the map below it.
  setAttribute(Qt::WA_NoMousePropagation);
  setCursor(Qt::ArrowCursor);
  hide();
}

void ToggleRibbon::AddToggle(QAction* action, const QString& name, const QString& icon) {
  action->setIcon(LineIcon(icon));
  action->setIconVisibleInMenu(false);
  auto* button = new QToolButton(this);
  button->setObjectName(name);
  button->setDefaultAction(action);
  button->setToolButtonStyle(Qt::ToolButtonIconOnly);
  button->setIconSize(QSize(iconSize, iconSize));
  button->setFixedSize(buttonSize, buttonSize);
  button->setFocusPolicy(Qt::TabFocus);
  button->setAccessibleName(action->toolTip());
  button->setToolTip(TipOf(*action));
  // A change of the action writes its own tip back.
  connect(action, &QAction::changed, button, [button, action] { button->setToolTip(TipOf(*action)); });
  places.push_back({button, gap});
  gap = false;
}

void ToggleRibbon::AddGap() {
  gap = true;
}

void ToggleRibbon::FitInto(int mapWidth) {
  int x = border;
  int y = border;
  int right = 0;
  for (const Place& place : places) {
    const bool first = x == border;
    int left = x + (place.gapBefore && !first ? gapWidth : 0);
    if (!first && left + buttonSize + border > mapWidth) {
      left = border;
      y += buttonSize + spacing;
    }
    place.button->move(left, y);
    x = left + buttonSize + spacing;
    right = std::max(right, left + buttonSize);
  }
  resize(right + border, y + buttonSize + border);
  move(std::max(0, (mapWidth - width()) / 2), 0);
}
