#include "windows/frmIntro.h"

#include <QApplication>
#include <QCoreApplication>
#include <QDir>
#include <QEventLoop>
#include <QFileInfo>
#include <QProcess>
#include <QScreen>

namespace {

constexpr QSize pictureSize(640, 400);

QString ToQString(std::string_view text) {
  return QString::fromUtf8(text.data(), static_cast<qsizetype>(text.size()));
}

QLabel* AddLabel(QWidget* parent, const QString& name, const QRect& place, const QString& color) {
  auto* label = new QLabel(parent);
  label->setObjectName(name);
  label->setGeometry(place);
  label->setStyleSheet("color: " + color + "; background: transparent;");
  return label;
}

}  // namespace

frmIntro::frmIntro(MessageBox& messages, const AppFolder& home)
    : QWidget(nullptr, Qt::SplashScreen | Qt::FramelessWindowHint), messages(messages), home(home) {
  setObjectName("frmIntro");
  setWindowTitle(ToQString(messageTitle));
  setFixedSize(pictureSize);
  picIntro = new QLabel(this);
  picIntro->setObjectName("picIntro");
  picIntro->setGeometry(QRect(QPoint(), pictureSize));
  picIntro->setFocusPolicy(Qt::StrongFocus);
  lblVersion = AddLabel(this, "lblVersion", {39, 134, 400, 20}, "#8ea6c2");
  lblAirac = AddLabel(this, "lblAirac", {39, 338, 400, 20}, "rgb(0, 128, 0)");
  lblProgress = AddLabel(this, "lblProgress", {39, 360, 560, 20}, "#c3d2e4");
  lblAirac->hide();
  if (const QScreen* screen = QGuiApplication::primaryScreen())
    move(screen->availableGeometry().center() - rect().center());
}

void frmIntro::ShowPicture(const QPixmap& picture) {
  picIntro->setPixmap(picture.scaled(pictureSize, Qt::KeepAspectRatioByExpanding, Qt::SmoothTransformation));
}

void frmIntro::ShowWindow() {
  show();
  QCoreApplication::processEvents(QEventLoop::ExcludeUserInputEvents);
}

void frmIntro::ShowIntro(const std::filesystem::path& picture, std::string_view version) {
  ShowPicture(QPixmap(QString::fromStdString(picture.string())));
  lblVersion->setText(ToQString(productName) + ToQString(version));
  ShowWindow();
}

void frmIntro::ShowProgress(std::string_view text) {
  lblProgress->setText(ToQString(text));
  lblProgress->show();
  lblProgress->repaint();
  QCoreApplication::processEvents(QEventLoop::ExcludeUserInputEvents);
}

void frmIntro::HideProgress() {
  lblProgress->hide();
}

void frmIntro::ShowAirac(std::string_view cycle) {
  lblAirac->setText(ToQString(cycle));
  lblAirac->show();
}

void frmIntro::ShowBusyPointer(bool nowBusy) {
  if (nowBusy == busy) return;
  busy = nowBusy;
  if (busy) {
    QApplication::setOverrideCursor(Qt::WaitCursor);
  } else {
    QApplication::restoreOverrideCursor();
  }
}

void frmIntro::HideIntro() {
  picIntro->setFocus();
  hide();
}

bool frmIntro::OfferBundledDatabase() {
  ShowPicture(QPixmap(":/VLM_intro.bmp"));
  ShowWindow();
  const std::string question =
      "There is no navigation database in\n" + home.Root().string() +
      "\n\nShall the world that comes with Velmora be built now? It takes a few seconds.";
  if (!messages.AskYesNo(question, MessageIcon::question)) return false;
  ShowBusyPointer(true);
  QString reason;
  const bool built = RunDatabaseManager(reason);
  ShowBusyPointer(false);
  HideProgress();
  if (!built)
    messages.Show("The database could not be built.\n\n" + reason.toStdString(), MessageIcon::exclamation);
  return built;
}

bool frmIntro::RunDatabaseManager(QString& reason) {
  QProcess manager;
  manager.setProcessChannelMode(QProcess::MergedChannels);
  const QString beside = QCoreApplication::applicationDirPath() + "/velmora-dbmanager";
  manager.start(QFileInfo::exists(beside) ? beside : QStringLiteral("velmora-dbmanager"),
                {"--home", QString::fromStdString(home.Root().string()), "--bundled"});
  if (!manager.waitForStarted()) {
    reason = tr("velmora-dbmanager could not be started: %1").arg(manager.errorString());
    return false;
  }
  QString lastLine;
  while (manager.state() != QProcess::NotRunning || manager.bytesAvailable() > 0) {
    manager.waitForReadyRead(50);
    while (manager.canReadLine()) {
      const QString line = QString::fromUtf8(manager.readLine()).trimmed();
      if (!line.isEmpty()) lastLine = line;
    }
    if (manager.state() == QProcess::NotRunning && !manager.canReadLine()) manager.readAll();
    ShowProgress(lastLine.isEmpty() ? "...building the database" : lastLine.left(90).toStdString());
  }
  reason = lastLine;
  return manager.exitStatus() == QProcess::NormalExit && manager.exitCode() == 0;
}
