// The pictures on buttons: line drawings in SVG that take the colour of the
// text beside them, so that they are sharp on every screen and dim with their
// button.
#pragma once

#include <QIcon>
#include <QString>

// The drawing assets/icons/NAME.svg. An unknown name gives a null icon.
QIcon LineIcon(const QString& name);

// The same drawing with stronger lines, for pictures that are too small for
// its own: size pixels wide and high, sharp at a screen's scale. An unknown
// name gives an empty picture.
QPixmap LinePicture(const QString& name, const QColor& color, int size, qreal scale);
