// The main window over a small world, on Qt's offscreen platform, with hands:
// what the pilot's fingers do to its controls.
#pragma once

#include <gtest/gtest.h>

#include <QAction>
#include <QApplication>
#include <QLabel>
#include <QMenu>
#include <QTest>
#include <QToolButton>
#include <QWheelEvent>
#include <memory>

#include "tests/temporary_folder.h"
#include "tests/windows/window_world.h"
#include "windows/frmMap.h"
#include "windows/frmSaveRoute.h"

class NoPointer : public PointerShape {
 public:
  void SetHourglass(bool on) override { depth += on ? 1 : -1; }
  int depth = 0;
};

// A pilot who gives plans up, unless a test says that he saves them first.
class PilotMessages : public HeardMessages {
 public:
  std::optional<bool> AskYesNoCancel(std::string_view text, MessageIcon) override {
    EXPECT_EQ(text, savePlanFirstText);
    ++askedToSave;
    return savesFirst;
  }

  int askedToSave = 0;
  std::optional<bool> savesFirst = false;  // nothing: goes back
};

class MapWindow : public testing::Test {
 protected:
  MapWindow() : session(AppFolder(folder.Path())) {
    session.database = std::move(world.database);
    session.aircraft = SlowTwin();
    session.aircraftList = {session.aircraft};
  }

  // The window at a size of 1600 x 1000, where MapSizeFactor is 1.
  frmMap& Open() {
    window = std::make_unique<frmMap>(session, messages, pointer);
    window->show();
    window->resize(1600, 1000);
    QApplication::processEvents();
    painted = 0;
    MapCanvas& map = Map();
    map.drawPicture = [this, draw = map.drawPicture](DrawSurface& surface) {
      ++painted;
      draw(surface);
    };
    return *window;
  }

  template <class Control>
  Control& Find(const QString& name) {
    auto* control = window->findChild<Control*>(name);
    if (control == nullptr) throw std::runtime_error("no control " + name.toStdString());
    return *control;
  }
  MapCanvas& Map() { return Find<MapCanvas>("Map"); }
  void Press(const QString& button) { QTest::mouseClick(&Find<QToolButton>(button), Qt::LeftButton); }
  void Trigger(const QString& menu) { Find<QAction>(menu).trigger(); }
  QString Panel(int index) { return Find<QLabel>(QString("lblMapStatus(%1)").arg(index)).text(); }
  void ClickPanel(int index, Qt::MouseButton button = Qt::LeftButton) {
    QTest::mouseClick(&Find<QLabel>(QString("lblMapStatus(%1)").arg(index)), button);
  }

  // In the window that opens plans the pilot goes to a file and presses OK; in
  // the one that saves them he gives it the file's name, with the own format.
  void ChooseFile(const std::filesystem::path& file) {
    window->showSaveRoute = [file](frmSaveRoute& dialog) {
      auto& list = *dialog.findChild<PlanList*>("flstFPlan");
      list.ShowFolder(file.parent_path());
      if (auto* name = dialog.findChild<QLineEdit*>("txtFileName")) {
        name->setText(QString::fromStdString(file.filename().string()));
        for (auto* box : dialog.findChildren<QCheckBox*>())
          box->setChecked(box->objectName() == "chckFormat(0)");
      } else {
        list.Select(QString::fromStdString(file.filename().string()));
      }
      QTest::mouseClick(dialog.findChild<QPushButton*>("cmdOK"), Qt::LeftButton);
      return dialog.result() == QDialog::Accepted;
    };
  }

  // Brings the map to a centre and a range.
  void Look(float lat, float lon, const QString& zoomMenu) {
    session.view.MapCenterLat = lat;
    session.view.MapCenterLon = lon;
    Trigger(zoomMenu);
    QApplication::processEvents();
  }

  // Gestures at a place of the page; y counts from the upper edge of what is seen.
  QPoint At(float x, float y) { return Map().ToPixel(x, y + Map().VisibleCorner().y); }
  void PointAt(float x, float y) { QTest::mouseMove(&Map(), At(x, y)); }
  void PointAt(QPoint pixel) { QTest::mouseMove(&Map(), pixel); }
  void DragFrom(QPoint from, QPoint to, Qt::KeyboardModifiers modifiers = Qt::NoModifier) {
    QTest::mousePress(&Map(), Qt::LeftButton, modifiers, from);
    // QTest's own moves carry no button.
    QMouseEvent move(QEvent::MouseMove, to, Map().mapToGlobal(to), Qt::NoButton, Qt::LeftButton, modifiers);
    QApplication::sendEvent(&Map(), &move);
    QTest::mouseRelease(&Map(), Qt::LeftButton, modifiers, to);
  }
  void Wheel(int delta) {
    const QPointF middle(Map().width() / 2.0, Map().height() / 2.0);
    QWheelEvent turn(middle, Map().mapToGlobal(middle), {}, {0, delta}, Qt::NoButton, Qt::NoModifier,
                     Qt::NoScrollPhase, false);
    QApplication::sendEvent(&Map(), &turn);
  }
  QPoint PixelOf(float lat, float lon) {
    return Map().ToPixel(static_cast<float>(session.view.LonToX(lon)),
                         static_cast<float>(session.view.LatToY(lat)));
  }

  TemporaryFolder folder;
  DrawnWorld world{windowWorld};
  PilotMessages messages;
  NoPointer pointer;
  Session session;
  std::unique_ptr<frmMap> window;
  int painted = 0;  // calls of the painter since Open()
};
