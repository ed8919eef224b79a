// How sure Universal Time is: how far the Earth had turned by an instant of Terrestrial Time is
// known no better than delta T, Terrestrial less Universal Time.
#pragma once

#include <string>

#include "engines/instant.h"

namespace tarnwick {

// The standard error of delta T in seconds, in the middle of the year at Greenwich, as delta T
// itself is taken. An instant whose day number does not fit 32 bits throws RuntimeError.
double ClockError(UniversalTime instant);

// A standard error in seconds as it can be claimed, to two digits: "below 0.1 s", "5.0 s", "140 s",
// from ten minutes on "34 min".
std::string ErrorText(double seconds);

// What follows an instant told to the minute: " +- 11 min" for an error in seconds, or nothing if
// it is below a minute.
std::string ClockErrorSuffix(double seconds);

}  // namespace tarnwick
