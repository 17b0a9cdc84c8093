// vlm.ini and VLMDbManager.ini: reading and writing the settings. Both files
// are replaced whole, and one older generation is kept.
#pragma once

#include <string>
#include <string_view>

#include "base/app_folder.h"
#include "settings/settings.h"

struct ReadIniResult {
  Settings settings;
  // False if the file is there but cannot be read, or a number in it does not
  // fit its key or its bounds (that key then has its default). A missing file is no fault.
  bool successful = true;
};

inline constexpr std::string_view iniCorruptText = "VLM.INI is missing or corrupt! Using default settings!";
inline constexpr std::string_view iniWriteFailedText = "Error in writing VLM.INI file";

// Reads vlm.ini of the application folder. The network password stays scrambled.
ReadIniResult ReadIni(const AppFolder& home);

// The same from a text in the code page; for ReadIni() and tests.
ReadIniResult ReadSettings(std::string_view text);

// Folders of the two simulator versions from section FS of VLMDbManager.ini.
struct SimulatorPaths {
  std::string fsPath09;
  std::string fsPath10;
};

// Writes all keys into vlm.ini after copying the present one over vlmini.old
// (the password is scrambled on the way), and the simulator version in use
// and, if they are given, the simulators' folders into VLMDbManager.ini. On
// failure the result is false, reason (if given) tells why, and the file that
// could not be written is as it was.
bool WriteIni(const AppFolder& home, const Settings& settings, std::string* reason = nullptr,
              const SimulatorPaths* simulators = nullptr);

// The text of vlm.ini with all keys set; what else present holds is kept.
std::string SettingsText(const Settings& settings, std::string_view present);

SimulatorPaths ReadSimulatorPaths(const AppFolder& home);

// The scrambling of the network password: each character XOR a repeating key,
// as two upper-case hexadecimal digits. Decoding ignores an odd last digit and
// reads a character that is no hexadecimal digit as 0.
std::string EncodeIvaoPWord(std::string_view password);
std::string DecodeIvaoPWord(std::string_view scrambled);
