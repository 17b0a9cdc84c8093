#include "startup/start_sequence.h"

#include <functional>
#include <string>
#include <system_error>

#include "base/files.h"
#include "flightplan/aircraft_file.h"
#include "navdata/airport_loader.h"
#include "navdata/ils_positions.h"
#include "navdata/navi_databases.h"
#include "settings/settings_file.h"
#include "startup/fs_version.h"
#include "startup/start_checks.h"

namespace {

// Thrown by the step that ends the process, once the pilot has been told.
struct StartEnded {};

std::string_view TrueFalse(bool value) {
  return value ? "True" : "False";
}

class StartSequence : private LoadListener {
 public:
  StartSequence(Session& session, std::string_view commandLine, StartView& view, MessageBox& messages)
      : session(session), commandLine(commandLine), view(view), messages(messages) {}

  StartOutcome Run() {
    std::error_code error;
    std::filesystem::create_directories(session.home.Root(), error);
    infoLog.Open(session.home);
    try {
      Prepare();
      LoadWorld();
      CheckFiles();
    } catch (const StartEnded&) {
      infoLog.Close();
      view.ShowBusyPointer(false);
      view.HideIntro();
      return StartOutcome::ended;
    }
    WriteInfoLog("LogFile written successfully");
    infoLog.Close();
    view.ShowBusyPointer(false);
    view.HideIntro();
    session.blnProtocolLog = session.protocol.Open(session.home);
    return session.settings.DIRCON != 0 ? StartOutcome::showMap : StartOutcome::showAirportSelection;
  }

 private:
  void ShowProgress(std::string_view text) override { view.ShowProgress(text); }
  void WriteInfoLog(std::string_view line) override { infoLog.WriteInfoLog(line); }

  void LogStep(std::string_view name, bool successful) {
    WriteInfoLog(std::string(name) + " successful (" + std::string(TrueFalse(successful)) + ")");
  }

  // A step inside its own trap: a failure is a False in the log.
  void Step(std::string_view name, const std::function<bool()>& step) {
    bool successful = false;
    try {
      successful = step();
    } catch (const std::exception& error) {
      WriteInfoLog("Error " + std::string(name) + " (" + error.what() + ")");
    }
    LogStep(name, successful);
  }

  [[noreturn]] void End(std::string_view message, std::string_view logLine) {
    view.ShowBusyPointer(false);
    messages.Show(message, MessageIcon::exclamation);
    WriteInfoLog(logLine);
    throw StartEnded{};
  }

  void Prepare() {
    WriteInfoLog("Application path: " + session.home.Root().string());
    OfferDatabaseIfThereIsNone();
    CheckStructure();
    if (commandLine.find('Z') != std::string_view::npos) session.strSwitchZ = "Z";
    if (commandLine.find('9') != std::string_view::npos) session.strSwitchNine = "9";
    view.ShowIntro(session.home.Resolve("VLM_Intro.bmp"), versionText);
    view.ShowBusyPointer(true);
    Step("ReadIni", [this] { return ReadSettings(); });
    Step("SetFSVersion", [this] { return SetFSVersion(); });
    Step("SetCurrentFSPath", [this] { return SetCurrentFSPath(session); });
    Step("SetFlightplanFolders", [this] { return SetFlightplanFolders(session); });
    Step("DecryptIvaoPWord", [this] { return DecryptIvaoPWord(session); });
    Step("ReadAirac", [this] { return ShowAirac(); });
    Step("ReadAircraft", [this] { return LoadAircraft(); });
  }

  void LoadWorld() {
    Step("Initializing counters", [this] {
      session.database = NavDatabase();
      return true;
    });
    Step("Opening MagVar file", [this] { return OpenMagVarFile(); });
    LoadResult airports;
    const DatabaseLocation location = LocationOf(session.home, session.settings.FSX);
    Step("Reading airports", [&] {
      airports = ReadAirports(location, *this, session.database);
      if (airports.emptyFile) EndForAirportFile(*airports.emptyFile);
      return airports.successful;
    });
    Step("Reading pending ILS", [&] { return ReadPendingIls(location, *this, session.database); });
    Step("ReadNaviDatabases", [&] {
      const LoadResult result = ReadNaviDatabases(location, *this, session.database);
      if (result.emptyFile) EndForNaviFile(*result.emptyFile);
      view.HideProgress();
      return result.successful;
    });
    Step("ReassignILSCoords", [this] { return ReassignILSCoords(session.database); });
    BuildIndexes(session.database);
    // The names are part of the program and cannot fail.
    for (const std::string_view name :
         {"LoadFuelNames", "LoadGateNames", "LoadGateType", "LoadFreqTypes", "LoadSurfaceNames"}) {
      LogStep(name, true);
    }
  }

  void CheckFiles() {
    const LogLine log = [this](std::string_view line) { WriteInfoLog(line); };
    Step("ReadOnlineDatabases", [&] { return ReadOnlineDatabases(session, log); });
    Step("Check4OnlineFiles", [&] { return Check4OnlineFiles(session, log); });
    view.ShowBusyPointer(false);
    Step("Check4SidStarFiles", [&] { return Check4SidStarFiles(session, log, messages); });
    Step("Check4WeatherFile", [&] { return Check4WeatherFile(session, log, messages); });
    Step("ReadUserObjects", [&] { return ReadUserObjects(session); });
  }

  void OfferDatabaseIfThereIsNone() {
    if (IsDatabaseUsable(session.home, 0) || IsDatabaseUsable(session.home, -1)) return;
    if (view.OfferBundledDatabase()) WriteInfoLog("Bundled database built");
  }

  void CheckStructure() {
    const std::string missing = MissingStructureFile(session.home);
    if (missing.empty()) return;
    End("Velmora file and folder structure incomplete!\n"
        "     Check installation or location of program file!\n"
        "                   Program will abort now!",
        "Exit in structure check, missing file: " + missing);
  }

  bool ReadSettings() {
    const ReadIniResult result = ReadIni(session.home);
    session.settings = result.settings;
    if (!result.successful) messages.Show(iniCorruptText, MessageIcon::exclamation);
    return result.successful;
  }

  bool SetFSVersion() {
    for (const std::int16_t version : {std::int16_t{0}, std::int16_t{-1}}) {
      std::error_code error;
      std::filesystem::create_directories(session.home.Resolve(FSDatabaseFolder(version)), error);
    }
    const FSVersion version = ChooseFSVersion(session.home, commandLine, session.settings.FSX);
    session.settings.FSX = version.blnFSX;
    if (version.usable) return true;
    End("     Databases" + std::string(FSVersionText(version.blnFSX)) +
            " missing or incomplete!\n\nPlease choose different FS version or run Database Manager first!",
        "Exit in SetFSVersion");
  }

  bool ShowAirac() {
    const bool installed = ReadAirac(session);
    WriteInfoLog(session.strAiracCycle);
    if (installed) view.ShowAirac(session.strAiracCycle);
    return installed;
  }

  bool LoadAircraft() {
    const AircraftFile file = ReadAircraftFile(session.home.Resolve(aircraftFileName));
    for (const std::string& problem : file.problems)
      WriteInfoLog(problem);
    session.aircraftList = file.aircraft;
    const auto current = ReadAircraft(file.aircraft, session.settings.AIRCRAFT);
    if (current) session.aircraft = *current;
    return current.has_value();
  }

  bool OpenMagVarFile() {
    std::error_code error;
    std::filesystem::create_directories(session.home.Resolve(FSDatabaseFolder(session.settings.FSX)), error);
    const auto file = ReadWholeFile(session.home.Resolve(MagVarFileName(session.settings.FSX)));
    if (!file) return false;
    session.database.magneticVariation = MagneticVariationGrid::FromBytes(file->Bytes());
    return true;
  }

  [[noreturn]] void EndForAirportFile(const std::string& file) {
    End("            You have to run the Database Manager first!!        \nFile" + file +
            "missing or zero bytes! Check VLM_Info.log for details!",
        "Exit in ErrorFileEmpty");
  }

  [[noreturn]] void EndForNaviFile(const std::string& file) {
    End(" File" + file + "missing or zero bytes!  \n Check VLM_Info.log for details!",
        "Exit in ErrorFileEmpty with" + file);
  }

  Session& session;
  std::string_view commandLine;
  StartView& view;
  MessageBox& messages;
  InfoLog infoLog;
};

}  // namespace

StartOutcome RunStartSequence(Session& session, std::string_view commandLine, StartView& view,
                              MessageBox& messages) {
  return StartSequence(session, commandLine, view, messages).Run();
}
