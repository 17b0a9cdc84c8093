// The vertical picture below the map, and the place on the map that it marks.
#include <QBoxLayout>

#include "map/style_keeper.h"
#include "windows/frmMap.h"

namespace {

constexpr float markRadius = 85;  // map units
// A window lower than this keeps its room for the map, until the pilot says otherwise.
constexpr int lowWindow = 700;  // pixels

}  // namespace

void frmMap::BuildProfile(QBoxLayout* below) {
  profileStrip = new ProfileStrip(session.plan, this);
  profileStrip->hide();
  below->addWidget(profileStrip);
  connect(profileStrip, &ProfileStrip::MarkMoved, this, [this] { Map->update(); });
  connect(profileStrip, &ProfileStrip::MarkChosen, this, &frmMap::CentreOnMark);
}

void frmMap::ShowProfile() {
  const bool shown = actions["mnuProfile"]->isChecked() && session.plan.RowCount() >= 2;
  if (shown) profileStrip->Show(ComputeFlightProfile(session.plan, editor.Context()));
  profileStrip->setVisible(shown);
}

void frmMap::ProposeProfile() {
  if (!session.switches.profileChosen) actions["mnuProfile"]->setChecked(height() >= lowWindow);
}

void frmMap::CentreOnMark() {
  if (!profileStrip->Marked()) return;
  Trapped("frmMap profileStrip (", [&] {
    const Position place = PlaceOnRoute(session.plan, profileStrip->Profile(), *profileStrip->Marked());
    session.view.MapCenterLat = place.lat;
    session.view.MapCenterLon = place.lon;
    DrawMap();
  });
}

void frmMap::DrawProfileMark(DrawSurface& surface) {
  if (!profileStrip->isVisible() || !profileStrip->Marked()) return;
  const Position place = PlaceOnRoute(session.plan, profileStrip->Profile(), *profileStrip->Marked());
  const StyleKeeper keeper(surface);
  surface.ResetStyle();
  surface.DrawWidth = 2.2F;
  const Projection projection = session.view.CurrentProjection();
  surface.Circle(static_cast<float>(projection.LonToX(place.lon)),
                 static_cast<float>(projection.LatToY(place.lat)), markRadius,
                 session.settings.colors.HILITE);
}
