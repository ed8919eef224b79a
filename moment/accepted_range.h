// The moments that the program accepts.
#pragma once

#include <string_view>

#include "engines/instant.h"

namespace tarnwick {

// Both limits included. The upper one is noon of 6000-01-01 CE.
inline constexpr UniversalTime kLowerLimit(552283.0);
inline constexpr UniversalTime kUpperLimit(3912515.0);

// Why a moment is not accepted, in words; empty if it is.
std::string_view RangeErrorText(UniversalTime moment);

// Whether two day counts are the same as they are shown, with four decimals.
bool IsShownAlike(UniversalTime a, UniversalTime b);

// The limit that a day count cannot be told from as it is shown, so that what is shown there can be
// typed back; else the moment itself.
UniversalTime LimitOrMoment(UniversalTime read);

}  // namespace tarnwick
