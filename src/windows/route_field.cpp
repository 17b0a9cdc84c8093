#include "windows/route_field.h"

#include <QKeyEvent>

namespace {

bool IsRouteCharacter(QChar c) {
  return c == ' ' || (c >= '0' && c <= '9') || (c >= 'A' && c <= 'Z') || (c >= 'a' && c <= 'z');
}

}  // namespace

RouteField::RouteField(QWidget* parent) : QLineEdit(parent) {
  setObjectName("txtRoute");
  setPlaceholderText(tr("Route, such as EDDF SOBRA Y180 BITBU EGLL"));
  setToolTip(tr("The plan as a route string; Enter takes what you typed (Ctrl+R)"));
  setAccessibleName(tr("Route string"));
  setMinimumWidth(120);
  connect(this, &QLineEdit::textEdited, this, [this](const QString& typed) {
    const int cursor = cursorPosition();
    setText(typed.toUpper());
    setCursorPosition(cursor);
  });
}

void RouteField::Edit() {
  setFocus(Qt::ShortcutFocusReason);
  selectAll();
}

void RouteField::keyPressEvent(QKeyEvent* event) {
  const bool typed = event->text().size() == 1 && event->text()[0].isPrint();
  if (typed && !IsRouteCharacter(event->text()[0])) return event->accept();
  QLineEdit::keyPressEvent(event);
}
