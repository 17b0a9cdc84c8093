// Where the main window opens: at its stored place if that is wanted and still
// on a screen, else at its first size; and how large its dialogs may be. Plain
// rectangles, so that it can be tried with any set of screens.
#pragma once

#include <QRect>
#include <QWidget>
#include <vector>

#include "settings/settings.h"

struct WindowPlace {
  QRect frame;          // the window's contents when it is not maximised
  bool placed = false;  // false: the desktop chooses the position
  bool maximised = false;
};

// firstSize is what a window without a stored size takes; no size is larger
// than its screen nor smaller than smallest. screens: their free areas, the
// first one is the main screen; at least one.
WindowPlace OpeningPlace(const Settings& settings, QSize firstSize, QSize smallest,
                         const std::vector<QRect>& screens);

// Writes the place into the settings: MAPWIN, WINX, WINY, WIDTH and HEIGHT.
// frame is what the window takes when it is not maximised. Nothing if
// REMWINPOS is 0.
void StorePlace(Settings& settings, QRect frame, bool maximised);

// Gives a dialog this size (pixels), or as much of it as its screen has room for.
void ResizeWithinScreen(QWidget& dialog, const QSize& size);
