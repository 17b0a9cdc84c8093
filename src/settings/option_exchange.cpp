// The options of what goes in and out: folders, networks, downloads.
#include <array>

#include "settings/option_table.h"

namespace {

using enum OptionKind;

constexpr std::size_t longestCallsign = 12;
// A password takes two characters of the file for each of its own.
constexpr std::size_t longestPassword = 128;

constexpr Option Folder(std::string_view key, std::string Settings::*field, std::string_view label,
                        std::string_view sentence) {
  return {.key = key,
          .group = OptionGroup::folders,
          .kind = folder,
          .field = field,
          .label = label,
          .sentence = sentence};
}

constexpr Option Download(std::string_view key, OptionKind kind, std::string Settings::*field,
                          std::string_view label, std::string_view sentence) {
  return {.key = key,
          .group = OptionGroup::downloads,
          .kind = kind,
          .field = field,
          .label = label,
          .sentence = sentence};
}

constexpr std::array exchangeOptions = {
    Folder("FPPATH09", &Settings::FPPATH09, "Plans, Flight Simulator 2004",
           "Where plans are saved and opened while that simulator is chosen."),
    Folder("FPPATH10", &Settings::FPPATH10, "Plans, Flight Simulator X",
           "Where plans are saved and opened while that simulator is chosen."),
    Folder("FSXPLANPATH", &Settings::FSXPLANPATH, "FSX and Prepar3D", "Where plans for these simulators go."),
    Folder("MSFSPATH", &Settings::MSFSPATH, "MSFS", "Where plans for this simulator go."),
    Folder("XPLANEPATH", &Settings::XPLANEPATH, "X-Plane 10 and before",
           "Where plans for these simulators go; they look into Output/FMS plans."),
    Folder("XPLANE11PATH", &Settings::XPLANE11PATH, "X-Plane 11 and 12",
           "Where plans for these simulators go; they look into Output/FMS plans."),
    Folder("FLIGHTGEARPATH", &Settings::FLIGHTGEARPATH, "FlightGear", "Where plans for this simulator go."),
    Folder("GARMINPATH", &Settings::GARMINPATH, "Garmin", "Where plans for Garmin units go."),
    Folder("GPXPATH", &Settings::GPXPATH, "GPX", "Where routes for maps and other programs go."),
    Folder("SQUAWKBOXPATH", &Settings::SQUAWKBOXPATH, "SquawkBox", "Where plans for this client go."),
    Folder("FSINNPATH", &Settings::FSINNPATH, "FSInn", "Where plans for this client go."),
    Folder("IVAOPATH", &Settings::IVAOPATH, "IVAO", "Where plans for this network's client go."),
    Folder("RADCONPATH", &Settings::RADCONPATH, "RadarContact", "Where plans for this add-on go."),
    Folder("PROMAGPATH", &Settings::PROMAGPATH, "Project Magenta", "Where plans for this add-on go."),

    Option{.key = "AUTODOWNLOAD",
           .group = OptionGroup::networks,
           .kind = flag,
           .field = &Settings::AUTODOWNLOAD,
           .label = "Download by itself",
           .sentence = "The picture of the network is fetched again and again while it is shown.",
           .on = 1},
    Option{.key = "DLINTERVAL",
           .group = OptionGroup::networks,
           .kind = number,
           .field = &Settings::DLINTERVAL,
           .label = "Download every",
           .sentence = "The networks ask not to be called more often than that.",
           .lowest = 3,
           .highest = 60,
           .unit = "minutes",
           .lowestForDevelopers = 1},
    Option{.key = "ONLUSRCALLSIGN",
           .group = OptionGroup::networks,
           .kind = text,
           .field = &Settings::ONLUSRCALLSIGN,
           .label = "Your callsign",
           .sentence = "By it the network's list knows which aircraft is yours.",
           .longest = longestCallsign},
    Option{.key = "USECALLSIGN",
           .group = OptionGroup::networks,
           .kind = flag,
           .field = &Settings::USECALLSIGN,
           .label = "Use your callsign",
           .sentence = "Your callsign stands for you wherever a name is asked for."},
    Option{.key = "ONLSHOWALTSPEED",
           .group = OptionGroup::networks,
           .kind = flag,
           .field = &Settings::ONLSHOWALTSPEED,
           .label = "Altitude and speed",
           .sentence = "Stand beside the network's aircraft on the map."},
    Option{.key = "ONLSHOWDEPDEST",
           .group = OptionGroup::networks,
           .kind = flag,
           .field = &Settings::ONLSHOWDEPDEST,
           .label = "Departure and destination",
           .sentence = "Stand beside the network's aircraft on the map."},
    Option{.key = "IVAOVID",
           .group = OptionGroup::networks,
           .kind = number,
           .field = &Settings::IVAOVID,
           .label = "IVAO number",
           .sentence = "Your number at the network; 0 for none.",
           .highest = 9999999},
    Option{.key = "IVAOVPW",
           .group = OptionGroup::networks,
           .kind = password,
           .field = &Settings::IVAOVPW,
           .label = "IVAO password",
           .sentence = "Stored scrambled, which keeps off a glance and no more.",
           .longest = longestPassword},
    Option{.key = "IVAOURLSTATUS",
           .group = OptionGroup::networks,
           .kind = address,
           .field = &Settings::IVAOURLSTATUS,
           .label = "IVAO status page",
           .sentence = "Tells where the network's files lie today."},
    Option{.key = "VATSIMURLSTATUS",
           .group = OptionGroup::networks,
           .kind = address,
           .field = &Settings::VATSIMURLSTATUS,
           .label = "VATSIM status page",
           .sentence = "Tells where the network's files lie today."},

    Download("WXURL", address, &Settings::WXURL, "Weather server", "Where METAR reports are fetched."),
    Download("WXFILE", fileName, &Settings::WXFILE, "Weather file",
             "Under what name they are stored, without its ending."),
    Download("NATRACKURL", address, &Settings::NATRACKURL, "Atlantic tracks",
             "The page with the tracks of the day over the North Atlantic."),
    Download("NATRACKFILE", fileName, &Settings::NATRACKFILE, "Atlantic tracks, file",
             "Under what name the page is stored, without its ending."),
    Download("PACOTURL", address, &Settings::PACOTURL, "Pacific tracks",
             "The page with the tracks of the day over the Pacific."),
    Download("PACOTFILE", fileName, &Settings::PACOTFILE, "Pacific tracks, file",
             "Under what name the page is stored, without its ending."),
};

}  // namespace

std::span<const Option> ExchangeOptions() {
  return exchangeOptions;
}
