// The window in which the pilot keeps his list of aircraft and chooses the
// current one. Nothing leaves it before OK: the list is a copy.
#pragma once

#include <QDialog>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QPushButton>
#include <filesystem>
#include <functional>
#include <vector>

#include "flightplan/aircraft_list.h"
#include "platform/message_box.h"

class QAction;
class QBoxLayout;
class QGridLayout;
class QMenuBar;

class frmAircraft : public QDialog {
  Q_OBJECT

 public:
  // file: where OK writes the list to. current: number of the aircraft in use.
  frmAircraft(std::filesystem::path file, std::vector<AircraftRec> aircraft, int current,
              MessageBox& messages, QWidget* parent = nullptr);

  // After OK: the list, and the aircraft that was chosen.
  const std::vector<AircraftRec>& Aircraft() const { return list; }
  const AircraftRec& Chosen() const;

  // Puts lines on paper: a printer that the pilot chooses, unless replaced. False if it failed.
  std::function<bool(const std::vector<std::string>& lines)> print;

  void accept() override;
  // Esc ends the change of an aircraft first, then asks before changes of the list are lost.
  void reject() override;

 private:
  struct Entry {
    QLineEdit* edit;
    QLabel* fault;
  };

  QMenuBar* BuildMenus();
  QAction* AddCommand(const QString& name, const QString& text, const QString& keys,
                      std::function<void()> command);
  QWidget* BuildForm();
  void BuildButtons(QBoxLayout* layout);
  Entry AddEntry(QGridLayout* grid, int line, int column, const QString& label, const QString& name);
  void FillList(int row);
  void ShowSelected();
  void SetEditing(bool on);
  void SetEditable(const Entry& entry) const;
  void New();
  void Delete();
  // Takes what was typed into the list; false (and the reasons beside the fields) if it is no aircraft.
  bool TakeTyped();
  void Print(const std::vector<AircraftRec>& aircraft);
  int SelectedRow() const;
  AircraftRec Typed() const;

  const std::filesystem::path file;
  std::vector<AircraftRec> list;
  const std::vector<AircraftRec> before;
  const int current;
  MessageBox& messages;
  QListWidget* lstAircraft;
  Entry name;
  std::vector<Entry> figures;  // one an AircraftField
  QPushButton* cmdOK;
  QAction* mnuNew;
  QAction* mnuEdit;
  QAction* mnuDelete;
  bool editing = false;
  bool isNew = false;  // the aircraft being typed has just been added
};
