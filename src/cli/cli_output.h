// What every command of velmora-cli shares: where its results and messages go,
// how a world is opened for it, and how numbers become JSON.
#pragma once

#include <cstdint>
#include <nlohmann/json.hpp>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "base/app_folder.h"
#include "platform/message_box.h"
#include "startup/world_load.h"

using Json = nlohmann::ordered_json;

enum ExitCode : int { exitDone = 0, exitNotDone = 1, exitWrongUsage = 2 };

struct CliOptions {
  AppFolder home;
  std::optional<std::int16_t> blnFSX;  // 0: 2004, -1: X; nothing: as the settings say
  bool json = false;
};

// The window's message boxes on the command line: texts go to standard error
// and are collected for the document's "messages". Questions are answered no.
class CliMessages : public MessageBox {
 public:
  void Show(std::string_view text, MessageIcon icon) override;
  bool AskYesNo(std::string_view text, MessageIcon icon) override;

  Json ToJson() const;

 private:
  std::vector<std::string> texts;
};

// Loads the world, or tells on standard error why not. A cut-off file is told
// as a warning and the rest is used.
std::optional<WorldLoad> OpenWorld(const CliOptions& options);

// One line on standard error; the exit code "could not be done".
int Fail(std::string_view reason);

// The document on standard output, UTF-8, indented.
void PrintJson(const Json& document);

// A 32-bit float with the fewest digits that read back as the same float. NaN
// and infinities become null.
Json JsonNumber(float value);

// A text field of a record as UTF-8.
std::string Utf8(std::string_view codePageText);
