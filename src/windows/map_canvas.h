// The picture of the map in the main window ("Map"): it keeps the last
// finished picture (VMap(0)) and shows it with the drag box above. It knows
// pixels and map units, not what is drawn: the painter is handed in.
#pragma once

#include <QImage>
#include <QWidget>
#include <functional>
#include <optional>

#include "platform/draw_surface.h"
#include "windows/qt_draw_surface.h"

class MapCanvas : public QWidget {
  Q_OBJECT

 public:
  explicit MapCanvas(QWidget* parent = nullptr);

  std::function<void(DrawSurface&)> drawPicture;  // the full repaint
  bool wheelZooms = false;
  QColor boxColor = Qt::red;

  // The picture is drawn anew before it is next shown.
  void MarkStale();
  // What can be seen of the page, in map units.
  SurfacePoint VisibleUnits() const;
  const QImage& Picture() const { return VMap0; }

 Q_SIGNALS:
  // Left button down and up, in map units; a click is a box of no size.
  void BoxDrawn(float x1, float y1, float x2, float y2);
  void BoxMoved();
  void PointerMoved(float x, float y);
  void WheelTurned(bool towardUser);
  // Arrow keys: parts of the page to move the centre by.
  void PanAsked(float right, float down);

 protected:
  void paintEvent(QPaintEvent* event) override;
  void resizeEvent(QResizeEvent* event) override;
  void mousePressEvent(QMouseEvent* event) override;
  void mouseMoveEvent(QMouseEvent* event) override;
  void mouseReleaseEvent(QMouseEvent* event) override;
  void wheelEvent(QWheelEvent* event) override;
  void keyPressEvent(QKeyEvent* event) override;

 private:
  void DrawAnew();
  PagePlacement Placement() const { return {static_cast<double>(width()), static_cast<double>(height())}; }

  QImage VMap0;
  bool stale = true;
  bool BoxActive = false;
  QPointF boxStart;
  QPointF boxEnd;
  int wheelSteps = 0;
};
