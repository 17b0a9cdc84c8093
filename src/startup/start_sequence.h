// Brings the program up: the steps in their fixed order, each with its line in
// the information log. The intro window implements StartView.
#pragma once

#include <filesystem>
#include <string_view>

#include "platform/message_box.h"
#include "startup/session.h"

class StartView {
 public:
  virtual ~StartView() = default;
  // Shows the intro with this picture and the line behind the program's name.
  virtual void ShowIntro(const std::filesystem::path& picture, std::string_view version) = 0;
  virtual void ShowProgress(std::string_view text) = 0;
  virtual void HideProgress() = 0;
  virtual void ShowAirac(std::string_view cycle) = 0;
  virtual void ShowBusyPointer(bool busy) = 0;
  virtual void HideIntro() = 0;
  // There is no database for either simulator: asks the pilot whether to build
  // the bundled one and does so with progress. True if it is there now.
  virtual bool OfferBundledDatabase() = 0;
};

enum class StartOutcome { showMap, showAirportSelection, ended };

// Runs the whole start-up for the session's application folder. commandLine is
// what is left of the command line once the program's own options are taken
// out. Ended: the pilot has been told why, the program must close.
StartOutcome RunStartSequence(Session& session, std::string_view commandLine, StartView& view,
                              MessageBox& messages);
