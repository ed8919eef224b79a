// What an uncertain clock leaves open: how far the Earth had turned by an instant of Terrestrial
// Time is known no better than delta T, Terrestrial less Universal Time.
#pragma once

#include <string>
#include <string_view>

#include "engines/ephemeris/observer.h"
#include "engines/instant.h"
#include "engines/phase_engine.h"

namespace tarnwick {

// The standard error of delta T in seconds, in the middle of the year at Greenwich.
double ClockError(UniversalTime instant);

// What follows an instant told to the minute: " +- 11 min" for an error in seconds, or nothing if
// it is below a minute.
std::string ClockErrorSuffix(double seconds);

// As what a place sees an eclipse, "none" if not at all, with delta T as it is taken, and by its
// standard error smaller and larger.
struct Certainty {
  std::string_view kind;
  std::string_view if_less;
  std::string_view if_more;
  double error = 0;  // the standard error, seconds
};

// The eclipse of that record, of the Sun or the Moon, for an observer.
Certainty CertaintyOf(const EclipseRecord& record, const Observer& observer);

// "total", or with what may be as well:
//   "total; partial if delta T is 11 min less"
//   "not seen; partial if delta T is 140 s less or more"
//   "partial; not seen if delta T is 11 min less; total if it is 11 min more"
std::string CertaintyText(const Certainty& certainty);

}  // namespace tarnwick
