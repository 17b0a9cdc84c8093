#include "flightplan/save_plan.h"

#include <algorithm>
#include <exception>
#include <system_error>

#include "base/files.h"
#include "flightplan/plan_file_name.h"
#include "flightplan/plan_folders.h"
#include "flightplan/plan_reader.h"

namespace fs = std::filesystem;

namespace {

bool IsTicked(std::int32_t formats, const PlanFormatInfo& format) {
  return (static_cast<std::uint32_t>(formats) >> format.box & 1U) != 0;
}

bool IsOwnFormat(const PlanFormatInfo& format) {
  return format.box == 0;
}

// True if the file holds a plan with this program's own section.
bool HoldsOwnPlan(const fs::path& file) {
  std::error_code error;
  if (!fs::is_regular_file(file, error)) return false;
  const std::optional<FileBytes> bytes = ReadWholeFile(file);
  return bytes && IsOwnPlan(bytes->Text());
}

class PlanSaver {
 public:
  explicit PlanSaver(const PlanSaving& saving)
      : saving(saving),
        made(
            MakePlanExport(saving.plan, saving.context, saving.settings.FUEL, saving.now, saving.airacCycle)),
        departure(DepartureOf(made).strCode.Text()),
        destination(DestinationOf(made).strCode.Text()) {
    if (CheckIfFSPathValid(saving.home, saving.simulatorPath))
      simulator = FolderOf(saving.home, saving.simulatorPath);
  }

  bool KnowsSimulator() const { return !simulator.empty(); }

  FormatPlace Place(const PlanFormatInfo& format, const fs::path& planFolder) const {
    return PlaceOf(format, saving.home, saving.settings, simulator, planFolder);
  }

  fs::path FileIn(const fs::path& folder, const PlanFormatInfo& format, std::string_view baseName) const {
    return folder / PlanFileName(format, baseName, departure, destination);
  }

  // One format with all that it asks and tells; empty if it was not written.
  fs::path Write(const PlanFormatInfo& format, const fs::path& planFolder, std::string_view baseName) {
    try {
      return TryWrite(format, planFolder, baseName);
    } catch (const std::exception& failure) {
      Refuse(format, failure.what());
      return {};
    }
  }

  bool WriteTo(const PlanFormatInfo& format, const fs::path& file) {
    std::string reason;
    const bool done = CreateFolder(file.parent_path(), reason) && WriteFormatFile(made, format, file, reason);
    if (done) written.push_back(file);
    if (!reason.empty()) Refuse(format, reason);
    return done;
  }

  std::vector<fs::path> TakeWritten() { return std::move(written); }

 private:
  void Show(std::string_view text) { saving.context.messages.Show(text, MessageIcon::exclamation); }

  void Refuse(const PlanFormatInfo& format, const std::string& reason) {
    const std::string what = IsOwnFormat(format)
                                 ? std::string("The flight plan could not be saved.")
                                 : "The file for " + std::string(format.caption) + " could not be saved.";
    Show(what + "\n\n" + reason);
  }

  static bool CreateFolder(const fs::path& folder, std::string& reason) {
    std::error_code error;
    fs::create_directories(folder, error);
    std::error_code ignored;
    if (fs::is_directory(folder, ignored)) return true;
    reason = folder.string() + ": " + (error ? error.message() : "no folder");
    return false;
  }

  fs::path TryWrite(const PlanFormatInfo& format, const fs::path& planFolder, std::string_view baseName) {
    if (const std::string fault = RunwayFault(made, format); !fault.empty()) {
      Show(fault);
      return {};
    }
    made.withProcedures = AskProcedures(format);
    const FormatPlace place = Place(format, planFolder);
    if (place.simulatorMissing && NeedsSimulator(format)) TellSimulator(format, place.folder);
    if (place.folder.empty()) return {};
    const fs::path file = FileIn(place.folder, format, baseName);
    if (IsWritten(file)) {
      Refuse(format, file.string() +
                         ": another format of this plan has just been written into this file. Choose another "
                         "folder for one of the two.");
      return {};
    }
    if (!IsOwnFormat(format) && HoldsOwnPlan(file)) {
      Refuse(format, file.string() +
                         ": this is a plan of Velmora, which would be lost. Choose another folder or name.");
      return {};
    }
    return WriteTo(format, file) ? file : fs::path{};
  }

  bool AskProcedures(const PlanFormatInfo& format) {
    const bool nothingToAsk =
        format.askProcedures.empty() || saving.plan.SidRows() + saving.plan.StarRows() == 0;
    return nothingToAsk || saving.context.messages.AskYesNo(format.askProcedures, MessageIcon::question);
  }

  // The text ends in front of the folder's name where there is one.
  void TellSimulator(const PlanFormatInfo& format, const fs::path& folder) {
    Show(std::string(format.simulatorUnknown) + folder.string());
  }

  bool IsWritten(const fs::path& file) const {
    const auto same = [&](const fs::path& other) {
      std::error_code error;
      return other == file || fs::equivalent(other, file, error);
    };
    return std::any_of(written.begin(), written.end(), same);
  }

  const PlanSaving& saving;
  PlanExport made;
  std::string departure;
  std::string destination;
  fs::path simulator;  // empty: unknown
  std::vector<fs::path> written;
};

void KeepFolder(Settings& settings, const fs::path& folder) {
  std::string& kept = PlanFolderSetting(settings);
  const std::string stored = StoredFolder(folder);
  if (kept.empty() && CanBeStored(stored)) kept = stored;
}

bool WantsSimulator(std::int32_t formats) {
  const auto wants = [&](const PlanFormatInfo& format) {
    return NeedsSimulator(format) && IsTicked(formats, format);
  };
  return std::any_of(PlanFormats().begin(), PlanFormats().end(), wants);
}

}  // namespace

std::string RunwayFault(const PlanExport& plan, const PlanFormatInfo& format) {
  for (const AirportRec* airport : {&DepartureOf(plan), &DestinationOf(plan)}) {
    if (format.needsRunways && airport->lngRunways <= 0)
      return "No flight plan can be filed for airports without runways (" + airport->strCode.Text() + ")";
  }
  return {};
}

bool WriteFormatFile(const PlanExport& plan, const PlanFormatInfo& format, const fs::path& file,
                     std::string& reason) {
  if (!ReplaceFile(file, format.write(plan), &reason)) return false;
  if (format.companionText == nullptr) return true;
  const fs::path companion = file.parent_path() / format.companionName;
  std::error_code error;
  if (!fs::exists(companion, error)) ReplaceFile(companion, format.companionText(), &reason);
  return true;
}

PlanSaved SavePlan(const PlanSaving& saving, const PlanSaveChoice& choice) {
  PlanSaved saved;
  const std::string baseName = PlanBaseName(choice.name);
  const std::string fault = PlanNameFault(baseName);
  if (!fault.empty()) {
    saving.context.messages.Show(fault, MessageIcon::exclamation);
    return saved;
  }
  saved.valid = true;
  KeepFolder(saving.settings, choice.folder);
  PlanSaver saver(saving);
  if (WantsSimulator(choice.formats) && !saver.KnowsSimulator())
    saving.context.messages.Show(simulatorInvalidText, MessageIcon::exclamation);
  for (const PlanFormatInfo& format : PlanFormats()) {
    if (!IsTicked(choice.formats, format)) continue;
    const fs::path file = saver.Write(format, choice.folder, baseName);
    if (file.empty()) ++saved.failures;
    if (IsOwnFormat(format)) saved.ownFile = file;
  }
  saved.written = saver.TakeWritten();
  saving.settings.FPSEL = choice.formats;
  return saved;
}

bool SaveOwnPlan(const PlanSaving& saving, const fs::path& file) {
  const auto own = std::find_if(PlanFormats().begin(), PlanFormats().end(), IsOwnFormat);
  return PlanSaver(saving).WriteTo(*own, file);
}

std::vector<fs::path> PlanFilesOf(const PlanSaving& saving, const PlanSaveChoice& choice) {
  const PlanSaver saver(saving);
  const std::string baseName = PlanBaseName(choice.name);
  std::vector<fs::path> files;
  for (const PlanFormatInfo& format : PlanFormats()) {
    if (!IsTicked(choice.formats, format)) continue;
    const fs::path folder = saver.Place(format, choice.folder).folder;
    if (!folder.empty()) files.push_back(saver.FileIn(folder, format, baseName));
  }
  return files;
}
