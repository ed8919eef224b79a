// Equinoxes and solstices.
#pragma once

#include <cstdint>

#include "engines/instant.h"

namespace tarnwick {

enum class Season {
  kMarchEquinox = 0,
  kJuneSolstice = 1,
  kSeptemberEquinox = 2,
  kDecemberSolstice = 3
};

// The instant of an equinox or solstice of an astronomical Gregorian year.
// Within a minute from -1000 to 3000; smooth and ever rougher beyond.
// Source: Meeus, Astronomical Algorithms, 2nd ed., ch. 27.
TerrestrialTime SeasonInstant(std::int32_t year, Season season);

}  // namespace tarnwick
