#include "windows/map_canvas.h"

#include <QKeyEvent>
#include <QMouseEvent>
#include <QPainter>
#include <QWheelEvent>

namespace {

constexpr float panPart = 0.2F;
constexpr int wheelNotch = 120;
// A hand that shakes while it clicks draws no box.
constexpr double clickTolerance = 3;

}  // namespace

MapCanvas::MapCanvas(QWidget* parent) : QWidget(parent) {
  setObjectName("Map");
  setAttribute(Qt::WA_OpaquePaintEvent);
  setMouseTracking(true);
  setFocusPolicy(Qt::StrongFocus);
  setCursor(Qt::CrossCursor);
}

void MapCanvas::MarkStale() {
  stale = true;
  update();
}

SurfacePoint MapCanvas::VisibleUnits() const {
  const double scale = Placement().PixelsPerUnit();
  return {static_cast<float>(width() / scale), static_cast<float>(height() / scale)};
}

void MapCanvas::DrawAnew() {
  stale = false;
  const double density = devicePixelRatioF();
  const QSize pixels = size() * density;
  if (VMap0.size() != pixels) VMap0 = QImage(pixels, QImage::Format_RGB32);
  VMap0.setDevicePixelRatio(1);
  QtDrawSurface surface(VMap0, density);
  if (drawPicture) drawPicture(surface);
}

void MapCanvas::paintEvent(QPaintEvent*) {
  if (stale) DrawAnew();
  QPainter painter(this);
  painter.drawImage(rect(), VMap0);
  if (!BoxActive) return;
  painter.setPen(QPen(boxColor, 1.5));
  painter.setBrush(QColor(boxColor.red(), boxColor.green(), boxColor.blue(), 28));
  painter.drawRect(QRectF(boxStart, boxEnd).normalized());
}

void MapCanvas::resizeEvent(QResizeEvent*) {
  MarkStale();
}

void MapCanvas::mousePressEvent(QMouseEvent* event) {
  if (event->button() != Qt::LeftButton) return;
  BoxActive = true;
  boxStart = boxEnd = event->position();
}

void MapCanvas::mouseMoveEvent(QMouseEvent* event) {
  if (wheelZooms && !hasFocus()) setFocus(Qt::MouseFocusReason);
  const SurfacePoint pointer = Placement().ToUnits(event->position());
  Q_EMIT PointerMoved(pointer.x, pointer.y);
  if (!BoxActive) return;
  boxEnd = event->position();
  Q_EMIT BoxMoved();
  update();
}

void MapCanvas::mouseReleaseEvent(QMouseEvent* event) {
  if (event->button() != Qt::LeftButton || !BoxActive) return;
  BoxActive = false;
  boxEnd = event->position();
  update();
  if (event->modifiers() & Qt::ShiftModifier) return;
  if ((boxEnd - boxStart).manhattanLength() <= clickTolerance) boxEnd = boxStart;
  const SurfacePoint from = Placement().ToUnits(boxStart);
  const SurfacePoint to = Placement().ToUnits(boxEnd);
  Q_EMIT BoxDrawn(from.x, from.y, to.x, to.y);
}

void MapCanvas::wheelEvent(QWheelEvent* event) {
  if (!wheelZooms) return event->ignore();
  wheelSteps += event->angleDelta().y();
  event->accept();
  if (std::abs(wheelSteps) < wheelNotch) return;
  const bool towardUser = wheelSteps < 0;
  wheelSteps = 0;
  Q_EMIT WheelTurned(towardUser);
}

void MapCanvas::keyPressEvent(QKeyEvent* event) {
  switch (event->key()) {
    case Qt::Key_Left:
      return Q_EMIT PanAsked(-panPart, 0);
    case Qt::Key_Right:
      return Q_EMIT PanAsked(panPart, 0);
    case Qt::Key_Up:
      return Q_EMIT PanAsked(0, -panPart);
    case Qt::Key_Down:
      return Q_EMIT PanAsked(0, panPart);
    default:
      QWidget::keyPressEvent(event);
  }
}
