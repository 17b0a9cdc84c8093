#include "windows/procedure_map.h"

#include <QPainter>

#include "windows/qt_draw_surface.h"

ProcedureMap::ProcedureMap(const Settings& settings, QWidget* parent) : QWidget(parent), settings(settings) {
  setObjectName("SIDMap");
  setAccessibleName(tr("Map of the procedures"));
  setAttribute(Qt::WA_OpaquePaintEvent);
  setMinimumSize(420, 320);
}

void ProcedureMap::ShowChart(const ProcedureChart* shown) {
  chart = shown;
  Redraw();
}

void ProcedureMap::Redraw() {
  stale = true;
  update();
}

void ProcedureMap::DrawPicture() {
  stale = false;
  const double density = devicePixelRatioF();
  const QSize pixels = size() * density;
  if (picture.size() != pixels) picture = QImage(pixels, QImage::Format_RGB32);
  QtDrawSurface surface(picture, density);
  surface.Clear(settings.colors.MAP);
  if (chart == nullptr) return;
  const PagePlacement placement(width(), height());
  MapView view;
  chart->FitView(view, {static_cast<float>(width() / placement.PixelsPerUnit()),
                        static_cast<float>(height() / placement.PixelsPerUnit())});
  chart->DrawWithMap(surface, view, settings);
}

void ProcedureMap::paintEvent(QPaintEvent*) {
  if (stale) DrawPicture();
  QPainter(this).drawImage(rect(), picture);
}

void ProcedureMap::resizeEvent(QResizeEvent*) {
  Redraw();
}
