#include "moon/clock_error.h"

#include <cmath>
#include <cstdint>

#include "engines/checked_arithmetic.h"
#include "engines/date_engine.h"
#include "engines/ephemeris/delta_t.h"
#include "engines/time_units.h"

namespace tarnwick {

double ClockError(UniversalTime instant) {
  const auto day_number = CheckedFloor<std::int32_t>(instant.days + 0.5);
  return DeltaTError(CivilDateOf(day_number).year + 0.5);
}

std::string ErrorText(double seconds) {
  if (seconds < 0.1) return "below 0.1 s";
  if (seconds >= 10 * kSecondsPerMinute) {
    return std::to_string(std::lround(seconds / kSecondsPerMinute)) + " min";
  }
  if (seconds >= 100) return std::to_string(10 * std::lround(seconds / 10)) + " s";
  if (seconds >= 10) return std::to_string(std::lround(seconds)) + " s";
  const long tenths = std::lround(10 * seconds);
  return std::to_string(tenths / 10) + "." + std::to_string(tenths % 10) + " s";
}

std::string ClockErrorSuffix(double seconds) {
  if (seconds < kSecondsPerMinute) return {};
  return " +- " + std::to_string(std::lround(seconds / kSecondsPerMinute)) + " min";
}

}  // namespace tarnwick
