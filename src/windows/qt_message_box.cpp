#include "windows/qt_message_box.h"

#include <QApplication>
#include <QMessageBox>

namespace {

QMessageBox::Icon IconOf(MessageIcon icon) {
  switch (icon) {
    case MessageIcon::information:
      return QMessageBox::Information;
    case MessageIcon::question:
      return QMessageBox::Question;
    case MessageIcon::exclamation:
      return QMessageBox::Warning;
    case MessageIcon::critical:
      return QMessageBox::Critical;
    case MessageIcon::none:
      break;
  }
  return QMessageBox::NoIcon;
}

// Runs a box and gives the button that closed it.
int RunBox(QWidget* parent, std::string_view text, MessageIcon icon, QMessageBox::StandardButtons buttons) {
  QMessageBox box(IconOf(icon), QString::fromUtf8(messageTitle.data(), messageTitle.size()),
                  QString::fromUtf8(text.data(), static_cast<qsizetype>(text.size())), buttons, parent);
  box.setTextFormat(Qt::PlainText);
  box.setObjectName("messageBox");
  return box.exec();
}

}  // namespace

void QtMessageBox::Show(std::string_view text, MessageIcon icon) {
  RunBox(parent, text, icon, QMessageBox::Ok);
}

bool QtMessageBox::AskYesNo(std::string_view text, MessageIcon icon) {
  return RunBox(parent, text, icon, QMessageBox::Yes | QMessageBox::No) == QMessageBox::Yes;
}

void QtPointerShape::SetHourglass(bool on) {
  if (on) {
    QApplication::setOverrideCursor(Qt::WaitCursor);
  } else {
    QApplication::restoreOverrideCursor();
  }
}
