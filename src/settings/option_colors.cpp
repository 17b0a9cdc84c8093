// The options of the colours: which set is in use, and each colour of it.
#include <array>

#include "settings/option_table.h"

namespace {

constexpr std::array sets = {OptionChoice{0, "Day"}, OptionChoice{-1, "Night"}};

constexpr Option Ground(std::string_view key, ColorValue ColorSettings::*field, std::string_view label) {
  return {.key = key,
          .group = OptionGroup::groundColors,
          .kind = OptionKind::color,
          .field = field,
          .label = label};
}

constexpr Option Navigation(std::string_view key, ColorValue ColorSettings::*field, std::string_view label) {
  return {.key = key,
          .group = OptionGroup::navigationColors,
          .kind = OptionKind::color,
          .field = field,
          .label = label};
}

constexpr Option Traffic(std::string_view key, ColorValue ColorSettings::*field, std::string_view label) {
  return {.key = key,
          .group = OptionGroup::trafficColors,
          .kind = OptionKind::color,
          .field = field,
          .label = label};
}

using C = ColorSettings;

constexpr std::array colorOptions = {
    Option{.key = "NIGHT",
           .group = OptionGroup::groundColors,
           .kind = OptionKind::choice,
           .field = &Settings::NIGHT,
           .label = "Set of colours",
           .sentence = "Each of the two sets keeps its own colours.",
           .choices = sets},
    Ground("MAP", &C::MAP, "Sea and lakes"),
    Ground("LAND", &C::LAND, "Land"),
    Ground("COAST", &C::COAST, "Coastlines and borders"),
    Ground("RIVER", &C::RIVER, "Rivers"),
    Ground("LATLONG", &C::LATLONG, "Grid of latitude and longitude"),
    Ground("COMP", &C::COMP, "Compass rose"),
    Ground("RWY", &C::RWY, "Runways"),
    Ground("RWYID", &C::RWYID, "Runway designators"),
    Ground("TAXI", &C::TAXI, "Runway edges and taxiways"),
    Ground("TAXINAME", &C::TAXINAME, "Names of taxiways, texts of the plan"),
    Ground("PARKING", &C::PARKING, "Parking"),
    Ground("MEASURE", &C::MEASURE, "Measuring line"),
    Ground("ZOOM", &C::ZOOM, "Box that is zoomed to"),
    Navigation("ROUTE", &C::ROUTE, "Flight plan"),
    Navigation("HILITE", &C::HILITE, "What is highlighted"),
    Navigation("AP", &C::AP, "Airports"),
    Navigation("ILS", &C::ILS, "ILS"),
    Navigation("VOR", &C::VOR, "VORs"),
    Navigation("NDB", &C::NDB, "NDBs"),
    Navigation("INT", &C::INT, "Intersections"),
    Navigation("FIX", &C::FIX, "GPS fixes"),
    Navigation("USER", &C::USER, "User waypoints"),
    Navigation("VICTOR", &C::VICTOR, "Low altitude airways"),
    Navigation("JET", &C::JET, "High altitude airways"),
    Navigation("CTRZ", &C::CTRZ, "Control zones"),
    Navigation("AIR1", &C::AIR1, "Controlled airspaces"),
    Navigation("AIR2", &C::AIR2, "Restricted airspaces"),
    Navigation("MSA", &C::MSA, "Minimum safe altitudes"),
    Traffic("MOVAC", &C::MOVAC, "Your aircraft and its track"),
    Traffic("WIND", &C::WIND, "Wind arrow"),
    Traffic("ACINCTRZ", &C::ACINCTRZ, "Your aircraft inside a control zone"),
    Traffic("ACATCTRZ", &C::ACATCTRZ, "Your aircraft near a control zone"),
    Traffic("AI", &C::AI, "AI traffic"),
    Traffic("AIFREQ", &C::AIFREQ, "AI traffic on your frequency"),
    Traffic("TCAS1", &C::TCAS1, "Traffic that comes close"),
    Traffic("TCAS2", &C::TCAS2, "Traffic alert"),
    Traffic("STATICACCOLOR", &C::STATICACCOLOR, "Network's aircraft on the ground"),
    Traffic("IVAOFIR", &C::IVAOFIR, "Centres"),
    Traffic("IVAOFSS", &C::IVAOFSS, "Flight service"),
    Traffic("IVAOAPP", &C::IVAOAPP, "Approach"),
    Traffic("IVAOTWR", &C::IVAOTWR, "Towers"),
    Traffic("IVAOGND", &C::IVAOGND, "Ground"),
    Traffic("FIRACTIVCOLOR", &C::FIRACTIVCOLOR, "Sectors with a controller"),
    Traffic("FIRINACTIVCOLOR", &C::FIRINACTIVCOLOR, "Sectors without a controller"),
};

}  // namespace

std::span<const Option> ColorOptions() {
  return colorOptions;
}
