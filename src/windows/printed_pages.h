// The printed plan laid out on paper: black on white, in one column, readable
// at arm's length. Every text has its place before anything is drawn, so that
// the preview, the printer and a PDF file show the same pages. Places are in
// units of 1/600 inch from the paper's upper left corner.
#pragma once

#include <QPageSize>
#include <QPagedPaintDevice>
#include <QPainter>
#include <QRectF>
#include <QString>
#include <functional>
#include <vector>

#include "flightplan/printed_plan.h"

constexpr double paperUnitsPerInch = 600;

enum class PaperFont { title, heading, strong, body, small };

// As it is drawn: Arial, or what stands in for it, somewhat smaller on small paper.
QFont FontOf(PaperFont font, double scale);

struct PlacedText {
  QRectF box;  // as wide as the text, as high as its line
  QString text;
  PaperFont font = PaperFont::body;
};

struct PlacedRule {
  QLineF line;
  bool faint = false;
};

struct PlacedPage {
  double fontScale = 1;
  std::vector<PlacedText> texts;
  std::vector<PlacedRule> rules;
  QRectF map;  // where the route's map goes; empty: it is not on this page
};

struct PlacedPages {
  QSizeF paper;
  QRectF printed;  // what is used of it
  std::vector<PlacedPage> pages;
};

// Draws the route's map into an area of the painter.
using MapDrawer = std::function<void(QPainter& painter, const QRectF& area)>;

// "A4", "A5", "Letter"; A4 for any other name.
QPageSize PaperNamed(const QString& name);

// As many pages as the plan needs on paper of this size (any from A6 up); each
// begins with the plan's heading and ends with its number. No line stands across two pages,
// no heading ends one, a table's head is repeated where it goes on. A plan
// without sections and map has no pages.
PlacedPages LayOutPages(const PrintedPlan& plan, const QPageSize& paper);

// One page in the painter's units, paperUnitsPerInch to the inch.
void DrawPage(QPainter& painter, const PlacedPage& page, const MapDrawer& drawMap);

// Lays the plan out for the device's own paper and draws all of it. False if the device takes nothing.
bool PrintPages(QPagedPaintDevice& device, const PrintedPlan& plan, const MapDrawer& drawMap);

// The pages as a PDF document.
QByteArray PdfOf(const PrintedPlan& plan, const QPageSize& paper, const MapDrawer& drawMap);
