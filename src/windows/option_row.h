// One option in the options window: its name and a sentence on it, the control
// for its kind, why its value is refused, and the way back to its default.
#pragma once

#include <QFrame>
#include <QLabel>
#include <QToolButton>
#include <functional>
#include <string>

#include "base/app_folder.h"
#include "settings/option_list.h"

class QGridLayout;

class OptionRow : public QFrame {
  Q_OBJECT

 public:
  // option and home outlive the row. developer: with the developers' bounds.
  OptionRow(const Option& option, const AppFolder& home, bool developer, QWidget* parent);

  const Option& Subject() const { return option; }
  std::string Text() const { return text; }
  // Shows a text as if the pilot had given it.
  void SetText(const std::string& value);
  // Shows the text that is in force: it is never refused.
  void Open(const std::string& value);
  void SetDefault(const std::string& value);
  // What an empty folder means.
  void SetPlaceholder(const QString& meaning);
  bool IsDefault() const { return text == defaultText; }
  void Restore() { SetText(defaultText); }

  // Why the text is refused; empty if it is not.
  const std::string& Refusal() const { return refusal; }
  // True if every word stands in the option's words, in any letters.
  bool Matches(const QStringList& words) const;
  // Gives the keyboard to the control.
  void TakeFocus() { field->setFocus(); }

  // What else is refused, asked with a text that is in order by itself.
  std::function<std::string(const std::string&)> alsoRefused;
  // Asks for a folder, from one on; empty: none. The folder dialog, unless replaced.
  std::function<QString(const QString&)> askFolder;
  // Asks for a colour, showing each that is tried; empty: none. The colour dialog, unless replaced.
  std::function<QString(const QString&, const std::function<void(const QString&)>&)> askColor;

 Q_SIGNALS:
  void Changed();

 protected:
  bool eventFilter(QObject* watched, QEvent* event) override;

 private:
  QWidget* BuildField();
  QWidget* BuildFlag();
  QWidget* BuildChoice();
  QWidget* BuildColor();
  QWidget* BuildEdit();
  void BuildWords(QGridLayout* grid);
  void BuildControls(QGridLayout* grid);
  QToolButton* AddButton(const char* head, const QString& caption, void (OptionRow::*command)());
  void Take(const QString& value);
  void ShowText();
  void ShowState();
  void Step(int direction);
  void Browse();
  void PickColor();
  void CreateFolder();
  void SetFault(bool fault);
  QString Name(const char* head) const;

  const Option& option;
  const AppFolder& home;
  bool developer;
  std::string text, opened, defaultText, refusal;
  QWidget* field;
  QLabel* lblRefusal;
  QToolButton* cmdRestore;
  QToolButton* cmdCreate = nullptr;
};
