// The small map of the departures and arrivals window ("SIDMap"): shows a chart
// fitted to itself.
#pragma once

#include <QImage>
#include <QWidget>

#include "flightplan/procedure_chart.h"

class ProcedureMap : public QWidget {
  Q_OBJECT

 public:
  explicit ProcedureMap(const Settings& settings, QWidget* parent = nullptr);

  // Shows the chart from now on, which must outlive this or be replaced; null: an empty map.
  void ShowChart(const ProcedureChart* chart);
  // The chart has another runway or another one picked.
  void Redraw();

 protected:
  void paintEvent(QPaintEvent* event) override;
  void resizeEvent(QResizeEvent* event) override;

 private:
  void DrawPicture();

  const Settings& settings;
  const ProcedureChart* chart = nullptr;
  QImage picture;
  bool stale = true;
};
