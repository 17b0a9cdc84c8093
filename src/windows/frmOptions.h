// The options: everything in vlm.ini that a pilot may change, on pages, with a
// field that finds an option by its words. A wrong value is refused beside its
// field. Colours show on the map as they are tried.
#pragma once

#include <QDialog>
#include <QLineEdit>
#include <QListWidget>
#include <QPushButton>
#include <QScrollArea>
#include <vector>

#include "platform/message_box.h"
#include "settings/option_list.h"
#include "startup/session.h"
#include "windows/option_row.h"

class QBoxLayout;

class frmOptions : public QDialog {
  Q_OBJECT

 public:
  // Both outlive the window.
  frmOptions(Session& session, MessageBox& messages, QWidget* parent = nullptr);

  OptionRow& Row(std::string_view key);

  void accept() override;
  void reject() override;

 Q_SIGNALS:
  // The session's settings are others now: a colour is tried, or options are applied.
  void Changed();

 private:
  void BuildPages(QBoxLayout* layout);
  void BuildRows(QWidget* page);
  void BuildFoot(QBoxLayout* layout);
  void SetOpened();
  QString DefaultFolder(const Option& option) const;
  std::string SimulatorRefusal(const std::string& version) const;
  void TakeRow(OptionRow& row);
  void TakeColorSet();
  void ShowColors();
  void ShowPage();
  void ShowRefusals();
  void ShowFirstRefusal();
  void Restore(bool all);
  // Makes the options the session's and writes them; false and the pilot is told if that failed.
  bool Apply();
  bool IsShown(const OptionRow& row) const;

  Session& session;
  MessageBox& messages;
  Options edited;   // what the fields say, where it is not refused
  Options applied;  // what is in force
  std::vector<OptionRow*> rows;
  std::vector<QLabel*> headings;  // by group
  QLineEdit* txtFindOption;
  QListWidget* lstGroups;
  QScrollArea* page;
  QLabel* lblNothing;
  QPushButton *cmdRefused, *cmdOK, *cmdApply, *cmdRestorePage;
  bool filling = false;
};
