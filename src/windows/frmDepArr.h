// Departures and arrivals: all of a runway on a small map, the one that is
// picked as reading text, on paper too.
#pragma once

#include <QDialog>
#include <QGroupBox>
#include <QLabel>
#include <QListWidget>
#include <QPushButton>
#include <functional>
#include <memory>

#include "platform/message_box.h"
#include "startup/session.h"
#include "windows/plan_editor.h"
#include "windows/procedure_map.h"

class frmDepArr : public QDialog {
  Q_OBJECT

 public:
  // Opens on the departure airport of session's plan, or its destination.
  // Throws std::runtime_error if the file of the procedures cannot be read.
  frmDepArr(Session& session, PlanEditor& editor, MessageBox& messages, ProcedureKind kind,
            QWidget* parent = nullptr);

  // Prints the page. The printer dialog, unless replaced.
  std::function<void(const ProcedureChart&)> print;

 private:
  void BuildLeft(class QHBoxLayout* columns);
  void BuildButtons(class QVBoxLayout* layout);
  void Trapped(std::string_view head, const std::function<void()>& body);
  void ShowKind(ProcedureKind kind);
  void SelectRunwayInUse();
  void ShowRunway(int row);
  void ShowPicked(int row);
  void OpenPrinter(const ProcedureChart& page);

  Session& session;
  PlanEditor& editor;
  MessageBox& messages;
  std::unique_ptr<ProcedureChart> chart;
  QListWidget* lstRwy;
  QListWidget* lstProcedures;
  QGroupBox* SIDFrame;
  ProcedureMap* SIDMap;
  QLabel* lblMessage;
  QPushButton* cmdSIDSTAR;
  QPushButton* cmdPrint;
};
