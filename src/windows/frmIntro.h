// The window of the start-up: the intro picture with what is being loaded. It
// implements the view that the start-up sequence speaks to.
#pragma once

#include <QLabel>
#include <QWidget>

#include "startup/start_sequence.h"

class frmIntro : public QWidget, public StartView {
  Q_OBJECT

 public:
  // home: the application folder that a bundled database would be built in.
  frmIntro(MessageBox& messages, const AppFolder& home);

  void ShowIntro(const std::filesystem::path& picture, std::string_view version) override;
  void ShowProgress(std::string_view text) override;
  void HideProgress() override;
  void ShowAirac(std::string_view cycle) override;
  void ShowBusyPointer(bool busy) override;
  void HideIntro() override;
  bool OfferBundledDatabase() override;

 private:
  void ShowPicture(const QPixmap& picture);
  void ShowWindow();
  bool RunDatabaseManager(QString& reason);

  MessageBox& messages;
  AppFolder home;
  bool busy = false;
  QLabel* picIntro;
  QLabel* lblProgress;
  QLabel* lblAirac;
  QLabel* lblVersion;
};
