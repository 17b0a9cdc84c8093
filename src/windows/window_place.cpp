#include "windows/window_place.h"

#include <QScreen>
#include <algorithm>

namespace {

constexpr std::uint8_t normalWindow = 0;
constexpr std::uint8_t maximisedWindow = 2;
// As much of the window's top must be on a screen that it can be taken hold of.
constexpr QSize handle(120, 30);

QSize Bounded(QSize size, QSize smallest, QSize largest) {
  return size.boundedTo(largest).expandedTo(smallest);
}

}  // namespace

WindowPlace OpeningPlace(const Settings& settings, QSize firstSize, QSize smallest,
                         const std::vector<QRect>& screens) {
  const QRect& mainScreen = screens.front();
  WindowPlace place;
  place.frame = QRect(mainScreen.topLeft(), Bounded(firstSize, smallest, mainScreen.size()));
  if (settings.REMWINPOS == 0) return place;
  place.maximised = settings.MAPWIN == maximisedWindow;
  if (settings.WIDTH <= 0 || settings.HEIGHT <= 0) return place;
  const QSize storedSize = QSize(settings.WIDTH, settings.HEIGHT).expandedTo(smallest);
  const QRect stored(QPoint(settings.WINX, settings.WINY), storedSize);
  const QRect top(stored.topLeft(), QSize(stored.width(), handle.height()));
  for (const QRect& screen : screens) {
    const QRect seen = top & screen;
    if (seen.width() < handle.width() || seen.height() < handle.height()) continue;
    place.placed = true;
    place.frame = QRect(stored.topLeft(), Bounded(stored.size(), smallest, screen.size()));
    return place;
  }
  place.frame.setSize(Bounded(stored.size(), smallest, mainScreen.size()));
  return place;
}

void StorePlace(Settings& settings, QRect frame, bool maximised) {
  if (settings.REMWINPOS == 0) return;
  settings.MAPWIN = maximised ? maximisedWindow : normalWindow;
  settings.WINX = frame.x();
  settings.WINY = frame.y();
  settings.WIDTH = frame.width();
  settings.HEIGHT = frame.height();
}

void ResizeWithinScreen(QWidget& dialog, const QSize& size) {
  constexpr QSize frame(20, 50);  // what a window manager puts around it
  const QScreen* screen = dialog.screen();
  dialog.resize(screen == nullptr ? size : size.boundedTo(screen->availableSize() - frame));
}
