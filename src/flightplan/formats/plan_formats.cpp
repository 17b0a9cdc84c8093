#include "flightplan/formats/plan_formats.h"

#include <array>

#include "base/fixed_text.h"
#include "flightplan/formats/plan_writers.h"
#include "flightplan/formats/xml_style_sheet.h"
#include "flightplan/plan_file.h"

std::string WriteOwnPlan(const PlanExport& plan) {
  return WritePlan(plan.plan, plan.database, PlanFormat::FS);
}

std::string WriteSimulatorPlan(const PlanExport& plan) {
  return WritePlan(plan.plan, plan.database, PlanFormat::RC);
}

namespace {

constexpr std::array formats = {
    PlanFormatInfo{.name = "pmdg",
                   .caption = "PMDG",
                   .box = 4,
                   .extension = ".rte",
                   .write = WritePmdgRoute,
                   .simulatorFolder = "PMDG\\FLIGHTPLANS\\",
                   .ownFolder = "\\FSPlan\\",
                   .needsRunways = true,
                   .askProcedures = "Saving Flightplan include SID's and Star's for PMDG?",
                   .simulatorUnknown = "Cannot find Flight Simulator path! PMDG file is written into: "},
    PlanFormatInfo{.name = "leveld",
                   .caption = "LevelD",
                   .box = 7,
                   .extension = ".rte",
                   .write = WriteLevelDRoute,
                   .simulatorFolder = "Level-D Simulations\\navdata\\Flightplans\\",
                   .ownFolder = "\\FSPlan\\",
                   .needsRunways = true,
                   .askProcedures = "Saving Flightplan include SID's and Star's for LevelD?",
                   .simulatorUnknown = "Cannot find Flight Simulator path! LevelD file is written into: "},
    PlanFormatInfo{.name = "ifly",
                   .caption = "iFly B747",
                   .box = 11,
                   .extension = ".fltplan",
                   .write = WriteIFlyPlan,
                   .simulatorFolder = "ifly\\747-400\\navdata\\fltplan\\",
                   .needsRunways = true,
                   .simulatorUnknown = "Cannot find Flight Simulator path!"},
    PlanFormatInfo{.name = "velmora",
                   .caption = "Velmora/Flight Simulator",
                   .box = 0,
                   .extension = ".pln",
                   .write = WriteOwnPlan},
    PlanFormatInfo{.name = "radarcontact",
                   .caption = "RadarContact",
                   .box = 1,
                   .extension = ".pln",
                   .write = WriteSimulatorPlan,
                   .folderSetting = &Settings::RADCONPATH,
                   .ownFolder = "\\FSplan\\RC"},
    PlanFormatInfo{.name = "squawkbox",
                   .caption = "SquawkBox",
                   .box = 2,
                   .extension = ".sbp",
                   .write = WriteSquawkBoxRoute,
                   .folderSetting = &Settings::SQUAWKBOXPATH,
                   .ownFolder = "\\FSplan\\SquawkBox"},
    PlanFormatInfo{.name = "squawkboxplan",
                   .caption = "SquawkBox",
                   .box = 2,
                   .extension = ".sfp",
                   .write = WriteSquawkBoxPlan,
                   .folderSetting = &Settings::SQUAWKBOXPATH,
                   .ownFolder = "\\FSplan\\SquawkBox"},
    PlanFormatInfo{.name = "xplane",
                   .caption = "X-Plane",
                   .box = 5,
                   .extension = ".fms",
                   .write = WriteXPlane3Plan,
                   .folderSetting = &Settings::XPLANEPATH,
                   .ownFolder = "\\FSplan\\XPlane",
                   .needsRunways = true,
                   .namedByAirports = true},
    PlanFormatInfo{.name = "ivao",
                   .caption = "IVAO",
                   .box = 6,
                   .extension = ".fpl",
                   .write = WriteIvaoPlan,
                   .folderSetting = &Settings::IVAOPATH,
                   .ownFolder = "\\FSplan\\Ivao"},
    PlanFormatInfo{.name = "fsinn",
                   .caption = "FSInn",
                   .box = 8,
                   .extension = ".sfp",
                   .write = WriteSquawkBoxPlan,
                   .folderSetting = &Settings::FSINNPATH,
                   .ownFolder = "\\FSplan\\FSInn"},
    PlanFormatInfo{.name = "projectmagenta",
                   .caption = "Project Magenta",
                   .box = 9,
                   .extension = ".pln",
                   .write = WriteSimulatorPlan,
                   .folderSetting = &Settings::PROMAGPATH,
                   .ownFolder = "\\FSplan\\PM"},
    PlanFormatInfo{.name = "xml",
                   .caption = "XML",
                   .box = 10,
                   .extension = ".xml",
                   .write = WriteXmlPlan,
                   .companionName = xmlStyleSheetName,
                   .companionText = XmlStyleSheet},
    PlanFormatInfo{.name = "fsx",
                   .caption = "FSX, Prepar3D",
                   .box = 12,
                   .extension = ".pln",
                   .write = WriteFsxPlan,
                   .folderSetting = &Settings::FSXPLANPATH,
                   .ownFolder = "\\FSplan\\FSX"},
    PlanFormatInfo{.name = "msfs",
                   .caption = "MSFS",
                   .box = 13,
                   .extension = ".pln",
                   .write = WriteMsfsPlan,
                   .folderSetting = &Settings::MSFSPATH,
                   .ownFolder = "\\FSplan\\MSFS"},
    PlanFormatInfo{.name = "xplane11",
                   .caption = "X-Plane 11, 12",
                   .box = 14,
                   .extension = ".fms",
                   .write = WriteXPlane11Plan,
                   .folderSetting = &Settings::XPLANE11PATH,
                   .ownFolder = "\\FSplan\\X-Plane 11"},
    PlanFormatInfo{.name = "flightgear",
                   .caption = "FlightGear",
                   .box = 15,
                   .extension = ".fgfp",
                   .write = WriteFlightGearPlan,
                   .folderSetting = &Settings::FLIGHTGEARPATH,
                   .ownFolder = "\\FSplan\\FlightGear"},
    PlanFormatInfo{.name = "garmin",
                   .caption = "Garmin",
                   .box = 16,
                   .extension = ".fpl",
                   .write = WriteGarminPlan,
                   .folderSetting = &Settings::GARMINPATH,
                   .ownFolder = "\\FSplan\\Garmin"},
    PlanFormatInfo{.name = "gpx",
                   .caption = "GPX",
                   .box = 17,
                   .extension = ".gpx",
                   .write = WriteGpxPlan,
                   .folderSetting = &Settings::GPXPATH,
                   .ownFolder = "\\FSplan\\GPX"},
};

}  // namespace

std::span<const PlanFormatInfo> PlanFormats() {
  return formats;
}

const PlanFormatInfo* FindPlanFormat(std::string_view name) {
  for (const PlanFormatInfo& format : formats)
    if (EqualNoCase(format.name, name)) return &format;
  return nullptr;
}
