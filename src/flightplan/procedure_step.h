// One step of a standard departure or arrival.
#pragma once

#include <cstdint>

#include "base/fixed_text.h"

// What a step stands for in the database: a row of one of its tables, or
// nothing but a position.
struct StepLink {
  char letter = 'M';      // 'M' manual, 'I' intersection, 'F' fix, 'V' VOR, 'N' NDB
  std::int32_t row = -1;  // of that table

  friend bool operator==(const StepLink&, const StepLink&) = default;
};

// Angles are degrees, north and east positive; the track is magnetic.
struct ProcedureStep {
  FixedText<5> Type;
  FixedText<10> Code;
  FixedText<20> Text;
  std::int16_t Value = 0;
  float Lat = 0;
  float Lon = 0;
  float Track = 0;
  float Distance = 0;  // NM
  float Altitude = 0;  // feet
  float Dme = 0;       // NM
  StepLink Link;

  friend bool operator==(const ProcedureStep&, const ProcedureStep&) = default;
};
