// The picture of the map in the main window ("Map"): it keeps the last
// finished picture (VMap(0)) and shows it with an overlay above: the measuring
// line, boxes, what moves with the pointer. It knows pixels and map units, not
// what is drawn nor what a gesture means: the painters are handed in, the
// gestures are told in map units.
//
// However much input comes between two frames, the picture is drawn once: a
// change only marks it, and the next frame draws it whole before anything of
// it is seen. The overlay never costs a drawing of the picture.
#pragma once

#include <QImage>
#include <QLabel>
#include <QWidget>
#include <functional>

#include "platform/draw_surface.h"
#include "windows/qt_draw_surface.h"

class MapCanvas : public QWidget {
  Q_OBJECT

 public:
  explicit MapCanvas(QWidget* parent = nullptr);

  std::function<void(DrawSurface&)> drawPicture;  // the full repaint
  std::function<void(DrawSurface&)> drawOverlay;  // above a copy of the picture
  // Above everything, on a page that is just what is seen below platesTop: its
  // origin is PlatesCorner().
  std::function<void(DrawSurface&)> drawPlates;
  bool wheelZooms = false;  // and the focus follows the pointer

  // The picture is drawn anew before it is next shown.
  void MarkStale();
  // What can be seen of the page, in map units: its size, and its top left corner.
  SurfacePoint VisibleUnits() const;
  SurfacePoint VisibleCorner() const { return Placement().ToUnits({0, 0}); }
  SurfacePoint PlatesCorner() const { return Placement().ToUnits(QPointF(0, platesTop)); }
  // Pixels at the upper edge that something else covers.
  void SetPlatesTop(int pixels);
  // What is not covered, in pixels.
  QRect Seen() const { return rect().adjusted(0, platesTop, 0, 0); }
  // The menu of the right button, at the middle of what is seen.
  void AskMenu();
  // Where a point of the page is in the widget.
  QPoint ToPixel(float x, float y) const { return Placement().ToPixel(x, y).toPoint(); }
  // Moves a label of the map beside a pixel, on this side of it, kept within what is seen.
  void PlaceLabel(QLabel& label, QPoint place, Qt::Corner side) const;
  const QImage& Picture() const { return VMap0; }

 Q_SIGNALS:
  // The left button, in map units. A click ends where it began, however the hand shook.
  void ButtonDown(float x, float y, Qt::KeyboardModifiers modifiers);
  void ButtonUp(float x, float y, bool shift);
  void PointerMoved(float x, float y);
  void PointerLeft();
  // Right click, or AskMenu().
  void MenuAsked(float x, float y, const QPoint& global);
  void StepsTurned(int towardUser);  // of the wheel, never 0
  // Arrow keys: parts of the page to move the centre by.
  void PanAsked(float right, float down);
  void Resized();

 protected:
  void paintEvent(QPaintEvent* event) override;
  void resizeEvent(QResizeEvent* event) override;
  void mousePressEvent(QMouseEvent* event) override;
  void mouseMoveEvent(QMouseEvent* event) override;
  void mouseReleaseEvent(QMouseEvent* event) override;
  void leaveEvent(QEvent* event) override;
  void contextMenuEvent(QContextMenuEvent* event) override;
  void wheelEvent(QWheelEvent* event) override;
  void keyPressEvent(QKeyEvent* event) override;
  void focusInEvent(QFocusEvent* event) override;
  void focusOutEvent(QFocusEvent* event) override;

 private:
  void DrawAnew();
  PagePlacement Placement() const { return {static_cast<double>(width()), static_cast<double>(height())}; }

  QImage VMap0;
  bool stale = true;
  int platesTop = 0;
  bool leftDown = false;
  bool focusShown = false;  // reached by the Tab key
  QPointF pressedAt;
  int wheelDelta = 0;  // turned, but not a whole step yet
};
