#include "windows/status_strip.h"

#include <QEvent>
#include <QHBoxLayout>
#include <QMouseEvent>
#include <QStyle>

namespace {

// The longest text that a panel usually shows; none for a panel that is mostly empty.
constexpr std::array<const char*, statusPanelCount> widestTexts = {"00:00:00 LOCAL",
                                                                   "6000NM",
                                                                   "MagVar: 00.0° W",
                                                                   "N 88° 88' 88\" / W 188° 88' 88\"",
                                                                   "",
                                                                   "N 88° 88' 88\" - W 188° 88' 88\"",
                                                                   ""};
constexpr int sideRoom = 28;  // padding of the style sheet and the border

}  // namespace

StatusStrip::StatusStrip(QWidget* parent) : QFrame(parent) {
  setObjectName("statusStrip");
  auto* row = new QHBoxLayout(this);
  row->setContentsMargins(4, 6, 4, 6);
  row->setSpacing(0);
  for (std::size_t i = 0; i < lblMapStatus.size(); ++i) {
    auto* label = new QLabel(this);
    label->setObjectName(QString("lblMapStatus(%1)").arg(i));
    label->installEventFilter(this);
    label->setTextFormat(Qt::PlainText);
    const std::string_view tip = StatusPanelToolTip(static_cast<StatusPanel>(i));
    label->setToolTip(QString::fromLatin1(tip.data(), static_cast<qsizetype>(tip.size())));
    label->hide();
    lblMapStatus[i] = label;
    row->addWidget(label);
  }
  row->addStretch();
  SetWidths();
}

void StatusStrip::SetWidths() {
  for (std::size_t i = 0; i < lblMapStatus.size(); ++i) {
    const QString widest = QString::fromUtf8(widestTexts[i]);
    if (!widest.isEmpty())
      lblMapStatus[i]->setMinimumWidth(fontMetrics().horizontalAdvance(widest) + sideRoom);
  }
}

void StatusStrip::Show(StatusPanel panel, const QString& text) {
  QLabel& label = *lblMapStatus[static_cast<std::size_t>(panel)];
  label.setText(text);
  label.setVisible(!text.isEmpty() || label.minimumWidth() > 0);
}

void StatusStrip::SetMood(StatusPanel panel, const QString& mood) {
  QLabel& label = *lblMapStatus[static_cast<std::size_t>(panel)];
  if (label.property("mood").toString() == mood) return;
  label.setProperty("mood", mood);
  label.style()->unpolish(&label);
  label.style()->polish(&label);
}

bool StatusStrip::eventFilter(QObject* watched, QEvent* event) {
  if (event->type() != QEvent::MouseButtonRelease) return QFrame::eventFilter(watched, event);
  for (std::size_t i = 0; i < lblMapStatus.size(); ++i)
    if (watched == lblMapStatus[i])
      Q_EMIT Clicked(static_cast<int>(i), static_cast<QMouseEvent*>(event)->button());
  return true;
}

void StatusStrip::changeEvent(QEvent* event) {
  QFrame::changeEvent(event);
  if (event->type() == QEvent::FontChange) SetWidths();
}
