#include "map/drag_box.h"

void DragBox::Begin(float x, float y) {
  BoxX1 = BoxX2 = x;
  BoxY1 = BoxY2 = y;
  BoxActive = true;
  MapClicked = true;
}

bool DragBox::MoveTo(float x, float y) {
  if (!BoxActive || (x == BoxX2 && y == BoxY2)) return false;
  BoxX2 = x;
  BoxY2 = y;
  return true;
}

bool DragBox::Finish() {
  const bool was = BoxActive;
  BoxActive = false;
  MapClicked = false;
  return was;
}
