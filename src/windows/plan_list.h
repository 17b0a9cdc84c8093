// The list of a folder's plan files, with their dates, and of the folders in
// it, which can be walked by keyboard: Enter goes into a folder, Backspace out
// of it, typing leads to a name.
#pragma once

#include <QTreeWidget>
#include <filesystem>

#include "platform/message_box.h"

class PlanList : public QTreeWidget {
  Q_OBJECT

 public:
  PlanList(QStringList patterns, MessageBox& messages, QWidget* parent);

  // Shows a folder. One that cannot be read is shown empty.
  void ShowFolder(const std::filesystem::path& newFolder);
  const std::filesystem::path& Folder() const { return folder; }
  // The selected file; empty for a folder or nothing.
  std::filesystem::path File() const;
  // Why the folder cannot be read; empty if it can.
  const QString& Fault() const { return fault; }
  // Selects a file by its name, else the newest one.
  void Select(const QString& name);

 Q_SIGNALS:
  void FolderChanged();
  // A file was chosen by Enter or double click.
  void FileTaken();

 protected:
  void keyPressEvent(QKeyEvent* event) override;

 private:
  void Take(const QTreeWidgetItem* item);
  void GoUp();
  void DeleteFile();
  void AddFolders();
  void AddFiles();

  const QStringList patterns;
  MessageBox& messages;
  std::filesystem::path folder;
  QString fault;
};
