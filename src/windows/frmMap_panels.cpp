// The status panels below the map.
#include <QDateTime>

#include "map/pointer_panel.h"
#include "map/status_panels.h"
#include "windows/frmMap.h"

namespace {

constexpr int modeNameTime = 1200;  // ms

QString ToQString(std::string_view text) {
  return QString::fromUtf8(text.data(), static_cast<qsizetype>(text.size()));
}

// The hue of a mode's colour, in a form that can be read on the strip's dark ground.
QString MoodOf(CursorPanelMode mode) {
  switch (mode) {
    case CursorPanelMode::to:
      return "to";
    case CursorPanelMode::from:
      return "from";
    default:
      return {};
  }
}

}  // namespace

void frmMap::BuildPanels() {
  connect(lblMapStatus, &StatusStrip::Clicked, this, &frmMap::PanelClicked);
  connect(&tmrClock, &QTimer::timeout, this, [this] { ShowClock(); });
  tmrClock.start(1000);
  tmrModeName.setSingleShot(true);
  tmrModeName.setInterval(modeNameTime);
  connect(&tmrModeName, &QTimer::timeout, this, [this] { ShowPointer(); });
  ShowClock();
  ShowZoom();
  ShowPosition();
  ShowPointer();
}

void frmMap::PanelClicked(int panel, Qt::MouseButton button) {
  Trapped("frmMap lblMapStatus (", [&] {
    switch (static_cast<StatusPanel>(panel)) {
      case StatusPanel::clock:
        return actions["mnuLocalTime"]->trigger();
      case StatusPanel::range:
        return KeyDown(button == Qt::RightButton ? Qt::Key_PageUp : Qt::Key_PageDown);
      case StatusPanel::position:
        return actions["mnuDecimal"]->trigger();
      case StatusPanel::pointer:
        return StepPointerMode();
      default:
        return;
    }
  });
}

void frmMap::ShowClock() {
  const QDateTime now = clockUtc ? QDateTime::currentDateTimeUtc() : QDateTime::currentDateTime();
  const int second = QTime(0, 0).secsTo(now.time());
  lblMapStatus->Show(StatusPanel::clock, ToQString(ClockText(second, clockUtc)));
}

void frmMap::ShowZoom() {
  lblMapStatus->Show(StatusPanel::range, ToQString(session.view.RangeText()));
}

void frmMap::ShowPosition() {
  const MapView& view = session.view;
  lblMapStatus->Show(StatusPanel::magVar, ToQString(MagVarText(view.MapMagVar)));
  lblMapStatus->Show(StatusPanel::position, ToQString(PositionText({view.AircraftLat, view.AircraftLon},
                                                                   positionFormat, session.settings.DECSEC)));
}

void frmMap::ShowPointer() {
  if (tmrModeName.isActive()) return;
  lblMapStatus->SetMood(StatusPanel::pointer, MoodOf(cursorPanelMode));
  if (!pointerSeen) return lblMapStatus->Show(StatusPanel::pointer, {});
  lblMapStatus->Show(
      StatusPanel::pointer,
      ToQString(PointerPanelText(cursorPanelMode, session.view, MapReference(session.view, connected),
                                 PointerPosition(), positionFormat, session.settings.DECSEC)));
}

void frmMap::StepPointerMode() {
  cursorPanelMode = NextMode(cursorPanelMode);
  lblMapStatus->SetMood(StatusPanel::pointer, MoodOf(cursorPanelMode));
  lblMapStatus->Show(StatusPanel::pointer, ToQString(ModeName(cursorPanelMode)));
  tmrModeName.start();
}
