#include "windows/print_lines.h"

#include <QFontMetricsF>
#include <QPainter>
#include <QPrintDialog>
#include <QPrinter>

namespace {

constexpr double printedPointSize = 11;
constexpr double lineHeight = 1.3;  // of the font's

}  // namespace

bool PrintLines(QPagedPaintDevice& paper, const std::vector<std::string>& lines) {
  QPainter painter;
  if (!painter.begin(&paper)) return false;
  QFont font;
  font.setFamilies({"Inter", "DejaVu Sans"});
  font.setPointSizeF(printedPointSize);
  painter.setFont(font);
  painter.setPen(Qt::black);
  const QFontMetricsF metrics(font, painter.device());
  const double step = metrics.height() * lineHeight;
  const double bottom = painter.viewport().height();
  double y = 0;
  for (const std::string& line : lines) {
    if (y + step > bottom) {
      if (!paper.newPage()) return false;
      y = 0;
    }
    painter.drawText(QPointF(0, y + metrics.ascent()), QString::fromStdString(line));
    y += step;
  }
  return painter.end();
}

bool PrintLinesOnPrinter(QWidget* parent, const std::vector<std::string>& lines) {
  QPrinter printer(QPrinter::HighResolution);
  QPrintDialog dialog(&printer, parent);
  return dialog.exec() != QDialog::Accepted || PrintLines(printer, lines);
}
