#include "dbmanager/first_aircraft.h"

namespace {

struct Figures {
  const char* name;
  int maxFuel, ceiling, maxWeight, emptyWeight, loadWeight;  // kg, hundreds of feet, kg
  int climbRate, climbSpeed, descentRate, descentSpeed, cruiseSpeed, cruiseFlightLevel;
  int approachSpeed, maxRange;
};

// Fuel, weights and range go together: range at cruise speed uses up the fuel.
constexpr Figures types[] = {
    {"Cessna Skylane 182", 239, 181, 1406, 894, 240, 900, 85, 500, 125, 145, 80, 70, 850},
    {"Cessna Skyhawk 172", 144, 140, 1111, 767, 180, 650, 75, 500, 110, 122, 70, 65, 640},
    {"Piper Cherokee Six", 228, 160, 1542, 810, 320, 800, 90, 500, 130, 146, 80, 75, 730},
    {"Beechcraft Bonanza A36", 200, 180, 1656, 1040, 300, 1000, 105, 600, 160, 170, 100, 80, 720},
    {"Beechcraft Baron 58", 452, 200, 2495, 1770, 380, 1500, 115, 700, 180, 195, 120, 95, 1300},
    {"Beechcraft King Air 350", 1638, 350, 6804, 4300, 1000, 2200, 160, 1800, 240, 305, 280, 110, 1550},
    {"Cessna Citation CJ1", 1460, 410, 4853, 3100, 600, 2800, 210, 2200, 270, 380, 370, 110, 1250},
    {"ATR 72-500", 5000, 250, 22500, 13000, 6500, 1350, 170, 1500, 230, 275, 200, 115, 1330},
    {"Airbus A320-200", 19100, 390, 77000, 42500, 15500, 2200, 290, 2000, 290, 450, 350, 138, 3200},
    {"Boeing 737-800", 20900, 410, 79000, 41500, 15800, 2400, 280, 2000, 280, 455, 360, 142, 3100},
    {"Boeing 767-300ER", 73400, 430, 186900, 90000, 26000, 2000, 300, 2000, 300, 465, 350, 145, 6000},
    {"Boeing 747-400", 173000, 450, 396900, 180000, 50000, 1800, 320, 2000, 310, 490, 350, 153, 7250},
};

}  // namespace

std::vector<AircraftRec> FirstAircraft() {
  std::vector<AircraftRec> list;
  for (const Figures& type : types) {
    AircraftRec aircraft;
    aircraft.Number = static_cast<std::int16_t>(list.size() + 1);
    aircraft.Name = type.name;
    aircraft.MaxFuel = type.maxFuel;
    aircraft.Ceiling = type.ceiling;
    aircraft.MaxWeight = type.maxWeight;
    aircraft.EmptyWeight = type.emptyWeight;
    aircraft.LoadWeight = type.loadWeight;
    aircraft.ClimbRate = type.climbRate;
    aircraft.ClimbSpeed = type.climbSpeed;
    aircraft.DescentRate = type.descentRate;
    aircraft.DescentSpeed = type.descentSpeed;
    aircraft.CruiseSpeed = type.cruiseSpeed;
    aircraft.CruiseFlightLevel = type.cruiseFlightLevel;
    aircraft.ApproachSpeed = type.approachSpeed;
    aircraft.ApproachAltitude = ApproachAltitude(type.approachSpeed);
    aircraft.MaxRange = type.maxRange;
    list.push_back(aircraft);
  }
  return list;
}
