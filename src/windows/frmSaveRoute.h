// The window in which plans are opened and saved. Opening, it lists the plans
// of a folder and tells what the selected one holds; saving, it takes the name
// and the formats, says where each file will go, and writes them.
#pragma once

#include <QCheckBox>
#include <QDialog>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QRadioButton>
#include <map>

#include "flightplan/formats/plan_formats.h"
#include "flightplan/known_plan_file.h"
#include "flightplan/save_plan.h"
#include "windows/plan_editor.h"
#include "windows/plan_list.h"

class QBoxLayout;

class frmSaveRoute : public QDialog {
  Q_OBJECT

 public:
  enum class Mode { open, save };

  // known: the file that the plan is in. folder: where the list begins.
  frmSaveRoute(Session& session, PlanEditor& editor, MessageBox& messages, Mode mode,
               const KnownPlanFile& known, const std::filesystem::path& folder, QWidget* parent = nullptr);

  // After OK: the file to be opened, or what was saved.
  std::filesystem::path ChosenFile() const { return chosen; }
  const PlanSaved& Saved() const { return saved; }
  // The folder shown; the next window begins with it.
  std::filesystem::path Folder() const { return flstFPlan->Folder(); }

  // Asks for a folder, beginning in one: the system's dialog, unless replaced. Empty: none was chosen.
  std::function<QString(const QString& folder)> askFolder;

  void accept() override;

 protected:
  bool eventFilter(QObject* watched, QEvent* event) override;

 private:
  struct FormatBox {
    QCheckBox* check = nullptr;
    QLabel* hint = nullptr;
  };

  void Trapped(std::string_view head, const std::function<void()>& body);
  void BuildFolder(QBoxLayout* layout);
  void BuildPreview(QBoxLayout* layout);
  void BuildName(QBoxLayout* layout);
  void BuildFormats(QBoxLayout* layout);
  QWidget* FormatGroup(const QString& title, bool modern);
  FormatBox AddFormat(QWidget* group, const PlanFormatInfo& format);
  void BuildButtons(QBoxLayout* layout);

  void GoTo(const std::filesystem::path& folder);
  void Browse();
  void ShowFolder();
  void ShowDirChange();
  void ShowPicked();
  void ShowHints();
  QString Shortened(const QString& path, const QFontMetrics& font) const;
  QString HintOf(const PlanFormatInfo& format, const std::filesystem::path& simulator) const;
  void ShowFault(const QString& fault);
  void FilePicked();

  std::int32_t GetFPSelection();
  void SetFPSelection(std::int32_t formats);
  PlanSaveChoice Choice();
  bool MayReplace(const PlanSaveChoice& choice);
  void TakeChosen();
  void Save();

  Session& session;
  PlanEditor& editor;
  MessageBox& messages;
  const Mode mode;
  const std::filesystem::path knownFile;
  std::filesystem::path otherFolder;  // where cmdDirChange leads

  QLineEdit* txtFolder = nullptr;
  QPushButton* cmdDirChange = nullptr;
  PlanList* flstFPlan = nullptr;
  QLabel* lblPreview = nullptr;
  QLineEdit* txtFileName = nullptr;
  QLabel* lblFault = nullptr;
  QRadioButton* optVFR = nullptr;
  std::map<int, FormatBox> boxes;  // by the number of the box
  QPushButton* cmdOK = nullptr;

  std::filesystem::path chosen;
  PlanSaved saved;
};
