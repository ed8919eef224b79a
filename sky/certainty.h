// What an uncertain clock (moon/clock_error.h) leaves open at a place.
#pragma once

#include <string>

#include "engines/ephemeris/observer.h"
#include "engines/phase_engine.h"
#include "sky/solar_at_place.h"

namespace tarnwick {

// What a place sees of a solar eclipse with delta T as it is taken, and by its standard error
// smaller and larger.
struct SolarCertainty {
  SolarKind kind = SolarKind::kNone;
  SolarKind if_less = SolarKind::kNone;
  SolarKind if_more = SolarKind::kNone;
  double error = 0;  // ClockError at greatest eclipse, seconds
};

// The solar eclipse of that record for an observer.
SolarCertainty CertaintyOf(const EclipseRecord& record, const Observer& observer);

// "total", or with what may be as well:
//   "total; partial if delta T is 11 min less"
//   "not seen; partial if delta T is 140 s less or more"
//   "partial; not seen if delta T is 11 min less; total if it is 11 min more"
std::string CertaintyText(const SolarCertainty& certainty);

}  // namespace tarnwick
