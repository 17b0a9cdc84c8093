// Plans of other programs in the main window: chosen in a dialog of their own
// or dropped on the window, where ours are told from theirs by what is in them.
#include <QFileInfo>
#include <QMimeData>
#include <QUrl>

#include "base/files.h"
#include "flightplan/plan_reader.h"
#include "windows/frmMap.h"

QString frmMap::DraggedPlan(const QMimeData& dragged) {
  static const QStringList endings = {"pln", "fms", "fgfp", "xml", "fpl", "gpx", "sfp"};
  const QList<QUrl> urls = dragged.urls();
  if (urls.size() != 1) return {};
  const QString path = urls.first().toLocalFile();
  return endings.contains(QFileInfo(path).suffix(), Qt::CaseInsensitive) ? path : QString();
}

void frmMap::TakePlanFile(const std::filesystem::path& file) {
  const std::optional<FileBytes> bytes = ReadWholeFile(file);
  if (!bytes || IsOwnPlan(bytes->Text())) return OpenPlan(file);
  if (!MayLosePlan() || !editor.ImportPlan(file)) return;
  planFile.Forget();
  ShowPlanName();
}

void frmMap::ChooseImport() {
  Trapped("frmMap mnuImport (", [&] {
    const QString path = askImportFile(QString::fromStdString(PlansFolder().string()));
    if (!path.isEmpty()) TakePlanFile(path.toStdString());
  });
}
