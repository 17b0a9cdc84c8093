#include "windows/window_place.h"

#include <gtest/gtest.h>

#include <QScreen>

namespace {

constexpr QSize firstSize(1600, 1000);
constexpr QSize smallest(669, 577);
const QRect large(0, 0, 3840, 2100);
const QRect laptop(0, 28, 1366, 740);
const QRect left(-1920, 0, 1920, 1080);

Settings Stored(int remember, int x, int y, int width, int height, int window = 0) {
  Settings settings;
  settings.REMWINPOS = remember;
  settings.WINX = x;
  settings.WINY = y;
  settings.WIDTH = width;
  settings.HEIGHT = height;
  settings.MAPWIN = static_cast<std::uint8_t>(window);
  return settings;
}

TEST(WindowPlace, ComesBackWhereItIsWantedAndCanBeSeen) {
  struct Case {
    const char* why;
    Settings settings;
    std::vector<QRect> screens;
    bool placed;
    QRect frame;  // the corner counts only where placed
    bool maximised;
  };
  const Case cases[] = {
      {"never stored", Stored(-1, 0, 0, 0, 0), {large}, false, {0, 0, 1600, 1000}, false},
      {"never stored, small screen", Stored(-1, 0, 0, 0, 0), {laptop}, false, {0, 0, 1366, 740}, false},
      {"not remembered", Stored(0, 50, 60, 900, 700, 2), {large}, false, {0, 0, 1600, 1000}, false},
      {"stored", Stored(-1, 50, 60, 900, 700), {large}, true, {50, 60, 900, 700}, false},
      {"maximised", Stored(-1, 50, 60, 900, 700, 2), {large}, true, {50, 60, 900, 700}, true},
      {"on the second screen",
       Stored(-1, -1800, 60, 900, 700),
       {large, left},
       true,
       {-1800, 60, 900, 700},
       false},
      {"the second screen is gone", Stored(-1, -1800, 60, 900, 700), {large}, false, {0, 0, 900, 700}, false},
      {"only its bottom would be seen",
       Stored(-1, 50, -100, 900, 700),
       {large},
       false,
       {0, 0, 900, 700},
       false},
      {"partly beside the screen",
       Stored(-1, -700, 60, 900, 700),
       {large},
       true,
       {-700, 60, 900, 700},
       false},
      {"hardly on the screen", Stored(-1, -880, 60, 900, 700), {large}, false, {0, 0, 900, 700}, false},
      {"larger than the screen", Stored(-1, 0, 30, 3000, 2000), {laptop}, true, {0, 30, 1366, 740}, false},
      {"smaller than the smallest", Stored(-1, 5, 30, 100, 100), {laptop}, true, {5, 30, 669, 577}, false},
      {"no number of a size", Stored(-1, 5, 30, -7, 2000), {laptop}, false, {0, 0, 1366, 740}, false},
  };
  for (const Case& c : cases) {
    const WindowPlace place = OpeningPlace(c.settings, firstSize, smallest, c.screens);
    EXPECT_EQ(place.placed, c.placed) << c.why;
    EXPECT_EQ(place.frame.size(), c.frame.size()) << c.why;
    EXPECT_EQ(place.maximised, c.maximised) << c.why;
    if (!c.placed) continue;
    EXPECT_EQ(place.frame.topLeft(), c.frame.topLeft()) << c.why;
  }
}

TEST(WindowPlace, IsWrittenOnlyWhileItIsRemembered) {
  Settings settings = Stored(0, 1, 2, 3, 4);
  StorePlace(settings, {50, 60, 900, 700}, true);
  EXPECT_EQ(settings.WINX, 1);
  EXPECT_EQ(settings.MAPWIN, 0);
  settings.REMWINPOS = -1;
  StorePlace(settings, {50, 60, 900, 700}, true);
  EXPECT_EQ(OpeningPlace(settings, firstSize, smallest, {large}).frame, QRect(50, 60, 900, 700));
  EXPECT_EQ(settings.MAPWIN, 2);
}

TEST(WindowPlace, ADialogFitsItsScreen) {
  QWidget dialog;
  ResizeWithinScreen(dialog, QSize(300, 200));
  EXPECT_EQ(dialog.size(), QSize(300, 200));
  ResizeWithinScreen(dialog, QSize(300, 20000));
  EXPECT_EQ(dialog.width(), 300);
  EXPECT_LT(dialog.height(), dialog.screen()->availableSize().height());
}

}  // namespace
