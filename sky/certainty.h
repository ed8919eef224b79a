// What an uncertain clock leaves open: how far the Earth had turned by an instant of Terrestrial
// Time is known no better than delta T, Terrestrial less Universal Time.
#pragma once

#include <string>

#include "engines/ephemeris/observer.h"
#include "engines/instant.h"
#include "engines/phase_engine.h"
#include "sky/solar_at_place.h"

namespace tarnwick {

// The standard error of delta T in seconds, in the middle of the year at Greenwich.
double ClockError(UniversalTime instant);

// What follows an instant told to the minute: " +- 11 min" for an error in seconds, or nothing if
// it is below a minute.
std::string ClockErrorSuffix(double seconds);

// What a place sees of a solar eclipse with delta T as it is taken, and by its standard error
// smaller and larger.
struct SolarCertainty {
  SolarKind kind = SolarKind::kNone;
  SolarKind if_less = SolarKind::kNone;
  SolarKind if_more = SolarKind::kNone;
  double error = 0;  // the standard error, seconds
};

// The solar eclipse of that record for an observer.
SolarCertainty CertaintyOf(const EclipseRecord& record, const Observer& observer);

// "total", or with what may be as well:
//   "total; partial if delta T is 11 min less"
//   "not seen; partial if delta T is 140 s less or more"
//   "partial; not seen if delta T is 11 min less; total if it is 11 min more"
std::string CertaintyText(const SolarCertainty& certainty);

}  // namespace tarnwick
