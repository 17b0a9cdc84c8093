#include "windows/procedure_page.h"

#include <QPainter>

#include "windows/code_page_text.h"
#include "windows/qt_painter_surface.h"
#include "windows/style.h"

namespace {

// Dark on white, whatever the screen's colours are.
ColorSettings PaperColors() {
  constexpr ColorValue ink = 0x202020, route = 0x7A3A00;
  ColorSettings colors;
  colors.MAP = 0xFFFFFF;
  colors.TAXINAME = ink;
  colors.ROUTE = route;
  return colors;
}

QFont PageFont(double points, bool bold = false) {
  QFont font = MapFont();
  font.setPointSizeF(points);
  font.setBold(bold);
  return font;
}

void DrawChart(QPainter& painter, const ProcedureChart& chart, const QRectF& area, double density) {
  painter.save();
  painter.setClipRect(area);
  painter.translate(area.topLeft());
  const PagePlacement placement(area.width(), area.height());
  MapView view;
  chart.FitView(view, {static_cast<float>(area.width() / placement.PixelsPerUnit()),
                       static_cast<float>(area.height() / placement.PixelsPerUnit())});
  QtPainterSurface surface(painter, placement, density);
  surface.TextHalo = false;
  chart.Draw(surface, view.CurrentProjection(), PaperColors());
  painter.restore();
  painter.setPen(QPen(QColor(0x60, 0x60, 0x60), density));
  painter.setBrush(Qt::NoBrush);
  painter.drawRect(area);
}

}  // namespace

bool PrintProcedure(const ProcedureChart& chart, QPagedPaintDevice& device) {
  QPainter painter;
  if (!painter.begin(&device)) return false;
  const double density = painter.device()->logicalDpiX() / 96.0;
  const QRectF page = painter.viewport();
  const double gap = 14 * density;
  painter.setPen(Qt::black);
  double top = page.top();
  const auto line = [&](const QString& text, const QFont& font) {
    painter.setFont(font);
    QRectF used;
    painter.drawText(QRectF(page.left(), top, page.width(), page.height()), Qt::TextWordWrap, text, &used);
    top = used.bottom() + gap;
  };
  line("Velmora Departure and Arrival Routes", PageFont(16, true));
  const QString runway = QString::fromStdString(GetRwyName(chart.Runway()));
  const QString code = QString::fromStdString(chart.AirportCode());
  line((chart.Kind() == ProcedureKind::sid ? "Departure for Rwy " : "Arrival for Rwy ") + runway + "   " +
           code,
       PageFont(12, true));
  const QRectF area(page.left(), top, page.width(), page.height() * 0.55);
  DrawChart(painter, chart, area, density);
  painter.setPen(Qt::black);
  top = area.bottom() + gap;
  if (chart.Picked() >= 0) {
    const SidStarEntry& entry = chart.Shown()[static_cast<std::size_t>(chart.Picked())];
    line(FromCodePage(entry.Name.View()), PageFont(12, true));
    line(QString::fromStdString(chart.Text()), PageFont(11));
  }
  return painter.end();
}
