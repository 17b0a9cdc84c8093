#include "navdata/lookup_names.h"

#include <array>
#include <cstddef>

namespace {

constexpr std::array<std::string_view, 4> fuelNames = {"gal", "lbs", "kg", "lit"};

constexpr std::array<std::string_view, 38> gateNames = {
    "None",       "Parking",   "N Parking",  "NE Parking", "E Parking", "SE Parking", "S Parking",
    "SW Parking", "W Parking", "NW Parking", "Gate",       "Dock",      "Gate A",     "Gate B",
    "Gate C",     "Gate D",    "Gate E",     "Gate F",     "Gate G",    "Gate H",     "Gate I",
    "Gate J",     "Gate K",    "Gate L",     "Gate M",     "Gate N",    "Gate O",     "Gate P",
    "Gate Q",     "Gate R",    "Gate S",     "Gate T",     "Gate U",    "Gate V",     "Gate W",
    "Gate X",     "Gate Y",    "Gate Z"};

constexpr std::array<std::string_view, 14> gateTypes = {
    "",           "Ramp GA",        "Ramp GA Small",   "Ramp GA Medium", "Ramp GA Large",
    "Ramp Cargo", "Ramp Mil Cargo", "Ramp Mil Combat", "Gate Small",     "Gate Medium",
    "Gate Heavy", "Dock GA",        "Fuel Box",        "Service"};

constexpr std::array<std::string_view, 13> frequencyTypes = {
    "",          "ATIS",     "MultiCom",  "Unicom", "CTAF", "Ground", "Tower",
    "Clearance", "Approach", "Departure", "Center", "FSS",  "ASOS"};

constexpr std::array<std::string_view, 25> surfaces = {
    "Concrete", "Grass", "Water",      "Unclear3",  "Asphalt",   "Unclear5", "Unclear6",
    "Clay",     "Snow",  "Unclear9",   "Unclear10", "Unclear11", "Dirt",     "Coral",
    "Gravel",   "Oil",   "Steel Mats", "Bitumen",   "Brick",     "Macadam",  "Planks",
    "Sand",     "Shale", "Tarmac",     "Dirt"};

template <std::size_t N>
std::string_view NameOf(const std::array<std::string_view, N>& names, int code) {
  return code >= 0 && static_cast<std::size_t>(code) < N ? names[static_cast<std::size_t>(code)]
                                                         : std::string_view{};
}

}  // namespace

std::string_view strFuel(int unit) {
  return NameOf(fuelNames, unit);
}
std::string_view strGateName(int name) {
  return NameOf(gateNames, name);
}
std::string_view strGateType(int type) {
  return NameOf(gateTypes, type);
}
std::string_view strFreqType(int type) {
  return NameOf(frequencyTypes, type);
}
std::string_view strSurface(int surface) {
  return surface == 254 ? "Unknown" : NameOf(surfaces, surface);
}
