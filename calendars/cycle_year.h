// Steps through years that are counted within cycles.
#pragma once

#include <cstdint>

#include "engines/checked_arithmetic.h"

namespace tarnwick {

// The year after, or before, a year of a cycle of `cycle_years` years: the last year is followed by
// year 1 of the next cycle. Throws RuntimeError, changing nothing, where the numbers end.
inline void StepYearOfCycle(std::int32_t& cycle, std::int32_t& year, std::int32_t cycle_years,
                            bool forward) {
  const std::int32_t step = forward ? 1 : -1;
  const std::int32_t next = CheckedAdd(year, step);
  if (forward ? next > cycle_years : next < 1) {
    cycle = CheckedAdd(cycle, step);
    year = forward ? 1 : cycle_years;
  } else {
    year = next;
  }
}

}  // namespace tarnwick
