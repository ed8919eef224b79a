// What an uncertain clock (moon/clock_error.h) leaves open at a place.
#pragma once

#include <string>
#include <string_view>

#include "engines/ephemeris/observer.h"
#include "engines/phase_engine.h"

namespace tarnwick {

// As what a place sees an eclipse, "none" if not at all, with delta T as it is taken, and by its
// standard error smaller and larger.
struct Certainty {
  std::string_view kind;
  std::string_view if_less;
  std::string_view if_more;
  double error = 0;  // ClockError at greatest eclipse, seconds
};

// The eclipse of that record, of the Sun or the Moon, for an observer.
Certainty CertaintyOf(const EclipseRecord& record, const Observer& observer);

// "total", or with what may be as well:
//   "total; partial if delta T is 11 min less"
//   "not seen; partial if delta T is 140 s less or more"
//   "partial; not seen if delta T is 11 min less; total if it is 11 min more"
std::string CertaintyText(const Certainty& certainty);

}  // namespace tarnwick
