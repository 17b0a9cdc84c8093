// The main window: the map with its menus, ribbons and status panels, and the
// plan beside it. It turns what the pilot does into calls of the floors below
// and shows what they answer; it holds no rule of its own.
#pragma once

#include <QAction>
#include <QActionGroup>
#include <QLabel>
#include <QMainWindow>
#include <QTimer>
#include <functional>
#include <map>

#include "flightplan/airway_search.h"
#include "flightplan/plan_context.h"
#include "flightplan/route_generation.h"
#include "map/draw_map.h"
#include "platform/pointer_shape.h"
#include "startup/session.h"
#include "windows/map_canvas.h"
#include "windows/pnlFlightplan.h"

class frmMap : public QMainWindow {
  Q_OBJECT

 public:
  // session must be loaded and outlive the window.
  frmMap(Session& session, MessageBox& messages, PointerShape& pointer);

  // Opens frmSelectAP; a chosen pair starts a new plan.
  void SelectAirports();
  // The plan between two rows of the airport table.
  void StartPlan(int departureRow, int destinationRow);

  // Asks for the name of a plan file; empty: not saved. The file dialog, unless replaced.
  std::function<QString(const QString& proposal)> askPlanFile;

 protected:
  void resizeEvent(QResizeEvent* event) override;
  void closeEvent(QCloseEvent* event) override;
  bool eventFilter(QObject* watched, QEvent* event) override;

 private:
  void BuildMenus();
  void BuildAircraftMenu();
  void BuildToolBar();
  void BuildStatusStrip(class QVBoxLayout* layout);
  void BuildKeys();
  void ConnectCanvas();
  QAction* AddCommand(const QString& name, const QString& text, std::function<void()> command);
  QAction* AddSwitch(const QString& menuName, const QString& text, bool MapSwitches::*flag);
  void AddButton(class QToolBar* bar, QAction* action, const QString& name, const QString& text,
                 const QString& tip);

  void Trapped(std::string_view head, const std::function<void()>& body);
  void DrawMap();
  void KeyDown(int key);
  void SetZoom(int level, bool clearAutozoom);
  void TakeBox(float x1, float y1, float x2, float y2);
  void Pan(float right, float down);
  void CentreMoved();
  void ShowZoom();
  void ShowPosition();
  void ShowPointer(float x, float y);
  void ShowClock();
  void GenerateRoute(AirwayNetwork network);
  void TakeAircraft(const AircraftRec& aircraft);
  void NewPlan();
  void SavePlan();
  void PlanChanged();
  void ShowAbout();
  PlanContext Context() const;
  QString PlanFolder() const;

  Session& session;
  MessageBox& messages;
  PointerShape& pointer;
  AirwaySearch search;
  std::vector<MapLayer> layers;

  MapCanvas* Map;
  pnlFlightplan* panel;
  std::map<QString, QAction*> actions;  // by menu name
  std::array<QLabel*, 6> lblMapStatus{};
  QActionGroup* aircraftGroup;
  QTimer tmrClock;
};
