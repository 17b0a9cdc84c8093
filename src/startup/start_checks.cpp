#include "startup/start_checks.h"

#include <filesystem>
#include <system_error>

#include "base/code_page.h"
#include "base/files.h"
#include "navdata/world_loader.h"
#include "settings/settings_file.h"

namespace {

std::string SizeLine(const AppFolder& home, std::string_view name) {
  return std::string(name) + " = " + std::to_string(FileSizeOrZero(home.Resolve(name)));
}

bool CreateFolder(const std::filesystem::path& folder) {
  std::error_code error;
  std::filesystem::create_directories(folder, error);
  return std::filesystem::is_directory(folder, error);
}

std::string TrimField(std::string_view field) {
  const auto isBlank = [](char c) { return c == ' ' || c == '\t' || c == '\r' || c == '\n' || c == '"'; };
  while (!field.empty() && isBlank(field.front()))
    field.remove_prefix(1);
  while (!field.empty() && isBlank(field.back()))
    field.remove_suffix(1);
  return std::string(field);
}

}  // namespace

std::string MissingStructureFile(const AppFolder& home) {
  for (const std::string_view name : {"magvar09.qtr", "magvar10.qtr", "VLM_intro.bmp"}) {
    std::error_code error;
    if (!std::filesystem::exists(home.Resolve(name), error)) return std::string(name);
  }
  return {};
}

bool SetCurrentFSPath(Session& session) {
  const SimulatorPaths paths = ReadSimulatorPaths(session.home);
  session.strFSPath = session.settings.FSX == 0 ? paths.fsPath09 : paths.fsPath10;
  return true;
}

bool SetFlightplanFolders(Session& session) {
  bool successful = true;
  const auto setDefault = [&](std::string& setting, std::string_view name) {
    if (!setting.empty()) return false;
    setting = session.home.Resolve(name).string();
    return true;
  };
  Settings& settings = session.settings;
  if (setDefault(settings.SQUAWKBOXPATH, "\\FSplan\\SquawkBox"))
    successful &= CreateFolder(settings.SQUAWKBOXPATH);
  if (setDefault(settings.IVAOPATH, "\\FSplan\\IVAO")) successful &= CreateFolder(settings.IVAOPATH);
  if (setDefault(settings.FSINNPATH, "\\FSplan\\FSInn")) successful &= CreateFolder(settings.FSINNPATH);
  if (setDefault(settings.RADCONPATH, "\\FSplan\\RC")) successful &= CreateFolder(settings.RADCONPATH);
  // The folder behind FSINNPATH is made sure of here once more; \FSplan\PM is
  // created when a plan is first saved to it.
  if (setDefault(settings.PROMAGPATH, "\\FSplan\\PM")) successful &= CreateFolder(settings.FSINNPATH);
  return successful;
}

bool DecryptIvaoPWord(Session& session) {
  std::string& password = session.settings.IVAOVPW;
  if (!password.empty()) password = CodePageToUtf8(DecodeIvaoPWord(password));
  return true;
}

bool ReadAirac(Session& session) {
  const auto file = ReadWholeFile(session.home.Resolve("\\database\\AIRAC.INI"));
  std::string cycle;
  std::string_view rest = file ? file->Text() : std::string_view{};
  while (!rest.empty()) {
    const std::size_t end = std::min(rest.find_first_of(",\n"), rest.size());
    cycle += CodePageToUtf8(TrimField(rest.substr(0, end))) + " - ";
    rest.remove_prefix(std::min(end + 1, rest.size()));
  }
  if (cycle.empty()) {
    session.strAiracCycle = "No AIRAC cycle installed!";
    return false;
  }
  session.strAiracCycle = cycle.substr(0, cycle.size() - 3);
  return true;
}

bool ReadOnlineDatabases(Session& session, const LogLine& log) {
  const auto available = [&](std::string_view name) {
    log(SizeLine(session.home, name));
    return FileSizeOrZero(session.home.Resolve(name)) > 0;
  };
  session.ivaoAvailable = available("\\database\\vlm_ivao.dat");
  session.vatsimAvailable = available("\\database\\vlm_vatsim.dat");
  return session.ivaoAvailable && session.vatsimAvailable;
}

bool Check4OnlineFiles(const Session& session, const LogLine& log) {
  for (const std::string_view name :
       {"\\urlivao.ini", "\\urlvatsim.ini", "\\ivao_status.txt", "\\vatsim_status.txt",
        "\\database\\vlm_ivao.txt", "\\database\\vlm_vatsim.txt"}) {
    std::error_code error;
    if (std::filesystem::exists(session.home.Resolve(name), error)) log(SizeLine(session.home, name));
  }
  return true;
}

bool Check4SidStarFiles(Session& session, const LogLine& log, MessageBox& messages) {
  session.sidStarAvailable = true;
  for (const std::string_view name : {"\\database\\sid.vlm", "\\database\\star.vlm"}) {
    log(SizeLine(session.home, name));
    if (FileSizeOrZero(session.home.Resolve(name)) == 0) session.sidStarAvailable = false;
  }
  if (!session.sidStarAvailable) {
    messages.Show(" SID and/or STAR files missing!  \n SID/STAR features unavailable!",
                  MessageIcon::exclamation);
  }
  return session.sidStarAvailable;
}

bool Check4WeatherFile(Session& session, const LogLine& log, MessageBox& messages) {
  constexpr std::string_view name = "\\database\\WxStation.txt";
  log(SizeLine(session.home, name));
  session.weatherAvailable = FileSizeOrZero(session.home.Resolve(name)) > 0;
  if (!session.weatherAvailable) {
    messages.Show(" Weather Station file corrupt or missing!  \n      Weather features unavailable!",
                  MessageIcon::exclamation);
  }
  return session.weatherAvailable;
}

bool ReadUserObjects(Session& session) {
  session.userObjects.clear();
  const auto file = ReadWholeFile(session.home.Resolve("\\database\\userObj.txt"));
  if (!file || file->Text().empty()) return true;
  return ParseUserWaypoints(file->Text(), session.database.magneticVariation, session.userObjects);
}

bool CheckValidAscii(int code) {
  return (code >= 32 && code <= 122) || (code >= 128 && code <= 167) || (code >= 192 && code <= 255);
}
