// The performance of one aircraft type. One record is the current aircraft;
// every time, level and fuel figure of the plan follows from it.
#pragma once

#include <cstdint>
#include <string>

struct AircraftRec {
  std::int16_t Number = 0;
  std::string Name = "Cessna Skylane 182";  // UTF-8
  std::int32_t ClimbRate = 0;               // ft/min
  std::int32_t ClimbSpeed = 0;              // kts
  std::int32_t DescentRate = 0;             // ft/min
  std::int32_t DescentSpeed = 0;            // kts
  std::int32_t CruiseSpeed = 0;             // kts
  std::int32_t ApproachSpeed = 0;           // kts
  std::int32_t MaxFuel = 0;                 // kg
  std::int32_t Ceiling = 0;                 // hundreds of feet
  std::int32_t CruiseFlightLevel = 0;       // hundreds of feet
  std::int32_t EmptyWeight = 0;             // kg
  std::int32_t LoadWeight = 0;              // kg
  std::int32_t MaxWeight = 0;               // kg
  std::int32_t ApproachAltitude = 0;        // feet; follows from ApproachSpeed once the aircraft is chosen
  std::int32_t MaxRange = 0;                // NM

  friend bool operator==(const AircraftRec&, const AircraftRec&) = default;
};

// The altitude in feet at which an aircraft of this approach speed (kts)
// begins its approach: 3500 up to 100 kts, 5000 up to 120, 7000 up to 140,
// 8500 up to 160, else 10000.
std::int32_t ApproachAltitude(std::int32_t approachSpeed);
