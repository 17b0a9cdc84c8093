// The main window: the map with its menus, ribbon and status panels, and the
// plan beside it. It turns what the pilot does into calls of the floors below
// and shows what they answer; it holds no rule of its own.
//
// frmMap.cpp has the window and the view, frmMap_menus.cpp the menus, bars and
// keys, frmMap_panels.cpp the status panels, frmMap_gestures.cpp what the
// pointer does on the map, frmMap_plan_gestures.cpp what it does there to the
// plan, frmMap_plan.cpp the plan, frmMap_plan_files.cpp its files, frmMap_segments.cpp pieces of it,
// frmMap_profile.cpp its vertical picture, frmMap_aircraft.cpp the aircraft and their fuel,
// frmMap_options.cpp the options.
#pragma once

#include <QAction>
#include <QActionGroup>
#include <QLabel>
#include <QMainWindow>
#include <QPointer>
#include <QTimer>
#include <functional>
#include <map>
#include <memory>

#include "flightplan/known_plan_file.h"
#include "flightplan/plan_drag.h"
#include "map/drag_box.h"
#include "map/draw_map.h"
#include "map/hover.h"
#include "map/map_objects_near.h"
#include "map/measure_line.h"
#include "map/pointer_panel.h"
#include "startup/session.h"
#include "windows/map_canvas.h"
#include "windows/plan_editor.h"
#include "windows/pnlFlightplan.h"
#include "windows/profile_strip.h"
#include "windows/route_field.h"
#include "windows/status_strip.h"
#include "windows/toggle_ribbon.h"

class frmFuel;
struct PrintMemory;
class frmSaveRoute;

inline constexpr std::string_view savePlanFirstText =
    "The flight plan has not been saved. Do you wish to save it first?";
inline constexpr std::string_view unsavedPlanText =
    "Velmora was not closed the last time. Do you wish to have the flight plan back that was not saved?";

class frmMap : public QMainWindow {
  Q_OBJECT

 public:
  // session must be loaded and outlive the window.
  frmMap(Session& session, MessageBox& messages, PointerShape& pointer);

  // Opens frmSelectAP; a chosen pair starts a new plan.
  void SelectAirports();
  PlanEditor& Editor() { return editor; }

  // What follows the start: a plan that was not saved is offered, then the plan file of the command
  // line is opened, or else, if that is wanted, the airports are chosen.
  void Begin(const std::filesystem::path& plan, bool selectAirports);
  // Shows the window that opens and saves plans; true on OK. Its exec(), unless replaced.
  std::function<bool(frmSaveRoute&)> showSaveRoute;
  // Asks for the file of another program's plan, beginning in a folder; empty: none. The file dialog,
  // unless replaced.
  std::function<QString(const QString& folder)> askImportFile;

 protected:
  void resizeEvent(QResizeEvent* event) override;
  void showEvent(QShowEvent* event) override;
  void closeEvent(QCloseEvent* event) override;
  void keyPressEvent(QKeyEvent* event) override;
  void dragEnterEvent(QDragEnterEvent* event) override;
  void dropEvent(QDropEvent* event) override;

 private:
  // Menus, bars, keys.
  void BuildMenus();
  void BuildFileMenu();
  void BuildPlanMenu();
  void BuildProceduresMenu(QMenu* plan);
  void BuildAircraftMenu();
  void ListAircraft();
  void BuildViewMenu();
  void BuildPanelsMenu(QMenu* view);
  void BuildLabelsMenu();
  void BuildZoomMenu();
  void BuildToolsMenu();
  void BuildToolBar();
  void BuildRibbon();
  void BuildKeys();
  QAction* AddCommand(const QString& name, const QString& text, std::function<void()> command,
                      const QString& keys = {});
  QAction* AddToggle(const QString& name, const QString& text, bool on, std::function<void(bool)> toggled,
                     const QString& keys = {});
  // A switch of the map that changes its picture.
  QAction* AddSwitch(const QString& name, const QString& text, bool MapSwitches::*flag,
                     const QString& keys = {});
  void AddButton(class QToolBar* bar, QAction* action, const QString& name, const QString& text,
                 const QString& icon);

  // The view.
  void Trapped(std::string_view head, const std::function<void()>& body);
  void OpenView();
  void OpenWindow();
  void ConnectCanvas();
  void DrawMap();
  void PaintPicture(DrawSurface& surface);
  void KeyDown(int key);
  // SetZoom() tells why a range is refused.
  ZoomAnswer TakeZoom(int level, bool clearAutozoom);
  void SetZoom(int level, bool clearAutozoom);
  void TurnWheel(int stepsTowardUser);
  void Pan(float right, float down);
  void CentreOnAircraft();
  void CentreMoved();
  void EndAutozoom();

  // The status panels.
  void BuildPanels();
  void PanelClicked(int panel, Qt::MouseButton button);
  void ShowClock();
  void ShowZoom();
  void ShowPosition();
  void ShowPointer();
  void StepPointerMode();

  // What the pointer does on the map.
  QLabel* AddMapLabel(const QString& name);
  void ButtonDown(float x, float y, Qt::KeyboardModifiers modifiers);
  void ButtonUp(float x, float y, bool shift);
  void PointerMoved(float x, float y);
  void PointerLeft();
  void ShowRibbon(bool on);
  void TakeBox(float x1, float y1, float x2, float y2);
  void SetMeasuring(bool on);
  void MeasureFrom(float x, float y);
  void FollowPointer();
  void GiveUpGestures();
  void MousePosTick();
  void CloseHover();
  HoverQuestion Question(float x, float y) const;
  void OpenMapMenu(float x, float y, const QPoint& global);
  void AddObjects(QMenu& menu, float x, float y);
  void Highlight(const MapSelection& chosen);
  // The row of the plan whose leg is held against the pointer; -1: none.
  int LegPickIndex() const;
  std::optional<PickedLeg> Leg() const;
  void DrawOverlay(DrawSurface& surface);
  void DrawPlates(DrawSurface& surface);
  void PlaceMapLabels();
  Position PointerPosition() const;

  // What it does there to the plan. X, y: the place on the map.
  double Pixels(double count) const;  // in map units
  void BeginPlanPress(float x, float y, Qt::KeyboardModifiers modifiers);
  void FollowPlanPress();
  // True if the press was for the plan.
  bool EndPlanPress(float x, float y);
  void GiveUpPlanPress();
  void TakeDrag(const PlanDrag& pulled);
  void ShowPlanPointer();
  void PlacePlanLabel();
  bool HasInsertionPoint() const;
  void SetInserting(bool on);
  void InsertAt(float x, float y);
  void InsertManual(float x, float y);
  void InsertRow(const PlanWaypoint& row);
  void SelectPlanRow(int row);
  void AddPlanItems(QMenu& menu, float x, float y);

  // The vertical picture.
  void BuildProfile(class QBoxLayout* below);
  void ShowProfile();
  void ProposeProfile();
  void CentreOnMark();
  void DrawProfileMark(DrawSurface& surface);

  // The plan.
  void ChooseAirports(const AirportChoice& opening);
  void TakeAirport(const AirportChoice& choice);
  void TakeAirports(const AirportChoice& choice);
  // Departure, destination, alternate: what the airports under the pointer can be.
  void AddAirportItems(QMenu& menu, const std::vector<MapObject>& objects);
  void AddWaypoint();
  void PlanChanged();
  void ShowCommandStates();
  void ShowNewPlan();
  void CentreOnRow(int row);
  void BuildRouteField(class QToolBar* bar);
  void TakeRouteText();
  void PrintPlan();
  // False if the plan is not in its file afterwards.
  bool SavePlanAs();
  bool SavePlan();
  bool MayLosePlan();
  void ClearPlan();
  void ChoosePlan();
  void OpenPlan(const std::filesystem::path& file);
  // The one plan file among what is dragged, ours or another program's; empty: there is none, or more.
  static QString DraggedPlan(const class QMimeData& dragged);
  // Opens a plan of ours, imports one of another program.
  void TakePlanFile(const std::filesystem::path& file);
  void ChooseImport();
  void ListRecentPlans();
  void OpenRecent(const std::filesystem::path& file);
  void TookFile(const std::filesystem::path& file);
  void ShowPlanName();
  void KeepUnsavedPlan();
  void DropUnsavedPlan();
  void OfferUnsavedPlan();
  void AddSegmentItems(QMenu* file);
  void ShowSegments(bool save);
  void WithFiledPlan(std::string_view head, const std::function<void()>& body);
  void SelectProcedure(ProcedureKind kind);
  void ShowDepArr();
  std::filesystem::path PlansFolder() const;
  void ShowAircraft();
  void ShowFuel();
  void ShowOptions();
  void OptionsChanged();
  void ShowAbout();

  // There is no link to a simulator yet.
  static constexpr bool connected = false;

  Session& session;
  MessageBox& messages;
  PlanEditor editor;
  std::vector<MapLayer> layers;
  std::vector<HoverSource> hoverSources;

  MapCanvas* Map;
  ToggleRibbon* pnlToggleButtons;
  QLabel* lblMeasure;
  QLabel* lblCourseRadial;
  QLabel* lblPlanDrag;
  ProfileStrip* profileStrip;
  StatusStrip* lblMapStatus;
  pnlFlightplan* panel;
  RouteField* txtRoute;
  std::shared_ptr<PrintMemory> printMemory;  // what was printed last; null: nothing yet
  std::map<QString, QAction*> actions;       // by menu name
  QActionGroup* aircraftGroup;               // belongs to its menu
  QPointer<frmFuel> fuel;                    // while it is open
  QMenu* recentMenu;                         // belongs to its menu
  KnownPlanFile planFile;                    // of the plan
  std::filesystem::path planFolder;          // last used in frmSaveRoute
  QTimer tmrUnsaved;                         // runs from a change of the plan to its copy
  QTimer tmrClock;
  QTimer tmrMousePos;
  QTimer tmrModeName;  // runs while panel 5 shows its mode's name
  bool opened = false;

  DragBox box;
  MeasureLine measure;
  bool measureFollows = false;  // begun from the menu: the line follows without a button
  PlanDrag drag;
  std::optional<Position> insertTarget;  // what a click would insert, while the insert mode is on
  bool insertOnClick = false;            // the button went down to insert a waypoint, if it does not move
  HoverRest rest;
  std::vector<HoverLine> hoverLines;
  bool hoverSearched = false;  // since the pointer came to rest
  bool overlayShown = false;   // something hung on the pointer when it was last followed
  bool pointerOnMap = false;
  bool pointerSeen = false;  // it has been on the map
  SurfacePoint pointerAt;    // last known, map units
  CursorPanelMode cursorPanelMode = CursorPanelMode::coordinates;
  PositionFormat positionFormat = PositionFormat::degreesMinutes;
  bool clockUtc = true;
};
