// The rectangle that the pilot draws with the left button: it brings the map's
// new centre and, when it is high enough, the zoom (MapView::RecentreOnBox).
#pragma once

struct DragBox {
  float BoxX1 = 0;  // where the button went down, map units
  float BoxY1 = 0;
  float BoxX2 = 0;  // the pointer
  float BoxY2 = 0;
  bool BoxActive = false;   // a box is on the screen
  bool MapClicked = false;  // the button is down

  // Button down: a box of no size.
  void Begin(float x, float y);
  // The pointer moved. True if the box has changed and is to be drawn anew (the
  // caller then ends the automatic zoom); false when there is none.
  bool MoveTo(float x, float y);
  // Button up, or the gesture is given up: the box leaves the screen, its
  // corners stay. True if there was one.
  bool Finish();
};
