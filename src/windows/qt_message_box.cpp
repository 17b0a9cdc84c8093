#include "windows/qt_message_box.h"

#include <QApplication>
#include <QMessageBox>
#include <QPainter>

namespace {

constexpr int iconSize = 40;

struct IconLook {
  QRgb color;
  const char* sign;
};

IconLook LookOf(MessageIcon icon) {
  switch (icon) {
    case MessageIcon::exclamation:
      return {qRgb(214, 158, 46), "!"};
    case MessageIcon::critical:
      return {qRgb(204, 82, 70), "!"};
    case MessageIcon::question:
      return {qRgb(64, 132, 214), "?"};
    default:
      return {qRgb(64, 132, 214), "i"};
  }
}

// A plain disc with its sign, in the program's own colours.
QPixmap PictureOf(MessageIcon icon, double density) {
  QPixmap picture(QSize(iconSize, iconSize) * density);
  picture.setDevicePixelRatio(density);
  picture.fill(Qt::transparent);
  QPainter painter(&picture);
  painter.setRenderHint(QPainter::Antialiasing);
  const IconLook look = LookOf(icon);
  painter.setPen(Qt::NoPen);
  painter.setBrush(QColor::fromRgb(look.color));
  painter.drawEllipse(QRectF(2, 2, iconSize - 4, iconSize - 4));
  QFont font = QApplication::font();
  font.setPixelSize(iconSize * 11 / 20);
  font.setWeight(QFont::Bold);
  painter.setFont(font);
  painter.setPen(Qt::white);
  painter.drawText(QRect(0, 0, iconSize, iconSize), Qt::AlignCenter, look.sign);
  return picture;
}

// While the program works the pointer is the hourglass; over a question it is the arrow again.
class ArrowWhile {
 public:
  ArrowWhile() : waiting(QApplication::overrideCursor() != nullptr) {
    if (waiting) QApplication::setOverrideCursor(Qt::ArrowCursor);
  }
  ~ArrowWhile() {
    if (waiting) QApplication::restoreOverrideCursor();
  }
  ArrowWhile(const ArrowWhile&) = delete;
  ArrowWhile& operator=(const ArrowWhile&) = delete;

 private:
  bool waiting;
};

// Runs a box and gives the button that closed it.
int RunBox(QWidget* parent, std::string_view text, MessageIcon icon, QMessageBox::StandardButtons buttons) {
  QMessageBox box(QMessageBox::NoIcon, QString::fromUtf8(messageTitle.data(), messageTitle.size()),
                  QString::fromUtf8(text.data(), static_cast<qsizetype>(text.size())), buttons, parent);
  if (icon != MessageIcon::none) box.setIconPixmap(PictureOf(icon, box.devicePixelRatioF()));
  box.setTextFormat(Qt::PlainText);
  box.setObjectName("messageBox");
  const ArrowWhile asked;
  return box.exec();
}

}  // namespace

void QtMessageBox::Show(std::string_view text, MessageIcon icon) {
  RunBox(parent, text, icon, QMessageBox::Ok);
}

bool QtMessageBox::AskYesNo(std::string_view text, MessageIcon icon) {
  return RunBox(parent, text, icon, QMessageBox::Yes | QMessageBox::No) == QMessageBox::Yes;
}

std::optional<bool> QtMessageBox::AskYesNoCancel(std::string_view text, MessageIcon icon) {
  const int answer = RunBox(parent, text, icon, QMessageBox::Yes | QMessageBox::No | QMessageBox::Cancel);
  if (answer == QMessageBox::Cancel) return std::nullopt;
  return answer == QMessageBox::Yes;
}

void QtPointerShape::SetHourglass(bool on) {
  if (on) {
    QApplication::setOverrideCursor(Qt::WaitCursor);
  } else {
    QApplication::restoreOverrideCursor();
  }
}
