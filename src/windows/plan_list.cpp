#include "windows/plan_list.h"

#include <QDateTime>
#include <QDir>
#include <QHeaderView>
#include <QKeyEvent>

namespace {

enum Column { name, changed };
enum Role { entryName = Qt::UserRole, isFolder, changedAt };

QString Utf16(const std::filesystem::path& path) {
  return QString::fromStdString(path.string());
}

// Folders stand before files, whichever way the files are sorted.
class Entry : public QTreeWidgetItem {
 public:
  using QTreeWidgetItem::QTreeWidgetItem;

  bool operator<(const QTreeWidgetItem& other) const override {
    const bool folder = data(name, isFolder).toBool();
    if (folder != other.data(name, isFolder).toBool()) {
      const bool ascending = treeWidget()->header()->sortIndicatorOrder() == Qt::AscendingOrder;
      return folder == ascending;
    }
    if (treeWidget()->sortColumn() == changed)
      return data(name, changedAt).toLongLong() < other.data(name, changedAt).toLongLong();
    return text(name).localeAwareCompare(other.text(name)) < 0;
  }
};

}  // namespace

PlanList::PlanList(QStringList patterns, MessageBox& messages, QWidget* parent)
    : QTreeWidget(parent), patterns(std::move(patterns)), messages(messages) {
  setObjectName("flstFPlan");
  setAccessibleName(tr("Flight plans"));
  setRootIsDecorated(false);
  setUniformRowHeights(true);
  setHeaderLabels({tr("Name"), tr("Changed")});
  header()->setStretchLastSection(false);
  header()->setSectionResizeMode(name, QHeaderView::Stretch);
  header()->setSectionResizeMode(changed, QHeaderView::ResizeToContents);
  setSortingEnabled(true);
  sortByColumn(name, Qt::AscendingOrder);
  connect(this, &QTreeWidget::itemDoubleClicked, this, [this](QTreeWidgetItem* item) { Take(item); });
}

void PlanList::ShowFolder(const std::filesystem::path& newFolder) {
  folder = newFolder.lexically_normal();
  if (!folder.has_filename() && folder.has_relative_path()) folder = folder.parent_path();
  fault.clear();
  const QDir here(Utf16(folder));
  if (!here.exists()) {
    fault = tr("This folder does not exist yet.");
  } else if (!here.isReadable()) {
    fault = tr("This folder cannot be read.");
  }
  {
    const QSignalBlocker quiet(this);
    setSortingEnabled(false);
    clear();
    AddFolders();
    AddFiles();
    setSortingEnabled(true);
  }
  Q_EMIT FolderChanged();
}

void PlanList::AddFolders() {
  QStringList names;
  if (folder != folder.root_path()) names << "..";
  names += QDir(Utf16(folder)).entryList(QDir::Dirs | QDir::NoDotAndDotDot);
  for (const QString& folderName : names) {
    auto* item = new Entry(this, {folderName + "/"});
    item->setData(name, entryName, folderName);
    item->setData(name, isFolder, true);
  }
}

void PlanList::AddFiles() {
  for (const QFileInfo& file : QDir(Utf16(folder)).entryInfoList(patterns, QDir::Files)) {
    const QDateTime date = file.lastModified();
    auto* item = new Entry(this, {file.fileName(), date.toString("yyyy-MM-dd  hh:mm")});
    item->setData(name, entryName, file.fileName());
    item->setData(name, isFolder, false);
    item->setData(name, changedAt, date.toMSecsSinceEpoch());
  }
}

std::filesystem::path PlanList::File() const {
  const QTreeWidgetItem* item = currentItem();
  if (item == nullptr || item->data(name, isFolder).toBool()) return {};
  return folder / item->data(name, entryName).toString().toStdString();
}

void PlanList::Select(const QString& wanted) {
  QTreeWidgetItem* best = nullptr;
  for (int i = 0; i < topLevelItemCount(); ++i) {
    QTreeWidgetItem* item = topLevelItem(i);
    if (item->data(name, entryName).toString() == wanted) return setCurrentItem(item);
    if (item->data(name, isFolder).toBool()) continue;
    if (best == nullptr ||
        item->data(name, changedAt).toLongLong() > best->data(name, changedAt).toLongLong())
      best = item;
  }
  setCurrentItem(best != nullptr ? best : topLevelItem(0));
}

void PlanList::keyPressEvent(QKeyEvent* event) {
  switch (event->key()) {
    case Qt::Key_Return:
    case Qt::Key_Enter:
      return Take(currentItem());
    case Qt::Key_Backspace:
      return GoUp();
    case Qt::Key_Delete:
      return DeleteFile();
    default:
      QTreeWidget::keyPressEvent(event);
  }
}

void PlanList::Take(const QTreeWidgetItem* item) {
  if (item == nullptr) return;
  if (!item->data(name, isFolder).toBool()) {
    Q_EMIT FileTaken();
    return;
  }
  const QString target = item->data(name, entryName).toString();
  if (target == "..") return GoUp();
  ShowFolder(folder / target.toStdString());
  Select({});
}

void PlanList::GoUp() {
  if (folder == folder.root_path()) return;
  const QString left = Utf16(folder.filename());
  ShowFolder(folder.parent_path());
  Select(left);
}

void PlanList::DeleteFile() {
  const std::filesystem::path file = File();
  if (file.empty()) return;
  if (!messages.AskYesNo("Do you wish to delete " + file.filename().string() + "?", MessageIcon::question))
    return;
  std::error_code error;
  if (!std::filesystem::remove(file, error) && error)
    messages.Show("The file could not be deleted.\n\n" + file.string() + ": " + error.message(),
                  MessageIcon::exclamation);
  ShowFolder(folder);
  Select({});
}
