#include "windows/status_strip.h"

#include <QEvent>
#include <QHBoxLayout>
#include <QMouseEvent>
#include <QStyle>

namespace {

// The longest text that a panel usually shows, with a nought for any digit; none
// for a panel that is mostly empty.
constexpr std::array<const char*, statusPanelCount> widestTexts = {"00:00:00 LOCAL",
                                                                   "0000NM",
                                                                   "MagVar: W 000°",
                                                                   "N00°00.0000' - W000°00.0000'",
                                                                   "",
                                                                   "N00°00.0000' - W000°00.0000'",
                                                                   ""};

QString WithWidestDigits(const QString& text, const QFontMetrics& metrics) {
  QChar widest = '0';
  for (char digit = '1'; digit <= '9'; ++digit)
    if (metrics.horizontalAdvance(digit) > metrics.horizontalAdvance(widest)) widest = digit;
  return QString(text).replace('0', widest);
}

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
    if (widest.isEmpty()) continue;
    QLabel& label = *lblMapStatus[i];
    label.ensurePolished();
    const QString shown = label.text();
    label.setText(WithWidestDigits(widest, label.fontMetrics()));
    // Kerning makes some texts a little wider than the sum of the widest digits.
    label.setMinimumWidth(label.sizeHint().width() + 2);
    label.setText(shown);
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
