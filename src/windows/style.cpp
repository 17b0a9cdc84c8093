#include "windows/style.h"

#include <QHash>
#include <QPalette>
#include <QRegularExpression>
#include <QStyleFactory>

namespace {

const QStringList& FontStack() {
  static const QStringList families = {"Inter", "DejaVu Sans"};
  return families;
}

constexpr QRgb accent = qRgb(64, 132, 214);

struct Tones {
  QRgb ground, field, otherField, raised, text, quietText, disabledText, placeholder, link;
};
constexpr Tones nightTones{qRgb(17, 22, 31),   qRgb(13, 17, 24),    qRgb(18, 23, 32),
                           qRgb(25, 32, 44),   qRgb(223, 229, 238), qRgb(140, 152, 170),
                           qRgb(92, 102, 118), qRgb(104, 116, 134), qRgb(120, 176, 240)};
constexpr Tones dayTones{qRgb(244, 246, 249), qRgb(255, 255, 255), qRgb(246, 248, 250),
                         qRgb(255, 255, 255), qRgb(28, 35, 44),    qRgb(95, 107, 122),
                         qRgb(154, 164, 178), qRgb(122, 133, 148), qRgb(28, 95, 176)};

const Tones& TonesInUse() {
  return IsNightStyle() ? nightTones : dayTones;
}

QPalette PaletteOf(const Tones& tones) {
  QPalette palette;
  palette.setColor(QPalette::Window, tones.ground);
  palette.setColor(QPalette::Base, tones.field);
  palette.setColor(QPalette::AlternateBase, tones.otherField);
  palette.setColor(QPalette::Button, tones.raised);
  palette.setColor(QPalette::ToolTipBase, tones.raised);
  for (const auto role : {QPalette::WindowText, QPalette::Text, QPalette::ButtonText, QPalette::ToolTipText})
    palette.setColor(role, tones.text);
  palette.setColor(QPalette::PlaceholderText, tones.placeholder);
  palette.setColor(QPalette::Highlight, accent);
  palette.setColor(QPalette::HighlightedText, Qt::white);
  palette.setColor(QPalette::Link, tones.link);
  palette.setColor(QPalette::Mid, tones.quietText);
  for (const auto role : {QPalette::WindowText, QPalette::Text, QPalette::ButtonText})
    palette.setColor(QPalette::Disabled, role, tones.disabledText);
  return palette;
}

constexpr const char* styleSheet = R"(
QMenuBar { background: #111620; padding: 2px 6px; }
QMenuBar::item { padding: 5px 10px; border-radius: 4px; background: transparent; }
QMenuBar::item:selected { background: #232d3d; }
QMenu { background: #19202c; border: 1px solid #2c3748; padding: 5px; }
QMenu::item { padding: 6px 28px 6px 26px; border-radius: 4px; }
QMenu::item:selected { background: #2b5c99; }
QMenu::item:disabled { color: #5c6676; }
QMenu::separator { height: 1px; background: #2c3748; margin: 5px 8px; }
QToolBar { background: #111620; border: none; border-bottom: 1px solid #232c3a; padding: 5px 10px; spacing: 4px; }
QToolBar::separator { width: 1px; background: #2c3748; margin: 4px 8px; }
QToolButton { background: transparent; border: 1px solid transparent; border-radius: 5px; padding: 5px 11px; color: #b9c4d3; }
QToolButton:hover { background: #202938; color: #ffffff; }
QToolButton:pressed { background: #18202c; }
QToolButton:checked { background: #1f3a5e; border-color: #2d5688; color: #e8f1fc; }
QToolButton:focus { border-color: #4084d6; }
QToolButton:disabled { color: #525c6b; }
QMessageBox, QDialogButtonBox { dialogbuttonbox-buttons-have-icons: 0; }
QPushButton { background: #212b3a; border: 1px solid #334155; border-radius: 5px; padding: 7px 18px; min-width: 64px; }
QPushButton:hover { background: #293648; }
QPushButton:focus { border-color: #4084d6; }
QPushButton:default { background: #2b65ab; border-color: #3a78c2; color: white; }
QPushButton:default:hover { background: #3273c0; }
QPushButton:disabled { background: #1a212c; border-color: #262f3c; color: #5c6676; }
QLineEdit { background: #0d1118; border: 1px solid #334155; border-radius: 5px; padding: 7px 9px; selection-background-color: #2b65ab; }
QRadioButton:focus { color: #ffffff; }
QRadioButton::indicator { width: 12px; height: 12px; border: 1px solid #5a6b84; border-radius: 7px; background: #0d1118; }
QRadioButton::indicator:checked { width: 6px; height: 6px; border: 4px solid #4084d6; background: #ffffff; }
QListWidget#lstAircraft { background: #0f141c; border: 1px solid #232c3a; border-radius: 5px; padding: 4px; outline: none; }
QListWidget#lstAircraft:focus { border-color: #4084d6; }
QListWidget#lstAircraft::item { padding: 6px 8px; border-radius: 4px; }
QListWidget#lstAircraft::item:selected { background: #1f3a5e; color: #ffffff; }
QListWidget#lstAircraft::item:disabled { color: #5c6676; }
QLineEdit[readOnly="true"] { background: transparent; border-color: #232c3a; }
QLineEdit:focus { border-color: #4084d6; }
QLineEdit[fault="true"], QLineEdit[fault="true"]:focus { border-color: #a85a50; }
QComboBox { background: #0d1118; border: 1px solid #334155; border-radius: 5px; padding: 6px 9px; }
QComboBox:focus { border-color: #4084d6; }
QComboBox:disabled { color: #5c6676; border-color: #262f3c; }
QComboBox QLineEdit { background: transparent; border: none; padding: 0; }
QComboBox::drop-down { border: none; width: 22px; }
QComboBox[choice="true"]::down-arrow { image: url(:/icons/chevron.svg); width: 12px; height: 12px; }
QComboBox QAbstractItemView { background: #19202c; border: 1px solid #2c3748; selection-background-color: #2b5c99; outline: none; }
QAbstractItemView#lstDepMatches { background: #19202c; border: 1px solid #2c3748; padding: 3px; selection-background-color: #2b5c99; outline: none; }
QAbstractItemView#lstDepMatches::item, QComboBox QAbstractItemView::item { padding: 4px 6px; }
QTableView#lstWP { background: #10232b; border: 1px solid #1f3b47; border-radius: 5px; }
QFrame#statusStrip { background: #111620; border-top: 1px solid #232c3a; }
QFrame#statusStrip QLabel { color: #a7b3c4; padding: 0 12px; border-right: 1px solid #232c3a; }
QFrame#statusStrip QLabel[mood="to"] { color: #f4897b; }
QFrame#statusStrip QLabel[mood="from"] { color: #82b4f7; }
QFrame#pnlToggleButtons { background: rgba(17, 22, 32, 238); border: 1px solid #2c3748; border-top: none; border-bottom-left-radius: 8px; border-bottom-right-radius: 8px; }
QFrame#pnlToggleButtons QToolButton { padding: 0; }
QFrame#pnlFlightplan { background: #111620; border-left: 1px solid #232c3a; }
QFrame#pnlFlightplan QLabel#lblPlanTitle { font-size: 19px; font-weight: 600; color: #f1f5fa; }
QLabel[quiet="true"] { color: #8c98aa; }
QLabel[fault="true"] { color: #f08a7c; }
QLabel[figure="true"] { font-size: 15px; color: #dfe5ee; }
QLabel[plate="true"] { background: rgba(17, 22, 32, 232); border: 1px solid #33425a; border-radius: 4px; padding: 3px 7px; color: #eef3fa; }
QListWidget, QTreeWidget { background: #0f141c; border: 1px solid #232c3a; border-radius: 5px; outline: none; }
QListWidget::item { padding: 4px 8px; border: none; }
QTreeWidget::item { padding: 3px 6px; border: none; }
QListWidget::item:selected, QTreeWidget::item:selected { background: #1f3a5e; color: #ffffff; }
QListWidget:focus, QTreeWidget:focus { border-color: #4084d6; }
QGroupBox { border: none; margin-top: 18px; font-size: 15px; font-weight: 600; }
QGroupBox::title { subcontrol-origin: margin; left: 0; color: #f1f5fa; }
QTableView { border: none; background: #0f141c; alternate-background-color: #121822; gridline-color: #1d2531; outline: none; }
QTableView::item { padding: 0 6px; border: none; }
QTableView#grdWPTable { font-size: 12px; }
QTableView#grdWPTable::item { padding: 0 2px; }
QTableView#grdWPTable QHeaderView::section { font-size: 12px; padding: 5px 5px; }
QFrame#updnFL QToolButton { padding: 0; border-radius: 3px; }
QTableView::item:selected { background: #1f3a5e; color: #ffffff; }
QHeaderView::section { background: #111620; color: #8c98aa; border: none; border-bottom: 1px solid #232c3a; padding: 6px 8px; }
QScrollBar:vertical { background: transparent; width: 10px; margin: 0; }
QScrollBar::handle:vertical { background: #2e3a4c; border-radius: 5px; min-height: 28px; }
QScrollBar::handle:vertical:hover { background: #3c4b61; }
QScrollBar::add-line, QScrollBar::sub-line, QScrollBar::add-page, QScrollBar::sub-page { background: none; height: 0; }
QFrame[optionRow="true"] { border: none; border-bottom: 1px solid #1d2531; }
QLabel[heading="true"] { font-size: 19px; font-weight: 600; color: #f1f5fa; padding: 10px 0 6px 0; }
QToolButton[restore="true"] { padding: 5px 6px; }
QPushButton[swatch="true"] { text-align: left; padding: 5px 10px; }
QPushButton[fault="true"] { background: transparent; border-color: transparent; color: #f08a7c; }
QPushButton[fault="true"]:focus { border-color: #4084d6; }
QCheckBox::indicator { width: 15px; height: 15px; border: 1px solid #5a6b84; border-radius: 4px; background: #0d1118; }
QCheckBox::indicator:focus { border-color: #4084d6; }
QCheckBox::indicator:checked { background: #4084d6; border-color: #4084d6; image: url(:/icons/check.svg); }
QToolTip { background: #19202c; color: #dfe5ee; border: 1px solid #334155; padding: 4px; }
)";

// The sheet is written in the colours of the night; these stand for them by day.
const QHash<QString, QString>& DayColors() {
  static const QHash<QString, QString> colors = {
      {"#111620", "#eef1f5"}, {"#232d3d", "#dde3eb"}, {"#19202c", "#ffffff"}, {"#2c3748", "#cfd6df"},
      {"#2b5c99", "#cfe1f7"}, {"#5c6676", "#9aa4b2"}, {"#b9c4d3", "#3d4856"}, {"#202938", "#dde3eb"},
      {"#ffffff", "#0b1016"}, {"#18202c", "#d3dae3"}, {"#1f3a5e", "#cfe0f5"}, {"#2d5688", "#9dbfe6"},
      {"#e8f1fc", "#12355f"}, {"#4084d6", "#4084d6"}, {"#525c6b", "#a3acb8"}, {"#212b3a", "#ffffff"},
      {"#334155", "#c3ccd7"}, {"#293648", "#e8eef5"}, {"#2b65ab", "#2b65ab"}, {"#3a78c2", "#2b65ab"},
      {"#3273c0", "#3273c0"}, {"#1a212c", "#eef1f5"}, {"#262f3c", "#dde3ea"}, {"#0d1118", "#ffffff"},
      {"#5a6b84", "#8793a3"}, {"#0f141c", "#ffffff"}, {"#232c3a", "#d5dbe3"}, {"#a85a50", "#c0392b"},
      {"#10232b", "#eaf6fa"}, {"#1f3b47", "#bcdfe9"}, {"#a7b3c4", "#465262"}, {"#f4897b", "#b3261e"},
      {"#82b4f7", "#1c5fb0"}, {"#f1f5fa", "#0f151d"}, {"#8c98aa", "#5f6b7a"}, {"#f08a7c", "#b3261e"},
      {"#dfe5ee", "#1c232c"}, {"#33425a", "#c3ccd7"}, {"#eef3fa", "#10161e"}, {"#121822", "#f6f8fa"},
      {"#1d2531", "#e3e8ee"}, {"#2e3a4c", "#c0c8d2"}, {"#3c4b61", "#a9b3bf"}};
  return colors;
}

// Dark becomes light and light dark.
QString Turned(const QString& color) {
  const QColor dark(color);
  return QColor::fromHslF(dark.hslHueF(), dark.hslSaturationF(), 1 - dark.lightnessF()).name();
}

QString DaySheet() {
  QString sheet = QString(styleSheet).replace("rgba(17, 22, 32,", "rgba(255, 255, 255,");
  static const QRegularExpression colorName("#[0-9a-f]{6}");
  QString day;
  qsizetype done = 0;
  for (auto found = colorName.globalMatch(sheet); found.hasNext();) {
    const QRegularExpressionMatch color = found.next();
    day += sheet.mid(done, color.capturedStart() - done);
    day += DayColors().value(color.captured(), Turned(color.captured()));
    done = color.capturedEnd();
  }
  return day + sheet.mid(done);
}

}  // namespace

QFont MapFont() {
  QFont font;
  font.setFamilies(FontStack());
  font.setHintingPreference(QFont::PreferVerticalHinting);
  return font;
}

bool IsNightStyle() {
  return QApplication::palette().color(QPalette::Window).lightness() < 128;
}

QColor IconColor(QIcon::Mode mode, QIcon::State state) {
  const bool night = IsNightStyle();
  if (mode == QIcon::Disabled) return QColor::fromRgb(TonesInUse().disabledText);
  if (state == QIcon::On) return QColor::fromRgb(night ? qRgb(232, 241, 252) : qRgb(18, 53, 95));
  if (mode == QIcon::Active) return QColor::fromRgb(night ? qRgb(255, 255, 255) : qRgb(11, 16, 22));
  return QColor::fromRgb(night ? qRgb(185, 196, 211) : qRgb(61, 72, 86));
}

QColor FocusColor() {
  return QColor::fromRgb(accent);
}

QColor EnrouteColor() {
  return QColor::fromRgb(IsNightStyle() ? qRgb(116, 172, 236) : qRgb(43, 101, 171));
}

QColor ProcedureColor() {
  return QColor::fromRgb(IsNightStyle() ? qRgb(222, 178, 106) : qRgb(150, 96, 16));
}

QColor AirportColor() {
  return QColor::fromRgb(TonesInUse().text);
}

QColor ProcedureTint() {
  return QColor::fromRgba(IsNightStyle() ? qRgba(222, 178, 106, 14) : qRgba(222, 178, 106, 40));
}

void ApplyStyle(QApplication& application, bool night) {
  application.setStyle(QStyleFactory::create("Fusion"));
  application.setPalette(PaletteOf(night ? nightTones : dayTones));
  QFont font;
  font.setFamilies(FontStack());
  font.setPixelSize(13);
  application.setFont(font);
  application.setStyleSheet(night ? QString(styleSheet) : DaySheet());
}
