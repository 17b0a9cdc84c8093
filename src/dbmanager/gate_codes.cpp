#include <algorithm>
#include <array>
#include <cctype>

#include "base/fixed_text.h"
#include "dbmanager/airport_files.h"

namespace {

// Rows of strGateType().
enum GateType {
  rampSmall = 2,
  rampMedium = 3,
  rampLarge = 4,
  rampCargo = 5,
  rampMilCargo = 6,
  rampMilCombat = 7,
  gateSmall = 8,
  gateMedium = 9,
  gateHeavy = 10,
  dock = 11,
  fuelBox = 12
};

// Rows of strGateName().
constexpr int nameParking = 1, nameNorth = 2, nameGate = 10, nameDock = 11, nameGateA = 12;

bool Has(std::string_view text, std::string_view word) {
  return text.find(word) != std::string_view::npos;
}

// ICAO width codes: A and B small, C medium, D to F heavy.
int SizeOf(const SourceStart& start) {
  switch (start.widthCode) {
    case 'A':
    case 'B':
      return 0;
    case 'C':
      return 1;
    case 'D':
    case 'E':
    case 'F':
      return 2;
    default:
      break;
  }
  if (Has(start.airplanes, "heavy")) return 2;
  return Has(start.airplanes, "jets") || start.airplanes == "all" || start.airplanes.empty() ? 1 : 0;
}

int TypeOf(const SourceStart& start, const std::string& upperName, int size) {
  if (start.operation == "military" || upperName.starts_with("MIL"))
    return size == 2 ? rampMilCargo : rampMilCombat;
  if (start.operation == "cargo" || Has(upperName, "CARGO") || Has(upperName, "FREIGHT")) return rampCargo;
  if (Has(upperName, "FUEL")) return fuelBox;
  if (Has(upperName, "DOCK")) return dock;
  const bool gate = start.kind == "gate" || Has(upperName, "GATE") || Has(upperName, "TERMINAL");
  return (gate ? gateSmall : rampSmall) + size;
}

// The compass words in the order of the table, longest first where one begins another.
int CompassParking(const std::string& upperName) {
  constexpr auto words = std::to_array<std::pair<std::string_view, int>>({{"NORTHEAST", 1},
                                                                          {"NORTHWEST", 7},
                                                                          {"SOUTHEAST", 3},
                                                                          {"SOUTHWEST", 5},
                                                                          {"NORTH", 0},
                                                                          {"EAST", 2},
                                                                          {"SOUTH", 4},
                                                                          {"WEST", 6}});
  for (const auto& [word, offset] : words) {
    if (Has(upperName, word)) return nameNorth + offset;
  }
  return nameParking;
}

struct LetterAndNumber {
  char letter = ' ';
  int number = 0;
};

// The last word of the name such as "A12", "12", "A 12" or "A12B".
LetterAndNumber Designator(const std::string& upperName) {
  LetterAndNumber result;
  const std::size_t digits = upperName.find_last_of("0123456789");
  if (digits == std::string::npos) {
    const std::size_t blank = upperName.rfind(' ');
    if (blank != std::string::npos && blank + 2 == upperName.size() && AsciiUpper(upperName.back()) >= 'A' &&
        upperName.back() <= 'Z') {
      result.letter = upperName.back();
    }
    return result;
  }
  std::size_t first = digits;
  while (first > 0 && std::isdigit(static_cast<unsigned char>(upperName[first - 1])) != 0)
    --first;
  result.number =
      ParseWhole(upperName.substr(first, std::min<std::size_t>(digits - first + 1, 4))).value_or(0);
  while (first > 0 && (upperName[first - 1] == ' ' || upperName[first - 1] == '-'))
    --first;
  const auto isLetter = [](char c) { return c >= 'A' && c <= 'Z'; };
  if (first > 0 && isLetter(upperName[first - 1]) && (first == 1 || !isLetter(upperName[first - 2]))) {
    result.letter = upperName[first - 1];
  }
  return result;
}

}  // namespace

GateCodes GateCodesOf(const SourceStart& start) {
  constexpr std::array radii{10.0, 18.0, 36.0};  // half of a usual stand by size, metres
  const std::string upperName = AsciiUpper(std::string_view(start.name));
  const int size = SizeOf(start);
  const LetterAndNumber designator = Designator(upperName);
  GateCodes codes;
  codes.type = TypeOf(start, upperName, size);
  codes.number = designator.number;
  codes.radius = radii[static_cast<std::size_t>(size)];
  const bool gate = codes.type >= gateSmall && codes.type <= gateHeavy;
  if (codes.type == dock) {
    codes.name = nameDock;
  } else if (gate) {
    codes.name = designator.letter == ' ' ? nameGate : nameGateA + (designator.letter - 'A');
  } else {
    codes.name = CompassParking(upperName);
  }
  return codes;
}
