// The program: starts up behind frmIntro, then shows the map.
#include <QApplication>
#include <QIcon>
#include <QTimer>
#include <cstdio>

#include "startup/start_sequence.h"
#include "windows/command_line.h"
#include "windows/frmIntro.h"
#include "windows/frmMap.h"
#include "windows/qt_message_box.h"
#include "windows/style.h"

namespace {

constexpr const char* usage =
    "usage: velmora [--home DIR] [0|1] [PLAN]\n"
    "  --home DIR  the application folder (else $VELMORA_HOME, $XDG_DATA_HOME/velmora,\n"
    "              ~/.local/share/velmora)\n"
    "  0, 1        use the database of Flight Simulator 2004, of Flight Simulator X\n"
    "  PLAN        a flight plan file to open\n"
    "  --version   print the version\n"
    "  --help      print this text\n";

int RunProgram(QApplication& application, const CommandLine& line) {
  ApplyStyle(application);
  QApplication::setWindowIcon(QIcon(":/velmora.png"));
  QtMessageBox messages;
  QtPointerShape pointer;
  Session session{AppFolder(DefaultAppFolder(line.home))};
  frmIntro intro(messages, session.home);
  // Nothing may end the process while a box of the start-up is open.
  QApplication::setQuitOnLastWindowClosed(false);
  const StartOutcome outcome = RunStartSequence(session, line.rest, intro, messages);
  if (outcome == StartOutcome::ended) return 1;
  QApplication::setQuitOnLastWindowClosed(true);
  ApplyStyle(application, session.settings.NIGHT != 0);
  frmMap map(session, messages, pointer);
  messages.SetParent(&map);
  map.show();
  const bool selectAirports = outcome == StartOutcome::showAirportSelection;
  QTimer::singleShot(0, &map, [&] { map.Begin(line.plan, selectAirports); });
  return QApplication::exec();
}

}  // namespace

int main(int argc, char** argv) {
  const CommandLine line = TakeOptions(std::vector<std::string>(argv + 1, argv + argc));
  if (!line.error.empty()) {
    std::fprintf(stderr, "velmora: %s\n%s", line.error.c_str(), usage);
    return 2;
  }
  if (line.help) return std::fputs(usage, stdout) < 0 ? 1 : 0;
  if (line.version) return std::printf("%s\n", std::string(messageTitle).c_str()) < 0 ? 1 : 0;
  int qtArgc = 1;
  QApplication application(qtArgc, argv);
  QCoreApplication::setApplicationName("velmora");
  return RunProgram(application, line);
}
