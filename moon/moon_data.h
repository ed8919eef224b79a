// The Moon as it stands at a moment: age, phase and illumination.
#pragma once

#include <cstdint>
#include <string>

#include "engines/instant.h"

namespace tarnwick {

struct MoonData {
  std::int32_t lunation = 0;
  double age = 0;          // days since the new moon
  double length = 0;       // of the lunation, days
  std::int16_t phase = 0;  // in effect, 0 to 3; negative is an error code of GetPhase
  double fraction = 0;     // illuminated, 0 to 1; 0 if the phase is an error
  bool waxing = false;
};

// The Moon at a moment. From 1600 to 2099 the illuminated fraction comes from the longitudes of
// Moon and Sun, else from the instants of the principal phases around the moment.
MoonData MoonDataAt(UniversalTime moment);

// The illuminated fraction by either way. `lunation` and `phase` are those of the moment.
double FractionFromPositions(UniversalTime moment);
double FractionFromPhases(UniversalTime moment, std::int32_t lunation, std::int16_t phase);

// An age in days in words: "1 day, 2 hrs, 1 min".
std::string AgeText(double age);

// "Crescent moon (waxing)" and so on. Whether it waxes is left out next to new and full moon.
std::string PhaseOfMoonText(double fraction, bool waxing);

// What a picture of the Moon shows: "The Moon, gibbous, waxing, 62 % lit"; "The Moon" if the phase
// is an error.
std::string MoonDescription(const MoonData& moon);

}  // namespace tarnwick
