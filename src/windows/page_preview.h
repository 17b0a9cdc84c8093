// The printed pages on the screen, one below the other, as wide as there is room for.
#pragma once

#include <QScrollArea>

#include "windows/printed_pages.h"

class PageSheet;

class PagePreview : public QScrollArea {
  Q_OBJECT

 public:
  explicit PagePreview(QWidget* parent = nullptr);

  // drawMap is kept for as long as these pages are shown.
  void ShowPages(PlacedPages pages, MapDrawer drawMap);
  const PlacedPages& Pages() const { return pages; }

 protected:
  void resizeEvent(QResizeEvent* event) override;

 private:
  void FitSheets();

  PlacedPages pages;
  MapDrawer drawMap;
  QWidget* column;
  std::vector<PageSheet*> sheets;
};
