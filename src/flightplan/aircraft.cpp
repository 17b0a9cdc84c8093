#include "flightplan/aircraft.h"

std::int32_t ApproachAltitude(std::int32_t approachSpeed) {
  if (approachSpeed <= 100) return 3500;
  if (approachSpeed <= 120) return 5000;
  if (approachSpeed <= 140) return 7000;
  if (approachSpeed <= 160) return 8500;
  return 10000;
}
