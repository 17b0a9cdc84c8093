#include "windows/profile_strip.h"

#include <QKeyEvent>
#include <QMouseEvent>
#include <QPainter>
#include <algorithm>

#include "windows/qt_painter_surface.h"
#include "windows/style.h"

namespace {

constexpr int stripHeight = 112;
constexpr double keyStep = 0.01;  // of the plan's length

}  // namespace

ProfileStrip::ProfileStrip(const FlightPlan& plan, QWidget* parent) : QFrame(parent), plan(plan) {
  setObjectName("profileStrip");
  setAccessibleName(tr("Vertical picture"));
  setFixedHeight(stripHeight);
  setMouseTracking(true);
  setFocusPolicy(Qt::TabFocus);
  setAttribute(Qt::WA_OpaquePaintEvent);
}

QSize ProfileStrip::sizeHint() const {
  return {400, stripHeight};
}

void ProfileStrip::Show(FlightProfile flight) {
  profile = std::move(flight);
  if (marked && (profile.points.empty() || *marked > profile.Length())) SetMark(std::nullopt);
  update();
}

// The frame is cut out of the page that the surface lays over the widget.
ProfileScale ProfileStrip::Scale() const {
  const PagePlacement placement(width(), height());
  const SurfacePoint corner = placement.ToUnits({0, 0});
  const SurfacePoint end = placement.ToUnits(QPointF(width(), height()));
  return {profile,
          plan,
          {corner.x, corner.y, end.x - corner.x, end.y - corner.y},
          static_cast<float>(1 / placement.PixelsPerUnit())};
}

void ProfileStrip::paintEvent(QPaintEvent*) {
  QPainter painter(this);
  QtPainterSurface surface(painter, PagePlacement(width(), height()));
  DrawProfile(profile, plan, Scale(), marked, surface, ProfileColorsOf(IsNightStyle()));
  painter.setOpacity(1);
  if (!hasFocus()) return;
  painter.setPen(QPen(FocusColor(), 1));
  painter.setBrush(Qt::NoBrush);
  painter.drawRect(rect().adjusted(0, 0, -1, -1));
}

void ProfileStrip::SetMark(std::optional<double> distance) {
  if (profile.points.empty()) distance.reset();
  if (distance == marked) return;
  marked = distance;
  update();
  Q_EMIT MarkMoved();
}

void ProfileStrip::mouseMoveEvent(QMouseEvent* event) {
  const PagePlacement placement(width(), height());
  SetMark(Scale().DistanceAt(placement.ToUnits(event->position()).x));
}

void ProfileStrip::mousePressEvent(QMouseEvent* event) {
  if (event->button() != Qt::LeftButton) return event->ignore();
  mouseMoveEvent(event);
  if (marked) Q_EMIT MarkChosen();
}

void ProfileStrip::leaveEvent(QEvent*) {
  SetMark(std::nullopt);
}

void ProfileStrip::focusOutEvent(QFocusEvent*) {
  SetMark(std::nullopt);
  update();
}

void ProfileStrip::StepMark(int direction, bool toWaypoint) {
  const double length = profile.Length();
  if (!marked) return SetMark(direction > 0 ? 0 : length);
  if (!toWaypoint) return SetMark(std::clamp(*marked + direction * keyStep * length, 0.0, length));
  const auto& rows = profile.rows;
  if (direction > 0) {
    const auto next = std::upper_bound(rows.begin(), rows.end(), *marked);
    return SetMark(next == rows.end() ? length : *next);
  }
  const auto here = std::lower_bound(rows.begin(), rows.end(), *marked);
  SetMark(here == rows.begin() ? 0 : *(here - 1));
}

void ProfileStrip::keyPressEvent(QKeyEvent* event) {
  const bool control = event->modifiers().testFlag(Qt::ControlModifier);
  switch (event->key()) {
    case Qt::Key_Left:
    case Qt::Key_Right:
      return StepMark(event->key() == Qt::Key_Right ? 1 : -1, control);
    case Qt::Key_Home:
      return SetMark(0);
    case Qt::Key_End:
      return SetMark(profile.Length());
    case Qt::Key_Return:
    case Qt::Key_Enter:
      if (marked) Q_EMIT MarkChosen();
      return;
    case Qt::Key_Escape:
      if (!marked) break;
      return SetMark(std::nullopt);
    default:
      break;
  }
  QFrame::keyPressEvent(event);
}
