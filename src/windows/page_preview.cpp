#include "windows/page_preview.h"

#include <QPaintEvent>
#include <QPixmap>
#include <QScrollBar>
#include <QVBoxLayout>

namespace {

constexpr int widestSheet = 900;  // pixels
constexpr int sheetGap = 14;

}  // namespace

// One page. It is drawn once for its size.
class PageSheet : public QWidget {
 public:
  PageSheet(const PlacedPages& pages, std::size_t number, const MapDrawer& drawMap, QWidget* parent)
      : QWidget(parent), pages(pages), number(number), drawMap(drawMap) {}

 protected:
  void paintEvent(QPaintEvent*) override {
    const QSize wanted = size() * devicePixelRatioF();
    if (picture.size() != wanted) Draw(wanted);
    QPainter painter(this);
    painter.drawPixmap(rect(), picture);
  }

 private:
  void Draw(QSize pixels) {
    picture = QPixmap(pixels);
    picture.fill(Qt::white);
    QPainter painter(&picture);
    painter.setRenderHints(QPainter::Antialiasing | QPainter::TextAntialiasing);
    painter.scale(pixels.width() / pages.paper.width(), pixels.height() / pages.paper.height());
    DrawPage(painter, pages.pages[number], drawMap);
  }

  const PlacedPages& pages;
  std::size_t number;
  const MapDrawer& drawMap;
  QPixmap picture;
};

PagePreview::PagePreview(QWidget* parent) : QScrollArea(parent), column(new QWidget) {
  setWidgetResizable(true);
  setVerticalScrollBarPolicy(Qt::ScrollBarAlwaysOn);
  setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
  setFrameShape(QFrame::NoFrame);
  auto* layout = new QVBoxLayout(column);
  layout->setContentsMargins(sheetGap, sheetGap, sheetGap, sheetGap);
  layout->setSpacing(sheetGap);
  setWidget(column);
}

void PagePreview::ShowPages(PlacedPages shown, MapDrawer drawer) {
  qDeleteAll(sheets);
  sheets.clear();
  pages = std::move(shown);
  drawMap = std::move(drawer);
  for (std::size_t i = 0; i < pages.pages.size(); ++i) {
    auto* sheet = new PageSheet(pages, i, drawMap, column);
    sheet->setAccessibleName(tr("Page %1 of %2").arg(i + 1).arg(pages.pages.size()));
    column->layout()->addWidget(sheet);
    column->layout()->setAlignment(sheet, Qt::AlignHCenter | Qt::AlignTop);
    sheet->show();
    sheets.push_back(sheet);
  }
  FitSheets();
}

void PagePreview::resizeEvent(QResizeEvent* event) {
  QScrollArea::resizeEvent(event);
  FitSheets();
}

void PagePreview::FitSheets() {
  const int width = std::clamp(viewport()->width() - 2 * sheetGap, 50, widestSheet);
  if (sheets.empty()) return;
  const int height = qRound(width * pages.paper.height() / pages.paper.width());
  for (PageSheet* sheet : sheets)
    sheet->setFixedSize(width, height);
  column->setFixedHeight(sheetGap + static_cast<int>(sheets.size()) * (height + sheetGap));
}
