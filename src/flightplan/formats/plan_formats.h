// The formats in which a plan is saved, in the order in which they are written.
// A new format is one file with its writer, its line in plan_writers.h, and its
// row in the table.
#pragma once

#include <span>
#include <string>
#include <string_view>

#include "flightplan/formats/plan_export.h"
#include "settings/settings.h"

struct PlanFormatInfo {
  std::string_view name;       // as the command line names it: "xplane11"
  std::string_view caption;    // of its check box, UTF-8
  int box = 0;                 // chckFormat(box), and the bit of the setting FPSEL
  std::string_view extension;  // ".pln"
  std::string (*write)(const PlanExport& plan) = nullptr;

  // Where its files go: the folder that the pilot set, else the one below the
  // simulator's, else the one below the program's. All three empty: the folder
  // of the plan itself.
  std::string Settings::*folderSetting = nullptr;
  std::string_view simulatorFolder = {};  // "PMDG\\FLIGHTPLANS\\"
  std::string_view ownFolder = {};        // "\\FSplan\\Ivao"

  bool needsRunways = false;               // both airports must have runways
  bool namedByAirports = false;            // "EDDFKJFK.fms", whatever name was typed
  std::string_view askProcedures = {};     // the question for SID and STAR; empty: they are taken
  std::string_view simulatorUnknown = {};  // the message without the simulator's folder

  // A file that the plan's needs beside it; put there when it is missing. None: empty.
  std::string_view companionName = {};
  std::string_view (*companionText)() = nullptr;
};

std::span<const PlanFormatInfo> PlanFormats();

// The format of this name in any letters; null: there is none.
const PlanFormatInfo* FindPlanFormat(std::string_view name);
