#include "windows/style.h"

#include <QPalette>
#include <QStyleFactory>

namespace {

const QStringList& FontStack() {
  static const QStringList families = {"Inter", "DejaVu Sans"};
  return families;
}

constexpr QRgb ground = qRgb(17, 22, 31);
constexpr QRgb raised = qRgb(25, 32, 44);
constexpr QRgb text = qRgb(223, 229, 238);
constexpr QRgb quietText = qRgb(140, 152, 170);
constexpr QRgb disabledText = qRgb(92, 102, 118);
constexpr QRgb accent = qRgb(64, 132, 214);

QPalette DarkPalette() {
  QPalette palette;
  palette.setColor(QPalette::Window, ground);
  palette.setColor(QPalette::Base, qRgb(13, 17, 24));
  palette.setColor(QPalette::AlternateBase, qRgb(18, 23, 32));
  palette.setColor(QPalette::Button, raised);
  palette.setColor(QPalette::ToolTipBase, raised);
  for (const auto role : {QPalette::WindowText, QPalette::Text, QPalette::ButtonText, QPalette::ToolTipText})
    palette.setColor(role, text);
  palette.setColor(QPalette::PlaceholderText, qRgb(104, 116, 134));
  palette.setColor(QPalette::Highlight, accent);
  palette.setColor(QPalette::HighlightedText, Qt::white);
  palette.setColor(QPalette::Link, qRgb(120, 176, 240));
  for (const auto role : {QPalette::WindowText, QPalette::Text, QPalette::ButtonText})
    palette.setColor(QPalette::Disabled, role, disabledText);
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
QPushButton:default { background: #2b65ab; border-color: #3a78c2; color: #ffffff; }
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
QListWidget::item:selected { background: #1f3a5e; color: #ffffff; }
QListWidget:focus { border-color: #4084d6; }
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
QToolTip { background: #19202c; color: #dfe5ee; border: 1px solid #334155; padding: 4px; }
)";

}  // namespace

QFont MapFont() {
  QFont font;
  font.setFamilies(FontStack());
  font.setHintingPreference(QFont::PreferVerticalHinting);
  return font;
}

QColor IconColor(QIcon::Mode mode, QIcon::State state) {
  if (mode == QIcon::Disabled) return QColor::fromRgb(disabledText);
  if (state == QIcon::On) return QColor::fromRgb(qRgb(232, 241, 252));
  return QColor::fromRgb(mode == QIcon::Active ? qRgb(255, 255, 255) : qRgb(185, 196, 211));
}

QColor FocusColor() {
  return QColor::fromRgb(accent);
}

QColor EnrouteColor() {
  return QColor::fromRgb(qRgb(116, 172, 236));
}

QColor ProcedureColor() {
  return QColor::fromRgb(qRgb(222, 178, 106));
}

QColor AirportColor() {
  return QColor::fromRgb(text);
}

QColor ProcedureTint() {
  return QColor::fromRgba(qRgba(222, 178, 106, 14));
}

void ApplyStyle(QApplication& application) {
  application.setStyle(QStyleFactory::create("Fusion"));
  QPalette palette = DarkPalette();
  palette.setColor(QPalette::Mid, quietText);
  application.setPalette(palette);
  QFont font;
  font.setFamilies(FontStack());
  font.setPixelSize(13);
  application.setFont(font);
  application.setStyleSheet(styleSheet);
}
