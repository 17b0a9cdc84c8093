// The plan on paper: the pilot chooses which parts, sees the pages at once, and
// sends them to a printer or into a PDF file.
#pragma once

#include <QCheckBox>
#include <QComboBox>
#include <QDialog>
#include <QLabel>
#include <QPushButton>
#include <array>
#include <functional>

#include "startup/session.h"
#include "windows/page_preview.h"
#include "windows/plan_editor.h"

class QVBoxLayout;

// What was chosen last; it lives as long as the program runs.
struct PrintMemory {
  PrintChoices choices;
  QString paper;   // empty: as the pilot's country has it
  QString folder;  // of the last PDF file
};

class frmPrintFP : public QDialog {
  Q_OBJECT

 public:
  // The plan has both airports. All of these outlive the window.
  frmPrintFP(Session& session, PlanEditor& editor, MessageBox& messages, PrintMemory& memory,
             QWidget* parent = nullptr);

  // Prints on a printer that the pilot chooses, unless replaced. False if it failed.
  std::function<bool(const PrintedPlan& plan, const QPageSize& paper, const MapDrawer& drawMap)> print;
  // Asks for the name of a PDF file; empty: none is written. The file dialog, unless replaced.
  std::function<QString(const QString& proposal)> askPdfFile;

 private:
  void BuildChoices(QVBoxLayout* left);
  void BuildPaper(QVBoxLayout* left);
  void BuildButtons(QVBoxLayout* left);
  void TakeChoices();
  void ShowPages();
  bool OpenPrinter(const PrintedPlan& plan, const QPageSize& paper, const MapDrawer& drawMap);
  void Print();
  void WritePdf();
  void Trapped(std::string_view head, const std::function<void()>& body);
  std::vector<SidStarEntry> Procedures(ProcedureKind kind) const;

  Session& session;
  PlanEditor& editor;
  MessageBox& messages;
  PrintMemory& memory;
  std::vector<SidStarEntry> departures;
  std::vector<SidStarEntry> arrivals;
  PrintedPlan printed;
  MapDrawer drawMap;
  std::array<QCheckBox*, 5> boxes{};
  QComboBox* cmbPaper = nullptr;
  QLabel* lblPages = nullptr;
  QPushButton* cmdOK = nullptr;
  QPushButton* cmdPDF = nullptr;
  PagePreview* preview = nullptr;
};
