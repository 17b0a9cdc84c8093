// The plan and its files in the main window: saved, opened from the menu,
// opened by dropping a file on the window.
#include <QDir>
#include <QDragEnterEvent>
#include <QDropEvent>
#include <QMimeData>
#include <QUrl>

#include "base/files.h"
#include "flightplan/plan_file.h"
#include "windows/frmMap.h"
#include "windows/frmPrintFP.h"

namespace {

// The one plan file among what is dragged; empty: there is none, or more.
QString DraggedPlan(const QMimeData& dragged) {
  const QList<QUrl> urls = dragged.urls();
  if (urls.size() != 1) return {};
  const QString path = urls.first().toLocalFile();
  return path.endsWith(".pln", Qt::CaseInsensitive) ? path : QString();
}

}  // namespace

QString frmMap::PlanFolder() const {
  const std::string& chosen =
      session.settings.FSX != 0 ? session.settings.FPPATH10 : session.settings.FPPATH09;
  if (!chosen.empty()) return QString::fromStdString(chosen);
  return QString::fromStdString(session.home.Resolve("\\FSplan").string());
}

void frmMap::SavePlan() {
  Trapped("frmMap mnuSaveFPAs (", [&] {
    const std::string text = WritePlan(session.plan, session.database, PlanFormat::FS);
    const QDir folder(PlanFolder());
    if (!folder.exists()) folder.mkpath(".");
    const FlightPlan& plan = session.plan;
    const std::string name =
        plan.Row(0).Code.Text() + " to " + plan.Row(plan.DestinationRow()).Code.Text() + ".pln";
    QString path = askPlanFile(folder.filePath(QString::fromStdString(name)));
    if (path.isEmpty()) return;
    if (!path.endsWith(".pln", Qt::CaseInsensitive)) path += ".pln";
    std::string reason;
    if (!ReplaceFile(std::filesystem::path(path.toStdString()), text, &reason))
      messages.Show("The flight plan could not be saved.\n\n" + reason, MessageIcon::exclamation);
  });
}

void frmMap::OpenPlan() {
  Trapped("frmMap mnuOpenFP (", [&] {
    const QString path = askOpenFile(PlanFolder());
    if (!path.isEmpty()) editor.OpenPlan(path.toStdString());
  });
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
  editor.OpenPlan(path.toStdString());
}
