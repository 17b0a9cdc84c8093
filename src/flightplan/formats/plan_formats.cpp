#include "flightplan/formats/plan_formats.h"

#include <array>

#include "base/fixed_text.h"
#include "flightplan/formats/plan_writers.h"
#include "flightplan/plan_file.h"

std::string WriteOwnPlan(const PlanExport& plan) {
  return WritePlan(plan.plan, plan.database, PlanFormat::FS);
}

std::string WriteSimulatorPlan(const PlanExport& plan) {
  return WritePlan(plan.plan, plan.database, PlanFormat::RC);
}

namespace {

constexpr std::array formats = {
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
    PlanFormatInfo{.name = "projectmagenta",
                   .caption = "Project Magenta",
                   .box = 9,
                   .extension = ".pln",
                   .write = WriteSimulatorPlan,
                   .folderSetting = &Settings::PROMAGPATH,
                   .ownFolder = "\\FSplan\\PM"},
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
