// The plan and its files in the main window: saved, opened from the menu, from
// the list of those last used, by dropping a file on the window or by naming it
// when the program starts; and what keeps a plan from being lost.
#include <QDragEnterEvent>
#include <QDropEvent>
#include <QMenu>
#include <QMimeData>

#include "base/files.h"
#include "flightplan/plan_file.h"
#include "flightplan/plan_folders.h"
#include "flightplan/recent_plans.h"
#include "windows/frmMap.h"
#include "windows/frmPrintFP.h"
#include "windows/frmSaveRoute.h"

namespace fs = std::filesystem;

namespace {

constexpr std::string_view unsavedPlanName = "\\user\\unsaved.pln";
constexpr std::string_view unreadablePlanName = "\\user\\unsaved.old";
constexpr int unsavedDelay = 3000;  // ms between a change and its copy on the disk

QString Utf16(const std::string& utf8) {
  return QString::fromStdString(utf8);
}

}  // namespace

// ---- saving

bool frmMap::SavePlanAs() {
  bool saved = false;
  Trapped("frmMap mnuSaveFPAs (", [&] {
    frmSaveRoute window(session, editor, messages, frmSaveRoute::Mode::save, planFile, PlansFolder(), this);
    if (!showSaveRoute(window)) return;
    planFolder = window.Folder();
    const fs::path& file = window.Saved().ownFile;
    saved = !file.empty();
    if (saved) TookFile(file);
  });
  return saved;
}

bool frmMap::SavePlan() {
  bool saved = false;
  Trapped("frmMap mnuSaveFP (", [&] {
    if (!session.plan.CanSave || planFile.File().empty())
      return messages.Show(noPlanNameText, MessageIcon::exclamation);
    const fs::path file = planFile.File();
    saved = SaveOwnPlan(editor.Saving(), file);
    if (saved) TookFile(file);
  });
  return saved;
}

// True if the plan may be replaced: it is saved, or the pilot gives it up. False
// also when he gives up what would have replaced it.
bool frmMap::MayLosePlan() {
  if (!planFile.Modified(session.plan, session.database)) return true;
  const std::optional<bool> save = messages.AskYesNoCancel(savePlanFirstText, MessageIcon::question);
  if (!save) return false;
  if (!*save) return true;
  return planFile.File().empty() ? SavePlanAs() : SavePlan();
}

void frmMap::ClearPlan() {
  if (MayLosePlan()) editor.NewPlan();
}

void frmMap::TookFile(const fs::path& file) {
  planFile.Took(session.plan, session.database, file);
  RememberPlan(session.settings, file);
  KeepUnsavedPlan();
  ShowPlanName();
}

void frmMap::ShowPlanName() {
  planFile.Follow(session.plan);
  QString title = Utf16(std::string(messageTitle));
  if (!planFile.File().empty()) title += Utf16(" <" + planFile.Name() + ">");
  setWindowTitle(title + "[*]");
  setWindowModified(planFile.Modified(session.plan, session.database));
  if (!tmrUnsaved.isActive()) tmrUnsaved.start(unsavedDelay);
}

// ---- opening

fs::path frmMap::PlansFolder() const {
  if (!planFolder.empty()) return planFolder;
  if (!planFile.File().empty()) return planFile.File().parent_path();
  fs::path folder = PlanFolder(session.home, session.settings);
  if (!PlanFolderSetting(session.settings).empty()) return folder;
  std::error_code error;
  fs::create_directories(folder, error);
  return folder;
}

void frmMap::ChoosePlan() {
  Trapped("frmMap mnuOpenFP (", [&] {
    frmSaveRoute window(session, editor, messages, frmSaveRoute::Mode::open, planFile, PlansFolder(), this);
    if (!showSaveRoute(window)) return;
    planFolder = window.Folder();
    OpenPlan(window.ChosenFile());
  });
}

void frmMap::OpenPlan(const fs::path& file) {
  if (!MayLosePlan()) return;
  if (editor.OpenPlan(file)) TookFile(file);
  Map->setFocus();
}

void frmMap::ListRecentPlans() {
  QMenu& menu = *recentMenu;
  menu.clear();
  const std::vector<fs::path> files = RecentPlans(session.settings);
  menu.setEnabled(!files.empty());
  int number = 0;
  for (const fs::path& file : files) {
    ++number;
    const QString name = Utf16(file.stem().string()).replace("&", "&&");
    const QString folder = Utf16(file.parent_path().string()).replace("&", "&&");
    QAction* action = menu.addAction(QString("&%1  %2\t%3").arg(number).arg(name, folder));
    action->setObjectName(QString("mnuRecent(%1)").arg(number));
    connect(action, &QAction::triggered, this, [this, file] { OpenRecent(file); });
  }
}

void frmMap::OpenRecent(const fs::path& file) {
  std::error_code error;
  if (fs::exists(file, error)) return OpenPlan(file);
  messages.Show("The flight plan " + file.string() + " is no longer there.", MessageIcon::exclamation);
  ForgetPlan(session.settings, file);
}

void frmMap::PrintPlan() {
  Trapped("frmMap mnuPrintPlan (", [&] {
    if (!printMemory) printMemory = std::make_shared<PrintMemory>();
    frmPrintFP(session, editor, messages, *printMemory, this).exec();
  });
}

void frmMap::dragEnterEvent(QDragEnterEvent* event) {
  if (!DraggedPlan(*event->mimeData()).isEmpty()) event->acceptProposedAction();
}

void frmMap::dropEvent(QDropEvent* event) {
  const QString path = DraggedPlan(*event->mimeData());
  if (path.isEmpty()) return;
  event->acceptProposedAction();
  TakePlanFile(path.toStdString());
}

// ---- against loss

// The plan as it is stands beside its file until it is saved.
void frmMap::KeepUnsavedPlan() {
  Trapped("frmMap KeepUnsavedPlan (", [&] {
    const fs::path copy = session.home.Resolve(unsavedPlanName);
    std::error_code error;
    if (!planFile.Modified(session.plan, session.database)) {
      // Without a plan the copy may be the last session's, about which the pilot is being asked.
      if (session.plan.RowCount() > 0) fs::remove(copy, error);
      return;
    }
    fs::create_directories(copy.parent_path(), error);
    std::string reason;
    const std::string text = WritePlan(session.plan, session.database, PlanFormat::FS);
    if (!ReplaceFile(copy, text, &reason)) session.protocol.WriteProtocol(reason);
  });
}

void frmMap::OfferUnsavedPlan() {
  const fs::path copy = session.home.Resolve(unsavedPlanName);
  std::error_code error;
  if (!fs::exists(copy, error)) return;
  if (!messages.AskYesNo(unsavedPlanText, MessageIcon::question)) {
    fs::remove(copy, error);
    return;
  }
  if (!editor.OpenPlan(copy)) fs::rename(copy, session.home.Resolve(unreadablePlanName), error);
}

void frmMap::DropUnsavedPlan() {
  tmrUnsaved.stop();
  std::error_code error;
  fs::remove(session.home.Resolve(unsavedPlanName), error);
}

void frmMap::Begin(const fs::path& plan, bool selectAirports) {
  OfferUnsavedPlan();
  if (!plan.empty()) {
    TakePlanFile(plan);
  } else if (selectAirports && session.plan.RowCount() == 0) {
    SelectAirports();
  }
}
