#include "windows/map_canvas.h"

#include <QContextMenuEvent>
#include <QFocusEvent>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QPainter>
#include <QWheelEvent>
#include <algorithm>

#include "windows/qt_painter_surface.h"
#include "windows/style.h"

namespace {

constexpr float panPart = 0.2F;
constexpr int labelOffset = 14;  // pixels between a place and its label
constexpr int wheelStep = 120;
// A hand that shakes while it clicks draws no box.
constexpr double clickTolerance = 3;

// The surface of a page cut to what is seen of it below some pixels at the top.
class SeenPage : public QtPainterSurface {
 public:
  SeenPage(QPainter& painter, const PagePlacement& placement, int top)
      : QtPainterSurface(painter, placement),
        width(static_cast<float>(placement.PixelWidth() / placement.PixelsPerUnit())),
        height(static_cast<float>((placement.PixelHeight() - top) / placement.PixelsPerUnit())) {
    painter.save();
    painter.translate(QPointF(0, top) - placement.ToPixel(0, 0));
  }
  ~SeenPage() override { painter.restore(); }
  SeenPage(const SeenPage&) = delete;
  SeenPage& operator=(const SeenPage&) = delete;

  float ScaleWidth() const override { return width; }
  float ScaleHeight() const override { return height; }

 private:
  float width;
  float height;
};

}  // namespace

MapCanvas::MapCanvas(QWidget* parent) : QWidget(parent) {
  setObjectName("Map");
  setAccessibleName(tr("Map"));
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

void MapCanvas::PlaceLabel(QLabel& label, QPoint place, Qt::Corner side) const {
  const bool left = side == Qt::TopLeftCorner || side == Qt::BottomLeftCorner;
  const bool above = side == Qt::TopLeftCorner || side == Qt::TopRightCorner;
  const int x = left ? place.x() - labelOffset - label.width() : place.x() + labelOffset;
  const int y = above ? place.y() - labelOffset - label.height() : place.y() + labelOffset;
  const QRect seen = Seen();
  const int right = std::max(seen.left(), seen.right() + 1 - label.width());
  const int bottom = std::max(seen.top(), seen.bottom() + 1 - label.height());
  label.move(std::clamp(x, seen.left(), right), std::clamp(y, seen.top(), bottom));
}

void MapCanvas::DrawAnew() {
  stale = false;
  const double density = devicePixelRatioF();
  const QSize pixels = size() * density;
  if (VMap0.size() != pixels) VMap0 = QImage(pixels, QImage::Format_RGB32);
  QtDrawSurface surface(VMap0, density);
  if (drawPicture) drawPicture(surface);
}

void MapCanvas::paintEvent(QPaintEvent*) {
  if (stale) DrawAnew();
  QPainter painter(this);
  painter.drawImage(rect(), VMap0);
  if (drawOverlay) {
    QtPainterSurface surface(painter, Placement());
    drawOverlay(surface);
  }
  if (drawPlates) {
    SeenPage page(painter, Placement(), platesTop);
    drawPlates(page);
  }
  if (focusShown) {
    painter.setPen(QPen(FocusColor(), 1));
    painter.setBrush(Qt::NoBrush);
    painter.drawRect(rect().adjusted(0, 0, -1, -1));
  }
}

void MapCanvas::resizeEvent(QResizeEvent*) {
  MarkStale();
  Q_EMIT Resized();
}

void MapCanvas::mousePressEvent(QMouseEvent* event) {
  if (event->button() != Qt::LeftButton) return;
  leftDown = true;
  pressedAt = event->position();
  const SurfacePoint pointer = Placement().ToUnits(pressedAt);
  Q_EMIT ButtonDown(pointer.x, pointer.y, event->modifiers());
}

void MapCanvas::mouseMoveEvent(QMouseEvent* event) {
  if (wheelZooms && !hasFocus()) setFocus(Qt::MouseFocusReason);
  const SurfacePoint pointer = Placement().ToUnits(event->position());
  Q_EMIT PointerMoved(pointer.x, pointer.y);
}

void MapCanvas::mouseReleaseEvent(QMouseEvent* event) {
  if (event->button() != Qt::LeftButton || !leftDown) return;
  leftDown = false;
  const bool click = (event->position() - pressedAt).manhattanLength() <= clickTolerance;
  const SurfacePoint pointer = Placement().ToUnits(click ? pressedAt : event->position());
  Q_EMIT ButtonUp(pointer.x, pointer.y, event->modifiers().testFlag(Qt::ShiftModifier));
}

void MapCanvas::leaveEvent(QEvent*) {
  Q_EMIT PointerLeft();
}

void MapCanvas::contextMenuEvent(QContextMenuEvent* event) {
  if (event->reason() != QContextMenuEvent::Mouse) return AskMenu();
  const SurfacePoint pointer = Placement().ToUnits(event->pos());
  Q_EMIT MenuAsked(pointer.x, pointer.y, mapToGlobal(event->pos()));
}

void MapCanvas::AskMenu() {
  const QPoint middle = rect().center();
  const SurfacePoint place = Placement().ToUnits(middle);
  Q_EMIT MenuAsked(place.x, place.y, mapToGlobal(middle));
}

void MapCanvas::SetPlatesTop(int pixels) {
  platesTop = pixels;
  update();
}

void MapCanvas::wheelEvent(QWheelEvent* event) {
  if (!wheelZooms) return event->ignore();
  event->accept();
  wheelDelta += event->angleDelta().y();
  const int steps = wheelDelta / wheelStep;
  wheelDelta -= steps * wheelStep;
  if (steps != 0) Q_EMIT StepsTurned(-steps);
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

void MapCanvas::focusInEvent(QFocusEvent* event) {
  focusShown = event->reason() == Qt::TabFocusReason || event->reason() == Qt::BacktabFocusReason;
  update();
}

void MapCanvas::focusOutEvent(QFocusEvent*) {
  focusShown = false;
  update();
}
