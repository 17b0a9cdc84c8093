// The preview of a segment ("pctSid"): its waypoints and legs on a small map,
// above the line of the whole plan. The keys + and - zoom.
#pragma once

#include <QImage>
#include <QWidget>

#include "flightplan/flight_plan.h"
#include "map/map_view.h"
#include "navdata/nav_database.h"
#include "settings/settings.h"

class SegmentMap : public QWidget {
  Q_OBJECT

 public:
  // All three outlive the map.
  SegmentMap(const FlightPlan& plan, const NavDatabase& database, const Settings& settings,
             QWidget* parent = nullptr);

  // Shows the rows, fitted to the map; none: the plan's line alone.
  void ShowRows(std::vector<PlanWaypoint> rows);
  void Zoom(bool in);
  const MapView& View() const { return view; }

 protected:
  void paintEvent(QPaintEvent* event) override;
  void resizeEvent(QResizeEvent* event) override;

 private:
  void Fit();
  void DrawPicture();
  void Redraw();

  const FlightPlan& plan;
  const NavDatabase& database;
  const Settings& settings;
  FlightPlan shown;  // the segment's rows
  MapView view;
  QImage picture;
  bool stale = true;
};
