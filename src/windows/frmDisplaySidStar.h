// The list of an airport's departures or arrivals, with the steps of the one
// that is selected beside it. OK, Enter or a double click takes it.
#pragma once

#include <QDialog>
#include <QLabel>
#include <QListWidget>
#include <QPushButton>
#include <QTreeWidget>

#include "flightplan/procedure_file.h"

class frmDisplaySidStar : public QDialog {
  Q_OBJECT

 public:
  // Those for the runway (its ident; empty: none is chosen) stand first, the
  // one named inUse is selected. Code, runway and inUse are UTF-8.
  frmDisplaySidStar(ProcedureKind kind, const std::string& airportCode, const std::string& runway,
                    const std::string& inUse, std::vector<SidStarEntry> entries, QWidget* parent = nullptr);

  // The selected procedure; null while there is none.
  const SidStarEntry* Chosen() const;

 private:
  void FillList(const std::string& runway, const std::string& inUse);
  void BuildSteps();
  void ShowSteps();

  ProcedureKind kind;
  std::vector<SidStarEntry> entries;
  QListWidget* lstSidStar;
  QTreeWidget* lstSteps;
  QLabel* lblSteps;
  QLabel* lblEmpty;
  QPushButton* cmdOK;
};
